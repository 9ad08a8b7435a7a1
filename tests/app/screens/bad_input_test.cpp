#include <sys/stat.h>

#include <QMdiArea>
#include <QScreen>

#include "platform/files/ini_file_handler.h"
#include "platform/files/safe_file.h"
#include "project/project_file.h"
#include "project/project_records.h"
#include "running_program.h"

namespace tendo {
namespace {

namespace fs = std::filesystem;

/// Files of any kind, names of any kind, settings of any kind: nothing crashes, one clear message
/// each, nothing lost.
class BadInput : public RunningProgram {
  protected:
    /// With an empty Projects folder.
    void StartProgramWithoutJobs() {
        StartProgram();
        for (const std::string& name : FilesIn(directory + "Projects"))
            fs::remove(Place(name));
    }
    /// Opens by the dialog what is no project, beside an open one.
    void ExpectRefused(const std::string& name) {
        SCOPED_TRACE(name);
        const std::string before = fs::is_directory(name) ? "" : ReadWholeFile(name);
        dialogs->messages.clear();
        dialogs->files = {name};
        ActiveBarClick("ToolOpen");
        ASSERT_EQ(dialogs->messages.size(), 1U);
        EXPECT_EQ(dialogs->messages[0].title.find("Project File Open Error "), 0U);
        EXPECT_EQ(dialogs->messages[0].text.find("An error occurred while trying to open"), 0U);
        EXPECT_FALSE(State().ProjectIsOpen);
        EXPECT_EQ(State().ProjectFileName, "");
        if (!fs::is_directory(name)) {
            EXPECT_EQ(ReadWholeFile(name), before);
        }
    }
    /// Only what stood there stands there.
    void ExpectFiles(std::size_t count) const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(directory + "Projects"))
            names.push_back(entry.path().filename().string());
        EXPECT_EQ(names.size(), count) << testing::PrintToString(names);
    }
    std::string ProjectBytes() {
        std::string name = directory + "made.tdw";
        ProjectRecords records;
        CreateProjectDatabase(name);
        SaveProjectData(name, records);
        return ReadWholeFile(name);
    }
};

TEST_F(BadInput, FilesThatAreNoProjectsAreRefusedAndStayAsTheyAre) {
    StartProgramWithoutJobs();
    const std::string project = ProjectBytes();
    Write("Projects/text.tdw", "Dear Ms Marlow,\n");
    Write("Projects/paper.tdw", "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n1 0 obj\n");
    Write("Projects/empty.tdw", "");
    Write("Projects/zeroes.tdw", std::string(100000, '\0'));
    for (const std::size_t length : {std::size_t{1}, std::size_t{2048}, std::size_t{4096},
                                     project.size() / 2, project.size() - 4096})
        Write("Projects/cut" + std::to_string(length) + ".tdw", project.substr(0, length));
    const std::vector<std::string> names = FilesIn(directory + "Projects");
    ASSERT_EQ(names.size(), 9U);
    for (const std::string& name : names)
        ExpectRefused(Place(name));
    ExpectFiles(9);
}

TEST_F(BadInput, ADatabaseOfAnotherKindIsRefused) {
    const std::string models = TENDO_BINARY_DIR "/share/tendo/Common/Frostelm.mdb";
    if (!FileExists(models)) GTEST_SKIP() << "the sample data is not built";
    StartProgramWithoutJobs();
    fs::copy_file(models, Place("models.tdw"));
    ExpectRefused(Place("models.tdw"));
    ExpectFiles(1);
}

TEST_F(BadInput, ADirectoryIsRefused) {
    StartProgramWithoutJobs();
    fs::create_directories(Place("folder.tdw"));
    ExpectRefused(Place("folder.tdw"));
    DropFiles({Place("folder.tdw")});
    EXPECT_EQ(dialogs->messages.size(), 3U);  // the drop's two boxes
    ExpectFiles(1);
}

TEST_F(BadInput, APipeIsRefusedWithoutWaitingForIt) {
    StartProgramWithoutJobs();
    ASSERT_EQ(::mkfifo(Place("pipe.tdw").c_str(), 0600), 0);
    dialogs->files = {Place("pipe.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(Saw("Project File Open Error "));
    dialogs->messages.clear();
    DropFiles({Place("pipe.tdw")});
    EXPECT_EQ(dialogs->messages.size(), 2U);
    EXPECT_FALSE(State().ProjectIsOpen);
    ExpectFiles(1);
}

TEST_F(BadInput, AFileTooLongForADatabaseIsRefusedBeforeItIsCopied) {
    StartProgramWithoutJobs();
    Write("Projects/movie.tdw", "");
    fs::resize_file(Place("movie.tdw"), std::uintmax_t{3} << 30);  // no room is taken for it
    dialogs->files = {Place("movie.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(Saw("Project File Open Error 7"));
    DropFiles({Place("movie.tdw")});
    EXPECT_TRUE(Saw("movie.tdw is too large for a project."));
    ExpectFiles(1);
}

TEST_F(BadInput, ANameWithALineBreakOpensAndBreaksNoProfile) {
    StartProgramWithoutJobs();
    Write("Projects/two\nLastOpened=x\n[Options].tdw", ProjectBytes());
    dialogs->files = {Place("two\nLastOpened=x\n[Options].tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_TRUE(dialogs->messages.empty());
    ActiveBarClick("ToolClose");
    EXPECT_EQ(Ini().MyGetAppProfileString("RecentFiles", "LastOpened", ""), "");
}

TEST_F(BadInput, DroppedFilesOfOtherKindsDoNothing) {
    StartProgramWithoutJobs();
    Write("photo.png", std::string("\x89PNG\r\n\x1a\n", 8));
    Write("letter.doc", "Dear Ms Marlow");
    Write("noname", "");
    for (const char* name : {"photo.png", "letter.doc", "noname", "Projects", "none"})
        DropFiles({directory + name});
    DropFiles({});
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(dialogs->fileDialogs.empty());
    EXPECT_EQ(Caption(), "Quick Tendo");
}

TEST_F(BadInput, ADroppedNameThatHoldsTheExtensionInTheMiddleAsksForAFile) {
    StartProgramWithoutJobs();
    Write("job.tdw.txt", "x");
    DropFiles({directory + "job.tdw.txt"});
    EXPECT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_FALSE(State().ProjectIsOpen);
}

TEST_F(BadInput, ADroppedFileThatIsNoProjectTellsItsFault) {
    StartProgramWithoutJobs();
    Write("Projects/text.tdw", "Dear Ms Marlow,\n");
    DropFiles({Place("text.tdw")});
    ASSERT_EQ(dialogs->messages.size(), 2U);
    EXPECT_EQ(dialogs->messages[0].title, "Project File Open Error");
    EXPECT_NE(dialogs->messages[1].text.find("text.t"), std::string::npos);
    EXPECT_EQ(Read("Projects/text.tdw"), "Dear Ms Marlow,\n");
    ExpectFiles(1);
    // The next Open asks for a file again.
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(dialogs->fileDialogs.size(), 1U);
}

TEST_F(BadInput, NamesOfAnyKindAreSavedAndOpenedAgain) {
    const std::string longest(251, 'x');
    for (const std::string& name :
         {std::string("a job"), std::string("Ms \"Lee's\" job & more; 100%=yes"),
          std::string("Grünstraße 7"), std::string("Дом на Кленовой"), std::string("かえで通り"),
          std::string("[Options]"), std::string("-rf"), longest}) {
        SCOPED_TRACE(name);
        StartProgram();
        ActiveBarClick("ToolNew");
        Project().GPDProjectFormat.Title = "Named";
        dialogs->files = {Place(name)};
        ActiveBarClick("ToolSaveAs");
        EXPECT_TRUE(dialogs->messages.empty());
        EXPECT_TRUE(Exists("Projects/" + name + ".tdw"));
        ActiveBarClick("ToolClose");
        Restart();
        dialogs->files = {Place(name + ".tdw")};
        ActiveBarClick("ToolOpen");
        EXPECT_TRUE(dialogs->messages.empty());
        EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Named");
        Restart();
        EXPECT_FALSE(Exists("Projects/" + name + ".tmp"));
    }
}

TEST_F(BadInput, ANameOfSeveralPointsOpensThoughSaveAsRefusesIt) {
    StartProgram();
    const std::string project = ProjectBytes();
    Write("Projects/a.b.c.tdw", project);
    dialogs->files = {Place("a.b.c.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_EQ(State().WorkFileName, Place("a.b.c.tmp"));
    ActiveBarClick("ToolSave");
    EXPECT_TRUE(dialogs->messages.empty());
}

TEST_F(BadInput, ANameLongerThanTheSystemAllowsIsToldAndNothingIsLost) {
    StartProgram();
    ActiveBarClick("ToolNew");
    Project().GPDProjectFormat.Title = "Kept";
    dialogs->files = {Place(std::string(300, 'x'))};
    ActiveBarClick("ToolSaveAs");
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "Save Project File Error");
    EXPECT_EQ(State().ProjectFileName, Place("Untitled.hid"));
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Kept");
    EXPECT_TRUE(Exists("Projects/Untitled.tmp"));
}

TEST_F(BadInput, ABrokenProfileGivesDefaults) {
    Write("Tendo.ini",
          "[Options\nAutoSave=maybe\n=5\n[]\n====\n[Options]\nAutoSave\nAutoSaveInterval=often\n"
          "NumberOfPreviousProjectsOnFileMenu=-99999999999999999999\nOpenLastProject=yes\n"
          "[Colors]\nShowDefaultColors=perhaps\nTextText=purple\n"
          "[ReportOptions]\nMainHeaderFontSize=99999999999\nBodyFont=\n" +
              std::string(300000, 'x') + "\n[MDIForm]\nLeft=" + std::string(100000, '9') +
              "\nWindowState=-7\n" + std::string("\0\xFF\xFE\n", 4));
    const std::string before = Read("Tendo.ini");
    EXPECT_TRUE(StartProgram());
    EXPECT_EQ(Caption(), "Quick Tendo");
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(TickTimer("tmrAutoSave"));
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    EXPECT_TRUE(dialogs->messages.empty());
    Restart();
    EXPECT_TRUE(Form::Find("frmMDI"));
    // Storing the window's place leaves the other lines alone.
    EXPECT_NE(Read("Tendo.ini").find("NumberOfPreviousProjectsOnFileMenu=-99999"),
              std::string::npos);
    EXPECT_GE(Read("Tendo.ini").size(), 300000U);
}

TEST_F(BadInput, AnIntervalThatIsNoNumberSavesAtEachTickAndAHugeOneNever) {
    StartProgram();
    ActiveBarClick("ToolNew");
    struct Row {
        const char* interval;
        int counter;  // after one tick
    };
    const Row rows[] = {{"often", 0}, {"-7", 0}, {"", 0}, {"1e30", 1}, {"99999999999999999999", 1}};
    for (const Row& row : rows) {
        Write("Tendo.ini", std::string("[Options]\nAutoSave=1\nAutoSaveInterval=") + row.interval);
        State().AutosaveCounter = 0;
        TickTimer("tmrAutoSave");
        EXPECT_EQ(State().AutosaveCounter, row.counter) << row.interval;
    }
    EXPECT_TRUE(dialogs->messages.empty());
}

TEST_F(BadInput, AProfileThatCannotBeWrittenIsToldOnceAndStopsNothing) {
    Write("Tendo.ini", "[Options]\nOpenLastProject=0\n");
    StartProgram();
    Write("Projects/Job.tdw", ProjectBytes());
    fs::permissions(home / "Tendo.ini", fs::perms::owner_read);
    for (int i = 0; i < 2; ++i) {
        dialogs->files = {Place("Job.tdw")};
        ActiveBarClick("ToolOpen");
        EXPECT_EQ(Caption(), "Tendo - JOB.TDW");
        EXPECT_TRUE(FindTool("ToolSave")->enabled);
        EXPECT_NE(Form::Find("frmGPD"), nullptr);
        ActiveBarClick("ToolSave");
        ActiveBarClick("ToolClose");
    }
    ASSERT_EQ(dialogs->messages.size(), 1U) << dialogs->messages.back().text;
    EXPECT_NE(dialogs->messages[0].text.find("Tendo.ini\": the file is read-only."),
              std::string::npos);
    EXPECT_TRUE(QuitTendo());
    EXPECT_EQ(Read("Tendo.ini"), "[Options]\nOpenLastProject=0\n");
}

TEST_F(BadInput, AGarbledToolbarLayoutGivesTheUsualOne) {
    std::string garbage;
    for (int i = 0; i < 100000; ++i)
        garbage += static_cast<char>(i * 7919 >> 3);
    Write("toolbar.lyt", garbage);
    EXPECT_TRUE(StartProgram());
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(FindTool("ToolAlignTop")->checked);
    Restart();
    EXPECT_TRUE(FindTool("ToolAlignTop")->checked);
    QuitTendo();
    Write("toolbar.lyt", "[Main Toolbar]\nSide=Inside\nHidden=Nothing,,ToolNew,ToolNew," +
                             std::string(5000, ',') + "\n");
    EXPECT_TRUE(StartProgram());
    EXPECT_TRUE(FindTool("ToolAlignTop")->checked);
    EXPECT_TRUE(FindTool("ToolNew")->enabled);
}

TEST_F(BadInput, PlacementsOffEveryScreenAreNotTaken) {
    const char* places[] = {"Left=99999\nTop=99999\nWidth=600\nHeight=400\n",
                            "Left=-5000\nTop=-5000\nWidth=-1\nHeight=-1\n",
                            "Left=10\nTop=10\nWidth=2147483647\nHeight=99999999999\n",
                            "Left=abc\nTop=\nWidth=1\nHeight=1\nWindowState=2147483648\n"};
    for (const char* place : places) {
        SCOPED_TRACE(place);
        const std::string text(place);
        Write("Tendo.ini", "[MDIForm]\n" + text + "[frmGPD]\n" + text);
        EXPECT_TRUE(StartProgram());
        ActiveBarClick("ToolNew");
        QApplication::processEvents();
        const Form* main = Form::Find("frmMDI");
        const QRect room = main->screen()->availableGeometry();
        EXPECT_TRUE(room.intersects(main->frameGeometry()));
        EXPECT_GE(main->width(), main->minimumWidth());
        const QMdiSubWindow* window = Form::Find("frmGPD")->SubWindow();
        EXPECT_TRUE(Form::Workspace()->rect().contains(window->pos()));
        QuitTendo();
    }
}

TEST_F(BadInput, AMaterialDatabaseThatIsNoneIsToldOnceAndTheRestWorks) {
    Write("tendo.mdb", "no database");
    StartTendo(
        {.home = directory, .winIni = "", .today = "1998-05-04", .args = {}, .shortLogo = true});
    EXPECT_LE(dialogs->messages.size(), 1U);
    EXPECT_FALSE(FindTool("ToolMaterialDB")->enabled);
    dialogs->messages.clear();
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
    QuitTendo();
    EXPECT_EQ(Read("tendo.mdb"), "no database");
}

}  // namespace
}  // namespace tendo
