#include "platform/files/paths.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "platform/files/file_error.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

namespace fs = std::filesystem;

/// Where the base name begins.
std::size_t BaseStart(std::string_view path) {
    const std::size_t separator = path.rfind(PathSeparator);
    return separator == std::string_view::npos ? 0 : separator + 1;
}

/// Where the extension begins: the last point of the base name, else the end.
std::size_t ExtensionStart(std::string_view path) {
    const std::size_t point = path.rfind('.');
    return point == std::string_view::npos || point < BaseStart(path) ? path.size() : point;
}

/// A name with a zero byte in it would end there for the system and mean another file.
bool IsUsable(std::string_view name) {
    return !name.empty() && name.find('\0') == std::string_view::npos;
}

}  // namespace

std::string WithSeparator(std::string_view directory) {
    std::string joined(directory);
    if (!directory.ends_with(PathSeparator)) joined += PathSeparator;
    return joined;
}

bool FileExists(std::string_view name) {
    std::error_code error;
    const fs::file_status status = IsUsable(name) ? fs::status(name, error) : fs::file_status();
    return fs::exists(status) && !fs::is_directory(status);
}

bool DirectoryExists(std::string_view name) {
    std::error_code error;
    return IsUsable(name) && fs::is_directory(name, error);
}

std::string BaseName(std::string_view path) {
    return std::string(path.substr(BaseStart(path)));
}

std::string DirectoryOf(std::string_view path) {
    return std::string(path.substr(0, BaseStart(path)));
}

std::string StemOf(std::string_view path) {
    const std::size_t start = BaseStart(path);
    return std::string(path.substr(start, ExtensionStart(path) - start));
}

std::string ExtensionOf(std::string_view path) {
    return std::string(path.substr(ExtensionStart(path)));
}

void MakeDirectory(std::string_view directory) {
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) ThrowFileError("create", directory, error.value());
    if (!DirectoryExists(directory)) ThrowFileError("create", directory, ENOTDIR);
}

std::vector<std::string> FilesIn(std::string_view directory) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        if (!entry->is_directory(unknown)) names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileInAnyCase(std::string_view directory, std::string_view name) {
    std::string path(directory);
    path += name;
    if (FileExists(path)) return path;
    for (const std::string& file : FilesIn(directory))
        if (EqualsNoCase(file, name)) return std::string(directory) + file;
    return path;
}

std::uint64_t FileLength(std::string_view path) {
    std::error_code error;
    const std::uint64_t length = fs::file_size(path, error);
    if (error) ThrowFileError("read", path, error.value());
    return length;
}

std::optional<std::int64_t> FileModified(std::string_view path) {
    std::error_code error;
    const fs::file_time_type time = fs::last_write_time(path, error);
    if (error) return {};
    const auto systemTime = std::chrono::file_clock::to_sys(time);
    return std::chrono::floor<std::chrono::seconds>(systemTime).time_since_epoch().count();
}

std::string CanonicalPath(std::string_view path) {
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(fs::absolute(path, error), error);
    if (!error) return canonical.string();
    return fs::absolute(path, error).lexically_normal().string();
}

}  // namespace tendo
