#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tendo {

/// The whole file. Throws RuntimeError 53, 70 or 76, or 7 (out of memory) when it is longer than
/// `limit`. The description names the file and the cause.
std::string ReadWholeFile(std::string_view path, std::uint64_t limit = std::uint64_t{2} << 30);

/// Writes a new file beside the target, flushes and checks it, renames it over the target and
/// flushes the folder. A symbolic link is followed; permissions, access control lists and the
/// user's own attributes are kept; a further name of the file (a hard link) keeps the old content.
/// Until the rename the old file stays whole; when anything fails nothing is changed, the new file
/// is removed, and the RuntimeError names the file and the cause: 61 for a full disk, 70 when it
/// may not be written, 76 for a path that leads nowhere, 57 when the disk fails, 75 otherwise. A
/// device or a pipe is written to as it is.
void ReplaceFile(std::string_view path, std::string_view bytes);

/// The same for content that is written in pieces: `write` is called once with a function that
/// takes the next piece.
void ReplaceFileInPieces(
    std::string_view path,
    const std::function<void(const std::function<void(std::string_view)>&)>& write);

/// Copies a file over another through the same steps.
void CopyFileOver(std::string_view from, std::string_view to);

/// Deletes a file; no error when it isn't there. Throws RuntimeError 70 otherwise.
void DeleteFileIfThere(std::string_view path);

}  // namespace tendo
