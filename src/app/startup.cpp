#include "app/startup.h"

#include "app/color_handler.h"
#include "app/directories.h"
#include "app/profile_defaults.h"
#include "materials/material_catalogue.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/leftovers.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/settings_store.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"
#include "reports/report_settings.h"

namespace tendo {
namespace {

constexpr std::int32_t lightGrey = 0xE0E0E0;
constexpr const char* logoFile = "tenlogo.wmf";
constexpr const char* untitledWorkFile = "Untitled.tmp";
constexpr const char* untitledProjectFile = "Untitled.hid";
constexpr const char* startupExtension = ".TEM";

}  // namespace

std::string VersionText() {
    return TENDO_VERSION;
}

void BeginStartup(const StartPlaces& places) {
    ProgramState& state = State();
    state = ProgramState();
    state.StartingUp = true;
    state.ProgramDirectory = places.programDirectory;
    state.ProjectsDirectory = WithSeparator(state.ProgramDirectory + "Projects");
    state.WinIniFile = places.winIni.empty() ? state.ProgramDirectory + "WIN.INI" : places.winIni;
    Settings().FileName = state.ProgramDirectory + "settings.ini";
    RemoveLeftovers(state.ProgramDirectory);
    RemoveLeftovers(state.ProjectsDirectory);
    FillProgramDirectory(state.ProgramDirectory, SharedFilesDirectory(places.executable),
                         state.WinIniFile);
}

void ReadConfiguration() {
    ProgramState& state = State();
    ReadSiblingDirectories();
    RemoveLeftovers(state.CommonDirectory);
    state.ProgramVersionText = VersionText();
    state.MaterialDatabaseName = StoredMaterialDatabase();
    state.ProjectIsOpen = false;
    state.ProfileFile = state.ProgramDirectory + "Tendo.ini";
    if (!FileExists(state.ProfileFile)) WriteProfileDefaults(state.ProfileFile);
    Ini().AppProfileFileName = state.ProfileFile;
    PrepareColors(Colors());
    SetStartValues(Project(), state.CommonDirectory);
    ReadReportSettings();
    ReadOwner();
    state.DialogBackgroundColor = lightGrey;
    state.ProjectChanged = false;
    state.LogoFileName = logoFile;
}

std::string StartupFileToOpen(const std::vector<std::string>& args) {
    std::string name;
    for (const std::string& word : args)
        name += (name.empty() ? "" : " ") + word;
    name = UpperCase(name);
    if (name.empty() && Ini().MyGetAppProfileInteger("Options", "OpenLastProject", 0) != 0)
        name = Ini().MyGetAppProfileString("RecentFiles", "LastOpened", "");
    name = std::string(Trimmed(name));
    if (name.empty()) return name;
    if (!Contains(name, std::string(1, PathSeparator))) name = State().ProjectsDirectory + name;
    if (UpperCase(LastCharacters(name, 4)) != startupExtension) name += startupExtension;
    return name;
}

bool UntitledWorkFileExists() {
    return FileExists(State().ProjectsDirectory + untitledWorkFile);
}

void FinishProgram() {
    const ProgramState& state = State();
    Settings().SaveSetting("Settings", "MaterialDatabase", state.MaterialDatabaseName);
    const std::string ownDatabase = state.ProgramDirectory + "tendo.mdb";
    if (FileExists(ownDatabase)) CopyFileOver(ownDatabase, state.ProgramDirectory + "tendo.md2");
    DeleteWorkFile();
    for (const char* name : {untitledProjectFile, untitledWorkFile})
        DeleteFileIfThere(state.ProjectsDirectory + name);
}

}  // namespace tendo
