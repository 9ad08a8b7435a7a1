#include "app/screens/open_command.h"

#include <QString>

#include "app/screens/bar.h"
#include "app/screens/frm_temp_file.h"
#include "app/screens/pointer.h"
#include "app/screens/project_commands.h"
#include "app/screens/screen_table.h"
#include "app/startup.h"
#include "platform/files/leftovers.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"

namespace tendo {
namespace {

constexpr const char* openErrorTitle = "Project File Open Error";

/// The work file's name of the project that is to be opened.
std::string TempFileBeside() {
    return WorkFileOf(State().ProjectFileName);
}

/// The file is its own work file: one that ends in ".tmp", or a link to such a one. Opened as a
/// project it would be deleted when the project closes.
bool IsOwnTempFile() {
    return FileExists(State().ProjectFileName) &&
           CanonicalPath(State().ProjectFileName) == CanonicalPath(TempFileBeside());
}

/// A database holds two gigabytes at most; what is longer is no project and isn't copied first.
void CheckLength(const std::string& fileName) {
    constexpr std::uint64_t longestDatabase = std::uint64_t{2} << 30;
    if (FileLength(fileName) > longestDatabase)
        throw RuntimeError(error_number::OutOfMemory, fileName + " is too large for a project.");
}

std::string OwnTempFileText() {
    return BaseName(State().ProjectFileName) +
           " is the working copy of a project.  Please open the project itself, or give the copy "
           "a name that ends in .tdw.";
}

/// One run of the command. Each step answers whether the command goes on; its number is what a
/// failure's message tells as the location.
class OpenCommand {
  public:
    void Run();

  private:
    enum class Next { GoOn, Opened, Stop };

    bool NameIsReady() const;
    Next OpenReadyName();
    Next RecoverUntitled();
    Next OpenChosenFile();
    bool LeaveOpenProject();
    void ChooseFile();
    bool IsDosProject() const;
    Next OpenBesideTempFile();
    void OpenFromProjectFile();
    void OpenFromWorkFile();
    void Finish();
    Next TempFileFailed();
    static Next StopWithHourglass();
    void KeepOldProject();

    const std::string oldName_ = State().ProjectFileName;
    const std::string oldWorkName_ = State().WorkFileName;
    const std::optional<FileStamp> oldStamp_ = State().ProjectFileStamp;
    const ProjectRecords oldRecords_ = Project();
    std::string dialogName_;
    int step_ = 0;
};

void OpenCommand::Run() {
    HourglassPointer();
    if (!CloseProjectWindows()) return NormalPointer();
    mnuFileClose_Click();
    Next next = Next::Stop;
    if (NameIsReady())
        next = OpenReadyName();
    else if (State().StartingUp && UntitledWorkFileExists())
        next = RecoverUntitled();
    else
        next = OpenChosenFile();
    if (next == Next::Opened) Finish();
}

bool OpenCommand::NameIsReady() const {
    return UpperCase(LastCharacters(State().FileToOpen, 4)) == ".TDW" && !State().OpenNamedFile;
}

OpenCommand::Next OpenCommand::OpenReadyName() {
    try {
        State().ProjectFileName = State().FileToOpen;
        OpenFromProjectFile();
        State().FileToOpen.clear();
        return Next::Opened;
    } catch (const RuntimeError& error) {
        ShowMessage(
            openErrorTitle,
            "An error occured while trying to open your project.  If you have specified to "
            "open your last used project upon startup, check that file to make sure that it "
            "has not been moved or damaged.");
        ShowMessage(openErrorTitle, error.Description());
        State().FileToOpen.clear();  // the next Open asks for a file again
        KeepOldProject();
        return Next::Stop;
    }
}

OpenCommand::Next OpenCommand::RecoverUntitled() {
    const Answer answer =
        Ask("Unsaved Temporary File Exists",
            "An unsaved temporary file left by a previous TENDO session has been found.  This is a "
            "file the was in the process of being edited when Tendo or Windows encountered a "
            "problem.  TENDO will attempt to recover this file.",
            Buttons::OkCancel, MessageIcon::None);
    if (answer != Answer::Ok) return StopWithHourglass();
    try {
        State().WorkFileName = State().ProjectsDirectory + "Untitled.tmp";
        State().ProjectFileName = State().ProjectsDirectory + "Untitled.hid";
        CopyFileOver(State().WorkFileName, State().ProjectFileName);
        LoadWorkFile();
        State().ProjectIsOpen = true;
        return Next::Opened;
    } catch (const RuntimeError&) {
        return TempFileFailed();
    }
}

OpenCommand::Next OpenCommand::TempFileFailed() {
    ShowMessage(openErrorTitle,
                "An error occured while trying to open the temp file left from your project.  The "
                "file must not be usable.");
    KeepOldProject();
    return Next::Stop;
}

/// After a failure names and records belong together again, so that no later save writes the one
/// project over the other.
void OpenCommand::KeepOldProject() {
    State().ProjectFileName = oldName_;
    State().WorkFileName = oldWorkName_;
    State().ProjectFileStamp = oldStamp_;
    Project() = oldRecords_;
    NormalPointer();
}

OpenCommand::Next OpenCommand::StopWithHourglass() {
    LeaveHourglassOn();
    return Next::Stop;
}

OpenCommand::Next OpenCommand::OpenChosenFile() {
    try {
        step_ = 4;
        if (!LeaveOpenProject()) {
            NormalPointer();
            return Next::Stop;
        }
        ChooseFile();
        step_ = 8;
        if (IsDosProject()) {
            ShowMessage(
                "TENDO",
                "This is a DOS TENDO Project File.  Please select Convert DOS TENDO Project "
                "Files from the File menu.");
            return StopWithHourglass();
        }
        step_ = 9;
        if (IsOwnTempFile()) {
            ShowMessage(openErrorTitle, OwnTempFileText());
            KeepOldProject();
            return Next::Stop;
        }
        if (FileExists(TempFileBeside())) return OpenBesideTempFile();
        step_ = 11;
        OpenFromProjectFile();
        return Next::Opened;
    } catch (const RuntimeError& error) {
        ShowMessage(
            std::string(openErrorTitle) + " " + std::to_string(error.Number()),
            "An error occurred while trying to open your project.  The project that was open "
            "when you attempted this operation is the current project.\nLocation = " +
                std::to_string(step_));
        KeepOldProject();
        return Next::Stop;
    }
}

bool OpenCommand::LeaveOpenProject() {
    SaveWorkFile();
    CloseProjectWindows();
    if (State().StartingUp || !State().ProjectIsOpen || !State().ProjectChanged) return true;
    const SaveQuestion answer = AskToSaveProject();
    State().SaveCancelled = false;
    if (answer == SaveQuestion::Save) mnuFileSave_Click();
    return answer != SaveQuestion::Stop && !State().SaveCancelled;
}

void OpenCommand::ChooseFile() {
    step_ = 5;
    dialogName_ = State().FileToOpen;
    if (!State().OpenNamedFile) {
        // A cancel leaves the old name: the same project is opened anew from its file, which is
        // meant.
        dialogName_ = Dialogs()
                          .File({.kind = FileDialog::Kind::Open,
                                 .title = "Open",
                                 .filter = "TENDO File (*.TDW)|*.TDW",
                                 .fileName = "*.TDW",
                                 .folder = State().ProjectsDirectory,
                                 .defaultExtension = "tdw"})
                          .value_or(oldName_);
    }
    step_ = 6;
    if (!State().StartingUp && State().ProjectIsOpen) {
        DeleteWorkFile();
        State().ProjectIsOpen = false;
    }
    step_ = 7;
    State().ProjectFileName = dialogName_;
    if (!Contains(BaseName(dialogName_), ".")) State().ProjectFileName += ".tdw";
}

bool OpenCommand::IsDosProject() const {
    const std::uint64_t length = FileLength(State().ProjectFileName);
    return length > 3860 && length < 3880;
}

OpenCommand::Next OpenCommand::OpenBesideTempFile() {
    step_ = 10;
    try {
        const int choice = AskAboutTempFile(StemOf(TempFileBeside()) + ".TMP");
        if (choice == 3) {
            State().ProjectFileName = oldName_;
            NormalPointer();
            return Next::Stop;
        }
        if (choice == 1) {
            OpenFromWorkFile();
        } else {
            State().ProjectIsOpen = false;
            OpenFromProjectFile();
        }
        return Next::Opened;
    } catch (const RuntimeError&) {
        return TempFileFailed();
    }
}

void OpenCommand::OpenFromProjectFile() {
    CheckLength(State().ProjectFileName);
    if (IsOwnTempFile()) throw RuntimeError(error_number::PathFileAccess, OwnTempFileText());
    ResetProjectData();
    MakeFileExtensions();
    RemoveLeftovers(DirectoryOf(State().ProjectFileName));
    RememberProjectFile();  // before it is read: a change in between must be noticed
    std::optional<std::string> leftOver;
    if (FileExists(State().WorkFileName)) leftOver = ReadWholeFile(State().WorkFileName);
    CopyFileOver(State().ProjectFileName, State().WorkFileName);
    try {
        LoadWorkFile();
    } catch (const RuntimeError&) {
        // A copy of what can't be read would pass for unsaved work; what was there may be all that
        // is left of the project.
        leftOver ? ReplaceFile(State().WorkFileName, *leftOver) : DeleteWorkFile();
        throw;
    }
    State().ProjectIsOpen = true;
}

void OpenCommand::OpenFromWorkFile() {
    ResetProjectData();
    MakeFileExtensions();
    RemoveLeftovers(DirectoryOf(State().ProjectFileName));
    // Read first: a work file that can't be read must not take the place of the user's file.
    LoadWorkFile();
    CopyFileOver(State().WorkFileName, State().ProjectFileName);
    RememberProjectFile();
    State().ProjectIsOpen = true;
}

void OpenCommand::Finish() {
    if (UpperCase(BaseName(State().ProjectFileName)) != "UNTITLED.HID") AddRecentFile();
    ShowProjectCaption();
    MainBar().EnableActiveBarTools();
    ShowScreen("frmGPD");
    NormalPointer();
}

}  // namespace

void mnuFileOpen_Click() {
    OpenCommand().Run();
}

void RecentFile_Click(int number) {
    const std::vector<std::string> names = RecentFiles();
    const auto place = static_cast<std::size_t>(number - 1);
    if (place >= names.size() || names[place].empty()) return;
    State().OpenNamedFile = true;
    State().FileToOpen = std::string(Trimmed(names[place]));
    mnuFileOpen_Click();
    State().OpenNamedFile = false;
    State().FileToOpen.clear();  // nothing waits any longer; the next Open asks again
}

void MDIForm_OLEDragDrop(const std::vector<std::string>& files) {
    if (files.size() > 1) {
        ShowMessage("Too Many Files Dropped", "Only one file may be dropped into TENDO at a time.");
        return;
    }
    // Small letters only, and anywhere in the name.
    if (files.empty() || !Contains(files.front(), ".tdw")) return;
    State().FileToOpen = std::string(Trimmed(files.front()));
    mnuFileOpen_Click();
}

}  // namespace tendo
