#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print/rich_model.h"

namespace tendo {

/// The text alone, paragraphs parted by line ends.
std::string PlainTextOf(const RichText& text);

/// The pieces of a plain text in their order: what stands between line ends, tabs and gaps of two
/// or more blanks. Empty pieces don't count; wide blanks count as blanks, a non-breaking hyphen as
/// a hyphen, places to break a word as nothing, and the bullet of any level of a list as a bullet.
std::vector<std::string> PiecesOf(std::string_view text);

/// The pieces of a plain text as LibreOffice writes it: a line of a list begins with four blanks
/// for each level, and a blank parts its mark from its text.
std::vector<std::string> OfficePiecesOf(std::string_view text);

/// What differs, one piece a line with "-" (expected) or "+" (read); empty when all is the same.
std::string Difference(const std::vector<std::string>& expected,
                       const std::vector<std::string>& read);

}  // namespace tendo
