#include "platform/files/safe_file.h"

#include <sys/file.h>
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/files/file_error.h"
#include "platform/files/leftovers.h"
#include "platform/files/open_file.h"
#include "platform/files/paths.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr std::size_t PieceSize = std::size_t{256} << 10;
constexpr int LongestLinkChain = 40;
constexpr int NameAttempts = 1000;
constexpr mode_t PermissionBits = 07777;

using PieceWriter = std::function<void(std::string_view)>;

/// The file that a name leads to in the end: symbolic links are followed, also one whose file isn't
/// there.
std::string FinalTarget(std::string_view path) {
    CheckName("write", path);
    std::string target(path);
    for (int i = 0; i < LongestLinkChain; ++i) {
        char link[4096];
        const ssize_t length = ::readlink(target.c_str(), link, sizeof link);
        if (length < 0 && (errno == EINVAL || errno == ENOENT)) return target;  // no link
        if (length <= 0) ThrowFileError("write", path, errno);
        const std::string_view next(link, static_cast<std::size_t>(length));
        target = next.front() == PathSeparator ? std::string(next)
                                               : DirectoryOf(target) + std::string(next);
    }
    ThrowFileError("write", path, ELOOP);
}

/// What is to be known of the old file before it is replaced.
struct OldFile {
    bool exists = false;
    bool isPlain = true;
    struct stat info {};
};

OldFile LookAt(const std::string& target, std::string_view shownPath) {
    OldFile old;
    if (::stat(target.c_str(), &old.info) != 0) {
        if (errno == ENOENT) return old;
        ThrowFileError("write", shownPath, errno);
    }
    old.exists = true;
    old.isPlain = S_ISREG(old.info.st_mode);
    if (S_ISDIR(old.info.st_mode)) ThrowFileError("write", shownPath, EISDIR);
    // A rename would replace a write-protected file too; the user protected it on purpose.
    if ((old.info.st_mode & 0222) == 0 || ::access(target.c_str(), W_OK) != 0) {
        ThrowFileError("write", shownPath, error_number::PermissionDenied, "the file is read-only");
    }
    return old;
}

/// The new file beside the target; removed at the end of its life unless it took the target's
/// place.
class NewFile {
  public:
    NewFile(std::string directory, std::string_view shownPath, mode_t mode)
        : directory_(std::move(directory)),
          name_(directory_),
          shownPath_(shownPath),
          file_(Create(mode), "write", shownPath_) {}

    ~NewFile() {
        if (!name_.empty()) SystemCalls().unlink(name_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    OpenFile& File() { return file_; }

    void TakePlaceOf(const std::string& target) {
        if (SystemCalls().rename(name_.c_str(), target.c_str()) != 0) {
            ThrowFileError("write", shownPath_, errno);
        }
        name_.clear();
    }

  private:
    int Create(mode_t mode) {
        for (int i = 0; i < NameAttempts; ++i) {
            const std::string name = NewFileName(directory_);
            const int file =
                SystemCalls().open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (file >= 0) name_ = name;
            // Tells other machines on a shared folder that somebody is at work on it.
            if (file >= 0) ::flock(file, LOCK_EX | LOCK_NB);
            if (file >= 0 || errno != EEXIST) return file;
        }
        return -1;
    }

    std::string directory_;
    std::string name_;
    std::string shownPath_;
    OpenFile file_;
};

constexpr std::size_t LongestAttribute = std::size_t{64} << 10;

bool IsKeptAttribute(std::string_view name) {
    return name == "system.posix_acl_access" || name.starts_with("user.");
}

/// Makes the rename last through a power cut. Its failure is no failure of the write: the new file
/// is whole and in its place, and a power cut would bring back the old one, whole too.
void FlushDirectory(const std::string& directory) {
    const std::string name = directory.empty() ? "." : directory;
    const int file = SystemCalls().open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (file < 0) return;
    SystemCalls().fsync(file);
    SystemCalls().close(file);
}

/// Counts what is written, to be compared with what the disk says afterwards.
std::uint64_t WritePieces(OpenFile& file, const std::function<void(const PieceWriter&)>& write) {
    std::uint64_t size = 0;
    write([&](std::string_view piece) {
        file.WriteAll(piece);
        size += piece.size();
    });
    return size;
}

void WriteToSpecialFile(const std::string& target, std::string_view shownPath,
                        const std::function<void(const PieceWriter&)>& write) {
    OpenFile file(SystemCalls().open(target.c_str(), O_WRONLY | O_CLOEXEC, 0), "write",
                  std::string(shownPath));
    WritePieces(file, write);
    file.Close();
}

/// Access control lists and the user's own attributes go along where the disk knows them.
void KeepAttributes(const std::string& from, OpenFile& to) {
    std::vector<char> names(
        static_cast<std::size_t>(std::max<ssize_t>(0, ::listxattr(from.c_str(), nullptr, 0))));
    const ssize_t length =
        names.empty() ? 0 : ::listxattr(from.c_str(), names.data(), names.size());
    std::vector<char> value(LongestAttribute);
    for (const char* name = names.data(); name < names.data() + length;
         name += ::strlen(name) + 1) {
        if (!IsKeptAttribute(name)) continue;
        const ssize_t size = ::getxattr(from.c_str(), name, value.data(), value.size());
        if (size >= 0) to.TryAttribute(name, {value.data(), static_cast<std::size_t>(size)});
    }
}

void KeepOwnerAndMode(OpenFile& file, const struct stat& old) {
    const struct stat now = file.Info();
    if (now.st_uid != old.st_uid || now.st_gid != old.st_gid) {
        file.TryOwner(old.st_uid, old.st_gid);
    }
    // After the owner: a change of owner may take bits away.
    if (const mode_t mode = old.st_mode & PermissionBits; (now.st_mode & PermissionBits) != mode) {
        file.SetMode(mode);
    }
}

}  // namespace

std::string ReadWholeFile(std::string_view path, std::uint64_t limit) {
    OpenFile file = OpenToRead(path);
    const struct stat info = file.Info();
    if (S_ISDIR(info.st_mode)) ThrowFileError("read", path, EISDIR);
    if (!S_ISREG(info.st_mode)) {
        ThrowFileError("read", path, error_number::PermissionDenied, "it is not a plain file");
    }
    if (static_cast<std::uint64_t>(info.st_size) > limit) {
        ThrowFileError("read", path, error_number::OutOfMemory, "the file is too large");
    }
    // One byte more than the file tells of shows whether it grew; the buffer is not made twice
    // then.
    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t size = 0;
    while (const std::size_t count = file.Read(bytes.data() + size, bytes.size() - size)) {
        size += count;
        if (size > limit)
            ThrowFileError("read", path, error_number::OutOfMemory, "the file is too large");
        if (size == bytes.size()) bytes.resize(size + PieceSize);
    }
    bytes.resize(size);
    return bytes;
}

void ReplaceFileInPieces(std::string_view path,
                         const std::function<void(const PieceWriter&)>& write) {
    const std::string target = FinalTarget(path);
    const OldFile old = LookAt(target, path);
    if (!old.isPlain) return WriteToSpecialFile(target, path, write);
    NewFile fresh(DirectoryOf(target), path, old.exists ? 0600 : 0666);
    OpenFile& file = fresh.File();
    const std::uint64_t size = WritePieces(file, write);
    if (old.exists) {
        KeepOwnerAndMode(file, old.info);
        KeepAttributes(target, file);  // after the mode, which would change the list
    }
    file.Flush();
    if (static_cast<std::uint64_t>(file.Info().st_size) != size) {
        ThrowFileError("write", path, error_number::DeviceError,
                       "the disk did not keep all that was written");
    }
    file.Close();
    fresh.TakePlaceOf(target);
    FlushDirectory(DirectoryOf(target));
}

void ReplaceFile(std::string_view path, std::string_view bytes) {
    ReplaceFileInPieces(path, [bytes](const PieceWriter& writePiece) { writePiece(bytes); });
}

void CopyFileOver(std::string_view from, std::string_view to) {
    OpenFile source = OpenToRead(from);
    if (!S_ISREG(source.Info().st_mode)) {
        ThrowFileError("read", from, error_number::PermissionDenied, "it is not a plain file");
    }
    ReplaceFileInPieces(to, [&source](const PieceWriter& writePiece) {
        std::vector<char> piece(PieceSize);
        while (const std::size_t count = source.Read(piece.data(), piece.size())) {
            writePiece({piece.data(), count});
        }
    });
}

void DeleteFileIfThere(std::string_view path) {
    CheckName("delete", path);
    const std::string name(path);
    if (SystemCalls().unlink(name.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) return;
    ThrowFileError("delete", path, errno);
}

}  // namespace tendo
