#pragma once

namespace tendo {

/// Arranging and closing the screens inside the main window.
void mnuWindowCascade_Click();
void mnuWindowTileHorizontal_Click();
void mnuWindowTileVertical_Click();
void mnuWindowArrange_Click();
void mnuWindowResetToFullSize_Click();
void mnuWindowResetAllToFullSize_Click();
void mnuWindowCloseWindow_Click();
void mnuWindowCloseAllProjectWindows_Click();

}  // namespace tendo
