#pragma once

#include <string>
#include <vector>

namespace tendo {

/// What start-up is told from outside; empty texts take the platform's places.
struct StartPlaces {
    std::string executable;        // full path of the running program
    std::string programDirectory;  // ends in the separator
    std::string winIni;            // empty: WIN.INI in the program directory
};

/// Step 2 and 3: the flag, the directories and the stores that stand in them, filled in where they
/// are missing.
void BeginStartup(const StartPlaces& places);

/// Steps 5 to 15, after the common directory was found: sibling directories, version, material
/// database, profile with its defaults, colours, project records, report defaults.
void ReadConfiguration();

/// "major.minor.revision" of the running program.
std::string VersionText();

/// What the main window opens at start. The command line is taken in capitals; a name without a
/// folder stands in the projects directory; ".TEM" is appended unless it ends so. Such a name is no
/// project file's, so the Open dialog comes up: meant. Empty when nothing is to be opened.
std::string StartupFileToOpen(const std::vector<std::string>& args);

/// "Untitled.tmp" of an earlier run is still in the projects directory.
bool UntitledWorkFileExists();

/// Steps 2 to 4 of the end: the material database's name into the settings, its rolling copy, and
/// the working files away.
void FinishProgram();

}  // namespace tendo
