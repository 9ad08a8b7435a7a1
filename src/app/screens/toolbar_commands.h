#pragma once

class QMainWindow;
class QToolBar;

namespace tendo {

/// The window and bar that the commands below move; set by the main window.
void SetMainToolbar(QMainWindow* window, QToolBar* bar);

/// Docks the main toolbar on one side.
void mnuToolbarAlignTop_Click();
void mnuToolbarAlignLeft_Click();
void mnuToolbarAlignRight_Click();
void mnuToolbarAlignBottom_Click();

/// The layout that its user arranged, kept in "toolbar.lyt". A broken file changes nothing.
void RestoreToolbarLayout();
void StoreToolbarLayout();

}  // namespace tendo
