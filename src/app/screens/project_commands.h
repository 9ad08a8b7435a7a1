#pragma once

namespace tendo {

/// The File commands of the project, but for Open (open_command.h). They put every question through
/// Dialogs(); an error of Save is left to the caller.
void mnuFileNew_Click();
void mnuFileClose_Click();
void mnuFileSave_Click();
void mnuFileSaveAs_Click();

/// Unloads each loaded form but the main window, the print form and the explorer; a form stores
/// what it holds as it unloads. False when one of them stays, as it holds what can't be stored.
bool CloseProjectWindows();

/// Whether the user gave up the changes of the open project, and what was asked.
enum class SaveQuestion { Save, Discard, Stop };
SaveQuestion AskToSaveProject();
/// Asks about unsaved changes; a cancel sets `SaveCancelled`.
void CheckSaveOnClose();

void ShowProjectCaption();
void BuildRecentFilesMenu();
/// Enters a name in the recent list and shows the list anew.
void AddRecentFile();
void WriteLastOpened();

/// One tick of the autosave timer.
void tmrAutoSave_Timer();

}  // namespace tendo
