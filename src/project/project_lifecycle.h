#pragma once

#include <string>
#include <vector>

namespace tendo {

/// The work of the File commands that needs no screen. The user's file is never edited: it is
/// copied to a work file beside it, all saving goes there, and Save copies the work file back.

/// The work file of a project file: its name less the last four characters, and ".tmp".
std::string WorkFileOf(const std::string& fileName);

/// Sets `WorkFileName` and `BackupFileName` from `ProjectFileName`. No command uses the backup
/// name.
void MakeFileExtensions();

/// Deletes the work file; no error when it isn't there.
void DeleteWorkFile();

/// Fills the records from the work file; the project then counts as unchanged.
void LoadWorkFile();

/// Saves the records to the work file; nothing when there is none.
void SaveWorkFile();

/// Makes the open project's work file anew from the records where it is gone: a close deleted it,
/// or its folder was away. A save needs it.
void RestoreWorkFile();

/// Gives the open project another file and a work file beside that. When something fails before
/// both are written, names and files are as they were.
void SaveProjectAs(const std::string& fileName);

/// Remembers the user's file as it stands on disk, after it was read or written.
void RememberProjectFile();

/// Another program has changed the user's file since it was remembered. A file that is gone holds
/// nothing that a save could destroy.
bool ProjectFileWasChanged();

/// The main window's caption: "Tendo - JOB.TDW", or "Tendo - (UNTITLED)".
std::string ProjectCaption();

/// Records and work file of a new project: a copy of AUTOLOAD.TDW when the options ask for it and
/// there is one in the Projects directory, else all reset and an empty file.
void CopyAutoloadProject();

/// How many recent projects the File menu holds: the option's value, at most 20.
int RecentFileCount();

/// The recent projects as stored, one a place; an empty place is an empty text.
std::vector<std::string> RecentFiles();

/// "&1: NAME" for the entry of an index counted from 0.
std::string RecentFileCaption(int index, const std::string& name);

/// Puts a name first on the list. A name that is on it already stays in its place.
void AddToRecentFiles(const std::string& name);

}  // namespace tendo
