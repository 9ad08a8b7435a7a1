#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QTemporaryFile>
#include <fstream>
#include <iostream>

#include "platform/qt/apply_theme.h"
#include "programs/driver/session.h"
#include "reports/screens/frm_owner.h"

namespace {

std::vector<std::string> LinesOf(std::istream& input) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);)
        lines.push_back(line);
    return lines;
}

/// The screen of a run without a display, as wide as a desktop of today; TENDO_SCREEN_SCALE makes
/// it a fine one.
class DesktopFile {
  public:
    DesktopFile() {
        file_.open();
        const QByteArray scale = qEnvironmentVariable("TENDO_SCREEN_SCALE", "1").toLatin1();
        file_.write(R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false,
                       "screens": [{"name": "desktop", "x": 0, "y": 0, "width": 1440, "height": 960,
                       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": )" +
                    scale + "}]}");
        file_.close();
    }
    QByteArray Name() const { return file_.fileName().toLocal8Bit(); }

  private:
    QTemporaryFile file_;
};

/// TENDO_FONT_POINTS stands for the size of the desktop's font.
void TakeFontSize() {
    const int points = qEnvironmentVariableIntValue("TENDO_FONT_POINTS");
    if (points <= 0) return;
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}

}  // namespace

int main(int argc, char** argv) {
    const DesktopFile desktop;
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + desktop.Name());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TakeFontSize();
    tendo::ApplyTheme(application);

    QCommandLineParser parser;
    parser.setApplicationDescription("Runs Tendo with its real screens from a script.");
    parser.addHelpOption();
    parser.addOptions({{"home", "The program directory.", "DIR"},
                       {"win-ini", "The file that holds section \"Velmo Software\".", "FILE"},
                       {"today", "A fixed day, such as 1998-05-04.", "DATE"},
                       {"args", "The program's own command line.", "FILE"},
                       {"no-start", "Leaves starting to a start command."}});
    parser.addPositionalArgument("SCRIPT", "Scripts to run; standard input without any.",
                                 "[SCRIPT ...]");
    parser.process(application);
    if (!parser.isSet("home")) {
        std::cerr << "tendo-driver: --home DIR is needed: the program directory to work in\n";
        return 2;
    }

    tendo::NeverAskForOwner();
    tendo::driver::Session session({.home = parser.value("home").toStdString(),
                                    .winIni = parser.value("win-ini").toStdString(),
                                    .today = parser.value("today").toStdString(),
                                    .args = parser.value("args").toStdString(),
                                    .start = !parser.isSet("no-start")});
    std::vector<std::vector<std::string>> scripts;
    for (const QString& name : parser.positionalArguments()) {
        std::ifstream file(name.toStdString());
        if (!file) {
            std::cerr << "tendo-driver: can't read the script " << name.toStdString() << '\n';
            return 2;
        }
        scripts.push_back(LinesOf(file));
    }
    if (scripts.empty()) session.RunStream(std::cin);
    for (const auto& script : scripts)
        session.RunScript(script);
    session.Finish();
    return session.AllOk() ? 0 : 1;
}
