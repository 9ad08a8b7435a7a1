#include "platform/files/safe_file.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/system_calls.h"
#include "platform/text/runtime_error.h"
#include "test_folder.h"

namespace tendo {
namespace {

/// One system call of a save and a failure of it.
struct Failure {
    const char* name;
    void (*install)(SystemCallTable&);
    int number;
};

const Failure Failures[] = {
    {"open",
     [](SystemCallTable& t) {
         t.open = [](const char*, int, mode_t) { return errno = EROFS, -1; };
     },
     error_number::PermissionDenied},
    {"write",
     [](SystemCallTable& t) {
         t.write = [](int, const void*, size_t) { return errno = ENOSPC, ssize_t{-1}; };
     },
     error_number::DiskFull},
    {"a write of nothing",
     [](SystemCallTable& t) { t.write = [](int, const void*, size_t) { return ssize_t{0}; }; },
     error_number::DiskFull},
    {"fstat",
     [](SystemCallTable& t) { t.fstat = [](int, struct stat*) { return errno = EIO, -1; }; },
     error_number::DeviceError},
    {"a size that is not what was written",
     [](SystemCallTable& t) {
         t.write = [](int, const void*, size_t size) { return static_cast<ssize_t>(size); };
     },
     error_number::DeviceError},
    {"fchmod", [](SystemCallTable& t) { t.fchmod = [](int, mode_t) { return errno = EPERM, -1; }; },
     error_number::PermissionDenied},
    {"fsync", [](SystemCallTable& t) { t.fsync = [](int) { return errno = EDQUOT, -1; }; },
     error_number::DiskFull},
    {"close",
     [](SystemCallTable& t) { t.close = [](int file) { return ::close(file), errno = EIO, -1; }; },
     error_number::DeviceError},
    {"rename",
     [](SystemCallTable& t) {
         t.rename = [](const char*, const char*) { return errno = EACCES, -1; };
     },
     error_number::PermissionDenied},
};

class SafeFile : public TestFolder {
  protected:
    ~SafeFile() override { SystemCalls() = SystemCallTable(); }

    mode_t Mode(const std::string& name) const {
        struct stat info {};
        ::stat(Path(name).c_str(), &info);
        return info.st_mode & 07777;
    }

    /// The number of the error that an action throws, 0 when none. Checks that it names the file.
    template <typename Action>
    static int ErrorOf(const std::string& name, Action action) {
        try {
            action();
            return 0;
        } catch (const RuntimeError& error) {
            EXPECT_NE(error.Description().find(name), std::string::npos) << error.Description();
            description_ = error.Description();
            return error.Number();
        }
    }

    static inline std::string description_;
};

TEST_F(SafeFile, ReplacesTheContent) {
    Put("a", "old");
    ReplaceFile(Path("a"), "new content");
    EXPECT_EQ(Get("a"), "new content");
    EXPECT_EQ(EntryCount(), 1);
    ReplaceFile(Path("a"), "");
    EXPECT_EQ(Get("a"), "");
}

TEST_F(SafeFile, MakesAFileThatIsNotThere) {
    const mode_t mask = ::umask(027);
    ReplaceFile(Path("fresh"), "x");
    ::umask(mask);
    EXPECT_EQ(Get("fresh"), "x");
    EXPECT_EQ(Mode("fresh"), 0640u);  // 0666 less the mask
}

TEST_F(SafeFile, KeepsThePermissions) {
    Put("a", "old");
    ::chmod(Path("a").c_str(), 0604);
    ReplaceFile(Path("a"), "new");
    EXPECT_EQ(Mode("a"), 0604u);
}

TEST_F(SafeFile, KeepsTheUsersOwnAttributes) {
    Put("a", "old");
    if (::setxattr(Path("a").c_str(), "user.note", "paid", 4, 0) != 0)
        GTEST_SKIP() << "this disk keeps no attributes";
    ReplaceFile(Path("a"), "new");
    char value[16] = {};
    EXPECT_EQ(::getxattr(Path("a").c_str(), "user.note", value, sizeof value), 4);
    EXPECT_STREQ(value, "paid");
}

TEST_F(SafeFile, KeepsTheAccessControlList) {
    Put("a", "old");
    ::chmod(Path("a").c_str(), 0640);
    // Version 2; tag, rights and id of: the owner rw, user 4242 rw, the group r, the mask rw,
    // others nothing.
    const unsigned char list[] = {2, 0,   0,   0,   1,   0,   6,  0, 255, 255, 255, 255, 2,   0,  6,
                                  0, 146, 16,  0,   0,   4,   0,  4, 0,   255, 255, 255, 255, 16, 0,
                                  6, 0,   255, 255, 255, 255, 32, 0, 0,   0,   255, 255, 255, 255};
    constexpr const char* attribute = "system.posix_acl_access";
    if (::setxattr(Path("a").c_str(), attribute, list, sizeof list, 0) != 0)
        GTEST_SKIP() << "this disk keeps no access control lists";
    ReplaceFile(Path("a"), "new");
    unsigned char kept[sizeof list] = {};
    EXPECT_EQ(::getxattr(Path("a").c_str(), attribute, kept, sizeof kept),
              static_cast<ssize_t>(sizeof list));
    EXPECT_TRUE(std::equal(std::begin(list), std::end(list), std::begin(kept)));
}

TEST_F(SafeFile, AFurtherNameOfTheFileKeepsTheOldContent) {
    Put("a", "old");
    std::filesystem::create_hard_link(Path("a"), Path("b"));
    ReplaceFile(Path("a"), "new");
    EXPECT_EQ(Get("a"), "new");
    EXPECT_EQ(Get("b"), "old");
}

TEST_F(SafeFile, FollowsASymbolicLink) {
    std::filesystem::create_directory(Path("real"));
    Put("real/a", "old");
    std::filesystem::create_symlink("real/a", Path("first"));
    std::filesystem::create_symlink(Path("first"), Path("second"));
    ReplaceFile(Path("second"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(Path("second")));
    EXPECT_TRUE(std::filesystem::is_symlink(Path("first")));
    EXPECT_EQ(Get("real/a"), "new");
}

TEST_F(SafeFile, ADanglingLinkGetsItsFile) {
    std::filesystem::create_symlink("later", Path("link"));
    ReplaceFile(Path("link"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
    EXPECT_EQ(Get("later"), "new");
}

TEST_F(SafeFile, LinksThatGoRoundAreAnError) {
    std::filesystem::create_symlink("b", Path("a"));
    std::filesystem::create_symlink("a", Path("b"));
    EXPECT_EQ(ErrorOf(Path("a"), [&] { ReplaceFile(Path("a"), "x"); }), error_number::PathNotFound);
}

TEST_F(SafeFile, AFolderOrAMissingFolderIsAnError) {
    EXPECT_EQ(ErrorOf(folder_, [&] { ReplaceFile(folder_, "x"); }), error_number::PermissionDenied);
    EXPECT_EQ(ErrorOf("none/a", [&] { ReplaceFile(Path("none/a"), "x"); }),
              error_number::PathNotFound);
    Put("file", "");
    EXPECT_EQ(ErrorOf("file/a", [&] { ReplaceFile(Path("file/a"), "x"); }),
              error_number::PathNotFound);
    EXPECT_EQ(ErrorOf(Path("a"), [&] { ReplaceFile(Path("a") + '\0' + "b", "x"); }),
              error_number::PathNotFound);
    EXPECT_EQ(EntryCount(), 1);
}

TEST_F(SafeFile, AReadOnlyFileStaysAsItIs) {
    Put("a", "old");
    ::chmod(Path("a").c_str(), 0444);
    EXPECT_EQ(ErrorOf(Path("a"), [&] { ReplaceFile(Path("a"), "new"); }),
              error_number::PermissionDenied);
    EXPECT_EQ(Get("a"), "old");
    EXPECT_EQ(EntryCount(), 1);
}

TEST_F(SafeFile, AFullDiskIsCalledAFullDisk) {
    if (::access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full here";
    EXPECT_EQ(ErrorOf("/dev/full", [] { ReplaceFile("/dev/full", "x"); }), error_number::DiskFull);
    EXPECT_EQ(description_, "Cannot write \"/dev/full\": the disk is full.");
}

TEST_F(SafeFile, AFailingCallLeavesTheOldFileAndNothingElse) {
    Put("a", "old");
    ::chmod(Path("a").c_str(), 0640);  // so that the mode has to be set
    for (const Failure& failure : Failures) {
        failure.install(SystemCalls());
        EXPECT_EQ(ErrorOf(Path("a"), [&] { ReplaceFile(Path("a"), "new"); }), failure.number)
            << failure.name;
        SystemCalls() = SystemCallTable();
        EXPECT_EQ(Get("a"), "old") << failure.name;
        EXPECT_EQ(EntryCount(), 1) << failure.name;
    }
}

TEST_F(SafeFile, InterruptedAndShortWritesGoOn) {
    static int calls;
    calls = 0;
    SystemCalls().write = [](int file, const void* bytes, size_t size) {
        if (++calls % 2 == 1) return errno = EINTR, ssize_t{-1};
        return ::write(file, bytes, std::min<size_t>(size, 3));
    };
    ReplaceFile(Path("a"), "0123456789");
    EXPECT_EQ(Get("a"), "0123456789");
    EXPECT_EQ(calls, 8);  // pieces of 3, 3, 3 and 1, each interrupted once
}

TEST_F(SafeFile, TheFolderIsFlushedAfterTheRename) {
    static std::string order;
    order.clear();
    SystemCalls().fsync = [](int file) {
        struct stat info {};
        ::fstat(file, &info);
        order += S_ISDIR(info.st_mode) ? "folder " : "file ";
        return 0;
    };
    SystemCalls().rename = [](const char* from, const char* to) {
        order += "rename ";
        return ::rename(from, to);
    };
    ReplaceFile(Path("a"), "x");
    EXPECT_EQ(order, "file rename folder ");
}

TEST_F(SafeFile, ATakenNameIsPassedOver) {
    static int taken;
    taken = 3;
    SystemCalls().open = [](const char* path, int flags, mode_t mode) {
        if ((flags & O_EXCL) != 0 && taken-- > 0) return errno = EEXIST, -1;
        return ::open(path, flags, mode);
    };
    ReplaceFile(Path("a"), "x");
    EXPECT_EQ(Get("a"), "x");
}

TEST_F(SafeFile, WritesInPieces) {
    ReplaceFileInPieces(Path("a"), [](const std::function<void(std::string_view)>& write) {
        write("one,");
        write("");
        write("two");
    });
    EXPECT_EQ(Get("a"), "one,two");
}

TEST_F(SafeFile, AWriterThatGivesUpChangesNothing) {
    Put("a", "old");
    EXPECT_THROW(ReplaceFileInPieces(Path("a"),
                                     [](const std::function<void(std::string_view)>& write) {
                                         write("half");
                                         throw std::runtime_error("no more");
                                     }),
                 std::runtime_error);
    EXPECT_EQ(Get("a"), "old");
    EXPECT_EQ(EntryCount(), 1);
}

TEST_F(SafeFile, ReadsAWholeFile) {
    const std::string bytes(300000, 'x');
    Put("a", bytes + '\0' + "end");
    EXPECT_EQ(ReadWholeFile(Path("a")), bytes + '\0' + "end");
    Put("empty", "");
    EXPECT_EQ(ReadWholeFile(Path("empty")), "");
}

TEST_F(SafeFile, ReadsNoMoreThanTheLimit) {
    Put("a", "12345");
    EXPECT_EQ(ReadWholeFile(Path("a"), 5), "12345");
    EXPECT_EQ(ErrorOf(Path("a"), [&] { ReadWholeFile(Path("a"), 4); }), error_number::OutOfMemory);
}

TEST_F(SafeFile, ReadingWhatIsNoFileIsAnError) {
    EXPECT_EQ(ErrorOf(Path("a"), [&] { ReadWholeFile(Path("a")); }), error_number::FileNotFound);
    EXPECT_EQ(ErrorOf(folder_, [&] { ReadWholeFile(folder_); }), error_number::PermissionDenied);
    ::mkfifo(Path("pipe").c_str(), 0600);
    EXPECT_EQ(ErrorOf("pipe", [&] { ReadWholeFile(Path("pipe")); }),
              error_number::PermissionDenied);
    EXPECT_EQ(ErrorOf("pipe", [&] { CopyFileOver(Path("pipe"), Path("b")); }),
              error_number::PermissionDenied);
}

TEST_F(SafeFile, CopiesOverAnother) {
    const std::string bytes(600000, 'y');  // more than two pieces
    Put("a", bytes);
    Put("b", "old");
    CopyFileOver(Path("a"), Path("b"));
    EXPECT_EQ(Get("b"), bytes);
    CopyFileOver(Path("b"), Path("b"));
    EXPECT_EQ(Get("b"), bytes);
    EXPECT_EQ(ErrorOf(Path("none"), [&] { CopyFileOver(Path("none"), Path("b")); }),
              error_number::FileNotFound);
    EXPECT_EQ(Get("b"), bytes);
}

TEST_F(SafeFile, DeletesWhatIsThere) {
    Put("a", "x");
    DeleteFileIfThere(Path("a"));
    EXPECT_EQ(EntryCount(), 0);
    DeleteFileIfThere(Path("a"));
    EXPECT_EQ(ErrorOf(folder_, [&] { DeleteFileIfThere(folder_); }),
              error_number::PermissionDenied);
}

}  // namespace
}  // namespace tendo
