#include "project/project_lifecycle.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/files/profile.h"
#include "platform/files/safe_file.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_file.h"
#include "project/project_records.h"

namespace tendo {

namespace {

constexpr int MostRecentFiles = 20;
constexpr std::size_t ExtensionLength = 4;

std::string WithoutExtension(const std::string& fileName) {
    return fileName.substr(0, fileName.size() - std::min(fileName.size(), ExtensionLength));
}

/// The full name of AUTOLOAD.TDW however its letters are written; empty when there is none.
std::string AutoloadFile() {
    for (const std::string& name : FilesIn(State().ProjectsDirectory)) {
        if (EqualsNoCase(name, "AUTOLOAD.TDW")) return State().ProjectsDirectory + name;
    }
    return {};
}

/// A new work file with the rows of the reset records. It gets its name when it is filled: one
/// without rows must never be found by the next start, which could not open it.
void MakeWorkFile() {
    if (FileExists(State().WorkFileName)) return;
    std::string filling = WithoutExtension(State().WorkFileName) + ".new.tmp";
    DeleteFileIfThere(filling);
    CreateProjectDatabase(filling);
    SaveProjectData(filling);
    CopyFileOver(filling, State().WorkFileName);
    DeleteFileIfThere(filling);
}

std::string RecentFileKey(int index) {
    return "File" + std::to_string(index);
}

}  // namespace

void MakeFileExtensions() {
    const std::string stem = WithoutExtension(State().ProjectFileName);
    State().WorkFileName = stem + ".tmp";
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
    const std::string autoload = wanted ? AutoloadFile() : std::string();
    if (autoload.empty()) {
        MakeWorkFile();
        return;
    }
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
        names[i] =
            Ini().MyGetAppProfileString("RecentFiles", RecentFileKey(static_cast<int>(i)), "");
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
