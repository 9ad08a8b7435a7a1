#pragma once

#include <string>
#include <string_view>

namespace tendo::jet {

/// Text in the General order (LCID 0x0409): without regard to case, accents after letters, hyphens
/// and apostrophes last, blanks at the end don't count. Only the first 255 characters do.

/// The key of a text as index pages hold it, without its leading type byte; keys compare by their
/// bytes.
std::string GeneralSortKey(std::string_view utf8);

/// Below, equal to or above 0, as the keys of the two texts compare.
int CompareGeneral(std::string_view a, std::string_view b);

}  // namespace tendo::jet
