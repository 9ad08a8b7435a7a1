#pragma once

#include <cstddef>
#include <string_view>

namespace tendo::jet {

/// Bytes of UTF-8 that a stored text of this length can become at most, and some room for writing
/// eight bytes at a time.
constexpr std::size_t TextRoom(std::size_t storedBytes) {
    return storedBytes * 3 + 16;
}

/// Writes a stored text as UTF-8 and returns the end; `out` has TextRoom. Jet 4: UTF-16, or
/// compressed behind a mark. A lone surrogate becomes U+FFFD, an odd last byte is dropped.
char* PutJet4Text(std::string_view stored, char* out);
/// Jet 3: Windows-1252 (the open bytes as control characters).
char* PutJet3Text(std::string_view stored, char* out);

}  // namespace tendo::jet
