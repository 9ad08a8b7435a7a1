#include "platform/qt/desktop_colors.h"

#include <QApplication>
#include <QPalette>
#include <QProcess>

namespace tendo {
namespace {

constexpr int SettingLimitMs = 200;

/// Empty without a desktop session, without the tool, or when it takes too long.
QByteArray ColorSchemeSetting() {
    const QString platform = QGuiApplication::platformName();
    if (platform != "xcb" && !platform.startsWith("wayland")) return {};
    if (qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP")) return {};
    QProcess tool;
    tool.start("gsettings", {"get", "org.gnome.desktop.interface", "color-scheme"});
    if (!tool.waitForFinished(SettingLimitMs)) {
        tool.kill();
        tool.waitForFinished(SettingLimitMs);
        return {};
    }
    return tool.readAllStandardOutput();
}

}  // namespace

bool IsDark(const DesktopSigns& signs) {
    if (signs.wish == "dark") return true;
    if (signs.wish == "light") return false;
    if (!signs.gtkTheme.isEmpty()) {
        const QByteArray theme = signs.gtkTheme.toLower();
        return theme.endsWith(":dark") || theme.endsWith("-dark");
    }
    if (signs.colorScheme.contains("prefer-dark")) return true;
    if (signs.colorScheme.contains("prefer-light")) return false;
    return signs.window.lightness() < 128;
}

bool DesktopIsDark() {
    DesktopSigns signs{.wish = qgetenv("TENDO_THEME"),
                       .gtkTheme = qgetenv("GTK_THEME"),
                       .colorScheme = {},
                       .window = {}};
    if (signs.wish != "dark" && signs.wish != "light" && signs.gtkTheme.isEmpty())
        signs.colorScheme = ColorSchemeSetting();
    QApplication::setPalette(QPalette());
    signs.window = QApplication::palette().color(QPalette::Window);
    return IsDark(signs);
}

}  // namespace tendo
