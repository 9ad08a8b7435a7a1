#include "pricing/screens/frm_sum_rpt_data.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QToolButton>
#include <iterator>

#include "platform/files/settings_store.h"
#include "platform/qt/fields.h"
#include "platform/text/number_text.h"
#include "pricing/screens/frm_sum_model_data.h"
#include "pricing/screens/price_entry.h"
#include "pricing/screens/price_help.h"
#include "pricing/screens/scroll_column.h"
#include "pricing/screens/system_cards.h"
#include "pricing/screens/view_switch.h"
#include "pricing/screens/why_popup.h"
#include "pricing/system_models.h"
#include "pricing/why_price.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr std::string_view percentagePicture = "##0.00";

struct PriceRow {
    TableField field;
    const char* label;
};
constexpr PriceRow priceRows[] = {
    {TableField::ModelSalePrice, "&Models:"},
    {TableField::TaxMatSalePrice, "Taxa&ble materials:"},
    {TableField::NonTaxSalePrice, "&Non-taxable materials:"},
    {TableField::LaborSalePrice, "&Labor:"},
    {TableField::TaxPercentage, "Tax &percentage:"},
    {TableField::TaxSalePrice, "Tax:"},
    {TableField::TotalSalePrice, "T&otal:"},
};

constexpr const char* modelLabels[] = {"Database", "Model",    "Quantity",  "Description",
                                       "Type",     "Capacity", "Efficiency"};
constexpr const char* frameName = "fraModelInfo";

/// The working screen, loaded when it isn't.
frmSumModelData& WorkingScreen() {
    auto* screen = qobject_cast<frmSumModelData*>(Form::Find("frmSumModelData"));
    return screen ? *screen : *new frmSumModelData;
}

bool IsMoney(TableField field) {
    const FieldKind kind = Describe(field).kind;
    return kind == FieldKind::SalePrice || kind == FieldKind::TotalSalePrice;
}

}  // namespace

frmSumRptData::frmSumRptData()
    : Form("frmSumRptData", "Summary Report Data", Place::Child, "frmSumRptData"),
      column_(MakeScrollColumn(this)) {
    WorkingScreen();
    cards_ = new SystemCards(this);
    connect(cards_, &SystemCards::Chosen, this, &frmSumRptData::GoToSystem);
    column_->addWidget(cards_);
    column_->addWidget(MakePrices());
    column_->addWidget(MakeModels());
    column_->addStretch();
    SetSystemTendos();
}

QSize frmSumRptData::sizeHint() const {
    return ScreenSize(column_);
}

TextField* frmSumRptData::Add(TableField field, QWidget* parent) {
    TextField* line = MakePriceField(field, parent);
    connect(line, &TextField::Committed, this, [this, field] { Commit(field); });
    connect(line, &TextField::HelpWanted, this, [this, field] { WantHelp(field); });
    connect(line, &TextField::WhyWanted, this, [this, field] { WantWhy(field); });
    fields_[field] = line;
    return line;
}

QToolButton* frmSumRptData::MakeHelpMark(TableField field, QWidget* parent) {
    const QString name = QString(Describe(field).name).replace("txt", "btnHelp");
    const QString title = QString::fromStdString(FieldTitle(field)).toLower();
    QToolButton* help = MakeHelpButton(name, QString("What is the %1?").arg(title), parent);
    help->setFocusPolicy(Qt::NoFocus);
    connect(help, &QToolButton::clicked, this, [this, field] { WantHelp(field); });
    return help;
}

QWidget* frmSumRptData::MakePrices() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    grid->addWidget(MakeHeading("Sale prices", box), 0, 0, 1, 2);
    int at = 0;
    for (const PriceRow& row : priceRows) {
        auto* label = new QLabel(row.label, box);
        TextField* line = Add(row.field, box);
        line->setProperty("strong", row.field == TableField::TotalSalePrice);
        label->setBuddy(line);
        if (row.field == TableField::LaborSalePrice) {
            label->setObjectName("lblLabor");
            lblLabor_ = label;
        }
        grid->addWidget(label, ++at, 0);
        grid->addWidget(MakeHelpMark(row.field, box), at, 1);
        grid->addWidget(line, at, 2);
    }
    auto* hide = new QCheckBox("C&ustomer's view", box);
    hide->setObjectName("chkHideInfo");
    hide->setChecked(true);
    connect(hide, &QCheckBox::clicked, this, &frmSumRptData::chkHideInfo_Click);
    grid->addWidget(hide, 1, 4);
    grid->setColumnMinimumWidth(2, 150);
    grid->setColumnMinimumWidth(3, 16);
    grid->setColumnStretch(4, 1);
    return box;
}

QWidget* frmSumRptData::MakeModels() {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto* head = new QHBoxLayout;
    fraModelInfo_ = MakeHeading("", box);
    fraModelInfo_->setObjectName(frameName);
    head->addWidget(fraModelInfo_);
    head->addStretch();
    const auto button = [&](const char* name, const char* caption, bool next) {
        auto* made = new QPushButton(caption, box);
        made->setObjectName(name);
        connect(made, &QPushButton::clicked, this, [this, next] { Move(next); });
        head->addWidget(made);
    };
    button("btnPreviousSystem", "‹ Pre&vious system", false);
    button("btnNextSystem", "Next s&ystem ›", true);
    column->addLayout(head);
    models_ = new QHBoxLayout;
    models_->setSpacing(12);
    models_->addWidget(MakeModelCard("Cooling", "cooling", TableField::CLGDB), 1);
    models_->addWidget(MakeModelCard("Heating", "heating", TableField::HTGDatabase), 1);
    column->addLayout(models_);
    return box;
}

QWidget* frmSumRptData::MakeModelCard(const char* heading, const char* side, TableField first) {
    auto* card = new QFrame(this);
    card->setProperty("card", true);
    card->setProperty("side", side);
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    auto* title = new QLabel(heading, card);
    title->setStyleSheet("font-weight: bold; border: 0");
    grid->addWidget(title, 0, 0, 1, 3);
    for (int i = 0; i < static_cast<int>(std::size(modelLabels)); ++i) {
        const auto field = static_cast<TableField>(static_cast<int>(first) + i);
        TextField* line = Add(field, card);
        grid->addWidget(MakeLabel(modelLabels[i], line, card), i + 1, 0);
        grid->addWidget(MakeHelpMark(field, card), i + 1, 1);
        grid->addWidget(line, i + 1, 2);
    }
    return card;
}

void frmSumRptData::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    StackWhenNarrow(models_, width());
}

void frmSumRptData::Show(TableField field, const std::string& text) {
    TextField* line = fields_.at(field);
    const QString shown = QString::fromStdString(text);
    if (edited_ && *edited_ != field && line->text() != shown) line->MarkFresh();
    line->ShowText(shown);
}

void frmSumRptData::SetSystemTendos() {
    const SystemTendosRecord& tendos = Project().SystemTendos;
    for (const PriceRow& row : priceRows) {
        const float value = tendos.*Describe(row.field).column;
        const bool percentage = row.field == TableField::TaxPercentage;
        Show(row.field, FormatNumber(value, percentage ? percentagePicture : MoneyPicture));
    }
    const SystemModelTexts sides[] = {CoolingTexts(Project(), State().SystemNumber),
                                      HeatingTexts(Project(), State().SystemNumber)};
    constexpr auto count = static_cast<int>(std::size(ModelTextOrder));
    for (int i = 0; i < 2 * count; ++i)
        Show(static_cast<TableField>(static_cast<int>(TableField::CLGDB) + i),
             sides[i / count].*ModelTextOrder[i % count]);
    fraModelInfo_->setText(QString::fromStdString(SystemCaption(State().SystemNumber)));
    ShowCaption(lblLabor_, QString::fromStdString(LaborLabel(Project())));
    cards_->Show();
}

/// The arithmetic is the working screen's: the text goes there and its field is left there.
void frmSumRptData::Commit(TableField field) {
    std::string text = fields_.at(field)->text().toStdString();
    if (IsMoney(field)) text = FormatNumber(ValueOfText(text), MoneyPicture);
    if (field == TableField::TaxPercentage)
        text = FormatNumber(ValueOfText(text), percentagePicture);
    Show(field, text);
    const QScopedValueRollback<std::optional<TableField>> edited(edited_, field);
    PriceTable& table = WorkingScreen().Table();
    table.SetText(field, text);
    table.Commit(field);
    table.GetSystemTendos();
    SetSystemTendos();
}

void frmSumRptData::Move(bool next) {
    CommitFocusedField();
    PriceTable& table = WorkingScreen().Table();
    if (next)
        table.NextSystem();
    else
        table.PreviousSystem();
    SetSystemTendos();
}

void frmSumRptData::GoToSystem(int system) {
    while (State().SystemNumber != system)
        Move(true);
}

void frmSumRptData::WantHelp(TableField field) {
    CommitFocusedField();
    TextField* line = fields_.at(field);
    const auto text =
        AskWithHelp(HelpOf(field), WhyCustomerPrice(WorkingScreen().Table(), Project(), field),
                    line->text().toStdString());
    if (text) EnterText(line, QString::fromStdString(*text));
}

void frmSumRptData::WantWhy(TableField field) {
    CommitFocusedField();
    const PriceReason reason = WhyCustomerPrice(WorkingScreen().Table(), Project(), field);
    if (reason.rule.empty()) return WantHelp(field);  // a text of the models
    WhyPopup::ShowAt(fields_.at(field), reason);
}

void frmSumRptData::chkHideInfo_Click() {
    CommitFocusedField();
    Settings().SaveSetting("frmSumModelData", "chkHideInfo", "0");
    frmSumModelData& screen = WorkingScreen();
    screen.Table().GetSystemTendos();
    ShowInPlaceOf(*this, screen);
    Unload();
}

/// The working screen isn't kept behind a view that has closed.
void frmSumRptData::FormUnload() {
    Form* screen = Form::Find("frmSumModelData");
    if (screen && !screen->isVisible()) screen->Unload();
}

void RefillPriceScreens() {
    if (auto* screen = qobject_cast<frmSumModelData*>(Form::Find("frmSumModelData")))
        screen->Refill();
    if (auto* view = qobject_cast<frmSumRptData*>(Form::Find("frmSumRptData")))
        view->SetSystemTendos();
}

/// The view comes last: it shows the records, and the total follows on the working screen.
void RecalculateSystemScreens(bool rowsChanged) {
    if (auto* screen = qobject_cast<frmSumModelData*>(Form::Find("frmSumModelData")))
        screen->TakeTotals();
    else if (rowsChanged)
        RecalcClosedPriceTable(Project());
    if (auto* view = qobject_cast<frmSumRptData*>(Form::Find("frmSumRptData")))
        view->SetSystemTendos();
}

}  // namespace tendo
