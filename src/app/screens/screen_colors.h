#pragma once

namespace tendo {

/// Gives each loaded screen that hasn't got them yet the colours of its user's choice; nothing
/// while the default colours are shown.
void ColorNewScreens();

}  // namespace tendo
