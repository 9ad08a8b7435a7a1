#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdio>

namespace tendo {

/// The system calls that a safe write of a file is made of, in one table, so that a test can put a
/// failing one in the place of any of them.
struct SystemCallTable {
    int (*open)(const char* path, int flags, mode_t mode) =
        [](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); };
    ssize_t (*read)(int file, void* bytes, size_t size) = ::read;
    ssize_t (*write)(int file, const void* bytes, size_t size) = ::write;
    int (*fsync)(int file) = ::fsync;
    int (*fstat)(int file, struct stat* info) = [](int file, struct stat* info) {
        return ::fstat(file, info);
    };
    int (*fchown)(int file, uid_t owner, gid_t group) = ::fchown;
    int (*fchmod)(int file, mode_t mode) = ::fchmod;
    int (*close)(int file) = ::close;
    int (*rename)(const char* from, const char* to) = ::rename;
    int (*unlink)(const char* path) = ::unlink;
};

SystemCallTable& SystemCalls();

}  // namespace tendo
