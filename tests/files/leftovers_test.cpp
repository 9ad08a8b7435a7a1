#include "platform/files/leftovers.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ended_process.h"
#include "platform/files/safe_file.h"
#include "platform/files/system_calls.h"
#include "test_folder.h"

namespace tendo {
namespace {

namespace fs = std::filesystem;

class Leftovers : public TestFolder {
  protected:
    ~Leftovers() override { SystemCalls() = SystemCallTable(); }

    void Remove() const { RemoveLeftovers(folder_ + "/"); }
};

TEST_F(Leftovers, OfAProcessThatWasKilledInAWriteAreRemoved) {
    const pid_t child = ::fork();
    if (child == 0) {
        SystemCalls().rename = [](const char*, const char*) -> int { ::_exit(0); };
        ReplaceFile(Path("Job.tdw"), "half");
        ::_exit(1);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(EntryCount(), 1);
    EXPECT_FALSE(fs::exists(Path("Job.tdw")));
    Remove();
    EXPECT_EQ(EntryCount(), 0);
}

TEST_F(Leftovers, BothFormsOfTheNameAreRemoved) {
    const std::string process = EndedProcess();
    Put(".tendo-" + process + "-1.new", "x");
    Put(".tendo-" + process + "-22.new.tmp", "x");
    Remove();
    EXPECT_EQ(EntryCount(), 0);
}

TEST_F(Leftovers, OfALivingProcessStay) {
    Put(".tendo-" + std::to_string(::getpid()) + "-1.new", "x");
    Put(".tendo-1-1.new", "x");
    Remove();
    EXPECT_EQ(EntryCount(), 2);
}

TEST_F(Leftovers, ThatSomebodyHoldsLockedStay) {
    const std::string name = Put(".tendo-" + EndedProcess() + "-1.new", "x");
    const int file = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
    ::flock(file, LOCK_EX);
    Remove();
    EXPECT_EQ(EntryCount(), 1);
    ::close(file);
    Remove();
    EXPECT_EQ(EntryCount(), 0);
}

TEST_F(Leftovers, FilesOfOtherNamesStay) {
    const std::string process = EndedProcess();
    for (const std::string& name :
         {std::string("tendo-") + process + "-1.new", ".tendo-" + process + ".new",
          ".tendo-" + process + "-1.new.bak", ".tendo-" + process + "-1.newer",
          ".tendo-" + process + "-x.new", ".tendo--" + process + "-1.new",
          ".tendo-" + process + "x-1.new", std::string(".tendo-0-1.new"),
          std::string(".tendo-99999999999999999999-1.new"), std::string(".tendo-"),
          std::string("Job.tdw"), std::string("Job.tmp"), std::string("Job.new")})
        Put(name, "x");
    fs::create_directory(Path(".tendo-" + process + "-7.new"));
    Remove();
    EXPECT_EQ(EntryCount(), 14);
}

TEST_F(Leftovers, AFolderThatIsNotThereHasNone) {
    RemoveLeftovers(Path("none/"));
    EXPECT_EQ(EntryCount(), 0);
}

TEST_F(Leftovers, EachNewNameIsAnotherOne) {
    EXPECT_NE(NewFileName("/a/"), NewFileName("/a/"));
    EXPECT_TRUE(NewFileName("/a/").starts_with("/a/.tendo-" + std::to_string(::getpid()) + "-"));
}

}  // namespace
}  // namespace tendo
