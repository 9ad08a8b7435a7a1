#include "app/screens/wiring.h"

#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/frm_about.h"
#include "app/screens/screen_table.h"
#include "materials/material_catalogue.h"
#include "platform/qt/dialogs.h"
#include "project/program_state.h"
#include "project/screens/frm_gpd.h"
#include "reports/screens/frm_preview.h"

namespace tendo {
namespace {

template <class Screen>
Form* Make() {
    return new Screen;
}

void EnterScreens() {
    RegisterScreen("frmGPD", Make<frmGPD>);
    RegisterScreen("frmAbout", MakeAboutForm);
}

}  // namespace

void WireRooms() {
    Hooks().ResetCatalogue = ClearCatalogueRows;
    Hooks().LoadMaterialCatalogue = [] { LoadMaterialCatalogue(); };
    CatalogueHooks().Message = [](const std::string& text) { ShowMessage("TENDO", text); };
    CatalogueHooks().EnableTool = [](const std::string& tool) { MainBar().SetEnabled(tool, true); };
    RegisterProcedure("mnuFilePreview_Click", ShowPreview);
    EnterScreens();
}

}  // namespace tendo
