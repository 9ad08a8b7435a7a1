#include "app/screens/program_commands.h"

#include <string>
#include <vector>

#include "app/screens/shell.h"
#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* supportAddress = "mailto:support@velmo.example";
constexpr const char* site = "https://www.velmo.example/";

/// A program of the same maker.
struct Sibling {
    const char* windowTitle;         // of a running copy
    const char* key;                 // in section "Velmo Software"
    std::vector<const char*> files;  // the first one found is started
    const char* boxTitle;
    const char* about;  // what it is, told when it isn't installed
    const char* loadMessage;
};

/// The first of the sibling's files that is in its directory; empty when it isn't installed.
std::string ProgramOf(const Sibling& sibling) {
    const std::string directory = WithSeparator(VelmoProfileString(sibling.key));
    if (directory == std::string(1, PathSeparator)) return {};
    for (const char* file : sibling.files)
        if (const std::string program = FileInAnyCase(directory, file); FileExists(program))
            return program;
    return {};
}

void StartSibling(const Sibling& sibling) {
    if (Shell().Activate(sibling.windowTitle)) return;
    const std::string program = ProgramOf(sibling);
    if (program.empty()) {
        ShowMessage(sibling.boxTitle,
                    std::string(sibling.about) +
                        "  Please call Velmo Software if you are interested in this program.",
                    MessageIcon::Information);
    } else if (!Shell().Start(program)) {
        ShowMessage("TENDO", sibling.loadMessage);
    }
}

void StartCommonProgram(const char* file, const char* procedure) {
    if (!Shell().Start(FileInAnyCase(State().CommonDirectory, file)))
        ShowMessage("TENDO", std::string("TENDO encountered an error while in Sub ") + procedure);
}

void OpenPage(const char* page) {
    OpenAssociatedProgram(std::string(site) + page);
}

}  // namespace

void mnuToolsKORVA_Click() {
    StartSibling({"Korva",
                  "KORVADirectory",
                  {"Korva8.exe", "Korvaw.exe", "Korva.exe"},
                  "About Korva",
                  "KORVA calculates the heating and cooling loads of houses and small commercial "
                  "buildings.  It handles any number of rooms and up to one hundred systems.",
                  "TENDO cannot load the KORVA for Windows program."});
}

void mnuToolsPYROS_Click() {
    StartSibling({"PYROS",
                  "PYROSDirectory",
                  {"PYROS.EXE"},
                  "About PYROS for Windows",
                  "PYROS compares the yearly energy costs of heating and cooling systems.  It "
                  "handles up to three alternative systems of one building.",
                  "TENDO cannot load the PYROS for Windows program."});
}

void mnuToolsMELDA_Click() {
    StartSibling({"MELDA",
                  "MELDADirectory",
                  {"MELDAW32.EXE"},
                  "About MELDA for Windows",
                  "MELDA sizes duct systems and prints their layout.  It handles both round and "
                  "rectangular ducts.",
                  "TENDO cannot load the MELDA for Windows program."});
}

void mnuToolsVelmoToolbar_Click() {
    StartSibling({"Toolbar",
                  "ToolbarDirectory",
                  {"Toolbar.EXE"},
                  "About Toolbar for Windows",
                  "The Velmo Toolbar starts all of Velmo Software's programs from one place on the "
                  "desktop.  It shows only the programs that are installed.",
                  "TENDO cannot load the Toolbar for Windows program."});
}

void mnuProjectModelDataBase_Click() {
    StartCommonProgram("catview.exe", "mnuProjectModelDataBase_Click");
}

void mnuToolsConvert_Click() {
    StartCommonProgram("dirconv.exe", "mnuToolsConvert_Click");
}

void mnuToolsCalculator_Click() {
    for (const char* calculator : {"CALC.EXE", "gnome-calculator", "kcalc", "galculator",
                                   "mate-calc", "qalculate-gtk", "xcalc"})
        if (Shell().Start(calculator)) return;
    ShowMessage("TENDO", "Cannot find Window's Calculator.");
}

void mnuHelpReadme_Click() {
    OpenAssociatedProgram(FileInAnyCase(State().ProgramDirectory, "README.DOC"));
}

void mnuHelpSendMailToTechSupport_Click() {
    OpenAssociatedProgram(supportAddress);
}

void mnuHelpAboutVelmoSoftware_Click() {
    OpenAssociatedProgram(FileInAnyCase(State().CommonDirectory, "Velmo.hlp"));
}

void mnuVelmoFreeSoftwareDemos_Click() {
    OpenPage("demos");
}

void mnuVelmoNewsRoom_Click() {
    OpenPage("news");
}

void mnuVelmoProgramUpdates_Click() {
    OpenPage("updates");
}

void mnuVelmoTrainingServices_Click() {
    OpenPage("training");
}

void mnuVelmoHomePage_Click() {
    OpenPage("");
}

}  // namespace tendo
