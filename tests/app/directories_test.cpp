#include "app/directories.h"

#include <cstdlib>
#include <vector>

#include "program_home.h"

namespace tendo {
namespace {

class Directories : public ProgramHome {
  protected:
    void SetUp() override {
        ProgramHome::SetUp();
        State() = ProgramState();
        State().WinIniFile = directory + "WIN.INI";
    }

    /// Runs the search with what the user locates.
    std::string Search(const std::optional<std::string>& located) {
        return FindCommonDirectory({[this](const std::string& title, const std::string& text) {
                                        titles.push_back(title);
                                        texts.push_back(text);
                                    },
                                    [this, located] {
                                        ++asked;
                                        return located;
                                    }});
    }

    std::vector<std::string> titles, texts;
    int asked = 0;
};

TEST_F(Directories, ACommonDirectoryThatExistsIsTakenWithoutAQuestion) {
    std::filesystem::create_directories(home / "Common");
    WriteWinIni("CommonDirectory", directory + "Common");
    EXPECT_EQ(Search(std::nullopt), directory + "Common/");
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(titles.empty());
}

TEST_F(Directories, ADirectoryFoundByHandIsWrittenBack) {
    Write("shared/velmo.hlp", "x");
    EXPECT_EQ(Search(directory + "shared/velmo.hlp"), directory + "shared/");
    ASSERT_EQ(titles, std::vector<std::string>{"Directory Not Found"});
    EXPECT_EQ(
        texts[0],
        "TENDO encountered an error while trying to find\nthe directory on your hard disk where "
        "the Velmo Software\ncommon files are located.  Please locate the file VELMO.HLP in the "
        "following dialog...");
    EXPECT_EQ(VelmoProfileString("CommonDirectory"), directory + "shared/");
}

TEST_F(Directories, AnotherFileIsNotTheCommonDirectorys) {
    Write("shared/OTHER.HLP", "x");
    EXPECT_EQ(Search(directory + "shared/OTHER.HLP"), "");
    ASSERT_EQ(titles.size(), 2U);
    EXPECT_EQ(titles[1], "File Not Found");
    EXPECT_EQ(VelmoProfileString("CommonDirectory"), "");
}

TEST_F(Directories, ACancelledSearchEndsTheProgramWithTheLastErrorsNumber) {
    EXPECT_EQ(Search(std::nullopt), "");
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(
        texts[1],
        "The Velmo Software common directory was not found.  \nSince Template requires files in "
        "this directory, the program will have to end: 32755");
}

TEST_F(Directories, AHelpFileThatIsNotThereIsNotFound) {
    EXPECT_EQ(Search(directory + "shared/VELMO.HLP"), "");
}

TEST_F(Directories, TheHomeGivenComesBeforeTheEnvironments) {
    setenv("TENDO_HOME", "/from/environment", 1);
    EXPECT_EQ(FindProgramDirectory("/given/home"), "/given/home/");
    EXPECT_EQ(FindProgramDirectory(""), "/from/environment/");
    unsetenv("TENDO_HOME");
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(FindProgramDirectory(""), "/data/tendo/");
    unsetenv("XDG_DATA_HOME");
    setenv("HOME", "/users/ann", 1);
    EXPECT_EQ(FindProgramDirectory(""), "/users/ann/.local/share/tendo/");
}

TEST_F(Directories, AFirstStartFillsInWhatIsMissingAndTouchesNothingElse) {
    Write("install/share/tendo/tendo.mdb", "new");
    Write("install/share/tendo/README.DOC", "new");
    Write("install/share/tendo/Common/VELMO.HLP", "new");
    Write("install/share/tendo/Projects/Sample.tdw", "new");
    Write("program/README.DOC", "mine");
    const std::string program = directory + "program/";
    FillProgramDirectory(program, SharedFilesDirectory(directory + "install/bin/tendo"),
                         program + "WIN.INI");
    EXPECT_EQ(Read("program/tendo.mdb"), "new");
    EXPECT_EQ(Read("program/README.DOC"), "mine");
    EXPECT_EQ(Read("program/Common/VELMO.HLP"), "new");
    EXPECT_EQ(Read("program/Projects/Sample.tdw"), "new");
    EXPECT_EQ(ReadProfileString(program + "WIN.INI", "Velmo Software", "CommonDirectory", ""),
              program + "Common/");
    EXPECT_EQ(ReadProfileString(program + "WIN.INI", "Velmo Software", "DefaultManufacturer", ""),
              "Frostelm.mdb");
}

TEST_F(Directories, ASampleJobThatWasDeletedStaysDeleted) {
    Write("install/share/tendo/Projects/Sample.tdw", "new");
    const std::string shared = SharedFilesDirectory(directory + "install/bin/tendo");
    const std::string program = directory + "program/";
    FillProgramDirectory(program, shared, program + "WIN.INI");
    std::filesystem::remove(home / "program/Projects/Sample.tdw");
    FillProgramDirectory(program, shared, program + "WIN.INI");
    EXPECT_FALSE(Exists("program/Projects/Sample.tdw"));
}

TEST_F(Directories, ASharedWinIniElsewhereIsNotMade) {
    const std::string program = directory + "program/";
    FillProgramDirectory(program, "", directory + "elsewhere/WIN.INI");
    EXPECT_FALSE(Exists("elsewhere/WIN.INI"));
    EXPECT_FALSE(Exists("program/WIN.INI"));
    EXPECT_TRUE(Exists("program/Projects"));
}

TEST_F(Directories, WithoutInstalledFilesThereIsNoSharedDirectory) {
    EXPECT_EQ(SharedFilesDirectory(directory + "bin/tendo"), "");
}

TEST_F(Directories, TheSampleJobIsTakenFromTheSharedFilesWhenItIsMissing) {
    Write("shared/share/tendo/Projects/Maple Street 12.tdw", "job");
    State().ProjectsDirectory = directory + "Projects/";
    std::filesystem::create_directories(home / "Projects");
    const std::string executable = directory + "shared/bin/tendo";
    EXPECT_EQ(FindSampleJob(executable), directory + "Projects/Maple Street 12.tdw");
    EXPECT_EQ(Read("Projects/Maple Street 12.tdw"), "job");
}

TEST_F(Directories, ASampleJobThatIsThereIsNotTouched) {
    Write("shared/share/tendo/Projects/Maple Street 12.tdw", "job");
    Write("Projects/Maple Street 12.tdw", "edited");
    State().ProjectsDirectory = directory + "Projects/";
    EXPECT_EQ(FindSampleJob(directory + "shared/bin/tendo"),
              directory + "Projects/Maple Street 12.tdw");
    EXPECT_EQ(Read("Projects/Maple Street 12.tdw"), "edited");
}

TEST_F(Directories, WithoutSharedFilesThereIsNoSampleJob) {
    State().ProjectsDirectory = directory + "Projects/";
    EXPECT_EQ(FindSampleJob(directory + "shared/bin/tendo"), "");
}

}  // namespace
}  // namespace tendo
