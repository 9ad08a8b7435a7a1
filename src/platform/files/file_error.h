#pragma once

#include <string_view>

namespace tendo {

/// Throws the RuntimeError of a failed system call, naming the file and the cause in one sentence
/// ("Cannot write \"/home/ann/Job.tdw\": the disk is full."). `verb` is "read", "write", "delete",
/// "create". Numbers: 61 full disk, 70 not permitted, 53 no such file (76 when writing: no such
/// folder), 76 a path that leads nowhere, 57 the device failed, 75 anything else.
[[noreturn]] void ThrowFileError(std::string_view verb, std::string_view path, int systemError);

/// The same with a cause of our own.
[[noreturn]] void ThrowFileError(std::string_view verb, std::string_view path, int number,
                                 std::string_view cause);

}  // namespace tendo
