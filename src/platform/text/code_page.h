#pragma once

#include <string>
#include <string_view>

namespace tendo {

/// The mark that tells at the beginning of a text file that it is UTF-8.
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// Windows-1252 to UTF-8. The five open bytes become the control characters of the same number.
std::string FromWindows1252(std::string_view bytes);
/// UTF-8 to Windows-1252; a character that has no place there becomes '?'.
std::string ToWindows1252(std::string_view text);
/// Bytes of a Windows, DOS or Macintosh code page (1251, 437, 10000 ...) to UTF-8. Bytes that stand
/// for nothing there become U+FFFD; a page that isn't known is read as 1252.
std::string FromCodePage(std::string_view bytes, int page);
/// True when a byte is the first half of a character of two bytes in a page of the Far East.
bool IsLeadByte(unsigned char byte, int page);
/// Bytes of a text file: UTF-8 (with or without mark), UTF-16 with a mark, else Windows-1252.
std::string FromTextFileBytes(std::string_view bytes);

/// UTF-16 (little endian bytes) to UTF-8; a lone surrogate becomes U+FFFD, an odd last byte is
/// dropped.
std::string FromUtf16(std::string_view bytes);
std::string ToUtf16(std::string_view text);

}  // namespace tendo
