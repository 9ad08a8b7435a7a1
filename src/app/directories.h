#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tendo {

/// The program directory with its separator: `home` when it isn't empty, else the environment's
/// TENDO_HOME, else "tendo" in XDG_DATA_HOME or in ~/.local/share.
std::string FindProgramDirectory(const std::string& home);

/// The folder of the files that come with the program: "share/tendo" beside the folder that the
/// executable stands in; empty when there is none. `executable` is a full path.
std::string SharedFilesDirectory(std::string_view executable);

/// Makes the program directory and fills in what is missing there from the shared files; never
/// touches what is there. Sample jobs come with the Projects folder only, so that a job its user
/// deleted stays deleted. Writes `winIni` when it is missing and stands in the program directory.
void FillProgramDirectory(const std::string& programDirectory, const std::string& sharedDirectory,
                          const std::string& winIni);

/// The sample job in the Projects folder, put back there from the shared files when it is missing;
/// empty when there is none.
std::string FindSampleJob(std::string_view executable);

/// What the search for the common directory asks its user.
struct CommonDirectoryQuestions {
    std::function<void(const std::string& title, const std::string& text)> Warn;
    /// The file that the user located; nothing on cancel.
    std::function<std::optional<std::string>()> Locate;
};

/// The common directory from WIN.INI, or found by hand and then written there; empty after the
/// message that the program ends.
std::string FindCommonDirectory(const CommonDirectoryQuestions& questions);

/// Reads the directories of the sibling programs into the state: empty when the key is empty or the
/// directory is missing.
void ReadSiblingDirectories();

inline constexpr const char* LocateTitle = "Locate VELMO.HLP in the Velmo Common Directory";
inline constexpr const char* LocateFile = "VELMO.HLP";
inline constexpr const char* LocateExtension = ".HLP";
inline constexpr const char* LocateFilter = "Data File (*.HLP)|*.HLP";

}  // namespace tendo
