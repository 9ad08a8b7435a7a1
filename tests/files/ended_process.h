#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace tendo {

/// The number of a process that has ended.
inline std::string EndedProcess() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(0);
    ::waitpid(child, nullptr, 0);
    return std::to_string(child);
}

}  // namespace tendo
