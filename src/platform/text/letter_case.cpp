#include <algorithm>

#include "platform/text/text.h"
#include "platform/text/utf8.h"

namespace tendo {

namespace {

/// How capital and small letters lie in a stretch of the Unicode table.
enum class Layout {
    Shifted,  // capitals first..last, each small letter `distance` further on
    Paired,   // capital, small, capital, small, beginning with a capital at `first`
};

struct CaseRange {
    char32_t first;
    char32_t last;
    Layout layout;
    char32_t distance;
};

constexpr CaseRange CaseRanges[] = {
    {0x00C0, 0x00D6, Layout::Shifted, 0x20},  // Latin-1
    {0x00D8, 0x00DE, Layout::Shifted, 0x20},
    {0x0100, 0x012F, Layout::Paired, 1},  // Latin Extended-A
    {0x0132, 0x0137, Layout::Paired, 1},
    {0x0139, 0x0148, Layout::Paired, 1},
    {0x014A, 0x0177, Layout::Paired, 1},
    {0x0179, 0x017E, Layout::Paired, 1},
    {0x01CD, 0x01DC, Layout::Paired, 1},  // Latin Extended-B
    {0x01DE, 0x01EF, Layout::Paired, 1},
    {0x01F8, 0x021F, Layout::Paired, 1},
    {0x0222, 0x0233, Layout::Paired, 1},
    {0x0388, 0x038A, Layout::Shifted, 0x25},  // Greek
    {0x038E, 0x038F, Layout::Shifted, 0x3F},
    {0x0391, 0x03A1, Layout::Shifted, 0x20},
    {0x03A3, 0x03AB, Layout::Shifted, 0x20},
    {0x0400, 0x040F, Layout::Shifted, 0x50},  // Cyrillic
    {0x0410, 0x042F, Layout::Shifted, 0x20},
    {0x0460, 0x0481, Layout::Paired, 1},
    {0x048A, 0x04BF, Layout::Paired, 1},
    {0x04C1, 0x04CE, Layout::Paired, 1},
    {0x04D0, 0x052F, Layout::Paired, 1},
    {0x1E00, 0x1E95, Layout::Paired, 1},  // Latin Extended Additional
    {0x1EA0, 0x1EFF, Layout::Paired, 1},
};

struct CasePair {
    char32_t capital;
    char32_t small;
};

constexpr CasePair CasePairs[] = {
    {0x0178, 0x00FF},
    {0x0386, 0x03AC},
    {0x038C, 0x03CC},
    {0x04C0, 0x04CF},
};

/// Letters that change in one direction only: micro sign, dotless i, long s, final sigma.
constexpr CasePair OnlyToCapital[] = {
    {0x039C, 0x00B5}, {'I', 0x0131}, {'S', 0x017F}, {0x03A3, 0x03C2}};
/// I with a dot, capital sharp s.
constexpr CasePair OnlyToSmall[] = {{0x0130, 'i'}, {0x1E9E, 0x00DF}};

char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsPairedCapital(const CaseRange& range, char32_t letter) {
    return (letter - range.first) % 2 == 0;
}

char32_t CapitalOf(char32_t letter) {
    for (const CasePair& pair : CasePairs) {
        if (pair.small == letter) return pair.capital;
    }
    for (const CasePair& pair : OnlyToCapital) {
        if (pair.small == letter) return pair.capital;
    }
    for (const CaseRange& range : CaseRanges) {
        if (range.layout == Layout::Paired) {
            if (letter < range.first || letter > range.last) continue;
            return IsPairedCapital(range, letter) ? letter : letter - 1;
        }
        if (letter >= range.first + range.distance && letter <= range.last + range.distance) {
            return letter - range.distance;
        }
    }
    return letter;
}

char32_t SmallOf(char32_t letter) {
    for (const CasePair& pair : CasePairs) {
        if (pair.capital == letter) return pair.small;
    }
    for (const CasePair& pair : OnlyToSmall) {
        if (pair.capital == letter) return pair.small;
    }
    for (const CaseRange& range : CaseRanges) {
        if (letter < range.first || letter > range.last) continue;
        if (range.layout == Layout::Paired && !IsPairedCapital(range, letter)) return letter;
        return letter + range.distance;
    }
    return letter;
}

/// Applies one of two mappings to each character: `ascii` to the plain ones, `letter` to the
/// others. Broken bytes are kept as they are.
template <typename Ascii, typename Letter>
std::string Mapped(std::string_view text, Ascii ascii, Letter letter) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (static_cast<unsigned char>(text[at]) < 0x80) {
            result += ascii(text[at++]);
            continue;
        }
        const Utf8Step step = Utf8At(text, at);
        if (step.wellFormed) {
            AppendUtf8(result, letter(step.codePoint));
        } else {
            result += text[at];
        }
        at += step.length;
    }
    return result;
}

}  // namespace

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

std::string UpperCase(std::string_view text) {
    return Mapped(text, AsciiUpper, CapitalOf);
}

std::string LowerCase(std::string_view text) {
    return Mapped(text, AsciiLower, SmallOf);
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
            return AsciiUpper(x) == AsciiUpper(y);
        })) {
        return true;
    }
    if (IsAscii(a) && IsAscii(b)) return false;
    return UpperCase(a) == UpperCase(b);
}

}  // namespace tendo
