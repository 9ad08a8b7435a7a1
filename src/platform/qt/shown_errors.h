#pragma once

#include <functional>
#include <string>

namespace tendo {

/// Runs a command; a RuntimeError that ends it is shown in a message. False then.
bool RunShowingErrors(const std::function<void()>& command, const std::string& title = "TENDO");

}  // namespace tendo
