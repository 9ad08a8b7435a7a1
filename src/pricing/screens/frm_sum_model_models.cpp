#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/qt/icons.h"
#include "pricing/screens/frm_sum_model_data.h"

namespace tendo {
namespace {

/// The names of one side's controls and fields in the lower half.
struct Side {
    const char* heading;
    const char* style;
    const char* helpButton;
    const char* about;
    const char* selectButton;
    const char* selectCaption;
    const char* numberButton;
    const char* databaseButton;
    TableField DB, ModelNum, ModelQty, ModelDesc, ModelType, Cap, EFF;
};
const Side& SideOf(ModelSide side) {
    static const Side sides[] = {
        {"Cooling", "cooling", "btnHelpCLG", "What is told of the cooling model?",
         "btnSelectCLGModel", "Select &cooling model…", "btnCLGModelNum", "btnCLGDB",
         TableField::CLGDB, TableField::CLGModelNum, TableField::CLGModelQty,
         TableField::CLGModelDesc, TableField::CLGModelType, TableField::CLGCap,
         TableField::CLGEFF},
        {"Heating", "heating", "btnHelpHTG", "What is told of the heating model?",
         "btnSelectHTGModel", "Select heatin&g model…", "btnHTGModelNum", "btnHTGDB",
         TableField::HTGDatabase, TableField::HTGModelNum, TableField::HTGModelQty,
         TableField::HTGModelDesc, TableField::HTGModelType, TableField::HTGCap,
         TableField::HTGEFF}};
    return sides[static_cast<std::size_t>(side)];
}

QPushButton* MakeButton(const char* name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

QToolButton* MakeIconButton(const char* name, const char* icon, const QString& about,
                            QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(LineIcon(icon));
    button->setIconSize(QSize(18, 18));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(about);
    button->setAccessibleName(about);
    return button;
}

QHBoxLayout* Beside(QWidget* first, QWidget* second, int spacing) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(first, 1);
    row->addWidget(second);
    return row;
}

}  // namespace

QWidget* frmSumModelData::MakeModels() {
    fraModelInfo_ = new QFrame(content_);
    fraModelInfo_->setObjectName("fraModelInfo");
    auto* column = new QVBoxLayout(fraModelInfo_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    modelHeading_ = MakeHeading("", fraModelInfo_);
    QPushButton* previous = MakeButton("btnPreviousSystem", "‹ Pre&vious system", fraModelInfo_);
    QPushButton* next = MakeButton("btnNextSystem", "Next s&ystem ›", fraModelInfo_);
    connect(previous, &QPushButton::clicked, this, &frmSumModelData::btnPreviousSystem_Click);
    connect(next, &QPushButton::clicked, this, &frmSumModelData::btnNextSystem_Click);
    head->addWidget(modelHeading_);
    head->addStretch();
    head->addWidget(previous);
    head->addWidget(next);
    column->addLayout(head);
    models_ = new QHBoxLayout;
    models_->setSpacing(12);
    models_->addWidget(MakeModelCard(ModelSide::Cooling, fraModelInfo_), 1);
    models_->addWidget(MakeModelCard(ModelSide::Heating, fraModelInfo_), 1);
    column->addLayout(models_);
    return fraModelInfo_;
}

QWidget* frmSumModelData::MakeScreenButtons() {
    struct ScreenButton {
        const char* name;
        const char* caption;
        const char* screen;
    };
    constexpr ScreenButton buttons[] = {
        {"btnWHInfo", "W&ater heater…", "frmWHInfo"},
        {"btnDetailedModelData", "Deta&iled model data…", "frmDetailModelData"},
        {"btnMaterialCosts", "Material co&sts…", "frmMatCosts"},
        {"btnLaborCosts", "&Labor costs…", "frmLaborCosts"},
    };
    auto* box = new QWidget(content_);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (const ScreenButton& button : buttons) {
        QPushButton* made = MakeButton(button.name, button.caption, box);
        const QString screen = button.screen;
        connect(made, &QPushButton::clicked, this, [this, screen] { OpenScreen(screen); });
        screenButtons_.emplace_back(made, screen);
        row->addWidget(made);
    }
    row->addStretch();
    return box;
}

QWidget* frmSumModelData::MakeModelCard(ModelSide which, QWidget* parent) {
    const Side& side = SideOf(which);
    auto* card = new QFrame(parent);
    card->setProperty("card", true);
    card->setProperty("side", side.style);
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    const auto add = [&](TableField field, const char* label, int row, int at, int span,
                         QToolButton* button = nullptr) {
        TextField* line = fields_.Add(field, card);
        grid->addWidget(MakeLabel(label, line, card), row, at);
        if (!button) return grid->addWidget(line, row, at + 1, 1, span);
        QWidget::setTabOrder(line, button);
        grid->addLayout(Beside(line, button, 4), row, at + 1, 1, span);
    };
    auto* heading = new QLabel(side.heading, card);
    heading->setStyleSheet("font-weight: bold; border: 0");
    QPushButton* select = MakeButton(side.selectButton, side.selectCaption, card);
    connect(select, &QPushButton::clicked, this, [this, which] { SelectModel(which); });
    auto* help = MakeHelpMark(
        side.helpButton, side.about,
        {side.ModelNum, side.ModelQty, side.ModelDesc, side.ModelType, side.Cap, side.EFF, side.DB},
        card);
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(heading);
    head->addWidget(help);
    head->addStretch();
    grid->addLayout(head, 0, 0, 1, 2);
    grid->addWidget(select, 0, 2, 1, 4, Qt::AlignRight);
    QToolButton* number =
        MakeIconButton(side.numberButton, "search", "Choose from the database", card);
    connect(number, &QToolButton::clicked, this, [this, which] { SelectModel(which); });
    QToolButton* database =
        MakeIconButton(side.databaseButton, "open", "Choose another model database", card);
    connect(database, &QToolButton::clicked, this,
            [this, field = side.DB] { ChooseDatabase(field); });
    add(side.ModelNum, "Model", 1, 0, 3, number);
    add(side.ModelQty, "Quantity", 1, 4, 1);
    add(side.ModelDesc, "Description", 2, 0, 5);
    add(side.ModelType, "Type", 3, 0, 1);
    add(side.Cap, "Capacity", 3, 2, 1);
    add(side.EFF, "Efficiency", 3, 4, 1);
    add(side.DB, "Database", 4, 0, 5, database);
    FitText(fields_.At(side.ModelType), "Ground Source Heat Pump");
    FitText(fields_.At(side.Cap), "999.9 MBH");
    FitText(fields_.At(side.EFF), "99.99 SEER");
    for (const TableField field : {side.Cap, side.EFF})
        fields_.At(field)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(3, 2);
    grid->setColumnStretch(5, 2);
    return card;
}

}  // namespace tendo
