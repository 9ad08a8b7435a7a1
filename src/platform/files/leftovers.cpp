#include "platform/files/leftovers.h"

#include <sys/file.h>

#include <cerrno>
#include <charconv>
#include <csignal>

#include "platform/files/paths.h"
#include "platform/files/system_calls.h"

namespace tendo {

namespace {

constexpr std::string_view NewFilePrefix = ".tendo-";

/// The process that wrote a new file, by the file's name; 0 for any other file.
pid_t WriterOf(std::string_view name) {
    if (!name.starts_with(NewFilePrefix)) return 0;
    name.remove_prefix(NewFilePrefix.size());
    pid_t process = 0;
    unsigned number = 0;
    const char* const end = name.data() + name.size();
    const auto first = std::from_chars(name.data(), end, process);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != '-') return 0;
    const auto second = std::from_chars(first.ptr + 1, end, number);
    if (second.ec != std::errc() || process <= 0) return 0;
    const std::string_view rest(second.ptr, static_cast<std::size_t>(end - second.ptr));
    return rest == ".new" || rest == ".new.tmp" ? process : 0;
}

bool IsAlive(pid_t process) {
    return ::kill(process, 0) == 0 || errno != ESRCH;
}

/// Nobody, on this machine or another, holds the lock of its writer.
bool IsUnlocked(const std::string& name) {
    const int file = ::open(name.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file < 0) return false;
    const bool unlocked = ::flock(file, LOCK_EX | LOCK_NB) == 0;
    ::close(file);
    return unlocked;
}

}  // namespace

std::string NewFileName(std::string_view directory) {
    static unsigned counter = 0;
    return std::string(directory) + std::string(NewFilePrefix) + std::to_string(::getpid()) + "-" +
           std::to_string(++counter) + ".new";
}

void RemoveLeftovers(std::string_view directory) {
    for (const std::string& name : FilesIn(directory.empty() ? "." : directory)) {
        const pid_t writer = WriterOf(name);
        const std::string path = std::string(directory) + name;
        if (writer != 0 && !IsAlive(writer) && IsUnlocked(path)) SystemCalls().unlink(path.c_str());
    }
}

}  // namespace tendo
