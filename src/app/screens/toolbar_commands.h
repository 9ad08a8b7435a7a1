#pragma once

#include <QStringList>
#include <functional>

class QMainWindow;
class QToolBar;

namespace tendo {

/// The window and bar that the commands below move; set by the main window. `fill` puts the tools
/// on the bar, but for the hidden ones.
void SetMainToolbar(QMainWindow* window, QToolBar* bar,
                    std::function<void(const QStringList& hidden)> fill);

/// Docks the main toolbar on one side.
void mnuToolbarAlignTop_Click();
void mnuToolbarAlignLeft_Click();
void mnuToolbarAlignRight_Click();
void mnuToolbarAlignBottom_Click();
/// Asks which tools stand on the toolbar.
void mnuToolbarCustomizeToolbar_Click();

/// The layout that its user arranged, kept in "toolbar.lyt" in the form of a profile file. What
/// can't be read there leaves the design's own layout.
void RestoreToolbarLayout();
void StoreToolbarLayout();

}  // namespace tendo
