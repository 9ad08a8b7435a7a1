#include "pricing/screens/frm_sum_model_data.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollArea>

#include "platform/files/settings_store.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/theme.h"
#include "pricing/screens/price_help.h"
#include "pricing/screens/system_card_button.h"
#include "pricing/screens/view_switch.h"
#include "pricing/system_models.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* screenName = "frmSumModelData";

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

frmSumModelData* LoadedScreen() {
    return qobject_cast<frmSumModelData*>(Form::Find(screenName));
}

}  // namespace

PricingScreenHooks& PricingScreens() {
    static PricingScreenHooks hooks;
    return hooks;
}

frmSumModelData::~frmSumModelData() {
    table_.TextChanged = {};  // the entry lines are about to go
}

void frmSumModelData::StoreFields() {
    if (table_.IsOpen()) table_.GetSystemTendos();
}

void frmSumModelData::FormUnload() {
    table_.Close();
}

/// Another screen may have moved to another system, or changed what stands around the prices.
void frmSumModelData::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (watchesActivation_ || !SubWindow()) return;
    watchesActivation_ = true;
    connect(SubWindow(), &QMdiSubWindow::aboutToActivate, this, &frmSumModelData::FollowSystem);
}

/// Wide enough for every figure; the entry lines' own hints ask for more than any figure takes.
QSize frmSumModelData::sizeHint() const {
    return {content_->minimumSizeHint().width() + 24, content_->sizeHint().height()};
}

void frmSumModelData::ShowSurroundings() {
    ShowCaption(lblLabor_, Q(LaborLabel(Project())));
    const QString percentage = fields_.At(TableField::TaxPercentage)->text();
    lblTax_->setText("Tax " + percentage + " %");
    taxSum_->ShowText(Q(table_.Text(TableField::TaxSalePrice)));
    const QString total = Q(table_.Text(TableField::TotalSalePrice));
    lblTotal_->setText(total);
    SetStyleFlag(lblTotal_, "negative", total.startsWith('-'));
    const QString caption = Q(SystemCaption(State().SystemNumber));
    fraModelInfo_->setProperty("caption", caption);
    fraModelInfo_->setAccessibleName(caption);
    modelHeading_->setText(caption);
    for (int system = 0; system < SystemCount; ++system) {
        auto* card = cards_[static_cast<std::size_t>(system)];
        card->ShowCard(SystemCardOf(Project(), system));
        card->setChecked(system == State().SystemNumber);
    }
    const auto& exists = PricingScreens().ScreenExists;
    for (const auto& [button, screen] : screenButtons_)
        button->setEnabled(exists && exists(screen));
}

void frmSumModelData::ShowAfterEdit() {
    const QString before = taxSum_->text();
    ShowSurroundings();
    if (taxSum_->text() != before) taxSum_->MarkFresh();
}

void frmSumModelData::Refill() {
    table_.FieldChanged = true;
    table_.SetSystemTendos();
    SystemMoved();
}

void frmSumModelData::TakeTotals() {
    Refill();
    table_.GetSystemTendos();
    table_.RecalcSubTotalSalePrice();
    ShowSurroundings();
}

void frmSumModelData::FollowSystem() {
    if (shownSystem_ == State().SystemNumber) return ShowSurroundings();
    Refill();
}

void frmSumModelData::SystemMoved() {
    shownSystem_ = State().SystemNumber;
    ShowSurroundings();
}

void frmSumModelData::btnNextSystem_Click() {
    CommitFocusedField();
    table_.NextSystem();
    SystemMoved();
}

void frmSumModelData::btnPreviousSystem_Click() {
    CommitFocusedField();
    table_.PreviousSystem();
    SystemMoved();
}

void frmSumModelData::GoToSystem(int system) {
    while (State().SystemNumber != system)
        btnNextSystem_Click();
}

void frmSumModelData::SelectModel(ModelSide side) {
    if (!PricingScreens().SelectModel) return;
    CommitFocusedField();
    table_.GetSystemTendos();
    PricingScreens().SelectModel(side);
    fields_.Run([this] { table_.RecalcSubTotalSalePrice(); });
    ShowSurroundings();
}

void frmSumModelData::ChooseDatabase(TableField field) {
    CommitFocusedField();
    const auto file = Dialogs().File({.kind = FileDialog::Kind::Open,
                                      .title = "Choose a Model Database",
                                      .filter = "TENDO Database (*.mdb)|*.mdb",
                                      .fileName = "*.mdb",
                                      .folder = State().CommonDirectory,
                                      .defaultExtension = "mdb"});
    if (file) fields_.Enter(field, Q(*file));
}

void frmSumModelData::OpenScreen(const QString& name) {
    CommitFocusedField();
    if (PricingScreens().ShowScreen) PricingScreens().ShowScreen(name);
}

/// The customer's view takes this screen's place; this one stays loaded behind it.
void frmSumModelData::chkHideInfo_Click() {
    CommitFocusedField();
    table_.GetSystemTendos();
    Settings().SaveSetting("frmSumModelData", "chkHideInfo", "1");
    OpenScreen("frmSumRptData");
    if (Form* view = Form::Find("frmSumRptData")) ShowInPlaceOf(*this, *view);
}

void frmSumModelData::WantHelp(TableField field) {
    const PriceHelp& help = HelpOf(field);
    const std::string title = help.title;
    if (!help.prompt) return ShowMessage(title, help.text, MessageIcon::Information);
    const std::string prompt = std::string(help.text) + "\n\n" + help.prompt;
    const auto text = Dialogs().Input({title, prompt, table_.Text(field)});
    if (text) fields_.Enter(field, Q(*text));
}

/// A column's help mark asks for the row that holds the focus, without one for the models.
void frmSumModelData::WantColumnHelp(FieldKind column) {
    int row = price_row::Model;
    for (int i = price_row::Model; i <= price_row::Labor; ++i)
        for (int kind = 0; kind <= static_cast<int>(FieldKind::SalePrice); ++kind)
            if (fields_.At(RowField(i, static_cast<FieldKind>(kind)))->hasFocus()) row = i;
    WantHelp(RowField(row, column));
}

void ShowSumModelData() {
    Form* screen = LoadedScreen();
    if (!screen) screen = new frmSumModelData;
    screen->ShowForm();
}

PriceTable* OpenPriceTable() {
    frmSumModelData* screen = LoadedScreen();
    return screen ? &screen->Table() : nullptr;
}

}  // namespace tendo
