#include "pricing/screens/frm_sum_model_data.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>

#include "platform/files/settings_store.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/theme.h"
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

QString Q(const std::string& text) {
    return QString::fromStdString(text);
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

void frmSumModelData::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    for (QBoxLayout* row : {prices_, models_})
        StackWhenNarrow(row, width());
}

QSize frmSumModelData::sizeHint() const {
    return ScreenSize(column_);
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
    cards_->Show();
    const auto& exists = PricingScreens().ScreenExists;
    for (const auto& [button, screen] : screenButtons_)
        button->setEnabled(exists && exists(screen));
}

void frmSumModelData::ShowAfterEdit() {
    const QString before = taxSum_->text();
    ShowSurroundings();
    if (taxSum_->text() != before) taxSum_->MarkFresh();
}

void frmSumModelData::Fill() {
    table_.FieldChanged = true;
    table_.SetSystemTendos();
    SystemMoved();
}

void frmSumModelData::Refill() {
    fields_.Run([this] { Fill(); });
}

void frmSumModelData::TakeTotals() {
    fields_.Run([this] {
        Fill();
        table_.GetSystemTendos();
        table_.RecalcSubTotalSalePrice();
    });
    ShowSurroundings();
}

void frmSumModelData::FollowSystem() {
    if (shownSystem_ != State().SystemNumber) return Fill();
    table_.FollowModels();
    ShowSurroundings();
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
    fields_.Run([this, side] {
        PricingScreens().SelectModel(side);
        table_.RecalcSubTotalSalePrice();
    });
    ShowSurroundings();
}

void frmSumModelData::ChooseDatabase(TableField field) {
    CommitFocusedField();
    const auto file = AskForDatabase("Choose a Model Database", State().CommonDirectory);
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
    CommitFocusedField();
    const auto text =
        AskWithHelp(HelpOf(field), WhyPrice(table_, Project(), field), table_.Text(field));
    if (text) fields_.Enter(field, Q(*text));
}

/// A column's help mark asks for the row that holds the focus, without one for the models.
void frmSumModelData::WantColumnHelp(FieldKind column) {
    const int row = Describe(fields_.Focused().value_or(TableField::TaxSalePrice)).row;
    const bool inGrid = row >= price_row::Model && row <= price_row::Labor;
    WantHelp(RowField(inGrid ? row : price_row::Model, column));
}

void frmSumModelData::WantWhy(TableField field) {
    CommitFocusedField();
    const PriceReason reason = WhyPrice(table_, Project(), field);
    if (reason.rule.empty()) return WantHelp(field);  // a text of the models
    WhyPopup::ShowAt(fields_.At(field), reason);
}

void frmSumModelData::WantWhyInFocus() {
    const std::optional<TableField> field = fields_.Focused();
    WantWhy(field && *field < TableField::CLGDB ? *field : TableField::TotalSalePrice);
}

}  // namespace tendo
