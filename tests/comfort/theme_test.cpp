#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QPalette>

#include "platform/qt/apply_theme.h"
#include "platform/qt/desktop_colors.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

const QColor white("#ffffff");
const QColor black("#000000");

TEST(DesktopColors, TheWishComesBeforeEverything) {
    EXPECT_TRUE(IsDark({"dark", "Adwaita", "'prefer-light'", white}));
    EXPECT_FALSE(IsDark({"light", "Adwaita:dark", "'prefer-dark'", black}));
}

TEST(DesktopColors, ANamedGtkThemeComesBeforeTheSetting) {
    EXPECT_TRUE(IsDark({"", "Adwaita:dark", "'prefer-light'", white}));
    EXPECT_TRUE(IsDark({"", "Yaru-Dark", "", white}));
    EXPECT_FALSE(IsDark({"", "Adwaita", "'prefer-dark'", black}));
}

TEST(DesktopColors, TheSettingComesBeforeThePalette) {
    EXPECT_TRUE(IsDark({"", "", "'prefer-dark'\n", white}));
    EXPECT_FALSE(IsDark({"", "", "'prefer-light'\n", black}));
}

TEST(DesktopColors, WithoutASettingThePaletteDecides) {
    EXPECT_TRUE(IsDark({"", "", "'default'\n", black}));
    EXPECT_FALSE(IsDark({"", "", "", white}));
    EXPECT_FALSE(IsDark({"an unknown word", "", "", white}));
}

TEST(DesktopColors, AChangeWhileRunningIsTakenOn) {
    qputenv("TENDO_THEME", "light");
    ApplyTheme(*qApp);
    const QColor light = QApplication::palette().color(QPalette::Window);
    EXPECT_FALSE(Theme().dark);
    qputenv("TENDO_THEME", "dark");
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(qApp, &change);
    EXPECT_FALSE(Theme().dark) << "the answer waits until every window is told";
    QApplication::processEvents();
    EXPECT_TRUE(Theme().dark);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), light.lightness());
    qunsetenv("TENDO_THEME");
}

}  // namespace
}  // namespace tendo
