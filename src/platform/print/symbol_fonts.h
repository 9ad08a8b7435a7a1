#pragma once

#include <string>
#include <string_view>

namespace tendo {

/// True for the fonts whose bytes stand for signs instead of letters.
bool IsSymbolFont(std::string_view name);

/// What a byte shows in the font "Symbol" (Greek letters, mathematical signs) or in "Wingdings"
/// (marks of lists, ticks); a sign that has no place in the usual fonts becomes the bullet.
std::string SymbolFontText(std::string_view font, unsigned char byte);

}  // namespace tendo
