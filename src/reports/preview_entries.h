#pragma once

#include <optional>
#include <string_view>

namespace tendo {

/// Zoom of a preview in percent of the paper's size.
inline constexpr int SmallestZoom = 10, LargestZoom = 400;

/// The page, from 1, that an entry asks for; nothing when it is empty, no number, below 1 or above
/// the number of pages.
std::optional<int> PageOfEntry(std::string_view entry, int pages);

/// The zoom that an entry asks for, "120", "120 %" or "62.5%", rounded and brought within its
/// bounds; nothing when it is no number above 0.
std::optional<int> ZoomOfEntry(std::string_view entry);

}  // namespace tendo
