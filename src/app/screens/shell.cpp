#include "app/screens/shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"

namespace tendo {
namespace {

constexpr int lastErrorNumber = 32;
constexpr int fileNotFound = 2;
constexpr int noAssociation = 31;
constexpr int toolLimit = 500;  // milliseconds

int OpenOnDesktop(const std::string& target) {
    const QString text = QString::fromStdString(target);
    const QUrl url(text);
    const bool address = url.scheme().size() > 1;  // one letter is a drive
    if (!address && !FileExists(target)) return fileNotFound;
    return QDesktopServices::openUrl(address ? url : QUrl::fromLocalFile(text))
               ? lastErrorNumber + 1
               : noAssociation;
}

bool StartDetached(const std::string& program) {
    return QProcess::startDetached(QString::fromStdString(program), {});
}

/// The process is its own owner: it goes on when this program ends before it.
bool RunAside(const std::string& program, const std::vector<std::string>& arguments,
              const std::function<void(int)>& ended) {
    const QString file = QStandardPaths::findExecutable(QString::fromStdString(program));
    if (file.isEmpty()) return false;
    QStringList words;
    for (const std::string& argument : arguments)
        words << QString::fromStdString(argument);
    auto* process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process,
                     [process, ended](int status, QProcess::ExitStatus how) {
                         process->deleteLater();
                         ended(how == QProcess::NormalExit ? status : -1);
                     });
    process->start(file, words);
    if (process->waitForStarted()) return true;
    delete process;
    return false;
}

/// What the desktop's window tool answers; empty when there is no such tool.
std::string WindowTool(const QStringList& arguments) {
    QProcess tool;
    tool.start("wmctrl", arguments);
    if (!tool.waitForFinished(toolLimit)) {
        tool.kill();
        tool.waitForFinished(toolLimit);
        return {};
    }
    return tool.readAllStandardOutput().toStdString();
}

bool ActivateWindow(const std::string& title) {
    const std::string window = WindowOfTitle(WindowTool({"-l"}), title);
    if (!window.empty()) WindowTool({"-i", "-a", QString::fromStdString(window)});
    return !window.empty();
}

}  // namespace

ShellService& Shell() {
    static ShellService shell{OpenOnDesktop, ActivateWindow, StartDetached, RunAside};
    return shell;
}

std::string WindowOfTitle(const std::string& list, const std::string& title) {
    constexpr int columnsBeforeTitle = 3;
    std::string beginsSo;
    for (const QString& line : QString::fromStdString(list).split('\n')) {
        const QString wholeTitle =
            line.section(' ', columnsBeforeTitle, -1, QString::SectionSkipEmpty);
        const std::string window = line.section(' ', 0, 0).toStdString();
        if (wholeTitle == QString::fromStdString(title)) return window;
        if (beginsSo.empty() && wholeTitle.startsWith(QString::fromStdString(title)))
            beginsSo = window;
    }
    return beginsSo;
}

void OpenAssociatedProgram(const std::string& target) {
    const int result = Shell().Open(target);
    if (result > lastErrorNumber) return;
    ShowMessage("ShellExecute Error",
                "An error has occurred in opening the associated program.\nError = " +
                    std::to_string(result));
}

}  // namespace tendo
