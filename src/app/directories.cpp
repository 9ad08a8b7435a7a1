#include "app/directories.h"

#include <cstdlib>
#include <filesystem>

#include "platform/files/paths.h"
#include "platform/files/profile.h"
#include "platform/files/safe_file.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

namespace fs = std::filesystem;

constexpr const char* velmoSection = "Velmo Software";
constexpr int dialogCancelled = 32755;  // the number that a cancelled file dialog raises

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// Copies files that are missing, folder by folder; "Projects" only when `withProjects`.
void CopyMissing(const fs::path& from, const fs::path& to, bool withProjects) {
    MakeDirectory(to.string());
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(from, error)) {
        const fs::path target = to / entry.path().filename();
        if (entry.is_directory()) {
            const bool projects = EqualsNoCase(entry.path().filename().string(), "Projects");
            if (!projects || withProjects) CopyMissing(entry.path(), target, withProjects);
        } else if (!fs::exists(target)) {
            CopyFileOver(entry.path().string(), target.string());
        }
    }
}

void WriteFirstWinIni(const std::string& winIni, const std::string& programDirectory) {
    WriteProfileSection(winIni, velmoSection,
                        {{"CommonDirectory", programDirectory + "Common" + PathSeparator},
                         {"DefaultManufacturer", "Frostelm.mdb"}});
}

}  // namespace

std::string FindProgramDirectory(const std::string& home) {
    std::string directory = home;
    if (directory.empty()) directory = Environment("TENDO_HOME");
    if (directory.empty()) {
        const std::string data = Environment("XDG_DATA_HOME");
        directory = data.empty() ? WithSeparator(Environment("HOME")) + ".local/share" : data;
        directory = WithSeparator(directory) + "tendo";
    }
    std::error_code error;
    const fs::path absolute = fs::absolute(directory, error);
    return WithSeparator(error ? directory : absolute.lexically_normal().string());
}

std::string SharedFilesDirectory(std::string_view executable) {
    const fs::path place = fs::path(executable).parent_path().parent_path() / "share" / "tendo";
    return DirectoryExists(place.string()) ? WithSeparator(place.string()) : std::string();
}

void FillProgramDirectory(const std::string& programDirectory, const std::string& sharedDirectory,
                          const std::string& winIni) {
    const std::string projects = programDirectory + "Projects";
    const bool withProjects = !DirectoryExists(projects);
    MakeDirectory(programDirectory);
    if (!sharedDirectory.empty()) CopyMissing(sharedDirectory, programDirectory, withProjects);
    MakeDirectory(projects);
    if (DirectoryOf(winIni) == programDirectory && !FileExists(winIni)) {
        MakeDirectory(programDirectory + "Common");
        WriteFirstWinIni(winIni, programDirectory);
    }
}

std::string FindSampleJob(std::string_view executable) {
    constexpr const char* sampleJob = "Maple Street 12.tdw";
    std::string job = State().ProjectsDirectory + sampleJob;
    if (FileExists(job)) return job;
    const std::string shared =
        WithSeparator(SharedFilesDirectory(executable) + "Projects") + sampleJob;
    if (!FileExists(shared)) return {};
    CopyFileOver(shared, job);
    return job;
}

std::string FindCommonDirectory(const CommonDirectoryQuestions& questions) {
    const std::string stored = VelmoProfileString("CommonDirectory");
    if (!stored.empty() && DirectoryExists(stored)) return WithSeparator(stored);
    questions.Warn("Directory Not Found",
                   "TENDO encountered an error while trying to find\n"
                   "the directory on your hard disk where the Velmo Software\n"
                   "common files are located.  Please locate the file VELMO.HLP in the following "
                   "dialog...");
    const std::optional<std::string> chosen = questions.Locate();
    if (chosen && FileExists(*chosen) && UpperCase(BaseName(*chosen)) == LocateFile) {
        std::string directory = WithSeparator(DirectoryOf(*chosen));
        // The name of a section does not depend on case; the maker's programs write it so.
        WriteProfileString(State().WinIniFile, "Velmo SoftWare", "CommonDirectory", directory);
        return directory;
    }
    questions.Warn("File Not Found",
                   "The Velmo Software common directory was not found.  \nSince Template requires "
                   "files in this directory, the program will have to end: " +
                       std::to_string(chosen ? 0 : dialogCancelled));
    return {};
}

void ReadSiblingDirectories() {
    struct Sibling {
        const char* key;
        std::string ProgramState::*program;
        std::string ProgramState::*projects;
    };
    const Sibling siblings[] = {
        {"PYROSDirectory", &ProgramState::PYROSDirectory, &ProgramState::PYROSProjectsDirectory},
        {"MELDADirectory", &ProgramState::MELDADirectory, &ProgramState::MELDAProjectsDirectory},
        {"KORVADirectory", &ProgramState::KORVADirectory, &ProgramState::KORVAProjectsDirectory},
    };
    for (const Sibling& sibling : siblings) {
        const std::string directory = VelmoProfileString(sibling.key);
        const bool there = !directory.empty() && DirectoryExists(directory);
        State().*sibling.program = there ? WithSeparator(directory) : std::string();
        State().*sibling.projects = WithSeparator(State().*sibling.program + "Projects");
    }
}

}  // namespace tendo
