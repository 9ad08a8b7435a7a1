#include "app/screens/application.h"

#include <QApplication>
#include <QLockFile>
#include <QTimer>
#include <memory>

#include "app/command_table.h"
#include "app/directories.h"
#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/frm_mdi.h"
#include "app/screens/frm_splash.h"
#include "app/screens/open_command.h"
#include "app/screens/pointer.h"
#include "app/screens/screen_table.h"
#include "app/screens/wiring.h"
#include "app/startup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

/// Held while the program runs on its program directory.
std::unique_ptr<QLockFile>& InstanceLock() {
    static std::unique_ptr<QLockFile> lock;
    return lock;
}

bool AnotherInstanceRuns(const std::string& programDirectory) {
    if (InstanceLock() && InstanceLock()->isLocked()) return true;
    MakeDirectory(programDirectory);
    auto lock =
        std::make_unique<QLockFile>(QString::fromStdString(programDirectory + "tendo.lock"));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) return true;
    InstanceLock() = std::move(lock);
    return false;
}

void SetClock(const std::string& today) {
    if (today.empty()) return;
    const auto date = ReadIsoDate(today);
    if (!date) throw RuntimeError(error_number::TypeMismatch, "\"" + today + "\" is no date.");
    SetToday(date);
}

CommonDirectoryQuestions DirectoryQuestions() {
    return {[](const std::string& title, const std::string& text) {
                ShowMessage(title, text, MessageIcon::Warning);
            },
            [] {
                return Dialogs().File({.kind = FileDialog::Kind::Open,
                                       .title = LocateTitle,
                                       .filter = LocateFilter,
                                       .fileName = LocateFile,
                                       .folder = "",
                                       .defaultExtension = "HLP"});
            }};
}

/// A run that ended badly left a work file with other contents beside the project.
bool LeftUnsavedWork(const std::string& project) {
    const std::string workFile = DirectoryOf(project) + StemOf(project) + ".tmp";
    return FileExists(workFile) && ReadWholeFile(workFile) != ReadWholeFile(project);
}

/// Opens the sample job; asks only when there is unsaved work to keep. A project that the start
/// itself recovered stays.
void OpenSampleJob() {
    if (State().ProjectIsOpen) return;
    const std::string job = FindSampleJob(QApplication::applicationFilePath().toStdString());
    if (job.empty()) return;
    const bool tipShown = Form::Find("frmTip");
    State().OpenNamedFile = LeftUnsavedWork(job);
    State().FileToOpen = job;
    mnuFileOpen_Click();
    State().OpenNamedFile = false;
    State().FileToOpen.clear();
    if (tipShown) ShowScreen("frmTip");  // opening closed it with the other screens
}

void ShowMainWindow(const StartOptions& options) {
    auto* main = new frmMDI;
    RefreshAvailableTools();
    RunGuarded([main, &options] { main->MDIForm_Load(options.args); });
    if (options.sample) RunGuarded(OpenSampleJob);
}

/// The steps before the logo; false when the common directory wasn't found.
bool Configure(const StartOptions& options, const std::string& programDirectory) {
    HourglassPointer();
    SetClock(options.today);
    WireRooms();
    MainBar() = ActiveBar();
    BeginStartup({.executable = QApplication::applicationFilePath().toStdString(),
                  .programDirectory = programDirectory,
                  .winIni = options.winIni});
    State().CommonDirectory = FindCommonDirectory(DirectoryQuestions());
    if (State().CommonDirectory.empty()) return false;
    ReadConfiguration();
    return true;
}

void EndProgram() {
    NormalPointer();
    InstanceLock().reset();
}

}  // namespace

bool StartTendo(const StartOptions& options) {
    QApplication::setApplicationName("TENDO");
    QApplication::setQuitOnLastWindowClosed(false);
    const std::string programDirectory = FindProgramDirectory(options.home);
    if (AnotherInstanceRuns(programDirectory)) {
        ShowMessage("TENDO", "TENDO is already running.", MessageIcon::Critical);
        return false;
    }
    bool configured = false;
    const bool whole = RunGuarded([&] { configured = Configure(options, programDirectory); });
    if (!whole || !configured) {
        EndProgram();
        return false;
    }
    auto* splash = new frmSplash([options] { ShowMainWindow(options); });
    splash->ShowLogo();
    if (options.shortLogo) splash->EndWait();
    return true;
}

bool QuitTendo() {
    Form* main = Form::Find("frmMDI");
    if (!main) return true;
    if (!main->Unload()) return false;
    delete main;
    EndProgram();
    return true;
}

std::vector<ToolState> Tools() {
    std::vector<ToolState> tools;
    if (!Form::Find("frmMDI")) return tools;
    for (const Command& command : Commands()) {
        const ActiveBar::Tool& tool = *MainBar().Find(command.tool);
        tools.push_back({command.tool, command.band, tool.caption, tool.enabled && tool.available,
                         tool.visible, tool.checked});
    }
    return tools;
}

std::optional<ToolState> FindTool(const std::string& tool) {
    const Command* command = FindCommand(tool);
    if (!command) return std::nullopt;
    for (const ToolState& state : Tools())
        if (state.name == command->tool) return state;
    return std::nullopt;
}

bool ActiveBarClick(const std::string& tool) {
    const auto state = FindTool(tool);
    if (!state || !state->enabled || !state->visible) return false;
    ActiveBar_Click(state->name);
    return true;
}

void DropFiles(const std::vector<std::string>& paths) {
    RunGuarded([&] { MDIForm_OLEDragDrop(paths); });
}

bool TickTimer(const std::string& name) {
    for (Form* form : Form::Loaded()) {
        auto* timer = form->findChild<QTimer*>(QString::fromStdString(name));
        if (timer) return QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
    return false;
}

}  // namespace tendo
