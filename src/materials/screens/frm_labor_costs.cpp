#include "materials/screens/frm_labor_costs.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QToolButton>

#include "materials/labor_lists.h"
#include "materials/labor_takeoff.h"
#include "materials/screens/frm_list_add_delete.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/text/runtime_error.h"
#include "pricing/screens/frm_sum_rpt_data.h"
#include "project/program_state.h"
#include "project/screens/frm_gpd.h"

namespace tendo {

frmLaborCosts::frmLaborCosts()
    : LaborScreen("frmLaborCosts", "Labor Costs for All Systems", Project().ProjectLabor) {
    AddTaxChoice();
    AddLines();
    AddButton("btnEditAddDeleteLaborList", "Edit lists…",
              [] { ShowListAddDelete(ListKind::Labor); });
    Page().ShowRows();
    ShowTaxLabor();
}

void frmLaborCosts::AddTaxChoice() {
    const auto option = [this](const char* name, const char* caption, bool tax) {
        auto* made = new QRadioButton(caption, Content());
        made->setObjectName(name);
        connect(made, &QRadioButton::clicked, this, [this, tax] { SetTaxLabor(tax); });
        return made;
    };
    OptTaxYes_ = option("OptTaxYes", "Yes", true);
    OptTaxNo_ = option("OptTaxNo", "No", false);
    QToolButton* help = MakeHelpButton("btnTaxLabor", "About taxing labor", Content());
    connect(help, &QToolButton::clicked, this, &frmLaborCosts::btnTaxLabor_Click);
    for (QWidget* control : {static_cast<QWidget*>(MakeLabel("&Tax labor", OptTaxYes_, Content())),
                             static_cast<QWidget*>(OptTaxYes_), static_cast<QWidget*>(OptTaxNo_),
                             static_cast<QWidget*>(help)})
        AddToTop(control);
}

void frmLaborCosts::Edited() {
    edited_ = true;
    State().ProjectChanged = true;
}

void frmLaborCosts::ReadList(const std::string& name) {
    ApplyLaborList(name);
}

/// One choice for the whole project; the general project data shows it too.
void frmLaborCosts::SetTaxLabor(bool tax) {
    bool& held = Project().GPDProjectFormat.TaxLabor;
    if (held == tax) return;
    held = tax;
    taxChanged_ = true;
    Edited();
    if (auto* general = qobject_cast<frmGPD*>(Form::Find("frmGPD"))) general->ShowLaborTax();
}

void frmLaborCosts::ShowTaxLabor() {
    (Project().GPDProjectFormat.TaxLabor ? OptTaxYes_ : OptTaxNo_)->setChecked(true);
}

void frmLaborCosts::btnTaxLabor_Click() {
    CommitFocusedField();
    bool tax = OptTaxYes_->isChecked();
    if (!AskAboutLaborTax(tax)) return;
    SetTaxLabor(tax);
    ShowTaxLabor();
}

/// So that a save or a report in between has what the screen shows. Lines that nobody touched don't
/// take an override away that was typed on the price table meanwhile.
void frmLaborCosts::StoreFields() {
    if (edited_) TakeLabor();
}

void frmLaborCosts::FormUnload() {
    TakeLabor();
}

void frmLaborCosts::TakeLabor() {
    const SystemTendosRecord before = Project().SystemTendos;
    Page().StoreRows();
    try {
        CloseLaborTakeoff();
    } catch (const RuntimeError&) {
        return ShowMessage("Tendo", "TENDO encountered an error while in Sub SumLabor",
                           MessageIcon::Warning);
    }
    const SystemTendosRecord& now = Project().SystemTendos;
    const bool moved = before.LaborDealerCost != now.LaborDealerCost ||
                       before.LaborDealerOverride != now.LaborDealerOverride ||
                       before.LaborSalePrice != now.LaborSalePrice;
    RecalculateSystemScreens(moved || taxChanged_);
    edited_ = taxChanged_ = false;
}

/// The general project data may have chosen another tax meanwhile.
void frmLaborCosts::showEvent(QShowEvent* event) {
    LaborScreen::showEvent(event);
    if (watchesActivation_ || !SubWindow()) return;
    watchesActivation_ = true;
    connect(SubWindow(), &QMdiSubWindow::aboutToActivate, this, &frmLaborCosts::ShowTaxLabor);
}

}  // namespace tendo
