#include <QApplication>
#include <QCommandLineParser>

#include "app/screens/application.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text_measurer_qt.h"

namespace {

tendo::StartOptions ReadOptions(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription("HVAC Estimating and Sales Proposal Program");
    const QCommandLineOption home("home", "The program directory.", "DIR");
    const QCommandLineOption winIni("win-ini", "The file with section \"Velmo Software\".", "FILE");
    const QCommandLineOption today("today", "The day to take for today.", "DATE");
    const QCommandLineOption sample("sample", "Opens the sample job.");
    parser.addOptions({home, winIni, today, sample});
    parser.addHelpOption();
    parser.addPositionalArgument("FILE", "A project file.", "[FILE]");
    parser.process(application);
    tendo::StartOptions options;
    options.home = parser.value(home).toStdString();
    options.winIni = parser.value(winIni).toStdString();
    options.today = parser.value(today).toStdString();
    options.sample = parser.isSet(sample);
    for (const QString& word : parser.positionalArguments())
        options.args.push_back(word.toStdString());
    return options;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    tendo::ApplyTheme(application);
    if (!tendo::DocumentFontsInstalled())
        tendo::ShowMessage("TENDO", tendo::MissingFontsText, tendo::MessageIcon::Warning);
    if (!tendo::StartTendo(ReadOptions(application))) return 1;
    return QApplication::exec();
}
