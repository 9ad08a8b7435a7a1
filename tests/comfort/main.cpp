#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QTemporaryFile>

#include "platform/qt/apply_theme.h"

namespace {

/// A desktop of today; TENDO_TEST_SCALE makes it a fine one.
void WriteDesktop(QTemporaryFile& file) {
    file.open();
    file.write(R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false,
                  "screens": [{"name": "desktop", "x": 0, "y": 0, "width": 1440, "height": 960,
                  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": )" +
               qEnvironmentVariable("TENDO_TEST_SCALE", "1").toLatin1() + "}]}");
    file.close();
}

}  // namespace

int main(int argc, char** argv) {
    QTemporaryFile desktop;
    WriteDesktop(desktop);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + desktop.fileName().toLocal8Bit());
    QApplication application(argc, argv);
    if (const int points = qEnvironmentVariableIntValue("TENDO_TEST_FONT")) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    QApplication::setQuitOnLastWindowClosed(false);
    tendo::ApplyTheme(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
