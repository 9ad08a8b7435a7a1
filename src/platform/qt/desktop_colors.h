#pragma once

#include <QByteArray>
#include <QColor>

namespace tendo {

/// What tells whether the desktop is dark. An empty word says nothing.
struct DesktopSigns {
    QByteArray wish;         // TENDO_THEME
    QByteArray gtkTheme;     // GTK_THEME, such as "Adwaita:dark"
    QByteArray colorScheme;  // the desktop's setting, such as "'prefer-dark'"
    QColor window;           // the ground of the desktop's own palette
};

/// The wish comes first, then a named GTK theme, then the setting; else the palette decides.
bool IsDark(const DesktopSigns& signs);

/// Asks the desktop. Takes the application's own palette off, so that the desktop's shows; the
/// caller sets its palette afterwards.
bool DesktopIsDark();

}  // namespace tendo
