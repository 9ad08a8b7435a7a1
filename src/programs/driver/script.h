#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tendo::driver {

/// One command line: words are bare or JSON strings; `#` outside a string begins a comment. Throws
/// std::runtime_error for a broken string.
std::vector<std::string> WordsOf(std::string_view line);

/// The commands of `answer form`: parted by ";" outside strings.
std::vector<std::string> CommandsOf(std::string_view text);

/// Words put together again so that WordsOf gives the same.
std::string LineOf(const std::vector<std::string>& words);

}  // namespace tendo::driver
