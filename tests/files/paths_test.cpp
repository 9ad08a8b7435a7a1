#include "platform/files/paths.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/text/runtime_error.h"
#include "test_folder.h"

namespace tendo {
namespace {

class Paths : public TestFolder {};

TEST_F(Paths, TheOneJoinAddsASeparatorWhereThereIsNone) {
    EXPECT_EQ(WithSeparator("/home/ann"), "/home/ann/");
    EXPECT_EQ(WithSeparator("/home/ann/"), "/home/ann/");
    EXPECT_EQ(WithSeparator(""), "/");  // any other text gets one added
}

TEST_F(Paths, ExistenceIsFalseForAnEmptyName) {
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(DirectoryExists(""));
}

TEST_F(Paths, FilesAndFoldersAreToldApart) {
    const std::string file = Put("a.txt", "x");
    EXPECT_TRUE(FileExists(file));
    EXPECT_FALSE(DirectoryExists(file));
    EXPECT_TRUE(DirectoryExists(folder_));
    EXPECT_TRUE(DirectoryExists(folder_ + "/"));
    EXPECT_FALSE(FileExists(folder_));
    EXPECT_FALSE(FileExists(file + std::string(1, '\0') + "b"));
    EXPECT_FALSE(FileExists(Path("none")));
}

TEST_F(Paths, ComeApart) {
    EXPECT_EQ(BaseName("dir/Job.tdw"), "Job.tdw");
    EXPECT_EQ(DirectoryOf("dir/Job.tdw"), "dir/");
    EXPECT_EQ(StemOf("dir/Job.tdw"), "Job");
    EXPECT_EQ(ExtensionOf("dir/Job.tdw"), ".tdw");
    EXPECT_EQ(DirectoryOf("Job.tdw"), "");
    EXPECT_EQ(StemOf("a.b/Job"), "Job");
    EXPECT_EQ(ExtensionOf("a.b/Job"), "");
    EXPECT_EQ(StemOf("Job (Jet 3).v2.tdw"), "Job (Jet 3).v2");
    EXPECT_EQ(BaseName("dir/"), "");
}

TEST_F(Paths, FoldersAreMadeWithThoseAbove) {
    MakeDirectory(Path("a/b/c"));
    EXPECT_TRUE(DirectoryExists(Path("a/b/c")));
    MakeDirectory(Path("a/b/c"));  // no error when it is there
}

TEST_F(Paths, AFolderBelowAFileCannotBeMade) {
    Put("file", "x");
    for (const std::string& name : {Path("file/below"), Path("file")}) {
        try {
            MakeDirectory(name);
            ADD_FAILURE() << name;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), error_number::PathNotFound);
            EXPECT_NE(error.Description().find(name), std::string::npos);
        }
    }
}

TEST_F(Paths, FilesOfAFolderAreSorted) {
    Put("b.tdw", "");
    Put("a.tdw", "");
    MakeDirectory(Path("folder"));
    EXPECT_EQ(FilesIn(folder_), (std::vector<std::string>{"a.tdw", "b.tdw"}));
    EXPECT_TRUE(FilesIn(Path("none")).empty());
}

TEST_F(Paths, LengthAndTimeOfAFile) {
    const std::string file = Put("a.txt", "12345");
    EXPECT_EQ(FileLength(file), 5u);
    const timespec times[2] = {{1000, 0}, {894283200, 999999999}};
    ::utimensat(AT_FDCWD, file.c_str(), times, 0);
    EXPECT_EQ(FileModified(file), 894283200);
    EXPECT_FALSE(FileModified(Path("none")));
    try {
        FileLength(Path("none"));
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error_number::FileNotFound);
    }
}

TEST_F(Paths, OneFileHasOneCanonicalPath) {
    const std::string file = Put("a.txt", "x");
    std::filesystem::create_symlink("a.txt", Path("link"));
    EXPECT_EQ(CanonicalPath(Path("link")), CanonicalPath(file));
    EXPECT_EQ(CanonicalPath(Path("x/../a.txt")), CanonicalPath(file));
    EXPECT_EQ(CanonicalPath(Path("not/there")), CanonicalPath(folder_) + "/not/there");
}

TEST_F(Paths, FilesOfAFolderAreFoundHoweverTheirLettersAreWritten) {
    Put("VELMO.HLP", "x");
    EXPECT_EQ(FileInAnyCase(folder_ + "/", "Velmo.hlp"), Path("VELMO.HLP"));
    Put("Velmo.hlp", "x");
    EXPECT_EQ(FileInAnyCase(folder_ + "/", "Velmo.hlp"), Path("Velmo.hlp"));
    EXPECT_EQ(FileInAnyCase(folder_ + "/", "Other.hlp"), Path("Other.hlp"));
    EXPECT_EQ(FileInAnyCase("/no/such/", "Other.hlp"), "/no/such/Other.hlp");
}

}  // namespace
}  // namespace tendo
