#include "app/screens/shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"

namespace tendo {
namespace {

constexpr int lastErrorNumber = 32;
constexpr int fileNotFound = 2;
constexpr int noAssociation = 31;

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

}  // namespace

ShellService& Shell() {
    static ShellService shell{OpenOnDesktop, StartDetached};
    return shell;
}

void OpenAssociatedProgram(const std::string& target) {
    const int result = Shell().Open(target);
    if (result > lastErrorNumber) return;
    ShowMessage("ShellExecute Error",
                "An error has occurred in opening the associated program.\nError = " +
                    std::to_string(result));
}

}  // namespace tendo
