#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <future>

#include "equipment/model_database.h"
#include "equipment/screens/elided_label.h"
#include "equipment/screens/frm_model_selection.h"
#include "equipment/screens/model_view.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/theme.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* messageTitle = "TENDO";

struct LimitButton {
    ModelLimit limit;
    const char* name;
};
constexpr LimitButton limitButtonTable[] = {
    {ModelLimit::MinimumCapacity, "btnSetMinimumCapacity"},
    {ModelLimit::MaximumCapacity, "btnSetMaximumCapacity"},
    {ModelLimit::MinimumEfficiency, "btnSetMinimumEfficiency"}};

QPushButton* MakeButton(const char* name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

QHBoxLayout* RowOf(QWidget* box) {
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

ModelSelectionDialogs SelectionDialogs() {
    return {[](const std::string& text) { ShowMessage(messageTitle, text, MessageIcon::Warning); },
            [](const std::string& text) {
                return Ask(messageTitle, text, Buttons::YesNo) == Answer::Yes;
            }};
}

}  // namespace

frmModelSelection::frmModelSelection(SelectionMode mode)
    : Form("frmModelSelection", "", Place::Dialog, "frmModelSelection"),
      selection_(mode, Project(), State().SystemNumber, SelectionDialogs()) {
    const Hourglass hourglass;
    // The database is read while the screen is being built.
    auto reading =
        std::async(std::launch::async, [this] { return selection_.ReadStoredDatabase(); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(MakeDatabaseRow());
    column->addWidget(MakeLimitRow());
    column->addWidget(MakeTabs(), 1);
    column->addWidget(MakeCommandRow());
    resize(sizeHint());
    OpenDatabase(reading.get());
    const int first = selection_.CurrentTab();
    tabModels_->setCurrentIndex(first);
    connect(tabModels_, &QTabWidget::currentChanged, this, &frmModelSelection::tabModels_Click);
    connect(tabModels_->tabBar(), &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab == tabModels_->currentIndex()) tabModels_Click(tab);
    });
    views_[static_cast<std::size_t>(first)]->setFocus();
}

QWidget* frmModelSelection::MakeDatabaseRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    txtDatabase_ = new TextField(
        FieldSpec{.name = "txtDatabase", .label = "&Database", .accessibleName = "Database"}, box);
    txtDatabase_->CommitAlways = false;
    txtDatabase_->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    connect(txtDatabase_, &TextField::Committed, this, [this] {
        ChangeDatabase(CheckToSeeIfDbaseExists(txtDatabase_->text().toStdString()));
    });
    QPushButton* browse = MakeButton("btnChangeDB", "&Browse…", box);
    connect(browse, &QPushButton::clicked, this, &frmModelSelection::btnChangeDB_Click);
    row->addWidget(MakeLabel("&Database", txtDatabase_, box));
    row->addWidget(txtDatabase_, 1);
    row->addWidget(browse);
    return box;
}

QWidget* frmModelSelection::MakeLimitRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    for (const auto& [limit, name] : limitButtonTable) {
        QPushButton* button = MakeButton(name, "", box);
        connect(button, &QPushButton::clicked, this, [this, which = limit] { SetLimit(which); });
        limitButtons_[static_cast<std::size_t>(limit)] = button;
        row->addWidget(button);
    }
    lblCount_ = new ElidedLabel(box);
    lblCount_->setObjectName("lblCount");
    row->addWidget(lblCount_, 1);
    return box;
}

QWidget* frmModelSelection::MakeTabs() {
    tabModels_ = new QTabWidget(this);
    tabModels_->setObjectName("tabModels");
    tabModels_->setAccessibleName("Kinds of equipment");
    tabModels_->setDocumentMode(true);
    tabModels_->tabBar()->setDrawBase(false);
    tabModels_->tabBar()->setExpanding(false);
    for (int tab = 0; tab < ModelTabCount; ++tab) {
        const std::string_view name = ModelTabAt(tab).name;
        auto* page = new QWidget(tabModels_);
        tabModels_->addTab(page, QString::fromUtf8(name.data(), qsizetype(name.size())));
        tabModels_->setTabVisible(tab, selection_.IsVisible(tab));
        FillPage(page, tab);  // once it has its place: style sheets are read anew at each move
    }
    return tabModels_;
}

void frmModelSelection::FillPage(QWidget* page, int tab) {
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 10, 0, 0);
    auto* view = new ModelView(selection_, tab, page);
    column->addWidget(view);
    connect(view, &ModelView::RowChanged, this, [this, tab](int row) { grid_RowChange(tab, row); });
    connect(view, &ModelView::RowClicked, this, [this, tab](int row) { ClickRow(tab, row); });
    connect(view, &ModelView::RowChosen, this, [this, tab](int row) { ChooseRow(tab, row); });
    connect(view, &ModelView::SortingChanged, this, &frmModelSelection::ShowTexts);
    views_[static_cast<std::size_t>(tab)] = view;
}

QWidget* frmModelSelection::MakeCommandRow() {
    auto* box = new QWidget(this);
    QHBoxLayout* row = RowOf(box);
    btnSearch_ = MakeButton("btnSearch", "", box);
    btnRepeatSearch_ = MakeButton("btnRepeatSearch", "&Repeat search", box);
    QPushButton* close = MakeButton("btnClose", "&Close", box);
    const std::string_view caption = ModelSelection::SelectCommandText;
    QPushButton* select = MakeButton(
        "btnSelectModel", QString::fromUtf8(caption.data(), qsizetype(caption.size())), box);
    select->setProperty("primary", true);
    lblChoice_ = new ElidedLabel(box);
    lblChoice_->setObjectName("lblChoice");
    connect(btnSearch_, &QPushButton::clicked, this, &frmModelSelection::btnSearch_Click);
    connect(btnRepeatSearch_, &QPushButton::clicked, this,
            &frmModelSelection::btnRepeatSearch_Click);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    connect(select, &QPushButton::clicked, this, &frmModelSelection::btnSelectModel_Click);
    row->addWidget(btnSearch_);
    row->addWidget(btnRepeatSearch_);
    if (selection_.Mode() == SelectionMode::WaterHeater) {
        chkWHProvidesHeat_ = new QCheckBox("&Used for both Hot Water and Space Heat", box);
        chkWHProvidesHeat_->setObjectName("chkWHProvidesHeat");
        chkWHProvidesHeat_->setChecked(selection_.WHProvidesHeat());
        row->addSpacing(8);
        row->addWidget(chkWHProvidesHeat_);
        setTabOrder(btnRepeatSearch_, chkWHProvidesHeat_);
    }
    row->addWidget(lblChoice_, 1);
    row->addSpacing(8);
    row->addWidget(close);
    row->addWidget(select);
    return box;
}

}  // namespace tendo
