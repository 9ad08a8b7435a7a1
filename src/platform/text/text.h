#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// All text inside the program is UTF-8. Broken bytes count as one character each.

/// The text without blanks at both ends. Only the blank (0x20) counts.
std::string_view Trimmed(std::string_view text);
std::string_view TrimmedLeft(std::string_view text);
std::string_view TrimmedRight(std::string_view text);

/// True when no byte is 0x80 or above; such a text is the same in every code page.
bool IsAscii(std::string_view text);

/// Case by Unicode's simple mapping for Latin, Greek and Cyrillic letters.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
bool EqualsNoCase(std::string_view a, std::string_view b);

/// Number of characters (code points), not bytes.
std::size_t CharacterCount(std::string_view text);
/// The first `count` characters.
std::string_view FirstCharacters(std::string_view text, std::size_t count);
/// The last `count` characters.
std::string_view LastCharacters(std::string_view text, std::size_t count);

bool StartsWith(std::string_view text, std::string_view start);
bool EndsWith(std::string_view text, std::string_view end);
bool Contains(std::string_view text, std::string_view part);
/// All occurrences replaced, from left to right, never within what was put in.
std::string Replaced(std::string_view text, std::string_view what, std::string_view with);
std::vector<std::string> Split(std::string_view text, char separator);

/// Code points of a UTF-8 text; a byte that is no UTF-8 gives U+FFFD.
std::u32string ToCodePoints(std::string_view text);
std::string FromCodePoints(std::u32string_view text);

/// True when every byte belongs to well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

}  // namespace tendo
