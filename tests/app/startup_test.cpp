#include "app/startup.h"

#include "app/color_handler.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/settings_store.h"
#include "program_home.h"
#include "project/project_records.h"

namespace tendo {
namespace {

class StartUp : public ProgramHome {};

TEST_F(StartUp, AFirstStartWritesAProfileAndASecondReadsTheSameValues) {
    Start();
    ASSERT_TRUE(Exists("Tendo.ini"));
    const std::string first = Read("Tendo.ini");
    EXPECT_EQ(Ini().MyGetAppProfileInteger("Options", "NumberOfPreviousProjectsOnFileMenu", 3), 8);
    EXPECT_EQ(Ini().MyGetAppProfileInteger("Options", "AutoSave", 3), -1);
    EXPECT_EQ(Ini().MyGetAppProfileSingle("Options", "DefaultModelGrossMargin", 3), 20.0F);
    Start();
    EXPECT_EQ(Read("Tendo.ini"), first);
    EXPECT_EQ(Ini().MyGetAppProfileInteger("Options", "AutoSave", 3), -1);
    EXPECT_EQ(Ini().MyGetAppProfileSingle("Options", "DefaultTotalGrossMargin", 3), 10.0F);
}

TEST_F(StartUp, AProfileThatIsThereIsNotTouched) {
    Write("Tendo.ini", "[Options]\nAutoSave=1\n");
    Start();
    EXPECT_EQ(Read("Tendo.ini"), "[Options]\nAutoSave=1\n");
}

TEST_F(StartUp, ABooleanStoredAsZeroFalseReadsFalse) {
    Write("Tendo.ini", "[Colors]\nA=0 'False\nB=True\nC=-1\nD=1 'True\n");
    Start();
    EXPECT_FALSE(Ini().MyGetAppProfileBoolean("Colors", "A", true));
    EXPECT_TRUE(Ini().MyGetAppProfileBoolean("Colors", "B", false));
    EXPECT_TRUE(Ini().MyGetAppProfileBoolean("Colors", "C", false));
    EXPECT_TRUE(Ini().MyGetAppProfileBoolean("Colors", "D", false));
}

TEST_F(StartUp, AMaterialDatabaseThatWasDeletedFallsBackToTheProgramsOwn) {
    Write("settings.ini", "[Settings]\nMaterialDatabase=" + directory + "gone.mdb\n");
    Start();
    EXPECT_EQ(State().MaterialDatabaseName, directory + "tendo.mdb");
}

TEST_F(StartUp, AMaterialDatabaseThatExistsIsTakenTrimmed) {
    Write("other.mdb", "x");
    Write("settings.ini", "[Settings]\nMaterialDatabase=\"  " + directory + "other.mdb  \"\n");
    Start();
    EXPECT_EQ(State().MaterialDatabaseName, directory + "other.mdb");
}

TEST_F(StartUp, ASiblingWithAMissingDirectoryStaysEmpty) {
    std::filesystem::create_directories(home / "melda");
    WriteWinIni("PYROSDirectory", directory + "nowhere");
    WriteWinIni("MELDADirectory", directory + "melda");
    Start();
    EXPECT_EQ(State().PYROSDirectory, "");
    EXPECT_EQ(State().PYROSProjectsDirectory, "Projects/");
    EXPECT_EQ(State().MELDADirectory, directory + "melda/");
    EXPECT_EQ(State().MELDAProjectsDirectory, directory + "melda/Projects/");
    EXPECT_EQ(State().KORVADirectory, "");
}

TEST_F(StartUp, DirectoriesFollowFromTheProgramDirectory) {
    Start();
    EXPECT_EQ(State().ProgramDirectory, directory);
    EXPECT_EQ(State().ProjectsDirectory, directory + "Projects/");
    EXPECT_EQ(State().ProfileFile, directory + "Tendo.ini");
    EXPECT_EQ(State().LogoFileName, "tenlogo.wmf");
    EXPECT_EQ(State().DialogBackgroundColor, 0xE0E0E0);
    EXPECT_TRUE(State().StartingUp);
    EXPECT_FALSE(State().ProjectIsOpen);
    EXPECT_FALSE(State().ProjectChanged);
    EXPECT_EQ(State().ProgramVersionText, VersionText());
}

TEST_F(StartUp, TheProjectRecordsGetTheirStartValues) {
    Project().GPDProjectFormat.TaxLabor = false;
    Project().SystemTendos.TaxPercentage = 1;
    Start();
    const GPDProjectRecord& project = Project().GPDProjectFormat;
    EXPECT_EQ(project.LaborRate, 40.0F);
    EXPECT_TRUE(project.TaxLabor);
    EXPECT_TRUE(project.SingleProposalType);
    EXPECT_EQ(project.ImportGPD, 0);
    EXPECT_EQ(project.ImportGPD_FName.Trimmed(), "C:\\Velmo\\Tendow\\");
    // Fifty characters of the common directory.
    EXPECT_EQ(project.DefaultDB.WithoutPadding(), (directory + "Common/").substr(0, 50));
    for (const LaborRow& row : Project().ProjectLabor)
        EXPECT_EQ(row.LaborPerHour, 40.0F);
    EXPECT_EQ(Project().SystemTendos.TaxPercentage, 8.25F);
}

TEST_F(StartUp, WithTheLastProjectOnRecordTheNameIsNoProjectFiles) {
    Write("Tendo.ini", "[Options]\nOpenLastProject=1\n[RecentFiles]\nLastOpened=C:\\x\\Job.tdw\n");
    Start();
    // The folder's separator decides, so this name counts as one without a folder.
    EXPECT_EQ(StartupFileToOpen({}), directory + "Projects/C:\\x\\Job.tdw.TEM");
}

TEST_F(StartUp, TheCommandLineIsTakenInCapitalsAndGetsAnExtension) {
    Start();
    EXPECT_EQ(StartupFileToOpen({"job.tdw"}), directory + "Projects/JOB.TDW.TEM");
    EXPECT_EQ(StartupFileToOpen({"/a/job.tem"}), "/A/JOB.TEM");
    EXPECT_EQ(StartupFileToOpen({"my", "job"}), directory + "Projects/MY JOB.TEM");
    EXPECT_EQ(StartupFileToOpen({"  "}), "");
    EXPECT_EQ(StartupFileToOpen({}), "");
}

TEST_F(StartUp, TheLastProjectIsNotAskedForWithoutTheOption) {
    Write("Tendo.ini", "[Options]\nOpenLastProject=0\n[RecentFiles]\nLastOpened=Job.tdw\n");
    Start();
    EXPECT_EQ(StartupFileToOpen({}), "");
}

TEST_F(StartUp, AnUntitledWorkFileIsSeen) {
    Start();
    EXPECT_FALSE(UntitledWorkFileExists());
    Write("Projects/Untitled.tmp", "x");
    EXPECT_TRUE(UntitledWorkFileExists());
}

TEST_F(StartUp, TheEndKeepsARollingCopyAndDeletesTheWorkFiles) {
    Write("tendo.mdb", "first");
    Start();
    for (const char* name : {"Projects/Untitled.hid", "Projects/Untitled.tmp", "Projects/Job.tmp"})
        Write(name, "x");
    Write("Projects/Job.tdw", "job");
    State().WorkFileName = directory + "Projects/Job.tmp";
    FinishProgram();
    EXPECT_EQ(Read("tendo.md2"), "first");
    for (const char* name : {"Projects/Untitled.hid", "Projects/Untitled.tmp", "Projects/Job.tmp"})
        EXPECT_FALSE(Exists(name)) << name;
    EXPECT_EQ(Read("Projects/Job.tdw"), "job");
    EXPECT_EQ(Settings().GetSetting("Settings", "MaterialDatabase", ""), directory + "tendo.mdb");
    Write("tendo.mdb", "second");
    FinishProgram();  // deletes that find nothing are no errors
    EXPECT_EQ(Read("tendo.md2"), "second");
}

TEST_F(StartUp, WithoutAMaterialDatabaseThereIsNoRollingCopy) {
    Start();
    FinishProgram();
    EXPECT_FALSE(Exists("tendo.md2"));
}

TEST_F(StartUp, TheColoursHaveTheirDefaults) {
    Start();
    EXPECT_EQ(Colors().DefaultColorLblHelpCaptionBackground(), 0xC0FFFF);
    EXPECT_EQ(Colors().ColorLblHelpCaptionBackground(), 0xC0FFFF);
    EXPECT_EQ(Colors().DefaultColorTextText(), 0);
    EXPECT_EQ(Colors().ColorFrame(), 0);
}

}  // namespace
}  // namespace tendo
