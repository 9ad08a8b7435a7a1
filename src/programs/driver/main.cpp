#include <QApplication>
#include <QCommandLineParser>
#include <fstream>
#include <iostream>

#include "platform/qt/apply_theme.h"
#include "programs/driver/session.h"

namespace {

std::vector<std::string> LinesOf(std::istream& input) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);)
        lines.push_back(line);
    return lines;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
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
