#pragma once

namespace tendo {

/// From now on the letters that lead to fields and buttons are underlined while Alt is held down.
void WatchAltKey();

/// Alt is held down in a window of the program.
bool AltIsHeld();

}  // namespace tendo
