#pragma once

#include <string>
#include <string_view>

#include "platform/files/system_calls.h"

namespace tendo {

/// An open file, closed at the end of its life. Failures throw a RuntimeError that names
/// `shownPath`, the name under which the user knows the file.
class OpenFile {
  public:
    /// `verb` is what the messages say could not be done: "read" or "write".
    OpenFile(int file, std::string_view verb, std::string shownPath);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The number of bytes read, 0 at the end.
    std::size_t Read(char* bytes, std::size_t size);
    void WriteAll(std::string_view bytes);
    void Flush();
    struct stat Info();
    void SetMode(mode_t mode);
    /// Tries to give the file to an owner; only the administrator may in general.
    void TryOwner(uid_t owner, gid_t group);
    /// Tries to set an extended attribute; not every disk keeps any.
    void TryAttribute(const char* name, std::string_view value);
    void Close();

  private:
    [[noreturn]] void Fail() const;

    int file_;
    std::string_view verb_;
    std::string shownPath_;
};

/// Throws 76 for a name with a zero byte in it: the system would take it for a shorter one.
void CheckName(std::string_view verb, std::string_view path);

/// Opens a file for reading. The opening of a pipe doesn't wait for a writer.
OpenFile OpenToRead(std::string_view path);

}  // namespace tendo
