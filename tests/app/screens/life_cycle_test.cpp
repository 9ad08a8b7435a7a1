#include <QLabel>
#include <QRadioButton>
#include <QTimer>

#include "app/screens/pointer.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/system_calls.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"
#include "running_program.h"

namespace tendo {
namespace {

class LifeCycle : public RunningProgram {
  protected:
    /// Answers frmTempFile with one of its options.
    void AnswerTempFile(int option) {
        Form::SetModalObserver([this, option](Form& form) {
            tempFileCaption = form.windowTitle().toStdString();
            form.findChild<QRadioButton*>(QString("optOption%1").arg(option))->setChecked(true);
            form.findChild<QAbstractButton*>("btnOK")->click();
        });
    }

    std::string tempFileCaption;
};

TEST_F(LifeCycle, AStartWithoutAFileHasNoProjectAndItsToolsDisabled) {
    ASSERT_TRUE(StartProgram());
    EXPECT_FALSE(State().StartingUp);
    EXPECT_FALSE(State().ProjectIsOpen);
    EXPECT_EQ(Caption(), "Quick Tendo");
    EXPECT_FALSE(FindTool("ToolSave")->enabled);
    EXPECT_FALSE(PointerIsHourglass());
    EXPECT_TRUE(dialogs->fileDialogs.empty());
}

TEST_F(LifeCycle, ANewProjectIsUntitledWithItsWorkFile) {
    StartProgram();
    ASSERT_TRUE(ActiveBarClick("ToolNew"));
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_TRUE(Exists("Projects/Untitled.hid"));
    EXPECT_TRUE(Exists("Projects/Untitled.tmp"));
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    EXPECT_EQ(Project().GPDProjectFormat.Date.Trimmed(), "5/4/1998");
    EXPECT_NE(Form::Find("frmGPD"), nullptr);
    EXPECT_TRUE(FindTool("ToolSave")->enabled);
    EXPECT_FALSE(State().ProjectChanged);
}

TEST_F(LifeCycle, KillingTheProgramWithAnUntitledProjectBringsUpTheRecoveryQuestion) {
    Write("Projects/Untitled.tmp", "left behind");
    dialogs->answers = {Answer::Cancel};
    StartTendo({.home = directory, .winIni = "", .today = "", .args = {}, .shortLogo = true});
    EXPECT_TRUE(Saw("Unsaved Temporary File Exists"));
    EXPECT_TRUE(Saw("This is a file the was in the process of being edited"));
    EXPECT_FALSE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, TheRecoveredProjectIsUntitled) {
    StartProgram();
    ActiveBarClick("ToolNew");
    const std::string work = Read("Projects/Untitled.tmp");
    QuitTendo();
    Write("Projects/Untitled.tmp", work);
    dialogs->answers = {Answer::Ok};
    StartProgram();
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    EXPECT_EQ(RecentFiles().front(), "");
}

TEST_F(LifeCycle, SaveOfAnUntitledProjectRunsSaveAsAndACancelSavesNothing) {
    StartProgram();
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolSave");
    ASSERT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_EQ(dialogs->fileDialogs[0].kind, FileDialog::Kind::Save);
    EXPECT_EQ(dialogs->fileDialogs[0].fileName, "*.tdw");
    EXPECT_EQ(dialogs->fileDialogs[0].defaultExtension, "tdw");
    EXPECT_TRUE(dialogs->fileDialogs[0].promptOnOverwrite);
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    // A cancelled Save As of an untitled project still enters its name in the recent list.
    EXPECT_EQ(RecentFiles().front(), Place("Untitled.hid"));
}

TEST_F(LifeCycle, SaveAsAppendsTheExtensionAndMovesTheWorkFile) {
    StartProgram();
    ActiveBarClick("ToolNew");
    State().ProjectChanged = true;
    dialogs->files = {Place("Maple")};
    ActiveBarClick("ToolSaveAs");
    EXPECT_TRUE(Exists("Projects/Maple.tdw"));
    EXPECT_TRUE(Exists("Projects/Maple.tmp"));
    EXPECT_FALSE(Exists("Projects/Untitled.tmp"));
    EXPECT_EQ(Caption(), "Tendo - MAPLE.TDW");
    EXPECT_FALSE(State().ProjectChanged);
    EXPECT_EQ(RecentFiles().front(), "");  // Save As by itself doesn't enter the name
}

TEST_F(LifeCycle, SaveAsRefusesAnotherExtensionAndAsksAgain) {
    StartProgram();
    ActiveBarClick("ToolNew");
    dialogs->files = {Place("Maple.doc"), Place("Maple."), Place("Maple.TDW")};
    ActiveBarClick("ToolSaveAs");
    ASSERT_EQ(dialogs->messages.size(), 2U);
    EXPECT_EQ(dialogs->messages[0].title, "File Save As Error");
    EXPECT_EQ(dialogs->messages[0].icon, MessageIcon::Information);
    EXPECT_TRUE(Saw("it must be \"tdo\"."));
    EXPECT_EQ(State().ProjectFileName, Place("Maple.TDW"));
}

TEST_F(LifeCycle, AFailedSaveAsKeepsTheOldName) {
    StartProgram();
    ActiveBarClick("ToolNew");
    dialogs->files = {directory + "no/such/folder/Maple.tdw"};
    ActiveBarClick("ToolSaveAs");
    EXPECT_TRUE(Saw("An error occured while trying to save your project.  No file was saved."));
    EXPECT_EQ(State().ProjectFileName, Place("Untitled.hid"));
}

TEST_F(LifeCycle, SavingLeavesTheProjectChangedSoThatClosingAsksAgain) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    State().ProjectChanged = true;
    ActiveBarClick("ToolSave");
    EXPECT_TRUE(State().ProjectChanged);
    dialogs->messages.clear();
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolClose");
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "Project has changed");
    EXPECT_EQ(dialogs->messages[0].text,
              "The project file has changed.  Do you wish to save this project?");
    EXPECT_EQ(dialogs->messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(Caption(), "Quick Tendo");
}

TEST_F(LifeCycle, CloseWithoutAChangeLeavesTheProjectsFlag) {
    StartProgram();
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolClose");
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_FALSE(FindTool("ToolSave")->enabled);
    EXPECT_EQ(Ini().MyGetAppProfileString("RecentFiles", "LastOpened", "missing"), "");
    EXPECT_EQ(Form::Find("frmGPD"), nullptr);
}

TEST_F(LifeCycle, OpenMakesAWorkFileAndEntersTheRecentList) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple")};
    ActiveBarClick("ToolOpen");
    ASSERT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_EQ(dialogs->fileDialogs[0].fileName, "*.TDW");
    EXPECT_EQ(dialogs->fileDialogs[0].folder, directory + "Projects/");
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_EQ(Caption(), "Tendo - MAPLE.TDW");
    EXPECT_TRUE(Exists("Projects/Maple.tmp"));
    EXPECT_EQ(RecentFiles().front(), Place("Maple.tdw"));
    EXPECT_EQ(FindTool("RecentFile1")->caption, "&1: " + Place("Maple.tdw"));
    EXPECT_TRUE(FindTool("RecentFile1")->visible);
}

TEST_F(LifeCycle, ANameAlreadyOnTheRecentListStaysInItsPlace) {
    StartProgram();
    MakeProject("First.tdw");
    MakeProject("Second.tdw");
    for (const char* name : {"First.tdw", "Second.tdw", "First.tdw"}) {
        dialogs->files = {Place(name)};
        ActiveBarClick("ToolOpen");
    }
    EXPECT_EQ(RecentFiles()[0], Place("Second.tdw"));
    EXPECT_EQ(RecentFiles()[1], Place("First.tdw"));
}

TEST_F(LifeCycle, ARecentFileOpensWithoutADialogAndTheNextOpenAsksAgain) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    ActiveBarClick("ToolClose");
    dialogs->fileDialogs.clear();
    ASSERT_TRUE(ActiveBarClick("RecentFile1"));
    EXPECT_TRUE(dialogs->fileDialogs.empty());
    EXPECT_EQ(Caption(), "Tendo - MAPLE.TDW");
    EXPECT_FALSE(State().OpenNamedFile);
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(dialogs->fileDialogs.size(), 1U);
}

TEST_F(LifeCycle, ARecentFileThatIsGoneTellsTheStepThatFailed) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    ActiveBarClick("ToolClose");
    std::filesystem::remove(home / "Projects/Maple.tdw");
    ActiveBarClick("RecentFile1");
    EXPECT_TRUE(Saw("Project File Open Error 53"));
    EXPECT_TRUE(Saw("Location = 8"));
}

TEST_F(LifeCycle, AFileOf3870BytesIsRefusedAsADosProjectWhateverItHolds) {
    StartProgram();
    for (const std::size_t length : {3861U, 3870U, 3879U}) {
        dialogs->messages.clear();
        Write("Projects/Old.tdw", std::string(length, 'x'));
        dialogs->files = {Place("Old.tdw")};
        ActiveBarClick("ToolOpen");
        EXPECT_TRUE(Saw("This is a DOS TENDO Project File.")) << length;
        EXPECT_TRUE(PointerIsHourglass());
        EXPECT_EQ(State().ProjectFileName, Place("Old.tdw"));
        EXPECT_FALSE(State().ProjectIsOpen);
    }
    ActiveBarClick("ToolBRAVOLIN");
    EXPECT_FALSE(PointerIsHourglass());
}

TEST_F(LifeCycle, FilesOf3860And3880BytesAreNotRefused) {
    StartProgram();
    for (const std::size_t length : {3860U, 3880U}) {
        Write("Projects/Old.tdw", std::string(length, 'x'));
        std::filesystem::remove(home / "Projects/Old.tmp");
        dialogs->files = {Place("Old.tdw")};
        ActiveBarClick("ToolOpen");
        EXPECT_FALSE(Saw("This is a DOS TENDO Project File.")) << length;
        ActiveBarClick("ToolClose");
    }
}

TEST_F(LifeCycle, ATempFileBesideTheProjectBringsUpItsFormAndOptionOneTakesIt) {
    StartProgram();
    MakeProject("Maple.tdw");
    Restart();
    const std::string newer = Read("Projects/Maple.tdw");
    Write("Projects/Maple.tmp", newer);
    Write("Projects/Maple.tdw", "older");
    AnswerTempFile(1);
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(tempFileCaption, "Temporary File Detected:  Maple.TMP");
    EXPECT_EQ(Read("Projects/Maple.tdw"), newer);
    EXPECT_TRUE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, OptionTwoTakesTheSavedProject) {
    StartProgram();
    MakeProject("Maple.tdw");
    Restart();
    const std::string saved = Read("Projects/Maple.tdw");
    Write("Projects/Maple.tmp", "newer");
    AnswerTempFile(2);
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(Read("Projects/Maple.tmp"), saved);
    EXPECT_TRUE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, OptionThreeOpensNothing) {
    StartProgram();
    MakeProject("Maple.tdw");
    Restart();
    const std::string oldName = State().ProjectFileName;
    Write("Projects/Other.tdw", Read("Projects/Maple.tdw"));
    Write("Projects/Other.tmp", "newer");
    AnswerTempFile(3);
    dialogs->files = {Place("Other.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(State().ProjectFileName, oldName);
    EXPECT_EQ(Read("Projects/Other.tmp"), "newer");
    EXPECT_EQ(Caption(), "Quick Tendo");
    EXPECT_FALSE(PointerIsHourglass());
}

TEST_F(LifeCycle, CancellingTheOpenDialogWithAProjectOpenReloadsThatProject) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    Project().GPDProjectFormat.Title = "not saved";
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(Caption(), "Tendo - MAPLE.TDW");
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "");
}

TEST_F(LifeCycle, CancellingTheOpenDialogWithNoProjectTellsAnError) {
    StartProgram();
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(Saw("Project File Open Error 53"));
    EXPECT_TRUE(Saw("Location = 8"));
    EXPECT_FALSE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, CancelInOpensFirstQuestionLeavesTheToolsDisabledAndAsksASecondTime) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    dialogs->fileDialogs.clear();
    dialogs->messages.clear();
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Cancel, Answer::Cancel};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(dialogs->messages.size(), 2U);
    EXPECT_TRUE(dialogs->fileDialogs.empty());
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_FALSE(FindTool("ToolSave")->enabled);
}

TEST_F(LifeCycle, ACancelledNewKeepsTheOldProject) {
    StartProgram();
    ActiveBarClick("ToolNew");
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Cancel};
    Project().SystemTendos.ModelSalePrice = 5;
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Project().SystemTendos.ModelSalePrice, 5.0F);
    EXPECT_TRUE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, WithAFileOnTheCommandLineTheOpenDialogComesUp) {
    StartProgram({"maple.tdw"});
    EXPECT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_FALSE(State().ProjectIsOpen);
}

TEST_F(LifeCycle, WithTheLastProjectOnRecordTheOpenDialogComesUpAndNothingIsOpenBehindIt) {
    Write("Tendo.ini", "[Options]\nOpenLastProject=1\n[RecentFiles]\nLastOpened=Maple.tdw\n");
    StartProgram();
    EXPECT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_FALSE(State().ProjectIsOpen);
    EXPECT_EQ(Caption(), "Quick Tendo");
}

TEST_F(LifeCycle, DroppedFilesOpenOnlyOneProjectInSmallLetters) {
    StartProgram();
    MakeProject("Maple.tdw");
    std::filesystem::copy_file(home / "Projects/Maple.tdw", home / "Projects/Loud.TDW");
    DropFiles({directory + "README.TXT"});
    DropFiles({Place("Loud.TDW")});
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(dialogs->fileDialogs.empty());
    EXPECT_EQ(Caption(), "Quick Tendo");
    DropFiles({Place("Maple.tdw"), Place("Loud.TDW")});
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "Too Many Files Dropped");
    DropFiles({Place("Maple.tdw")});
    EXPECT_EQ(Caption(), "Tendo - MAPLE.TDW");
    EXPECT_EQ(State().FileToOpen, "");
}

TEST_F(LifeCycle, ADroppedFileThatIsGoneShowsBothBoxes) {
    StartProgram();
    DropFiles({Place("Gone.tdw")});
    ASSERT_EQ(dialogs->messages.size(), 2U);
    EXPECT_EQ(dialogs->messages[0].title, "Project File Open Error");
    EXPECT_EQ(dialogs->messages[1].title, "Project File Open Error");
    EXPECT_FALSE(PointerIsHourglass());
}

TEST_F(LifeCycle, AutosaveCountsTicksUpToItsInterval) {
    StartProgram();
    ActiveBarClick("ToolNew");
    TickTimer("tmrAutoSave");
    EXPECT_EQ(State().AutosaveCounter, 0);  // off, as the option is -1
    Ini().MyWriteAppProfileString("Options", "AutoSave", "1");
    for (const int expected : {1, 2, 3, 4, 0, 1}) {
        TickTimer("tmrAutoSave");
        EXPECT_EQ(State().AutosaveCounter, expected);
    }
    Ini().MyWriteAppProfileString("Options", "AutoSaveInterval", "1");
    State().AutosaveCounter = 0;
    TickTimer("tmrAutoSave");
    EXPECT_EQ(State().AutosaveCounter, 0);
    EXPECT_EQ(Form::Find("frmMDI")->findChild<QLabel*>("StatusBarPanel2")->text(), "");
}

TEST_F(LifeCycle, ThePanelTellsOfTheAutosaveWhileItWrites) {
    StartProgram();
    ActiveBarClick("ToolNew");
    Ini().MyWriteAppProfileString("Options", "AutoSave", "1");
    Ini().MyWriteAppProfileString("Options", "AutoSaveInterval", "1");
    static QString seen;
    SystemCalls().write = [](int file, const void* bytes, size_t size) {
        seen = Form::Find("frmMDI")->findChild<QLabel*>("StatusBarPanel2")->text();
        return ::write(file, bytes, size);
    };
    TickTimer("tmrAutoSave");
    SystemCalls() = SystemCallTable();
    EXPECT_EQ(seen, "Autosaving...");
    EXPECT_EQ(Form::Find("frmMDI")->findChild<QLabel*>("StatusBarPanel2")->text(), "");
    EXPECT_EQ(Form::Find("frmMDI")->findChild<QTimer*>("tmrAutoSave")->interval(), 65535);
    EXPECT_TRUE(Form::Find("frmMDI")->findChild<QTimer*>("tmrAutoSave")->isActive());
}

TEST_F(LifeCycle, ClosingTheProjectsWindowsLeavesThePrintFormAndTheExplorer) {
    StartProgram();
    for (const char* name : {"frmPrint", "frmExplorer", "frmOther"})
        (new Form(name, name, Form::Place::Child))->ShowForm();
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Form::Find("frmOther"), nullptr);
    for (const char* name : {"frmPrint", "frmExplorer", "frmMDI", "frmGPD"})
        EXPECT_NE(Form::Find(name), nullptr) << name;
}

TEST_F(LifeCycle, ANewProjectAfterYesSavesTheOldOne) {
    StartProgram();
    MakeProject("Maple.tdw");
    dialogs->files = {Place("Maple.tdw")};
    ActiveBarClick("ToolOpen");
    const std::string saved = Read("Projects/Maple.tdw");
    ActiveBarClick("ToolCloseAllProjectWindows");
    Project().GPDProjectFormat.Title = "Kept by the yes";
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Yes};
    ActiveBarClick("ToolNew");
    EXPECT_FALSE(Read("Projects/Maple.tdw") == saved);
    EXPECT_FALSE(Exists("Projects/Maple.tmp"));
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "");
}

TEST_F(LifeCycle, AnAutoloadProjectThatCannotBeReadIsToldAndOpensNothing) {
    Write("Projects/AUTOLOAD.TDW", "no database");
    Write("Tendo.ini", "[Options]\nNewProjectsCopyAutoload=1\n");
    StartProgram();
    ActiveBarClick("ToolNew");
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_NE(dialogs->messages[0].text.find("AUTOLOAD.TDW"), std::string::npos);
    EXPECT_FALSE(State().ProjectIsOpen);
    EXPECT_FALSE(FindTool("ToolSave")->enabled);
    EXPECT_EQ(Read("Projects/AUTOLOAD.TDW"), "no database");
    EXPECT_FALSE(Exists("Projects/Untitled.tmp"));
}

TEST_F(LifeCycle, ACancelledExitHasStoredThePlaceAndAnEmptyLastProjectAllTheSame) {
    StartProgram();
    ActiveBarClick("ToolNew");
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Cancel};
    EXPECT_FALSE(QuitTendo());
    EXPECT_NE(Ini().MyGetAppProfileString("MDIForm", "WindowState", "missing"), "missing");
    EXPECT_EQ(Ini().MyGetAppProfileString("RecentFiles", "LastOpened", "missing"), "");
    EXPECT_EQ(Form::Find("frmGPD"), nullptr);
}

TEST_F(LifeCycle, CancelInExitsQuestionKeepsTheProgram) {
    StartProgram();
    ActiveBarClick("ToolNew");
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Cancel};
    EXPECT_FALSE(QuitTendo());
    EXPECT_FALSE(State().SaveCancelled);
    EXPECT_FALSE(State().ClosingDown);
    EXPECT_NE(Form::Find("frmMDI"), nullptr);
}

TEST_F(LifeCycle, ACancelledSaveAsDuringExitKeepsTheProgram) {
    StartProgram();
    ActiveBarClick("ToolNew");
    State().ProjectChanged = true;
    dialogs->answers = {Answer::Yes};
    EXPECT_FALSE(QuitTendo());
    EXPECT_TRUE(Exists("Projects/Untitled.tmp"));
}

TEST_F(LifeCycle, ExitDeletesTheWorkingFilesAndStoresTheLayout) {
    StartProgram();
    ActiveBarClick("ToolNew");
    EXPECT_TRUE(QuitTendo());
    EXPECT_FALSE(Exists("Projects/Untitled.hid"));
    EXPECT_FALSE(Exists("Projects/Untitled.tmp"));
    EXPECT_TRUE(Exists("toolbar.lyt"));
    EXPECT_EQ(Ini().MyGetAppProfileString("MDIForm", "WindowState", ""), "0");
    EXPECT_TRUE(StartProgram());
}

TEST_F(LifeCycle, ASecondStartShowsThatTheProgramRunsAndOpensNoWindow) {
    StartProgram();
    const auto forms = Form::Loaded();
    EXPECT_FALSE(
        StartTendo({.home = directory, .winIni = "", .today = "", .args = {}, .shortLogo = true}));
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].text, "TENDO is already running.");
    EXPECT_EQ(dialogs->messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(Form::Loaded(), forms);
}

TEST_F(LifeCycle, AMissingCommonDirectoryEndsTheProgram) {
    WriteWinIni("CommonDirectory", directory + "gone");
    EXPECT_FALSE(
        StartTendo({.home = directory, .winIni = "", .today = "", .args = {}, .shortLogo = true}));
    EXPECT_TRUE(Saw("Directory Not Found"));
    EXPECT_TRUE(Saw("the program will have to end: 32755"));
    EXPECT_EQ(dialogs->fileDialogs[0].title, "Locate VELMO.HLP in the Velmo Common Directory");
    EXPECT_EQ(Form::Find("frmMDI"), nullptr);
}

}  // namespace
}  // namespace tendo
