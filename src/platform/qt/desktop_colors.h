#pragma once

#include <QByteArray>
#include <QColor>
#include <functional>
#include <optional>

namespace tendo {

/// What tells whether the desktop is dark. An empty word says nothing.
struct DesktopSigns {
    QByteArray wish;         // TENDO_THEME
    QByteArray gtkTheme;     // GTK_THEME, such as "Adwaita:dark"
    QByteArray portal;       // what the desktop's portal answers, such as "(<<uint32 1>>,)"
    QByteArray colorScheme;  // the desktop's setting, such as "'prefer-dark'"
    QColor window;           // the ground of the desktop's own palette
};

/// What is said outright: the wish comes first, then a named GTK theme, then the portal, then the
/// setting. Nothing when none of them says either.
std::optional<bool> SaidToBeDark(const DesktopSigns& signs);
/// The same; when nothing is said the palette decides.
bool IsDark(const DesktopSigns& signs);

/// The portal's and the setting's answers by the desktop's tools. Empty for a tool that is missing,
/// fails or takes longer than the limit in milliseconds.
DesktopSigns AskDesktopTools(int limit);

/// Asks the desktop. Takes the application's own palette off, so that the desktop's shows; the
/// caller sets its palette afterwards.
bool DesktopIsDark();

/// Asks without waiting; `told` runs a fifth of a second later when something was said outright.
void AskWhetherDark(const std::function<void(bool dark)>& told);

}  // namespace tendo
