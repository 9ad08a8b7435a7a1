#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// The program's own markers within the rich text of a footnote.
inline constexpr std::string_view FinalPriceToken = "<$$$$>";
inline constexpr std::string_view PageBreakToken = "<PAGE>";
inline constexpr std::string_view EndToken = "<STOP>";

/// The paragraphs that a footnote prints, with a new page between one and the next. The final price
/// is put in first, then the text is cut at its page breaks, and only then its end marker drops
/// what follows: a page break behind an end marker still breaks the page, and nothing but an empty
/// group follows it. Braces close and reopen the rich text around a cut.
std::vector<std::string> FootnoteParagraphs(std::string_view description, float finalPrice);

}  // namespace tendo
