#include "app/screens/command_dispatch.h"

#include <QString>
#include <exception>
#include <functional>
#include <map>

#include "app/command_table.h"
#include "app/screens/bar.h"
#include "app/screens/database_commands.h"
#include "app/screens/edit_commands.h"
#include "app/screens/open_command.h"
#include "app/screens/pointer.h"
#include "app/screens/program_commands.h"
#include "app/screens/project_commands.h"
#include "app/screens/report_commands.h"
#include "app/screens/screen_table.h"
#include "app/screens/toolbar_commands.h"
#include "app/screens/window_commands.h"
#include "platform/files/settings_store.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

void mnuFileExit_Click() {
    if (Form* main = Form::Find("frmMDI")) main->Unload();
}

/// The price table's two screens: the customer's view keeps the working screen loaded behind it.
void mnuProjectSystemTendos_Click() {
    const bool hideInfo = Settings().GetSetting("frmSumModelData", "chkHideInfo", "0") == "1";
    if (!hideInfo || !ScreenExists("frmSumRptData")) return ShowScreen("frmSumModelData");
    LoadScreen("frmSumModelData");
    ShowScreen("frmSumRptData");
}

struct Procedure {
    const char* name;
    void (*run)();
};

const Procedure procedures[] = {
    {"mnuFileNew_Click", mnuFileNew_Click},
    {"mnuFileOpen_Click", mnuFileOpen_Click},
    {"mnuFileClose_Click", mnuFileClose_Click},
    {"mnuFileSave_Click", mnuFileSave_Click},
    {"mnuFileSaveAs_Click", mnuFileSaveAs_Click},
    {"mnuFileExit_Click", mnuFileExit_Click},
    {"mnuEditUndo_Click", mnuEditUndo_Click},
    {"mnuEditCut_Click", mnuEditCut_Click},
    {"mnuEditCopy_Click", mnuEditCopy_Click},
    {"mnuEditPaste_Click", mnuEditPaste_Click},
    {"mnuEditDelete_Click", mnuEditDelete_Click},
    {"mnuEditSelectAll_Click", mnuEditSelectAll_Click},
    {"mnuProjectModelDataBase_Click", mnuProjectModelDataBase_Click},
    {"mnuRepairTendoDatabase_Click", mnuRepairTendoDatabase_Click},
    {"mnuExportTendoDatabaseToDisk_Click", mnuExportTendoDatabaseToDisk_Click},
    {"mnuImportTendoDatabaseFromDisk_Click", mnuImportTendoDatabaseFromDisk_Click},
    {"mnuToolsConvert_Click", mnuToolsConvert_Click},
    {"mnuToolsVelmoToolbar_Click", mnuToolsVelmoToolbar_Click},
    {"mnuToolsKORVA_Click", mnuToolsKORVA_Click},
    {"mnuToolsPYROS_Click", mnuToolsPYROS_Click},
    {"mnuToolsMELDA_Click", mnuToolsMELDA_Click},
    {"mnuToolsCalculator_Click", mnuToolsCalculator_Click},
    {"mnuToolbarAlignTop_Click", mnuToolbarAlignTop_Click},
    {"mnuToolbarAlignLeft_Click", mnuToolbarAlignLeft_Click},
    {"mnuToolbarAlignRight_Click", mnuToolbarAlignRight_Click},
    {"mnuToolbarAlignBottom_Click", mnuToolbarAlignBottom_Click},
    {"mnuToolbarCustomizeToolbar_Click", mnuToolbarCustomizeToolbar_Click},
    {"mnuFilePrint_Click", mnuFilePrint_Click},
    {"mnuFilePrintSetup_Click", mnuFilePrintSetup_Click},
    {"mnuWindowCascade_Click", mnuWindowCascade_Click},
    {"mnuWindowTileHorizontal_Click", mnuWindowTileHorizontal_Click},
    {"mnuWindowTileVertical_Click", mnuWindowTileVertical_Click},
    {"mnuWindowArrange_Click", mnuWindowArrange_Click},
    {"mnuWindowResetToFullSize_Click", mnuWindowResetToFullSize_Click},
    {"mnuWindowResetAllToFullSize_Click", mnuWindowResetAllToFullSize_Click},
    {"mnuWindowCloseWindow_Click", mnuWindowCloseWindow_Click},
    {"mnuWindowCloseAllProjectWindows_Click", mnuWindowCloseAllProjectWindows_Click},
    {"mnuHelpReadme_Click", mnuHelpReadme_Click},
    {"mnuHelpSendMailToTechSupport_Click", mnuHelpSendMailToTechSupport_Click},
    {"mnuHelpAboutVelmoSoftware_Click", mnuHelpAboutVelmoSoftware_Click},
    {"mnuVelmoFreeSoftwareDemos_Click", mnuVelmoFreeSoftwareDemos_Click},
    {"mnuVelmoNewsRoom_Click", mnuVelmoNewsRoom_Click},
    {"mnuVelmoProgramUpdates_Click", mnuVelmoProgramUpdates_Click},
    {"mnuVelmoTrainingServices_Click", mnuVelmoTrainingServices_Click},
    {"mnuVelmoHomePage_Click", mnuVelmoHomePage_Click},
};

/// Procedures that show one screen; where `run` is given it does so in its own way.
struct ScreenProcedure {
    const char* name;
    const char* screen;
    void (*run)() = nullptr;
    bool usesMaterialDatabase = false;
};

const ScreenProcedure screenProcedures[] = {
    {"mnuProjectGPD_Click", "frmGPD"},
    {"mnuProjectSystemTendos_Click", "frmSumModelData", mnuProjectSystemTendos_Click},
    {"mnuProjectMaterialCosts_Click", "frmMatCosts", nullptr, true},
    {"mnuProjectLaborCosts_Click", "frmLaborCosts"},
    {"mnuProjectHotWater_Click", "frmWHInfo"},
    {"mnuProjectFootnotes_Click", "frmFootnotes"},
    {"mnuProjectMaterialsDataBase_Click", "frmEditMaterials", nullptr, true},
    {"mnuProjectExplorer_Click", "frmExplorer"},
    {"mnuReportsReportOptions_Click", "frmReportOptions"},
    {"mnuReportsCustomizeProposalBanner_Click", "frmBanner"},
    {"mnuFilePreview_Click", "frmPreview"},
    {"mnuToolsOptions_Click", "frmOptions"},
    {"mnuHelpAbout_Click", "frmAbout"},
};

std::map<std::string, std::function<void()>>& OtherProcedures() {
    static std::map<std::string, std::function<void()>> others;
    return others;
}

template <class Table>
auto FindIn(const Table& table, const std::string& name) -> decltype(std::begin(table)) {
    for (auto row = std::begin(table); row != std::end(table); ++row)
        if (name == row->name) return row;
    return nullptr;
}

/// The price book can be edited or taken off from, not both at once.
bool MaterialDatabaseIsFree(const ScreenProcedure& procedure) {
    const bool held = State().MaterialDatabaseHeld || State().MaterialListEditorIsOpen;
    if (!held || Form::Find(procedure.screen)) return true;
    ShowMessage("Database already open elsewhere",
                "You will not be able to open the Materials database, as it is already open in "
                "another screen.  You can only open the database to edit or open the database to "
                "select from, but not both at the same time.");
    return false;
}

void Run(const ScreenProcedure& procedure) {
    if (procedure.usesMaterialDatabase && !MaterialDatabaseIsFree(procedure)) return;
    if (procedure.run)
        procedure.run();
    else
        ShowScreen(procedure.screen);
}

bool ProcedureExists(const std::string& name) {
    if (name.empty() || FindIn(procedures, name) || OtherProcedures().contains(name)) return true;
    const ScreenProcedure* screen = FindIn(screenProcedures, name);
    return screen && ScreenExists(screen->screen);
}

void RunProcedure(const std::string& name) {
    if (const auto other = OtherProcedures().find(name); other != OtherProcedures().end())
        other->second();
    else if (const Procedure* procedure = FindIn(procedures, name))
        procedure->run();
    else if (const ScreenProcedure* screen = FindIn(screenProcedures, name))
        Run(*screen);
}

void ShowRuntimeError(const std::exception& error) {
    const auto* known = dynamic_cast<const RuntimeError*>(&error);
    const std::string number =
        known ? "Run-time error '" + std::to_string(known->Number()) + "':\n\n" : "";
    ShowMessage("TENDO", number + error.what(), MessageIcon::Critical);
}

std::function<void()>& CommandObserver() {
    static std::function<void()> observer;
    return observer;
}

}  // namespace

void RegisterProcedure(const std::string& name, std::function<void()> run) {
    OtherProcedures()[name] = std::move(run);
}

void ActiveBar_Click(const std::string& tool) {
    const Command* command = FindCommand(tool);
    if (!command) return;
    RunGuarded([command] {
        Form::CommitAllEdits();
        if (const int number = RecentFileNumber(command->tool))
            RecentFile_Click(number);
        else
            RunProcedure(command->procedure);
    });
    if (!HourglassWasLeftOn()) NormalPointer();
    RefreshCheckedTools();
    if (CommandObserver()) CommandObserver()();
}

void RefreshAvailableTools() {
    for (const Command& command : Commands())
        MainBar().SetAvailable(command.tool, ProcedureExists(command.procedure));
}

void RefreshCheckedTools() {
    const Form* active = Form::Active();
    const QString front = active ? active->Name() : QString();
    for (const Command& command : Commands())
        if (const ScreenProcedure* screen = FindIn(screenProcedures, command.procedure))
            MainBar().SetChecked(command.tool, front == screen->screen);
}

bool RunGuarded(const std::function<void()>& run) {
    try {
        run();
        return true;
    } catch (const std::exception& error) {
        NormalPointer();
        ShowRuntimeError(error);
        return false;
    }
}

void SetCommandObserver(std::function<void()> observer) {
    CommandObserver() = std::move(observer);
}

}  // namespace tendo
