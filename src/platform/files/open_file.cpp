#include "platform/files/open_file.h"

#include <sys/xattr.h>

#include <cerrno>
#include <utility>

#include "platform/files/file_error.h"
#include "platform/text/runtime_error.h"

namespace tendo {

SystemCallTable& SystemCalls() {
    static SystemCallTable table;
    return table;
}

OpenFile::OpenFile(int file, std::string_view verb, std::string shownPath)
    : file_(file), verb_(verb), shownPath_(std::move(shownPath)) {
    if (file_ < 0) Fail();
}

OpenFile::~OpenFile() {
    if (file_ >= 0) SystemCalls().close(file_);
}

void OpenFile::Fail() const {
    ThrowFileError(verb_, shownPath_, errno);
}

std::size_t OpenFile::Read(char* bytes, std::size_t size) {
    for (;;) {
        const ssize_t count = SystemCalls().read(file_, bytes, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) Fail();
    }
}

void OpenFile::WriteAll(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = SystemCalls().write(file_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count == 0) errno = ENOSPC;
        if (count <= 0) Fail();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void OpenFile::Flush() {
    while (SystemCalls().fsync(file_) != 0) {
        if (errno != EINTR) Fail();
    }
}

struct stat OpenFile::Info() {
    struct stat info {};
    if (SystemCalls().fstat(file_, &info) != 0) Fail();
    return info;
}

void OpenFile::SetMode(mode_t mode) {
    if (SystemCalls().fchmod(file_, mode) != 0) Fail();
}

void OpenFile::TryOwner(uid_t owner, gid_t group) {
    SystemCalls().fchown(file_, owner, group);
}

void OpenFile::TryAttribute(const char* name, std::string_view value) {
    ::fsetxattr(file_, name, value.data(), value.size(), 0);
}

void OpenFile::Close() {
    // The descriptor is gone even when close fails; an interrupted close is done.
    if (SystemCalls().close(std::exchange(file_, -1)) != 0 && errno != EINTR) Fail();
}

void CheckName(std::string_view verb, std::string_view path) {
    if (path.find('\0') == std::string_view::npos) return;
    ThrowFileError(verb, path.substr(0, path.find('\0')), error_number::PathNotFound,
                   "the name holds a zero byte");
}

OpenFile OpenToRead(std::string_view path) {
    CheckName("read", path);
    const std::string name(path);
    return OpenFile(SystemCalls().open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK, 0), "read",
                    name);
}

}  // namespace tendo
