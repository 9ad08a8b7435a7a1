#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tendo {

/// One step of a walk through UTF-8: a code point and the bytes it takes.
struct Utf8Step {
    char32_t codePoint = 0;
    std::size_t length = 1;
    bool wellFormed = true;
};

inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// The character that begins at `at`, which must lie inside the text. A byte that begins no
/// well-formed character (overlong forms, surrogates and numbers above U+10FFFF are none) is a step
/// of its own.
Utf8Step Utf8At(std::string_view text, std::size_t at);

/// Appends a code point; one that can't be written in UTF-8 becomes U+FFFD.
void AppendUtf8(std::string& text, char32_t codePoint);

}  // namespace tendo
