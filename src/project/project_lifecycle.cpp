#include "project/project_lifecycle.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "platform/files/ini_file_handler.h"
#include "platform/files/leftovers.h"
#include "platform/files/paths.h"
#include "platform/files/profile.h"
#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_file.h"
#include "project/project_records.h"

namespace tendo {

namespace {

constexpr int MostRecentFiles = 20;
constexpr std::size_t ExtensionLength = 4;

/// The name without its last four characters, which are the extension.
std::string WithoutExtension(const std::string& fileName) {
    const std::size_t length = CharacterCount(fileName);
    return std::string(FirstCharacters(fileName, length - std::min(length, ExtensionLength)));
}

/// A new project file with the rows of the records. It gets its name when it is filled: one without
/// rows must never be found by the next start, which could not open it.
void WriteRecordsTo(const std::string& fileName) {
    std::string filling = NewFileName(DirectoryOf(fileName)) + ".tmp";
    try {
        CreateProjectDatabase(filling);
        SaveProjectData(filling);
        CopyFileOver(filling, fileName);
    } catch (const RuntimeError&) {
        DeleteFileIfThere(filling);
        throw;
    }
    DeleteFileIfThere(filling);
}

void MakeWorkFile() {
    if (!FileExists(State().WorkFileName)) WriteRecordsTo(State().WorkFileName);
}

std::string RecentFileKey(int index) {
    return "File" + std::to_string(index);
}

}  // namespace

std::string WorkFileOf(const std::string& fileName) {
    return WithoutExtension(fileName) + ".tmp";
}

void MakeFileExtensions() {
    const std::string stem = WithoutExtension(State().ProjectFileName);
    State().WorkFileName = WorkFileOf(State().ProjectFileName);
    if (UpperCase(stem) != "UNTITLED") State().BackupFileName = stem + ".bak";
}

void DeleteWorkFile() {
    if (!State().WorkFileName.empty()) DeleteFileIfThere(State().WorkFileName);
}

void LoadWorkFile() {
    LoadProjectData(State().WorkFileName);
    State().ProjectChanged = false;
}

void SaveWorkFile() {
    SaveProjectData(State().WorkFileName);
}

void RestoreWorkFile() {
    if (State().ProjectIsOpen) MakeWorkFile();
}

void SaveProjectAs(const std::string& fileName) {
    const std::string oldWorkFile = State().WorkFileName;
    const std::string workFile = WorkFileOf(fileName);
    if (FileExists(oldWorkFile))
        CopyFileOver(oldWorkFile, fileName);
    else
        WriteRecordsTo(fileName);
    CopyFileOver(fileName, workFile);
    State().ProjectFileName = fileName;
    MakeFileExtensions();
    RememberProjectFile();
    if (oldWorkFile == workFile) return;
    try {
        DeleteFileIfThere(oldWorkFile);
    } catch (const RuntimeError&) {
        // The project is saved; the copy that stays is offered when its own project is opened.
    }
}

void RememberProjectFile() {
    State().ProjectFileStamp = StampOf(State().ProjectFileName);
}

bool ProjectFileWasChanged() {
    const std::optional<FileStamp> now = StampOf(State().ProjectFileName);
    return now && State().ProjectFileStamp && *now != *State().ProjectFileStamp;
}

std::string ProjectCaption() {
    const std::string name = UpperCase(BaseName(State().ProjectFileName));
    return "Tendo - " + (name == "UNTITLED.HID" ? "(UNTITLED)" : name);
}

void CopyAutoloadProject() {
    ResetProjectData();
    const bool wanted = Ini().MyGetAppProfileInteger("Options", "NewProjectsCopyAutoload", 0) != 0;
    const std::string autoload = FileInAnyCase(State().ProjectsDirectory, "AUTOLOAD.TDW");
    if (!wanted || !FileExists(autoload)) return MakeWorkFile();
    LoadProjectData(autoload);
    CopyFileOver(autoload, State().WorkFileName);
}

int RecentFileCount() {
    const int count =
        Ini().MyGetAppProfileInteger("Options", "NumberOfPreviousProjectsOnFileMenu", 8);
    return std::clamp(count, 0, MostRecentFiles);
}

std::vector<std::string> RecentFiles() {
    std::vector<std::string> names(static_cast<std::size_t>(RecentFileCount()));
    for (std::size_t i = 0; i < names.size(); ++i) {
        // Read whole: a path that is cut at the usual 255 characters leads nowhere.
        names[i] = ReadProfileString(Ini().AppProfileFileName, "RecentFiles",
                                     RecentFileKey(static_cast<int>(i)), "");
    }
    return names;
}

std::string RecentFileCaption(int index, const std::string& name) {
    return "&" + std::to_string(index + 1) + ": " + std::string(Trimmed(name));
}

void AddToRecentFiles(const std::string& name) {
    const std::vector<std::string> names = RecentFiles();
    const std::string entry(Trimmed(name));
    const auto same = [&](const std::string& other) {
        return UpperCase(Trimmed(other)) == UpperCase(entry);
    };
    if (std::any_of(names.begin(), names.end(), same)) return;
    std::vector<std::pair<std::string, std::string>> values{{RecentFileKey(0), entry}};
    for (std::size_t i = 1; i < names.size(); ++i) {
        values.emplace_back(RecentFileKey(static_cast<int>(i)), std::string(Trimmed(names[i - 1])));
    }
    WriteProfileSection(Ini().AppProfileFileName, "RecentFiles", values);
}

}  // namespace tendo
