#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tendo {

/// What the report screens ask of the desktop around them; set in one place,
/// app/screens/wiring.cpp.
struct ReportDesk {
    /// Starts a program, found on the search path, with its arguments and goes on; `ended` is
    /// called with its exit status when it has ended. False when there is no such program.
    std::function<bool(const std::string& program, const std::vector<std::string>& arguments,
                       std::function<void(int status)> ended)>
        Run;
};
ReportDesk& DeskOfReports();

}  // namespace tendo
