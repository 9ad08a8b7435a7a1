#include "project/project_lifecycle.h"

#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "project/project_file.h"
#include "project_fixture.h"

namespace tendo {
namespace {

class Lifecycle : public ProjectTest {};

TEST_F(Lifecycle, TheWorkFileStandsBesideTheProject) {
    State().ProjectFileName = "/jobs/Thornquist.tdw";
    MakeFileExtensions();
    EXPECT_EQ(State().WorkFileName, "/jobs/Thornquist.tmp");
    EXPECT_EQ(State().BackupFileName, "/jobs/Thornquist.bak");
}

TEST_F(Lifecycle, AnUntitledProjectGetsNoBackupName) {
    State().ProjectFileName = "Untitled.hid";
    MakeFileExtensions();
    EXPECT_EQ(State().WorkFileName, "Untitled.tmp");
    EXPECT_EQ(State().BackupFileName, "");
}

TEST_F(Lifecycle, ANameShorterThanAnExtensionLeavesNothingBefore) {
    State().ProjectFileName = "tdw";
    MakeFileExtensions();
    EXPECT_EQ(State().WorkFileName, ".tmp");
}

TEST_F(Lifecycle, DeletingAWorkFileThatIsNotThereIsNoError) {
    DeleteWorkFile();
    State().WorkFileName = PathOf("a.tmp");
    DeleteWorkFile();
    WriteFile(State().WorkFileName, "x");
    DeleteWorkFile();
    EXPECT_FALSE(FileExists(State().WorkFileName));
}

TEST_F(Lifecycle, TheCaptionNamesTheProjectInCapitals) {
    State().ProjectFileName = "/jobs/Thornquist.tdw";
    EXPECT_EQ(ProjectCaption(), "Tendo - THORNQUIST.TDW");
    State().ProjectFileName = State().ProjectsDirectory + "Untitled.hid";
    EXPECT_EQ(ProjectCaption(), "Tendo - (UNTITLED)");
}

TEST_F(Lifecycle, LoadingTheWorkFileMakesTheProjectUnchanged) {
    State().WorkFileName = PathOf("a.tmp");
    CreateProjectDatabase(State().WorkFileName);
    Project().GPDProjectFormat.Title = "Saved";
    SaveWorkFile();
    Project().GPDProjectFormat.Title = "Typed";
    State().ProjectChanged = true;
    LoadWorkFile();
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Saved");
    EXPECT_FALSE(State().ProjectChanged);
}

TEST_F(Lifecycle, ANewProjectBeginsWithAnEmptyWorkFile) {
    State().WorkFileName = State().ProjectsDirectory + "Untitled.tmp";
    WriteFile(State().ProjectsDirectory + "AUTOLOAD.TDW", "not asked for");
    Project().GPDProjectFormat.Title = "Old";
    CopyAutoloadProject();
    EXPECT_TRUE(Project().GPDProjectFormat.Title.IsBlank());
    EXPECT_TRUE(FileExists(State().WorkFileName));
    EXPECT_EQ(State().WorkFileName, State().ProjectsDirectory + "Untitled.tmp");
}

TEST_F(Lifecycle, ANewProjectBeginsAsACopyOfAutoloadWhenTheOptionAsks) {
    std::string autoload = State().ProjectsDirectory + "autoload.tdw";
    CreateProjectDatabase(autoload);
    Project().GPDProjectFormat.Title = "House style";
    SaveProjectData(autoload);
    Project() = ProjectRecords{};
    State().WorkFileName = State().ProjectsDirectory + "Untitled.tmp";
    Ini().MyWriteAppProfileString("Options", "NewProjectsCopyAutoload", "1 'True");
    CopyAutoloadProject();
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "House style");
    EXPECT_EQ(Bytes(State().WorkFileName), Bytes(autoload));
}

TEST_F(Lifecycle, WithTheOptionButWithoutAutoloadTheProjectIsEmpty) {
    State().WorkFileName = State().ProjectsDirectory + "Untitled.tmp";
    Ini().MyWriteAppProfileString("Options", "NewProjectsCopyAutoload", "1 'True");
    CopyAutoloadProject();
    EXPECT_TRUE(FileExists(State().WorkFileName));
}

TEST_F(Lifecycle, ARecentNameGoesFirstAndTheOthersMoveDown) {
    Ini().MyWriteAppProfileString("Options", "NumberOfPreviousProjectsOnFileMenu", "3");
    for (const char* name : {"/a.tdw", "/b.tdw", " /c.tdw ", "/d.tdw"})
        AddToRecentFiles(name);
    EXPECT_EQ(RecentFiles(), (std::vector<std::string>{"/d.tdw", "/c.tdw", "/b.tdw"}));
}

TEST_F(Lifecycle, ANameAlreadyOnTheRecentListStaysInItsPlace) {
    for (const char* name : {"/a.tdw", "/b.tdw"})
        AddToRecentFiles(name);
    AddToRecentFiles(" /A.TDW ");
    const std::vector<std::string> names = RecentFiles();
    ASSERT_EQ(names.size(), 8U);  // the default count
    EXPECT_EQ(names[0], "/b.tdw");
    EXPECT_EQ(names[1], "/a.tdw");
    EXPECT_EQ(names[2], "");
}

TEST_F(Lifecycle, AtMostTwentyRecentProjectsAreKept) {
    Ini().MyWriteAppProfileString("Options", "NumberOfPreviousProjectsOnFileMenu", "500");
    EXPECT_EQ(RecentFileCount(), 20);
    Ini().MyWriteAppProfileString("Options", "NumberOfPreviousProjectsOnFileMenu", "-3");
    EXPECT_EQ(RecentFileCount(), 0);
}

TEST_F(Lifecycle, ARecentProjectIsNumberedWithItsMnemonic) {
    EXPECT_EQ(RecentFileCaption(0, " /a.tdw "), "&1: /a.tdw");
    EXPECT_EQ(RecentFileCaption(11, "/b.tdw"), "&12: /b.tdw");
}

}  // namespace
}  // namespace tendo
