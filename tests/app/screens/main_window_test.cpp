#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <filesystem>

#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/screen_table.h"
#include "app/screens/shell.h"
#include "platform/files/ini_file_handler.h"
#include "platform/qt/apply_theme.h"
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
        Shell().Activate = [this](const std::string& title) {
            activated.push_back(title);
            return activateResult;
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
    std::vector<std::string> opened, started, activated;
    bool activateResult = false;
    int openResult = 33;
    bool startResult = true;
};

TEST_F(MainWindow, ACommandThatIsDisabledDoesNothingAndSaysNothing) {
    for (const ToolState& tool : Tools()) {
        if (tool.enabled && tool.visible) continue;
        EXPECT_FALSE(ActiveBarClick(tool.name)) << tool.name;
    }
    EXPECT_FALSE(ActiveBarClick("NoSuchTool"));
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(dialogs->fileDialogs.empty());
}

TEST_F(MainWindow, TheMaterialDatabaseIsOpenedByOneScreenAtATime) {
    const auto plain = [](const char* name) {
        return [name] { return new Form(name, "Plain", Form::Place::Child); };
    };
    RegisterScreen("frmEditMaterials", plain("frmEditMaterials"));
    RegisterScreen("frmMatCosts", plain("frmMatCosts"));
    RefreshAvailableTools();
    MainBar().SetEnabled("ToolMaterialDB", true);
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolMaterialDB");
    EXPECT_NE(Form::Find("frmEditMaterials"), nullptr);
    State().MaterialDatabaseHeld = true;
    ActiveBarClick("ToolMaterialDB");  // the screen that holds it comes forward
    EXPECT_TRUE(dialogs->messages.empty());
    ActiveBarClick("ToolMaterialCosts");
    EXPECT_EQ(Form::Find("frmMatCosts"), nullptr);
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "Database already open elsewhere");
    EXPECT_EQ(dialogs->messages[0].text,
              "You will not be able to open the Materials database, as it is already open in "
              "another screen.  You can only open the database to edit or open the database to "
              "select from, but not both at the same time.");
    State().MaterialDatabaseHeld = false;
    ActiveBarClick("ToolMaterialCosts");
    EXPECT_NE(Form::Find("frmMatCosts"), nullptr);
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

TEST_F(MainWindow, ASiblingThatRunsComesForwardAndNothingElseHappens) {
    activateResult = true;
    for (const char* tool : {"ToolKORVA", "ToolPYROS", "ToolMELDA", "ToolVelmoToolbar"})
        ActiveBarClick(tool);
    EXPECT_EQ(activated, (std::vector<std::string>{"Korva", "PYROS", "MELDA", "Toolbar"}));
    EXPECT_TRUE(started.empty());
    EXPECT_TRUE(dialogs->messages.empty());
}

TEST_F(MainWindow, EachSiblingIsStartedFromItsDirectoryAndAFailureTold) {
    struct Sibling {
        const char* tool;
        const char* key;
        const char* file;
        const char* message;
    };
    const Sibling siblings[] = {
        {"ToolKORVA", "KORVADirectory", "Korva.exe",
         "TENDO cannot load the KORVA for Windows program."},
        {"ToolPYROS", "PYROSDirectory", "PYROS.EXE",
         "TENDO cannot load the PYROS for Windows program."},
        {"ToolMELDA", "MELDADirectory", "MELDAW32.EXE",
         "TENDO cannot load the MELDA for Windows program."},
        {"ToolVelmoToolbar", "ToolbarDirectory", "Toolbar.EXE",
         "TENDO cannot load the Toolbar for Windows program."},
    };
    for (const Sibling& sibling : siblings) {
        SCOPED_TRACE(sibling.tool);
        const std::string folder = std::string("at ") + sibling.key;
        Write(folder + "/" + sibling.file, "x");
        WriteWinIni(sibling.key, directory + folder);
        startResult = true;
        ActiveBarClick(sibling.tool);
        EXPECT_TRUE(dialogs->messages.empty());
        EXPECT_EQ(started.back(), directory + folder + "/" + sibling.file);
        startResult = false;
        ActiveBarClick(sibling.tool);
        ASSERT_EQ(dialogs->messages.size(), 1U);
        EXPECT_EQ(dialogs->messages[0].text, sibling.message);
        dialogs->messages.clear();
    }
}

TEST_F(MainWindow, AProgramsFileIsFoundHoweverItsLettersAreWritten) {
    Write("pyros/pyros.exe", "x");
    WriteWinIni("PYROSDirectory", directory + "pyros");
    ActiveBarClick("ToolPYROS");
    EXPECT_EQ(started, std::vector<std::string>{directory + "pyros/pyros.exe"});
    ActiveBarClick("ToolAboutVelmoSoftware");
    EXPECT_EQ(opened, std::vector<std::string>{State().CommonDirectory + "VELMO.HLP"});
}

TEST(WindowList, TheWholeTitleCountsBeforeABeginningOfIt) {
    const std::string list =
        "0x01 0 office KORVA - Oak Lane\n0x02  -1 office  Korva\n0x03 0 office Korva 8\n\n";
    EXPECT_EQ(WindowOfTitle(list, "Korva"), "0x02");
    EXPECT_EQ(WindowOfTitle(list, "KORVA"), "0x01");
    EXPECT_EQ(WindowOfTitle(list, "Korva 8"), "0x03");
    EXPECT_EQ(WindowOfTitle(list, "office"), "");
    EXPECT_EQ(WindowOfTitle("", "Korva"), "");
    EXPECT_EQ(WindowOfTitle("0x04 0 office", "office"), "");
}

TEST_F(MainWindow, TheCommonProgramsAreStartedFromTheCommonDirectory) {
    ActiveBarClick("ToolModelDB");
    ActiveBarClick("ToolConvertARIGAMA");
    EXPECT_EQ(started, (std::vector<std::string>{State().CommonDirectory + "catview.exe",
                                                 State().CommonDirectory + "dirconv.exe"}));
    EXPECT_TRUE(dialogs->messages.empty());
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

/// Counts how often fields of one name are given their style anew.
class StyleCounter : public QObject {
  public:
    explicit StyleCounter(QString field) : field_(std::move(field)) {
        qApp->installEventFilter(this);
    }
    int Count() const { return count_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::StyleChange && watched->objectName() == field_) ++count_;
        return false;
    }

  private:
    QString field_;
    int count_ = 0;
};

TEST_F(MainWindow, TheWindowOfANewScreenGivesItsControlsTheirStyleOnlyOnce) {
    ApplyTheme(*qApp, false);  // a sheet of styles is what makes it dear
    ActiveBarClick("ToolNew");
    const StyleCounter counter("txtTotalGrossMargin");
    ActiveBarClick("ToolSystemTendos");
    // The move into the window; before it the screen stands alone.
    EXPECT_LE(counter.Count(), 2);
    EXPECT_GE(counter.Count(), 1);
}

TEST_F(MainWindow, AFigureThatOutgrowsItsRoomOnThePriceScreenIsShownSmaller) {
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolSystemTendos");
    auto* profit = Form::Find("frmSumModelData")->findChild<QLineEdit*>("txtProfit");
    const QFont usual = profit->font();
    profit->setText("$1,115,111,200.00");
    EXPECT_LT(QFontInfo(profit->font()).pointSize(), QFontInfo(usual).pointSize());
    EXPECT_LT(QFontMetrics(profit->font()).horizontalAdvance(profit->text()), profit->width());
    profit->setText("$320.00");
    EXPECT_EQ(profit->font(), usual);
}

TEST_F(MainWindow, TheCommandForOneWindowFillsAnyAndTheOneForAllLeavesSomeAlone) {
    ActiveBarClick("ToolNew");
    ShowScreen("frmTip");
    const QRect room = Form::Workspace()->viewport()->rect();
    ActiveBarClick("ToolResetAll");
    EXPECT_EQ(Form::Find("frmGPD")->SubWindow()->geometry(), room);
    EXPECT_NE(Form::Find("frmTip")->SubWindow()->geometry(), room);
    ActiveBarClick("ToolResetWindows");
    EXPECT_EQ(Form::Find("frmTip")->SubWindow()->geometry(), room);
}

TEST_F(MainWindow, AScreenLargerThanItsWindowGetsBarsThatMoveIt) {
    ActiveBarClick("ToolNew");
    Form* form = Form::Find("frmGPD");
    auto* port = form->SubWindow()->findChild<QScrollArea*>("View_Port");
    ASSERT_NE(port, nullptr);
    form->SubWindow()->resize(1000, 900);
    QApplication::processEvents();
    EXPECT_FALSE(port->verticalScrollBar()->isVisible());
    EXPECT_FALSE(port->horizontalScrollBar()->isVisible());
    form->SubWindow()->resize(300, 240);
    QApplication::processEvents();
    EXPECT_EQ(port->verticalScrollBar()->objectName(), "View_Vscr");
    EXPECT_EQ(port->horizontalScrollBar()->objectName(), "View_Hscr");
    EXPECT_TRUE(port->verticalScrollBar()->isVisible());
    EXPECT_TRUE(port->horizontalScrollBar()->isVisible());
    const QWidget* title = form->Control("txtProjectTitle");
    const int y = title->mapTo(form->SubWindow(), QPoint()).y();
    port->verticalScrollBar()->setValue(50);
    EXPECT_EQ(title->mapTo(form->SubWindow(), QPoint()).y(), y - 50);
}

TEST_F(MainWindow, AFieldThatTakesTheFocusIsBroughtIntoView) {
    ActiveBarClick("ToolNew");
    Form* form = Form::Find("frmGPD");
    form->SubWindow()->resize(400, 240);
    QApplication::processEvents();
    auto* port = form->SubWindow()->findChild<QScrollArea*>("View_Port");
    QWidget* last = form->Control("txtImportFile");
    last->setFocus();
    QApplication::processEvents();
    EXPECT_TRUE(port->viewport()->rect().contains(
        QRect(last->mapTo(port->viewport(), QPoint()), QSize(20, last->height()))));
}

TEST_F(MainWindow, WindowsAreCascadedTiledAndTheirIconsArranged) {
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolSystemTendos");
    QMdiSubWindow* first = Form::Find("frmGPD")->SubWindow();
    QMdiSubWindow* second = Form::Find("frmSumModelData")->SubWindow();
    const QRect room = Form::Workspace()->viewport()->rect();
    ActiveBarClick("ToolTileHorizontal");
    EXPECT_EQ(first->geometry(), QRect(0, 0, room.width(), room.height() / 2));
    EXPECT_EQ(second->y(), first->height());
    EXPECT_EQ(second->geometry().bottom(), room.bottom());
    ActiveBarClick("ToolTileVertical");
    EXPECT_EQ(first->geometry(), QRect(0, 0, room.width() / 2, room.height()));
    EXPECT_EQ(second->x(), first->width());
    EXPECT_EQ(second->geometry().right(), room.right());
    ActiveBarClick("ToolCascade");
    EXPECT_NE(first->pos(), second->pos());
    first->showMinimized();
    second->showMinimized();
    ActiveBarClick("ToolArrangeIcons");
    EXPECT_EQ(first->geometry().bottom(), room.bottom());
    EXPECT_EQ(second->geometry().bottom(), room.bottom());
    EXPECT_FALSE(first->geometry().intersects(second->geometry()));
}

TEST_F(MainWindow, TheLabelOfAFieldIsSeenWithItWhereThereIsRoomForBoth) {
    ActiveBarClick("ToolNew");
    Form* form = Form::Find("frmGPD");
    form->SubWindow()->resize(460, 300);
    QApplication::processEvents();
    auto* port = form->SubWindow()->findChild<QScrollArea*>("View_Port");
    form->Control("txtProjectTitle")->setFocus();
    port->horizontalScrollBar()->setValue(40);
    form->Control("txtLaborRate")->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(port->horizontalScrollBar()->value(), 0);
}

TEST_F(MainWindow, TheTitleOfAScreensWindowFollowsTheScreen) {
    ActiveBarClick("ToolNew");
    Form* form = Form::Find("frmGPD");
    EXPECT_EQ(form->SubWindow()->windowTitle(), "General Project Data");
    form->setWindowTitle("Another");
    EXPECT_EQ(form->SubWindow()->windowTitle(), "Another");
}

TEST_F(MainWindow, WithoutAMaterialDatabaseExportAndImportEndAfterTheirFirstBox) {
    std::filesystem::remove(home / "tendo.mdb");
    for (const char* tool : {"ToolExportTendoDatabaseToDisk", "ToolImportTendoDatabaseFromDisk"}) {
        dialogs->messages.clear();
        ActiveBarClick(tool);
        EXPECT_EQ(dialogs->messages.size(), 1U) << tool;
    }
    EXPECT_TRUE(dialogs->fileDialogs.empty());
}

TEST_F(MainWindow, AnImportOverAFileThatCannotBeWrittenTellsTheNumber) {
    Write("tendo.mdb", "old book");
    Write("floppy.bkt", "new book");
    std::filesystem::permissions(home / "tendo.mdb", std::filesystem::perms::owner_read);
    dialogs->files = {directory + "floppy.bkt"};
    ActiveBarClick("ToolImportTendoDatabaseFromDisk");
    EXPECT_TRUE(Saw("Import failed.  Error number 70."));
    EXPECT_EQ(Read("tendo.mdb"), "old book");
    std::filesystem::permissions(home / "tendo.mdb", std::filesystem::perms::owner_all);
}

TEST_F(MainWindow, APlaceIsTakenWhileItLiesInsideAndASizeWhileItFits) {
    QWidget room;
    room.resize(800, 600);
    QWidget window(&room);
    struct Row {
        const char* stored;
        QRect place;
    };
    const Row rows[] = {{"Left=50\nTop=60\nWidth=400\nHeight=300\n", {50, 60, 400, 300}},
                        {"Left=0\nTop=0\n", {0, 0, 300, 200}},
                        {"Left=799\nTop=599\n", {799, 599, 300, 200}},
                        {"Left=800\nTop=600\n", {10, 20, 300, 200}},
                        {"Left=-1\nTop=-1\n", {10, 20, 300, 200}},
                        {"Left=70\n", {70, 20, 300, 200}},
                        {"Width=800\nHeight=600\n", {10, 20, 800, 600}},
                        {"Width=801\nHeight=601\n", {10, 20, 300, 200}},
                        {"Width=0\nHeight=-5\n", {10, 20, 300, 200}},
                        {"Left=x\nTop=\nWidth=wide\n", {10, 20, 300, 200}},
                        {"", {10, 20, 300, 200}}};
    for (const Row& row : rows) {
        Write("Tendo.ini", std::string("[Some]\n") + row.stored);
        window.setGeometry(10, 20, 300, 200);
        Form::RestorePlacement(&window, "Some");
        EXPECT_EQ(window.geometry(), row.place) << row.stored;
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
