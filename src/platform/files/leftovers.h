#pragma once

#include <string>
#include <string_view>

namespace tendo {

/// The name of a new file in a folder (that ends in the separator), ".tendo-PROCESS-NUMBER.new",
/// another one at each call.
std::string NewFileName(std::string_view directory);

/// Removes the new files of such names, also with ".tmp" behind them, that a process left in a
/// folder when it was killed in the middle of a write. One whose process lives, or that somebody
/// holds locked, stays; so does one that can't be removed.
void RemoveLeftovers(std::string_view directory);

}  // namespace tendo
