#include "app/command_table.h"

#include <charconv>
#include <deque>
#include <string>

#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr bool Project = true;  // needs an open project
constexpr bool Group = true;    // a separator before it

const Command fixedCommands[] = {
    {"ToolNew", "mnuFileNew_Click", "File", "&New Project", "Ctrl+N", "new"},
    {"ToolOpen", "mnuFileOpen_Click", "File", "&Open Project...", "Ctrl+O", "open"},
    {"ToolClose", "mnuFileClose_Click", "File", "&Close Project", "Ctrl+Shift+W", "close", Project},
    {"ToolSave", "mnuFileSave_Click", "File", "&Save", "Ctrl+S", "save", Project, Group},
    {"ToolSaveAs", "mnuFileSaveAs_Click", "File", "Save &As...", "Ctrl+Shift+S", "save-as",
     Project},
    {"ToolImportFromTendo", "mnuFileImportFromTendo", "File",
     "Import from Another &TENDO Project...", "", "import", Project, Group},
    {"ToolImportFromPyros", "mnuFileImportFromPyros", "File", "Import from P&YROS...", "", "",
     Project},
    {"ToolImportFromKORVA", "mnuFileImportFromKORVA", "File", "Import from &KORVA...", "", "",
     Project},
    {"ToolImportFromMELDA", "mnuFileImportFromMELDA", "File", "Import from &MELDA...", "", "",
     Project},
    {"ToolOpenDOSTENDOProject", "mnuFileConvertDOSTENDOProjectFile", "File",
     "Convert &DOS TENDO Project Files...", "", ""},
    {"ToolPreview", "mnuFilePreview_Click", "File", "Print Pre&view", "Ctrl+Shift+V", "preview",
     Project, Group},
    {"ToolPrint", "mnuFilePrint_Click", "File", "&Print...", "Ctrl+P", "print", Project},
    {"ToolPrinterSetup", "mnuFilePrintSetup_Click", "File", "P&rinter Setup...", "",
     "printer-setup"},
    {"ToolExit", "mnuFileExit_Click", "File", "E&xit", "Ctrl+Q", "exit", false, Group},

    {"ToolUndo", "mnuEditUndo_Click", "Edit", "&Undo", "Ctrl+Z", "undo", Project},
    {"ToolCut", "mnuEditCut_Click", "Edit", "Cu&t", "Ctrl+X", "cut", Project, Group},
    {"ToolCopy", "mnuEditCopy_Click", "Edit", "&Copy", "Ctrl+C", "copy", Project},
    {"ToolPaste", "mnuEditPaste_Click", "Edit", "&Paste", "Ctrl+V", "paste", Project},
    {"ToolDelete", "mnuEditDelete_Click", "Edit", "&Delete", "", "delete", Project},
    {"ToolSelectAll", "mnuEditSelectAll_Click", "Edit", "Select &All", "Ctrl+A", "", Project,
     Group},

    {"ToolGPD", "mnuProjectGPD_Click", "Project", "&General Project Data", "Ctrl+1", "project",
     Project},
    {"ToolSystemTendos", "mnuProjectSystemTendos_Click", "Project", "&System Tendos", "Ctrl+2",
     "prices", Project},
    {"ToolMaterialCosts", "mnuProjectMaterialCosts_Click", "Project", "&Material Costs", "Ctrl+3",
     "materials", Project},
    {"ToolLaborCosts", "mnuProjectLaborCosts_Click", "Project", "&Labor Costs", "Ctrl+4", "labor",
     Project},
    {"ToolHotWater", "mnuProjectHotWater_Click", "Project", "&Hot Water", "Ctrl+5", "water",
     Project},
    {"ToolFootnotes", "mnuProjectFootnotes_Click", "Project", "&Footnotes", "Ctrl+6", "footnotes",
     Project},
    {"ToolProjectExplorer", "mnuProjectExplorer_Click", "Project", "Project &Explorer", "Ctrl+E",
     "explorer", false, Group},

    {"ToolReportOptions", "mnuReportsReportOptions_Click", "Reports", "Report &Options...", "",
     "report-options", Project},
    {"ToolProposalBanner", "mnuReportsCustomizeProposalBanner_Click", "Reports",
     "Customize Proposal &Banner...", "", "banner"},

    {"ToolModelDB", "mnuProjectModelDataBase_Click", "Database", "Mo&del Database", "", ""},
    {"ToolMaterialDB", "mnuProjectMaterialsDataBase_Click", "Database", "&Materials Database...",
     "", "database"},
    {"ToolMaterialLists", "mnuProjectMaterialLists_Click", "Database", "Material &Lists...", "",
     "list", false, Group},
    {"ToolLaborLists", "mnuProjectLaborLists_Click", "Database", "La&bor Lists...", "", ""},
    {"ToolsConvertMaterialDBFromExcel", "mnuConvertMaterialsFromExcelToAccess_Click", "Database",
     "Convert Materials from E&xcel...", "", "", false, Group},
    {"ToolConvertTendoDB", "mnuToolsConvertTendoDB_Click", "Database",
     "Convert D&OS TENDO Database...", "", ""},
    {"ToolConvertARIGAMA", "mnuToolsConvert_Click", "Database", "Convert &ARIGAMA Directory", "",
     ""},
    {"ToolRepairTendoDatabase", "mnuRepairTendoDatabase_Click", "Database",
     "&Repair TENDO Database", "", "repair", false, Group},
    {"ToolExportTendoDatabaseToDisk", "mnuExportTendoDatabaseToDisk_Click", "Database",
     "&Export TENDO Database to Disk...", "", "export"},
    {"ToolImportTendoDatabaseFromDisk", "mnuImportTendoDatabaseFromDisk_Click", "Database",
     "&Import TENDO Database from Disk...", "", ""},

    {"ToolVelmoToolbar", "mnuToolsVelmoToolbar_Click", "Tools", "&Velmo Toolbar", "", ""},
    {"ToolKORVA", "mnuToolsKORVA_Click", "Tools", "&KORVA", "", ""},
    {"ToolPYROS", "mnuToolsPYROS_Click", "Tools", "&PYROS", "", ""},
    {"ToolMELDA", "mnuToolsMELDA_Click", "Tools", "&MELDA", "", ""},
    {"ToolBRAVOLIN", "", "Tools", "BR&AVOLIN", "", ""},
    {"ToolCalculator", "mnuToolsCalculator_Click", "Tools", "&Calculator", "", "calculator", false,
     Group},
    {"ToolAlignTop", "mnuToolbarAlignTop_Click", "Tools", "Align Toolbar at &Top", "", "", false,
     Group},
    {"ToolAlignLeft", "mnuToolbarAlignLeft_Click", "Tools", "Align Toolbar at &Left", "", ""},
    {"ToolAlignRight", "mnuToolbarAlignRight_Click", "Tools", "Align Toolbar at &Right", "", ""},
    {"ToolAlignBottom", "mnuToolbarAlignBottom_Click", "Tools", "Align Toolbar at &Bottom", "", ""},
    {"ToolCustomizeToolbar", "mnuToolbarCustomizeToolbar_Click", "Tools", "C&ustomize Toolbar...",
     "", ""},
    {"ToolOptions", "mnuToolsOptions_Click", "Tools", "&Options...", "Ctrl+,", "options", false,
     Group},

    {"ToolCascade", "mnuWindowCascade_Click", "Window", "&Cascade", "", "windows"},
    {"ToolTileHorizontal", "mnuWindowTileHorizontal_Click", "Window", "Tile &Horizontally", "", ""},
    {"ToolTileVertical", "mnuWindowTileVertical_Click", "Window", "Tile &Vertically", "", ""},
    {"ToolArrangeIcons", "mnuWindowArrange_Click", "Window", "Arrange &Icons", "", ""},
    {"ToolResetWindows", "mnuWindowResetToFullSize_Click", "Window", "Reset Window to &Full Size",
     "", "", false, Group},
    {"ToolResetAll", "mnuWindowResetAllToFullSize_Click", "Window",
     "&Reset All Windows to Full Size", "", ""},
    {"ToolCloseWindow", "mnuWindowCloseWindow_Click", "Window", "C&lose Window", "Ctrl+W", "",
     false, Group},
    {"ToolCloseAllProjectWindows", "mnuWindowCloseAllProjectWindows_Click", "Window",
     "Close &All Project Windows", "", ""},

    {"ToolContents", "mnuHelpContents_Click", "Help", "&Contents", "", "help"},
    {"ToolSearchForHelp", "mnuHelpSearchHelp_Click", "Help", "&Search for Help On...", "", ""},
    {"ToolOverview", "mnuHelpOverview_Click", "Help", "&Overview", "", ""},
    {"ToolReadme", "mnuHelpReadme_Click", "Help", "&Readme", "", ""},
    {"ToolSendMailToTechSupport", "mnuHelpSendMailToTechSupport_Click", "Help",
     "Send &Mail to Technical Support", "", "mail", false, Group},
    {"ToolVelmoHomePage", "mnuVelmoHomePage_Click", "Help", "Velmo &Home Page", "", "web"},
    {"ToolProgramUpdates", "mnuVelmoProgramUpdates_Click", "Help", "Program &Updates", "", ""},
    {"ToolFreeSoftware", "mnuVelmoFreeSoftwareDemos_Click", "Help", "&Free Software Demos", "", ""},
    {"ToolNewsRoom", "mnuVelmoNewsRoom_Click", "Help", "&News Room", "", ""},
    {"ToolTrainingServices", "mnuVelmoTrainingServices_Click", "Help", "&Training Services", "",
     ""},
    {"ToolAboutVelmoSoftware", "mnuHelpAboutVelmoSoftware_Click", "Help", "About &Velmo Software",
     "", "", false, Group},
    {"ToolAboutTendo", "mnuHelpAbout_Click", "Help", "&About TENDO", "", "tendo"},
};

constexpr std::string_view recentPrefix = "RecentFile";

/// The fixed commands with the recent files before "E&xit".
std::vector<Command> MakeCommands() {
    static std::deque<std::string> names;  // keeps the texts that the table points into
    std::vector<Command> commands;
    for (const Command& command : fixedCommands) {
        if (std::string_view(command.tool) == "ToolExit") {
            for (int number = 1; number <= RecentToolCount; ++number) {
                names.push_back(std::string(recentPrefix) + std::to_string(number));
                Command recent{names.back().c_str(), "mnuFileOpen_Click", "File", ""};
                recent.startsGroup = number == 1;
                commands.push_back(recent);
            }
        }
        commands.push_back(command);
    }
    return commands;
}

}  // namespace

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = MakeCommands();
    return commands;
}

const Command* FindCommand(std::string_view tool) {
    for (const Command& command : Commands())
        if (EqualsNoCase(command.tool, tool)) return &command;
    return nullptr;
}

const std::vector<const char*>& Bands() {
    static const std::vector<const char*> bands = {"File",     "Edit",  "Project", "Reports",
                                                   "Database", "Tools", "Window",  "Help"};
    return bands;
}

const std::vector<const char*>& MainToolbarTools() {
    static const std::vector<const char*> tools = {"ToolNew",
                                                   "ToolOpen",
                                                   "ToolSave",
                                                   "",
                                                   "ToolGPD",
                                                   "ToolSystemTendos",
                                                   "ToolHotWater",
                                                   "ToolMaterialCosts",
                                                   "ToolLaborCosts",
                                                   "ToolFootnotes",
                                                   "",
                                                   "ToolReportOptions",
                                                   "ToolPreview",
                                                   "ToolPrint",
                                                   "",
                                                   "ToolProjectExplorer",
                                                   "ToolCalculator"};
    return tools;
}

const std::vector<MenuGuest>& MenuGuests() {
    static const std::vector<MenuGuest> guests = {{"Reports", "ToolPreview", true},
                                                  {"Reports", "ToolPrint", false}};
    return guests;
}

int RecentFileNumber(std::string_view tool) {
    if (!StartsWith(tool, recentPrefix)) return 0;
    const std::string_view digits = tool.substr(recentPrefix.size());
    int number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = result.ec == std::errc() && result.ptr == digits.data() + digits.size();
    return whole && number >= 1 && number <= RecentToolCount ? number : 0;
}

}  // namespace tendo
