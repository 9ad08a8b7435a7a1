#include "app/screens/wiring.h"

#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/frm_about.h"
#include "app/screens/frm_help.h"
#include "app/screens/frm_status.h"
#include "app/screens/frm_tip.h"
#include "app/screens/screen_table.h"
#include "app/screens/shell.h"
#include "equipment/screens/frm_detail_model_data.h"
#include "equipment/screens/frm_model_selection.h"
#include "equipment/screens/frm_wh_info.h"
#include "footnotes/screens/frm_footnotes.h"
#include "materials/material_catalogue.h"
#include "materials/screens/frm_edit_materials.h"
#include "materials/screens/frm_labor_costs.h"
#include "materials/screens/frm_list_add_delete.h"
#include "materials/screens/frm_mat_costs.h"
#include "materials/screens/import_materials.h"
#include "platform/database/database_hooks.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/progress_window.h"
#include "pricing/screens/frm_sum_model_data.h"
#include "pricing/screens/frm_sum_rpt_data.h"
#include "project/program_state.h"
#include "project/screens/frm_gpd.h"
#include "reports/screens/frm_banner.h"
#include "reports/screens/frm_preview.h"
#include "reports/screens/frm_report_options.h"
#include "reports/screens/report_desk.h"

namespace tendo {
namespace {

template <class Screen>
Form* Make() {
    return new Screen;
}

void EnterScreens() {
    RegisterScreen("frmGPD", Make<frmGPD>);
    RegisterScreen("frmSumModelData", Make<frmSumModelData>);
    RegisterScreen("frmSumRptData", Make<frmSumRptData>);
    RegisterScreen("frmDetailModelData", Make<frmDetailModelData>);
    RegisterScreen("frmMisModelData", Make<frmMisModelData>);
    RegisterScreen("frmWHInfo", Make<frmWHInfo>);
    RegisterScreen("frmEditMaterials", Make<frmEditMaterials>);
    RegisterScreen("frmMatCosts", Make<frmMatCosts>);
    RegisterScreen("frmLaborCosts", Make<frmLaborCosts>);
    RegisterScreen("frmFootnotes", Make<frmFootnotes>);
    RegisterScreen("frmListAddDelete",
                   []() -> Form* { return new frmListAddDelete(ListKind::Material); });
    RegisterScreen("frmReportOptions", Make<frmReportOptions>);
    RegisterScreen("frmBanner", Make<frmBanner>);
    RegisterScreen("frmAbout", MakeAboutForm);
    RegisterScreen("frmTip", Make<frmTip>);
    RegisterScreen("frmStatus", Make<frmStatus>);
    RegisterHelp();
}

bool ShowProgress(const std::string& text, int done, int whole) {
    const bool first = !Form::Find("frmStatus");
    auto* status = static_cast<frmStatus*>(LoadScreen("frmStatus"));
    if (first) {
        status->setWindowTitle(QString::fromStdString(WindowOfProgress().caption));
        status->OfferCancel();
        status->ShowForm();
    }
    return status->ShowProgress(text, done, whole);
}

void WireProgress() {
    WindowOfProgress().Show = ShowProgress;
    WindowOfProgress().Close = [] {
        if (Form* status = Form::Find("frmStatus")) status->Unload();
    };
}

void WireMaterials() {
    RegisterProcedure("mnuConvertMaterialsFromExcelToAccess_Click", ImportMaterialsFromExcel);
}

void WireReports() {
    const auto run = [](const std::string& program, const std::vector<std::string>& arguments,
                        const std::function<void(int)>& ended) {
        return Shell().Run(program, arguments, ended);
    };
    DeskOfReports().Run = run;
    RegisterProcedure("mnuFilePreview_Click", ShowPreview);
}

void WirePricing() {
    PricingScreens().ScreenExists = ScreenExists;
    PricingScreens().ShowScreen = ShowScreen;
    PricingScreens().SelectModel = ShowModelSelection;
    ModelDatabasesChanged() = RefillPriceScreens;
    AfterModelSelection() = {RefillPriceScreens, [] { RefillSystemForm("frmDetailModelData"); },
                             [] { RefillSystemForm("frmWHInfo"); },
                             [] { RefillSystemForm("frmMisModelData"); }};
}

}  // namespace

void WireRooms() {
    Hooks().ResetCatalogue = ClearCatalogueRows;
    Hooks().LoadMaterialCatalogue = [] { LoadMaterialCatalogue(); };
    CatalogueHooks().Message = [](const std::string& text) { ShowMessage("TENDO", text); };
    CatalogueHooks().EnableTool = [](const std::string& tool) { MainBar().SetEnabled(tool, true); };
    RegisterProcedure("mnuProjectMaterialLists_Click",
                      [] { ShowListAddDelete(ListKind::Material); });
    RegisterProcedure("mnuProjectLaborLists_Click", [] { ShowListAddDelete(ListKind::Labor); });
    HooksOfDatabases().JetThreeKept = [](const std::string& file, const std::string& keptAs) {
        ShowMessage("TENDO",
                    file + " was written in a newer form of database.  Its original was kept as " +
                        keptAs + ".",
                    MessageIcon::Information);
    };
    WireProgress();
    WireMaterials();
    WirePricing();
    WireReports();
    EnterScreens();
}

}  // namespace tendo
