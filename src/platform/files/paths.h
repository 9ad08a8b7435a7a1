#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// The platform's folder separator.
inline constexpr char PathSeparator = '/';

/// The one join: a text that ends in the separator stays as it is, any other gets one added.
std::string WithSeparator(std::string_view directory);

/// Both answer false for an empty name.
bool FileExists(std::string_view name);
bool DirectoryExists(std::string_view name);

/// "dir/Job.tdw" gives "Job.tdw", "dir/" (with its separator; empty when there is none), "Job",
/// ".tdw". The stem ends at the last point of the base name.
std::string BaseName(std::string_view path);
std::string DirectoryOf(std::string_view path);
std::string StemOf(std::string_view path);
std::string ExtensionOf(std::string_view path);

/// Makes the folder and those above it; throws RuntimeError 70 or 76.
void MakeDirectory(std::string_view directory);
/// Names (not paths) of the files in a folder, sorted, without folders; empty when it can't be
/// read.
std::vector<std::string> FilesIn(std::string_view directory);

/// The full name of a file of a folder (that ends in the separator), however its letters are
/// written on the disk; as it is given when there is none.
std::string FileInAnyCase(std::string_view directory, std::string_view name);
/// The length in bytes; throws RuntimeError 53.
std::uint64_t FileLength(std::string_view path);
/// Seconds since 1970 of the last change; nothing when there is no such file.
std::optional<std::int64_t> FileModified(std::string_view path);
/// The path in one absolute form, symbolic links followed as far as they exist.
std::string CanonicalPath(std::string_view path);

}  // namespace tendo
