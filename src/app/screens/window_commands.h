#pragma once

namespace tendo {

/// Moves screens that came up since the last call to where they can be seen whole, as far as there
/// is room.
void PlaceNewWindows();

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
