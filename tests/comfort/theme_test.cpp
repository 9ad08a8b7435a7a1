#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QPalette>
#include <QTemporaryDir>

#include "platform/qt/apply_theme.h"
#include "platform/qt/desktop_colors.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

const QColor white("#ffffff");
const QColor black("#000000");

constexpr const char* portalDark = "(<<uint32 1>>,)\n";
constexpr const char* portalLight = "(<<uint32 2>>,)\n";

TEST(DesktopColors, TheWishComesBeforeEverything) {
    EXPECT_TRUE(IsDark({"dark", "Adwaita", portalLight, "'prefer-light'", white}));
    EXPECT_FALSE(IsDark({"light", "Adwaita:dark", portalDark, "'prefer-dark'", black}));
}

TEST(DesktopColors, ANamedGtkThemeComesBeforeThePortal) {
    EXPECT_TRUE(IsDark({"", "Adwaita:dark", portalLight, "'prefer-light'", white}));
    EXPECT_TRUE(IsDark({"", "Yaru-Dark", "", "", white}));
    EXPECT_FALSE(IsDark({"", "Adwaita", portalDark, "'prefer-dark'", black}));
}

TEST(DesktopColors, ThePortalComesBeforeTheSetting) {
    EXPECT_TRUE(IsDark({"", "", portalDark, "'prefer-light'", white}));
    EXPECT_FALSE(IsDark({"", "", portalLight, "'prefer-dark'", black}));
}

TEST(DesktopColors, TheSettingComesBeforeThePalette) {
    EXPECT_TRUE(IsDark({"", "", "", "'prefer-dark'\n", white}));
    EXPECT_FALSE(IsDark({"", "", "", "'prefer-light'\n", black}));
}

TEST(DesktopColors, WithoutASayThePaletteDecides) {
    for (const char* portal : {"(<<uint32 0>>,)", "(<<uint32 12>>,)", "(<<uint32 >>,)", "uint32 1",
                               "Error: no such interface", "(<<'prefer-dark'>>,)", ""}) {
        EXPECT_TRUE(IsDark({"", "", portal, "'default'\n", black})) << portal;
        EXPECT_FALSE(IsDark({"", "", portal, "", white})) << portal;
    }
    EXPECT_FALSE(IsDark({"an unknown word", "", "", "", white}));
    EXPECT_FALSE(SaidToBeDark({"", "", "", "'default'", black}).has_value());
}

constexpr int patience = 30000;

/// Tools of the test's own in the place of the desktop's.
class DesktopTools : public testing::Test {
  protected:
    DesktopTools() { qputenv("PATH", folder_.path().toLocal8Bit()); }
    ~DesktopTools() override { qputenv("PATH", path_); }
    void Make(const char* tool, const char* script) const {
        QFile file(folder_.filePath(tool));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + script + "\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

  private:
    QByteArray path_ = qgetenv("PATH");
    QTemporaryDir folder_;
};

TEST_F(DesktopTools, AreAskedForTheirAnswers) {
    Make("gdbus", "echo \"(<<uint32 1>>,)\"");
    Make("gsettings", "echo \"'prefer-light' for $1 $2 $3\"");
    const DesktopSigns signs = AskDesktopTools(patience);
    EXPECT_EQ(signs.portal, portalDark);
    EXPECT_EQ(signs.colorScheme,
              "'prefer-light' for get org.gnome.desktop.interface color-scheme\n");
}

TEST_F(DesktopTools, ThatAreMissingSayNothing) {
    const DesktopSigns signs = AskDesktopTools(patience);
    EXPECT_EQ(signs.portal + signs.colorScheme, "");
}

TEST_F(DesktopTools, ThatFailSayNothing) {
    Make("gdbus", "echo \"(<<uint32 1>>,)\"; exit 1");
    Make("gsettings", "echo \"'prefer-dark'\"; kill -9 $$");
    const DesktopSigns signs = AskDesktopTools(patience);
    EXPECT_EQ(signs.portal + signs.colorScheme, "");
}

TEST_F(DesktopTools, ThatHangAreNotWaitedFor) {
    Make("gdbus", "while :; do :; done");
    const DesktopSigns signs = AskDesktopTools(50);
    EXPECT_EQ(signs.portal, "");
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
