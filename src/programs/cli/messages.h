#pragma once

#include <string>

namespace tendo::cli {

/// Tells something on standard error, in one line whatever the text holds.
void TellLine(const std::string& text);

}  // namespace tendo::cli
