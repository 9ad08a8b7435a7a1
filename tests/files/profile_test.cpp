#include "platform/files/profile.h"

#include <sys/stat.h>
#include <unistd.h>

#include "platform/text/runtime_error.h"
#include "test_folder.h"

namespace tendo {
namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

class Profile : public TestFolder {
  protected:
    std::string Read(const std::string& section, const std::string& key) const {
        return ReadProfileString(file_, section, key, "(default)");
    }

    std::string file_ = Path("Tendo.ini");
};

TEST_F(Profile, NamesDoNotDependOnCase) {
    Put("Tendo.ini", "[Velmo Software]\nCommonDirectory=/common/\n");
    EXPECT_EQ(Read("VELMO SoftWare", "commondirectory"), "/common/");
}

TEST_F(Profile, TheDefaultStandsForWhatIsMissing) {
    EXPECT_EQ(Read("a", "b"), "(default)");  // no file at all
    Put("Tendo.ini", "[a]\nkey=\n[b]\nother=1\n");
    EXPECT_EQ(Read("a", "other"), "(default)");
    EXPECT_EQ(Read("c", "key"), "(default)");
    EXPECT_EQ(Read("a", "key"), "");  // there, and empty
    EXPECT_EQ(ReadProfileString("", "a", "b", "(default)"), "(default)");
    EXPECT_EQ(ReadProfileString(folder_, "a", "b", "(default)"), "(default)");
}

TEST_F(Profile, TheFirstOfEqualKeysAndSectionsCounts) {
    Put("Tendo.ini", "[a]\nkey=1\nKEY=2\n[A]\nkey=3\nonly=4\n");
    EXPECT_EQ(Read("a", "key"), "1");
    EXPECT_EQ(Read("a", "only"), "(default)");
}

TEST_F(Profile, BlanksAndOnePairOfQuotesAreTakenOffAValue) {
    const Pairs expected = {{"a", "plain text"}, {"b", " quoted "}, {"c", "single"},
                            {"d", "\"twice\""},  {"e", "1 'True"},  {"f", "\"open"},
                            {"g", "'mixed\""},   {"h", "\""},       {"i", "x=y"}};
    EXPECT_EQ(
        ParseProfileSection("[s]\na = \tplain text \nb=\" quoted \"\nc='single'\nd=\"\"twice\"\"\n"
                            "e=1 'True\nf=\"open\ng='mixed\"\nh=\"\ni=x=y\n",
                            "S"),
        expected);
}

TEST_F(Profile, CommentsAndBrokenLinesArePassedOver) {
    EXPECT_EQ(
        ParseProfileSection("before=1\n; [s]\n[s]\n;key=1\nno equals sign\n=no key\n[broken\n\n"
                            " key = 2 \n" +
                                std::string(70000, 'x') + "=3\nlast=4",
                            "s"),
        (Pairs{{"key", "2"}, {"last", "4"}}));
}

TEST_F(Profile, AnyLineEndWillDo) {
    EXPECT_EQ(ParseProfileSection("[s]\r\na=1\r\nb=2\nc=3\r", "s"),
              (Pairs{{"a", "1"}, {"b", "2"}, {"c", "3"}}));
}

TEST_F(Profile, OlderFilesAreInWindows1252) {
    EXPECT_EQ(ParseProfileSection("[s]\na=caf\xE9 \x80\n", "s"), (Pairs{{"a", "café €"}}));
    EXPECT_EQ(ParseProfileSection("\xEF\xBB\xBF[s]\na=café\n", "s"), (Pairs{{"a", "café"}}));
}

TEST_F(Profile, AWriteKeepsEverythingElse) {
    const std::string before =
        "; my settings\r\n\r\n[Options]\r\nAutoSave=1 'True\r\nnonsense\r\n\r\n[Colors]\r\nA=1\r\n";
    Put("Tendo.ini", before);
    WriteProfileString(file_, "options", "autosave", "0 'False");
    EXPECT_EQ(Get("Tendo.ini"),
              "; my settings\r\n\r\n[Options]\r\nAutoSave=0 "
              "'False\r\nnonsense\r\n\r\n[Colors]\r\nA=1\r\n");
    WriteProfileString(file_, "Options", "New", "x");
    EXPECT_EQ(Get("Tendo.ini"),
              "; my settings\r\n\r\n[Options]\r\nAutoSave=0 'False\r\nnonsense\r\nNew=x\r\n\r\n"
              "[Colors]\r\nA=1\r\n");
}

TEST_F(Profile, AWriteAddsFileAndSection) {
    WriteProfileString(file_, "Options", "A", "1");
    EXPECT_EQ(Get("Tendo.ini"), "[Options]\nA=1\n");
    Put("Tendo.ini", "[Options]\nA=1");  // no line end
    WriteProfileString(file_, "Colors", "B", "2");
    EXPECT_EQ(Get("Tendo.ini"), "[Options]\nA=1\n[Colors]\nB=2\n");
    EXPECT_EQ(Read("Colors", "B"), "2");
}

TEST_F(Profile, SeveralKeysAreWrittenAtOnce) {
    WriteProfileSection(file_, "s", {{"a", "1"}, {"b", "2"}, {"A", "3"}});
    EXPECT_EQ(Get("Tendo.ini"), "[s]\na=3\nb=2\n");
}

TEST_F(Profile, AValueCannotBeginALineOfItsOwn) {
    WriteProfileString(file_, "s", "a", "1\r\n[other]\nb=2");
    EXPECT_EQ(Read("other", "b"), "(default)");
    EXPECT_EQ(Read("s", "a"), "1  [other] b=2");
}

TEST_F(Profile, AWriteOfTheSameValueLeavesTheFileAlone) {
    Put("Tendo.ini", "[s]\na=1\n");
    struct stat before {};
    struct stat after {};
    ::stat(file_.c_str(), &before);
    WriteProfileString(file_, "s", "a", "1");
    DeleteProfileKey(file_, "s", "none");
    ::stat(file_.c_str(), &after);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(Profile, AWriteIntoAnOlderFileKeepsItsLetters) {
    Put("Tendo.ini", "[s]\na=caf\xE9\n");
    WriteProfileString(file_, "s", "b", "Ω");
    EXPECT_EQ(Get("Tendo.ini"), "[s]\na=café\nb=Ω\n");
}

TEST_F(Profile, AKeyIsRemoved) {
    Put("Tendo.ini", "[s]\na=1\n;c\nA=2\nb=3\n");
    DeleteProfileKey(file_, "S", "a");
    EXPECT_EQ(Get("Tendo.ini"), "[s]\n;c\nb=3\n");
    DeleteProfileKey(Path("none.ini"), "s", "a");
    EXPECT_EQ(EntryCount(), 1);
}

TEST_F(Profile, KeysComeInFileOrder) {
    Put("Tendo.ini", "[s]\nFile1=b\nFile0=a\n[t]\nx=1\n");
    EXPECT_EQ(ProfileKeys(file_, "s"), (std::vector<std::string>{"File1", "File0"}));
    EXPECT_TRUE(ProfileKeys(file_, "u").empty());
    EXPECT_TRUE(ProfileKeys(Path("none"), "s").empty());
}

TEST_F(Profile, AChangeByAnotherProgramIsNoticed) {
    // Same length, in place, as fast as can be: only the content tells the difference.
    for (int i = 0; i < 20; ++i) {
        const std::string value = std::to_string(i % 10);
        Put("Tendo.ini", "[s]\na=" + value + "\n");
        ASSERT_EQ(Read("s", "a"), value) << i;
    }
    ::usleep(80000);  // now the time stamp is trusted
    EXPECT_EQ(Read("s", "a"), "9");
    Put("Tendo.ini", "[s]\na=x\n");
    EXPECT_EQ(Read("s", "a"), "x");
    ::unlink(file_.c_str());
    EXPECT_EQ(Read("s", "a"), "(default)");
}

TEST_F(Profile, AFileThatCannotBeWrittenIsAnError) {
    Put("Tendo.ini", "[s]\na=1\n");
    ::chmod(file_.c_str(), 0444);
    try {
        WriteProfileString(file_, "s", "a", "2");
        FAIL() << "nothing was thrown";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error_number::PermissionDenied);
        EXPECT_NE(error.Description().find(file_), std::string::npos);
    }
    EXPECT_EQ(Read("s", "a"), "1");
    EXPECT_THROW(WriteProfileString(Path("none/x.ini"), "s", "a", "2"), RuntimeError);
}

}  // namespace
}  // namespace tendo
