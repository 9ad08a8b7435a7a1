#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace tendo {

struct ProjectRecords;

/// What tells one state of a file from another.
struct FileStamp {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time;
    bool operator==(const FileStamp&) const = default;
};
/// The state of a file as it is now; nothing when there is none.
std::optional<FileStamp> StampOf(const std::string& name);

/// What start-up finds out and the whole program reads.
struct ProgramState {
    // Directories end in the separator, or are empty.
    std::string ProgramDirectory, ProjectsDirectory, CommonDirectory;
    std::string PYROSDirectory, MELDADirectory, KORVADirectory;
    std::string PYROSProjectsDirectory, MELDAProjectsDirectory, KORVAProjectsDirectory;
    std::string ProfileFile;         // "Tendo.ini" in the program directory
    std::string WinIniFile;          // section "Velmo Software" for what the maker's programs share
    std::string ProgramVersionText;  // "major.minor.revision"
    std::string MaterialDatabaseName;
    std::string LogoFileName;
    std::int32_t DialogBackgroundColor = 0xE0E0E0;
    bool StartingUp = false;

    bool ProjectIsOpen = false;
    bool ProjectChanged = false;
    std::string ProjectFileName, WorkFileName, BackupFileName;
    bool ClosingDown = false;
    bool SaveCancelled = false;
    bool OpenNamedFile = false;
    std::string FileToOpen;
    std::int32_t AutosaveCounter = 0;
    bool MaterialDatabaseLoaded = false;
    bool MaterialDatabaseHeld = false;  // a screen holds the material database open
    bool MaterialListEditorIsOpen = false;

    int SystemNumber = 0;  // the current system, 0 to 4

    std::optional<FileStamp> ProjectFileStamp;  // the user's file as this program knows it
};

ProgramState& State();

/// What this room asks of higher ones; set in one place, app/wiring.cpp.
struct ProjectHooks {
    std::function<void()> ResetCatalogue;
    std::function<void()> LoadMaterialCatalogue;
    /// Reads a file of the DOS release into the records and replaces it by a new database.
    std::function<void(const std::string& fileName)> ConvertOldProject;
};
ProjectHooks& Hooks();

/// The value of a key in section "Velmo Software" of WIN.INI; empty by default.
std::string VelmoProfileString(const std::string& key);

}  // namespace tendo
