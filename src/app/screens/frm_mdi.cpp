#include "app/screens/frm_mdi.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QScreen>
#include <QThread>
#include <QToolBar>
#include <QVBoxLayout>

#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/main_menus.h"
#include "app/screens/open_command.h"
#include "app/screens/pointer.h"
#include "app/screens/project_commands.h"
#include "app/screens/screen_colors.h"
#include "app/screens/screen_table.h"
#include "app/screens/status_line.h"
#include "app/screens/toolbar_commands.h"
#include "app/screens/window_commands.h"
#include "app/screens/workspace.h"
#include "app/startup.h"
#include "materials/material_catalogue.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/files/settings_store.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/icons.h"
#include "platform/text/number_text.h"
#include "project/program_state.h"
#include "project/project_lifecycle.h"
#include "reports/proposal_formats.h"

namespace tendo {
namespace {

constexpr int autosaveInterval = 65535;  // milliseconds
constexpr const char* placementSection = "MDIForm";
constexpr QSize designSize(1360, 860);
constexpr QSize smallestSize(800, 560);

bool StartupOptionIsOn(const char* key) {
    return LeadingLong(Settings().GetSetting("Options", key, "1")) != 0;
}

QStringList LocalFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile()) files << url.toLocalFile();
    return files;
}

/// Embedded while it is empty: every widget in it would be styled again.
QMainWindow* EmbeddedWindow(QWidget* parent) {
    auto* window = new QMainWindow(parent);
    window->setWindowFlags(Qt::Widget);
    auto* column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(window);
    return window;
}

}  // namespace

frmMDI::frmMDI()
    : Form("frmMDI", "Quick Tendo", Place::Main),
      window_(EmbeddedWindow(this)),
      workspace_(new WorkspaceArea(window_)),
      menus_(nullptr),
      status_(new StatusLine(window_)),
      tmrAutoSave_(new QTimer(this)) {
    window_->setCentralWidget(workspace_);
    window_->setStatusBar(status_);
    menus_ = new MainMenus(window_);
    SetMainToolbar(window_, menus_->Toolbar(),
                   [this](const QStringList& hidden) { menus_->FillToolbar(hidden); });
    SetWorkspace(workspace_);
    setWindowIcon(LineIcon("tendo"));
    setAcceptDrops(true);
    setMinimumSize(smallestSize);
    tmrAutoSave_->setObjectName("tmrAutoSave");
    tmrAutoSave_->setInterval(autosaveInterval);
    connect(tmrAutoSave_, &QTimer::timeout, this, [this] {
        RunGuarded(tmrAutoSave_Timer);
        ShowAutosavePanel("");
        status_->ShowFiles();
    });
    Observe();
}

frmMDI::~frmMDI() {
    SetListObserver({});
    TextField::SetEntryObserver({});
    SetWorkspace(nullptr);
}

void frmMDI::Observe() {
    TextField::SetEntryObserver([this](TextField* field) {
        status_->ShowField(field);
        if (!field) status_->ShowFiles();
    });
    SetListObserver([this] {
        ColorNewScreens();
        PlaceNewWindows();
        RefreshCheckedTools();
        status_->ShowFiles();
    });
    connect(workspace_, &QMdiArea::subWindowActivated, this, [] { RefreshCheckedTools(); });
    SetCommandObserver([this] { status_->ShowFiles(); });
}

void frmMDI::RestoreWindow() {
    const QRect room = screen()->availableGeometry();
    resize(designSize.boundedTo(room.size()));
    move(room.center() - rect().center());
    RestorePlacement(this, placementSection);
    switch (Ini().MyGetAppProfileInteger(placementSection, "WindowState", 0)) {
        case 1:
            return showMinimized();
        case 2:
            return showMaximized();
        default:
            show();
    }
}

void frmMDI::MDIForm_Load(const std::vector<std::string>& args) {
    HourglassPointer();
    RestoreWindow();
    RestoreToolbarLayout();
    tmrAutoSave_->start();
    BuildRecentFilesMenu();
    MakeMissingFormats();
    OpenStartupProject(args);
    LoadMaterials();
    LoadScreen("frmPrint");
    QApplication::processEvents();
    DrawBackground();
    if (Form* splash = Find("frmSplash")) splash->Unload();
    if (StartupOptionIsOn("Show Explorer at Startup")) ShowScreen("frmExplorer");
    if (StartupOptionIsOn("Show Tips at Startup")) ShowScreen("frmTip");
    State().StartingUp = false;
    NormalPointer();
    status_->ShowFiles();
}

void frmMDI::OpenStartupProject(const std::vector<std::string>& args) {
    State().FileToOpen = StartupFileToOpen(args);
    if (!State().FileToOpen.empty() || UntitledWorkFileExists())
        RunGuarded(mnuFileOpen_Click);
    else
        MainBar().DisableActiveBarTools();
}

/// A store of proposal formats that isn't there is made empty.
void frmMDI::MakeMissingFormats() {
    if (FileExists(ProposalFormatFile())) return;
    RunGuarded([] {
        constexpr int Fields = 60;
        if (MakeFormatDB(ProposalFormatFile()) != Fields)
            ShowMessage("TENDO", "Warning!  Invalid number of fields in SUB MakeFormatDB",
                        MessageIcon::Critical);
    });
}

void frmMDI::LoadMaterials() {
    if (LoadMaterialCatalogue()) return;
    for (const char* tool : {"ToolMaterialDB", "ToolMaterialLists", "ToolLaborLists"})
        MainBar().SetEnabled(tool, false);
}

void frmMDI::DrawBackground() {
    workspace_->DrawBackground();
}

bool frmMDI::QueryUnload() {
    State().ClosingDown = true;
    State().SaveCancelled = false;  // an earlier cancel, of Open or Close, doesn't stop the exit
    if (!CloseProjectWindows()) {
        State().ClosingDown = false;
        return false;
    }
    RunGuarded(SaveWorkFile);
    // A project that its user wants saved and that can't be written keeps the program open.
    const bool asked = RunGuarded(CheckSaveOnClose);
    const bool cancelled = State().SaveCancelled || !asked;
    if (cancelled) {
        State().SaveCancelled = false;
        State().ClosingDown = false;
    }
    RunGuarded(WriteLastOpened);
    RunGuarded([this] { StorePlacement(this, placementSection); });
    return !cancelled;
}

void frmMDI::FormUnload() {
    tmrAutoSave_->stop();
    RunGuarded(StoreToolbarLayout);
    RunGuarded(FinishProgram);
    NormalPointer();
    for (Form* form : Loaded())
        if (form != this) form->Unload();
    SetListObserver({});
    // Without a running event loop an exit would stop every later modal loop at once.
    if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(0);
}

void frmMDI::dragEnterEvent(QDragEnterEvent* event) {
    if (!LocalFiles(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void frmMDI::dropEvent(QDropEvent* event) {
    std::vector<std::string> files;
    for (const QString& file : LocalFiles(event->mimeData()))
        files.push_back(file.toStdString());
    event->acceptProposedAction();
    RunGuarded([&] { MDIForm_OLEDragDrop(files); });
}

}  // namespace tendo
