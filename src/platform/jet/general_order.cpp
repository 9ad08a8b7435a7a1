#include "platform/jet/general_order.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "platform/text/text.h"

namespace tendo::jet {
namespace {

/// How a character goes into a key: kind << 24 | code << 8 | accent. Kind 0: dropped; 1: the code's
/// bytes; 2: the same with an accent; 3: noted behind the key.
using Code = std::uint32_t;
enum Kind : std::uint32_t { Dropped = 0, Plain = 1, Accented = 2, Behind = 3 };

// clang-format off
constexpr std::array<Code, 256> codes = {
    0x0000000, 0x3000300, 0x3000400, 0x3000500, 0x3000600, 0x3000700, 0x3000800, 0x3000900,
    0x3000A00, 0x1080300, 0x1080400, 0x1080500, 0x1080600, 0x1080700, 0x3000B00, 0x3000C00,
    0x3000D00, 0x3000E00, 0x3000F00, 0x3001000, 0x3001100, 0x3001200, 0x3001300, 0x3001400,
    0x3001500, 0x3001600, 0x3001700, 0x3001800, 0x3001900, 0x3001A00, 0x3001B00, 0x3001C00,
    0x1000700, 0x1000900, 0x1000A00, 0x1000C00, 0x1000E00, 0x1001000, 0x1001200, 0x3008000,
    0x1001400, 0x1001600, 0x1001800, 0x1002C00, 0x1001A00, 0x3008200, 0x1001C00, 0x1001E00,
    0x1003600, 0x1003800, 0x1003A00, 0x1003C00, 0x1003E00, 0x1004000, 0x1004200, 0x1004400,
    0x1004600, 0x1004800, 0x1002000, 0x1002200, 0x1002E00, 0x1003000, 0x1003200, 0x1002400,
    0x1002600, 0x1004A00, 0x1004C00, 0x1004D00, 0x1004F00, 0x1005100, 0x1005300, 0x1005500,
    0x1005700, 0x1005900, 0x1005B00, 0x1005C00, 0x1005E00, 0x1006000, 0x1006200, 0x1006400,
    0x1006600, 0x1006800, 0x1006900, 0x1006B00, 0x1006D00, 0x1006F00, 0x1007100, 0x1007300,
    0x1007500, 0x1007600, 0x1007800, 0x1002700, 0x1002900, 0x1002A00, 0x12B0200, 0x12B0300,
    0x12B0700, 0x1004A00, 0x1004C00, 0x1004D00, 0x1004F00, 0x1005100, 0x1005300, 0x1005500,
    0x1005700, 0x1005900, 0x1005B00, 0x1005C00, 0x1005E00, 0x1006000, 0x1006200, 0x1006400,
    0x1006600, 0x1006800, 0x1006900, 0x1006B00, 0x1006D00, 0x1006F00, 0x1007100, 0x1007300,
    0x1007500, 0x1007600, 0x1007800, 0x12B0900, 0x12B0B00, 0x12B0D00, 0x12B0F00, 0x3001D00,
    0x3001E00, 0x3001F00, 0x3002000, 0x3002100, 0x3002200, 0x3002300, 0x3002400, 0x3002500,
    0x3002600, 0x3002700, 0x3002800, 0x3002900, 0x3002A00, 0x3002B00, 0x3002C00, 0x3002D00,
    0x3002E00, 0x3002F00, 0x3003000, 0x3003100, 0x3003200, 0x3003300, 0x3003400, 0x3003500,
    0x3003600, 0x3003700, 0x3003800, 0x3003900, 0x3003A00, 0x3003B00, 0x3003C00, 0x3003D00,
    0x1080200, 0x12B1000, 0x134A600, 0x134A700, 0x134A800, 0x134A900, 0x12B1100, 0x134AA00,
    0x12B1200, 0x134AB00, 0x2004A03, 0x1330500, 0x134AC00, 0x3008300, 0x134AD00, 0x12B1300,
    0x134AE00, 0x1330400, 0x1003A00, 0x1003C00, 0x12B1400, 0x134AF00, 0x134B000, 0x134B100,
    0x12B1500, 0x1003800, 0x2006403, 0x1330700, 0x1371200, 0x1371600, 0x1371A00, 0x12B1600,
    0x2004A0F, 0x2004A0E, 0x2004A12, 0x2004A19, 0x2004A13, 0x2004A1A, 0x14A5100, 0x2004D1C,
    0x200510F, 0x200510E, 0x2005112, 0x2005113, 0x200590F, 0x200590E, 0x2005912, 0x2005913,
    0x2004F68, 0x2006219, 0x200640F, 0x200640E, 0x2006412, 0x2006419, 0x2006413, 0x1330900,
    0x2006421, 0x2006F0F, 0x2006F0E, 0x2006F12, 0x2006F13, 0x200760E, 0x16D5700, 0x16B6B00,
    0x2004A0F, 0x2004A0E, 0x2004A12, 0x2004A19, 0x2004A13, 0x2004A1A, 0x14A5100, 0x2004D1C,
    0x200510F, 0x200510E, 0x2005112, 0x2005113, 0x200590F, 0x200590E, 0x2005912, 0x2005913,
    0x2004F68, 0x2006219, 0x200640F, 0x200640E, 0x2006412, 0x2006419, 0x2006413, 0x1330A00,
    0x2006421, 0x2006F0F, 0x2006F0E, 0x2006F12, 0x2006F13, 0x200760E, 0x16D5700, 0x2007613,
};
struct Extra { char32_t character; Code code; };
constexpr Extra extras[] = {
    {0x0152, 0x1645100},
    {0x0153, 0x1645100},
    {0x0160, 0x2006B14},
    {0x0161, 0x2006B14},
    {0x0178, 0x2007613},
    {0x017D, 0x2007814},
    {0x017E, 0x2007814},
    {0x0192, 0x200537B},
    {0x02C6, 0x22B0203},
    {0x02DC, 0x12B1C00},
    {0x2013, 0x3008900},
    {0x2014, 0x3008B00},
    {0x2018, 0x12B3700},
    {0x2019, 0x12B3800},
    {0x201A, 0x12B3900},
    {0x201C, 0x12B3B00},
    {0x201D, 0x12B3C00},
    {0x201E, 0x12B3D00},
    {0x2020, 0x134B300},
    {0x2021, 0x134B400},
    {0x2022, 0x134B500},
    {0x2026, 0x134B900},
    {0x2030, 0x134BA00},
    {0x2039, 0x12B4600},
    {0x203A, 0x12B4700},
    {0x20AC, 0x135A100},
    {0x2122, 0x16E0400},
};
// clang-format on

constexpr std::size_t SignificantCharacters = 255;
/// A character without a code of its own comes behind all others, by its number.
constexpr std::uint32_t UnknownLead = 0xf0;

Code CodeOf(char32_t character) {
    if (character < codes.size()) return codes[character];
    for (const Extra& extra : extras)
        if (extra.character == character) return extra.code;
    return 0;
}

std::uint32_t KindOf(Code code) {
    return code >> 24;
}
std::uint32_t BytesOf(Code code) {
    return code >> 8 & 0xffff;
}
std::uint32_t AccentOf(Code code) {
    return code & 0xff;
}

/// The parts of a key as they are gathered.
struct KeyParts {
    std::string letters, accents, behind;
    std::size_t position = 0;
    std::size_t accented = 0;  // positions up to the last accent

    void AddLetter(std::uint32_t bytes, std::uint32_t accent) {
        if (bytes > 0xff) letters += static_cast<char>(bytes >> 8);
        letters += static_cast<char>(bytes & 0xff);
        accents += static_cast<char>(accent ? accent : 2);
        ++position;
        if (accent) accented = position;
    }
    void AddUnknown(char32_t character) {
        letters += static_cast<char>(UnknownLead);
        for (const int shift : {16, 8, 0})
            letters += static_cast<char>(character >> shift & 0xff);
        accents += '\2';
        ++position;
    }
    void AddBehind(std::uint32_t code) {
        const auto place = static_cast<std::uint32_t>(0x8000 | (7 + 4 * position));
        behind += static_cast<char>(place >> 8 & 0xff);
        behind += static_cast<char>(place & 0xff);
        behind += '\6';
        behind += static_cast<char>(code & 0xff);
    }
    std::string Key() const {
        std::string key = letters + '\1';
        key += accents.substr(0, accented);
        if (!behind.empty()) key += "\1\1\1" + behind;
        return key + '\0';
    }
};

constexpr char32_t SharpS = 0xdf;

void Add(char32_t character, KeyParts& parts) {
    const Code code = CodeOf(character);
    switch (KindOf(code)) {
        case Plain:
        case Accented:
            parts.AddLetter(BytesOf(code), AccentOf(code));
            if (character == SharpS) {  // counts as two positions
                parts.accents += '\2';
                ++parts.position;
            }
            break;
        case Behind:
            parts.AddBehind(BytesOf(code));
            break;
        default:
            if (character != 0) parts.AddUnknown(character);
    }
}

/// The weight of an ASCII character that takes part by one byte alone; 0 for any other.
constexpr std::array<std::uint8_t, 128> SimpleWeights() {
    std::array<std::uint8_t, 128> weights{};
    for (std::size_t i = 0; i < weights.size(); ++i)
        if (codes[i] >> 24 == Plain && (codes[i] >> 8 & 0xffff) < 0x100)
            weights[i] = static_cast<std::uint8_t>(codes[i] >> 8 & 0xff);
    return weights;
}
constexpr std::array<std::uint8_t, 128> simpleWeights = SimpleWeights();

std::uint8_t SimpleWeight(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 128 ? simpleWeights[byte] : 0;
}

/// The key of a text of such characters only, which is what most texts are; empty for any other.
std::string SimpleKey(std::string_view text) {
    std::string key(text.size() + 2, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::uint8_t weight = SimpleWeight(text[i]);
        if (weight == 0) return {};
        key[i] = static_cast<char>(weight);
    }
    key[text.size()] = '\1';
    return key;
}

int CompareKeys(std::string_view a, std::string_view b) {
    return GeneralSortKey(a).compare(GeneralSortKey(b));
}

}  // namespace

std::string GeneralSortKey(std::string_view utf8) {
    if (utf8.size() <= SignificantCharacters) {
        std::string key = SimpleKey(TrimmedRight(utf8));
        if (!key.empty()) return key;
    }
    std::u32string characters = ToCodePoints(FirstCharacters(utf8, SignificantCharacters));
    characters.erase(characters.find_last_not_of(U' ') + 1);
    KeyParts parts;
    for (const char32_t character : characters)
        Add(character, parts);
    return parts.Key();
}

int CompareGeneral(std::string_view a, std::string_view b) {
    if (a.size() > SignificantCharacters || b.size() > SignificantCharacters)
        return CompareKeys(a, b);
    const std::string_view left = TrimmedRight(a), right = TrimmedRight(b);
    const std::size_t common = std::min(left.size(), right.size());
    int difference = 0;
    for (std::size_t i = 0; i < common; ++i) {
        const int x = SimpleWeight(left[i]), y = SimpleWeight(right[i]);
        if (x == 0 || y == 0) return CompareKeys(a, b);
        if (difference == 0) difference = x - y;
        if (difference != 0) break;
    }
    if (difference != 0) return difference;
    const std::string_view rest =
        left.size() > right.size() ? left.substr(common) : right.substr(common);
    if (std::any_of(rest.begin(), rest.end(), [](char c) { return SimpleWeight(c) == 0; }))
        return CompareKeys(a, b);
    if (left.size() == right.size()) return 0;
    return left.size() < right.size() ? -1 : 1;
}

}  // namespace tendo::jet
