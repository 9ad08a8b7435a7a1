#pragma once

class QApplication;

namespace tendo {

/// Chooses the set of colours (environment TENDO_THEME "light" or "dark" comes first, then what the
/// desktop says), gives the application its style, palette, style sheet and font, and chooses again
/// whenever the desktop changes its colours. Once per application.
void ApplyTheme(QApplication& application);

/// The same with a set of the caller's choice.
void ApplyTheme(QApplication& application, bool dark);

}  // namespace tendo
