#pragma once

#include <functional>
#include <string>

namespace tendo {

/// What the program asks of the desktop around it. Tests put their own functions in place of these.
struct ShellService {
    /// Opens a document or an address with its program: above 32 when that went through, else the
    /// error's number (2: there is no such file, 31: no program for it).
    std::function<int(const std::string& target)> Open;
    /// Starts a program by its file name; false when it couldn't be started.
    std::function<bool(const std::string& program)> Start;
};
ShellService& Shell();

/// Opens a target and tells a failure.
void OpenAssociatedProgram(const std::string& target);

}  // namespace tendo
