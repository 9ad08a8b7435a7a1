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

TEST_F(Lifecycle, TheExtensionsFourCharactersMayBeOfAnyAlphabet) {
    State().ProjectFileName = "/jobs/Дом.тдв";
    MakeFileExtensions();
    EXPECT_EQ(State().WorkFileName, "/jobs/Дом.tmp");
    EXPECT_EQ(WorkFileOf("/jobs/a.b.c.TDW"), "/jobs/a.b.c.tmp");
}

TEST_F(Lifecycle, SavingWithoutAWorkFileDoesNothing) {
    State().WorkFileName = PathOf("a.tmp");
    SaveWorkFile();
    EXPECT_FALSE(FileExists(State().WorkFileName));
}

TEST_F(Lifecycle, AWorkFileThatIsGoneIsMadeAnewFromTheRecords) {
    State().WorkFileName = PathOf("a.tmp");
    Project().GPDProjectFormat.Title = "Typed";
    RestoreWorkFile();
    EXPECT_FALSE(FileExists(State().WorkFileName)) << "no project is open";
    State().ProjectIsOpen = true;
    RestoreWorkFile();
    Project() = ProjectRecords{};
    LoadWorkFile();
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Typed");
    WriteFile(State().WorkFileName, "there");
    RestoreWorkFile();
    EXPECT_EQ(Bytes(State().WorkFileName), "there");
}

TEST_F(Lifecycle, SaveAsMovesTheWorkFileAlong) {
    State().ProjectFileName = PathOf("Old.tdw");
    MakeFileExtensions();
    WriteFile(State().WorkFileName, "work");
    SaveProjectAs(PathOf("New.tdw"));
    EXPECT_EQ(Bytes(PathOf("New.tdw")), "work");
    EXPECT_EQ(Bytes(PathOf("New.tmp")), "work");
    EXPECT_FALSE(FileExists(PathOf("Old.tmp")));
    EXPECT_EQ(State().ProjectFileName, PathOf("New.tdw"));
    EXPECT_EQ(State().WorkFileName, PathOf("New.tmp"));
    // The same name once more.
    SaveProjectAs(PathOf("New.tdw"));
    EXPECT_EQ(Bytes(PathOf("New.tmp")), "work");
}

TEST_F(Lifecycle, SaveAsWithoutAWorkFileWritesTheRecords) {
    State().ProjectFileName = PathOf("gone/Old.tdw");
    MakeFileExtensions();
    Project().GPDProjectFormat.Title = "On a disk that was taken out";
    SaveProjectAs(PathOf("New.tdw"));
    Project() = ProjectRecords{};
    LoadWorkFile();
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "On a disk that was taken out");
    EXPECT_EQ(Bytes(PathOf("New.tdw")), Bytes(PathOf("New.tmp")));
}

TEST_F(Lifecycle, ASaveAsThatFailsHalfwayLeavesNamesAndWorkFile) {
    State().ProjectFileName = PathOf("Old.tdw");
    MakeFileExtensions();
    WriteFile(State().WorkFileName, "work");
    std::filesystem::create_directory(PathOf("New.tmp"));  // where the work file should go
    EXPECT_NE(ErrorOf([&] { SaveProjectAs(PathOf("New.tdw")); }), 0);
    EXPECT_EQ(State().ProjectFileName, PathOf("Old.tdw"));
    EXPECT_EQ(State().WorkFileName, PathOf("Old.tmp"));
    EXPECT_EQ(Bytes(PathOf("Old.tmp")), "work");
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

TEST_F(Lifecycle, APathOfMoreThan255CharactersIsKeptWhole) {
    const std::string path =
        "/jobs/" + std::string(200, 'a') + "/" + std::string(200, 'b') + ".tdw";
    AddToRecentFiles(path);
    AddToRecentFiles(path);
    EXPECT_EQ(RecentFiles()[0], path);
    EXPECT_EQ(RecentFiles()[1], "");
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
