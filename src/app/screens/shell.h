#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tendo {

/// What the program asks of the desktop around it. Tests put their own functions in place of these.
struct ShellService {
    /// Opens a document or an address with its program: above 32 when that went through, else the
    /// error's number (2: there is no such file, 31: no program for it).
    std::function<int(const std::string& target)> Open;
    /// Brings the window of a running program forward by its title, or by the beginning of it;
    /// false when there is none.
    std::function<bool(const std::string& title)> Activate;
    /// Starts a program by its file name; false when it couldn't be started.
    std::function<bool(const std::string& program)> Start;
    /// Starts a program of the search path with its arguments; `ended` is called with its exit
    /// status when it ends while this program runs. False when there is no such program.
    std::function<bool(const std::string& program, const std::vector<std::string>& arguments,
                       const std::function<void(int status)>& ended)>
        Run;
};
ShellService& Shell();

/// The window whose title is this, else the first one whose title begins so, in a list of windows
/// with a line "NUMBER DESKTOP MACHINE TITLE" each; empty when there is none.
std::string WindowOfTitle(const std::string& list, const std::string& title);

/// Opens a target and tells a failure.
void OpenAssociatedProgram(const std::string& target);

}  // namespace tendo
