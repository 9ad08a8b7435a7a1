#pragma once

class QApplication;

namespace tendo {

/// Chooses the set of colours (environment TENDO_THEME "light" or "dark" comes first, then the
/// desktop's own palette) and gives the application its style, palette, style sheet and font.
void ApplyTheme(QApplication& application);
void ApplyTheme(QApplication& application, bool dark);

}  // namespace tendo
