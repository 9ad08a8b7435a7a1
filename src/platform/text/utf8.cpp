#include "platform/text/utf8.h"

namespace tendo {

namespace {

constexpr Utf8Step BrokenByte{ReplacementCharacter, 1, false};

bool IsSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

/// The smallest code point that needs this many bytes; anything below is an overlong form.
constexpr char32_t SmallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};

}  // namespace

Utf8Step Utf8At(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) return {lead, 1, true};
    const std::size_t length = lead < 0xC2   ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || text.size() - at < length) return BrokenByte;
    char32_t codePoint = lead & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80) return BrokenByte;
        codePoint = codePoint << 6 | (next & 0x3Fu);
    }
    if (codePoint < SmallestOfLength[length] || codePoint > 0x10FFFF || IsSurrogate(codePoint)) {
        return BrokenByte;
    }
    return {codePoint, length, true};
}

void AppendUtf8(std::string& text, char32_t codePoint) {
    if (codePoint > 0x10FFFF || IsSurrogate(codePoint)) codePoint = ReplacementCharacter;
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        append(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
    } else {
        if (codePoint < 0x10000) {
            append(0xE0 | codePoint >> 12);
        } else {
            append(0xF0 | codePoint >> 18);
            append(0x80 | (codePoint >> 12 & 0x3F));
        }
        append(0x80 | (codePoint >> 6 & 0x3F));
    }
    append(0x80 | (codePoint & 0x3F));
}

}  // namespace tendo
