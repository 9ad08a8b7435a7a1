#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QToolBar>

#include "app/screens/shell.h"
#include "platform/files/ini_file_handler.h"
#include "running_program.h"

namespace tendo {
namespace {

class MainWindow : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        saved = Shell();
        Shell().Open = [this](const std::string& target) {
            opened.push_back(target);
            return openResult;
        };
        Shell().Start = [this](const std::string& program) {
            started.push_back(program);
            return startResult;
        };
        StartProgram();
    }
    void TearDown() override {
        Shell() = saved;
        RunningProgram::TearDown();
    }

    ShellService saved;
    std::vector<std::string> opened, started;
    int openResult = 33;
    bool startResult = true;
};

TEST_F(MainWindow, CommandsOfScreensToComeAreDisabled) {
    EXPECT_FALSE(FindTool("ToolOptions")->enabled);
    EXPECT_FALSE(ActiveBarClick("ToolOptions"));
    EXPECT_FALSE(ActiveBarClick("NoSuchTool"));
}

TEST_F(MainWindow, BravolinHasNoAction) {
    EXPECT_TRUE(ActiveBarClick("ToolBRAVOLIN"));
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(started.empty());
}

TEST_F(MainWindow, ASiblingThatIsNotInstalledShowsItsAboutBoxAndNothingElse) {
    ActiveBarClick("ToolKORVA");
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "About Korva");
    EXPECT_EQ(dialogs->messages[0].icon, MessageIcon::Information);
    EXPECT_TRUE(dialogs->messages[0].text.ends_with(
        "Please call Velmo Software if you are interested in this program."));
    EXPECT_TRUE(started.empty());
}

TEST_F(MainWindow, OfSeveralSiblingFilesTheFirstFoundIsStarted) {
    Write("korva/Korva.exe", "x");
    Write("korva/Korvaw.exe", "x");
    WriteWinIni("KORVADirectory", directory + "korva");
    ActiveBarClick("ToolKORVA");
    EXPECT_EQ(started, std::vector<std::string>{directory + "korva/Korvaw.exe"});
    startResult = false;
    ActiveBarClick("ToolKORVA");
    EXPECT_TRUE(Saw("TENDO cannot load the KORVA for Windows program."));
}

TEST_F(MainWindow, ADocumentThatDoesNotOpenTellsTheNumber) {
    openResult = 31;
    ActiveBarClick("ToolReadme");
    EXPECT_EQ(opened, std::vector<std::string>{directory + "README.DOC"});
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "ShellExecute Error");
    EXPECT_EQ(dialogs->messages[0].text,
              "An error has occurred in opening the associated program.\nError = 31");
}

TEST_F(MainWindow, AMissingCalculatorIsTold) {
    startResult = false;
    ActiveBarClick("ToolCalculator");
    EXPECT_EQ(started.front(), "CALC.EXE");
    EXPECT_TRUE(Saw("Cannot find Window's Calculator."));
}

TEST_F(MainWindow, AChosenNameWithOnlyBlanksFailsTheExport) {
    Write("tendo.mdb", "book");
    dialogs->files = {"   "};
    ActiveBarClick("ToolExportTendoDatabaseToDisk");
    ASSERT_EQ(dialogs->messages.size(), 2U);
    EXPECT_EQ(dialogs->messages[1].text, "Export failed.  Try another disk.");
}

TEST_F(MainWindow, ARepairOfWhatIsNoDatabaseTellsTheNumber) {
    Write("tendo.mdb", "book");
    ActiveBarClick("ToolRepairTendoDatabase");
    EXPECT_TRUE(Saw("Repair unsuccessful!\nError number: 3343"));
    EXPECT_EQ(Read("tendo.mdb"), "book");
}

TEST_F(MainWindow, AnExportCopiesTheMaterialDatabase) {
    Write("tendo.mdb", "book");
    dialogs->files = {directory + "floppy.bkt"};
    ActiveBarClick("ToolExportTendoDatabaseToDisk");
    EXPECT_EQ(dialogs->fileDialogs[0].fileName, "a:\\tendo.bkt");
    EXPECT_EQ(Read("floppy.bkt"), "book");
    EXPECT_TRUE(Saw("Export complete."));
    dialogs->files = {directory + "no/folder/floppy.bkt"};
    ActiveBarClick("ToolExportTendoDatabaseToDisk");
    EXPECT_TRUE(Saw("Export failed.  Try another disk.  Error number "));
}

TEST_F(MainWindow, AnImportKeepsTheOldDatabaseBesideIt) {
    Write("tendo.mdb", "old book");
    Write("floppy.bkt", "new book");
    dialogs->files = {directory + "gone.bkt", directory + "floppy.bkt"};
    ActiveBarClick("ToolImportTendoDatabaseFromDisk");
    EXPECT_TRUE(Saw("Import failed."));
    ActiveBarClick("ToolImportTendoDatabaseFromDisk");
    EXPECT_EQ(Read("tendo.mdb.old"), "old book");
    EXPECT_EQ(Read("tendo.mdb"), "new book");
    EXPECT_TRUE(Saw("Import complete."));
}

TEST_F(MainWindow, TheToolbarIsDockedAndItsSideMarked) {
    EXPECT_TRUE(FindTool("ToolAlignTop")->checked);
    ActiveBarClick("ToolAlignLeft");
    EXPECT_TRUE(FindTool("ToolAlignLeft")->checked);
    EXPECT_FALSE(FindTool("ToolAlignTop")->checked);
    Restart();
    EXPECT_TRUE(FindTool("ToolAlignLeft")->checked);
    QuitTendo();
    Write("toolbar.lyt", "broken");
    StartProgram();
    EXPECT_TRUE(FindTool("ToolAlignTop")->checked);
}

TEST_F(MainWindow, AToolTakenOffTheToolbarStaysOff) {
    const auto onToolbar = [](const char* tool) {
        auto* bar = Form::Find("frmMDI")->findChild<QToolBar*>("MainToolbar");
        for (const QAction* action : bar->actions())
            if (action->objectName() == tool) return true;
        return false;
    };
    EXPECT_TRUE(onToolbar("ToolCalculator"));
    Form::SetModalObserver([](Form& form) {
        auto* list = form.findChild<QListWidget*>("lstTools");
        list->item(list->count() - 1)->setCheckState(Qt::Unchecked);
        form.findChild<QAbstractButton*>("btnOK")->click();
    });
    ActiveBarClick("ToolCustomizeToolbar");
    EXPECT_FALSE(onToolbar("ToolCalculator"));
    EXPECT_TRUE(onToolbar("ToolNew"));
    Restart();
    EXPECT_FALSE(onToolbar("ToolCalculator"));
}

TEST_F(MainWindow, TheStatusBarTellsFieldAndFiles) {
    ActiveBarClick("ToolNew");
    Form* main = Form::Find("frmMDI");
    EXPECT_EQ(main->findChild<QLabel*>("StatusBarFile")->text(), "Untitled");
    EXPECT_TRUE(main->findChild<QLabel*>("StatusBarWritten")->text().startsWith("not saved yet"));
    ActiveBarClick("ToolClose");
    EXPECT_EQ(main->findChild<QLabel*>("StatusBarFile")->text(), "");
}

TEST_F(MainWindow, TheScreenInFrontMarksItsTool) {
    ActiveBarClick("ToolNew");
    EXPECT_TRUE(FindTool("ToolGPD")->checked);
    ActiveBarClick("ToolCloseWindow");
    QApplication::processEvents();
    EXPECT_EQ(Form::Find("frmGPD"), nullptr);
    EXPECT_FALSE(FindTool("ToolGPD")->checked);
}

TEST_F(MainWindow, ANewScreenStandsWhollyInsideTheWorkspace) {
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolSystemTendos");
    for (const char* name : {"frmGPD", "frmSumModelData"}) {
        const QMdiSubWindow* window = Form::Find(name)->SubWindow();
        const QRect room = Form::Workspace()->viewport()->rect();
        EXPECT_GE(window->x(), 0);
        EXPECT_GE(window->y(), 0);
        EXPECT_LE(window->geometry().right(), room.right()) << name;
        EXPECT_LE(window->geometry().bottom(), room.bottom()) << name;
    }
}

TEST_F(MainWindow, AMaximizedWindowKeepsTheSizeItHadWhenLastNormal) {
    Form::Find("frmMDI")->setGeometry(10, 10, 820, 600);
    Restart();
    const int width = Ini().MyGetAppProfileInteger("MDIForm", "Width", 0);
    Form::Find("frmMDI")->showMaximized();
    QApplication::processEvents();
    Restart();
    EXPECT_EQ(Ini().MyGetAppProfileInteger("MDIForm", "WindowState", 0), 2);
    EXPECT_EQ(Ini().MyGetAppProfileInteger("MDIForm", "Width", 0), width);
    EXPECT_TRUE(Form::Find("frmMDI")->isMaximized());
}

}  // namespace
}  // namespace tendo
