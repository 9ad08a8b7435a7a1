#include "platform/print/symbol_fonts.h"

#include <algorithm>
#include <array>

#include "platform/text/text.h"

namespace tendo {

namespace {

/// The signs of the font "Symbol" from 0x20 and from 0xA0 on; '\0' where there is none.
constexpr std::u32string_view LowSigns =
    U" !∀#∃%&∋()∗+,−./"
    U"0123456789:;<=>?≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼";
constexpr std::u32string_view HighSigns =
    U"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓◊〈®©™∑";

struct Sign {
    unsigned char byte;
    std::string_view text;
};
/// The signs of "Wingdings" that proposals use.
constexpr std::array Wingdings = {Sign{0x20, " "},      Sign{0x6C, "\u25CF"}, Sign{0x6E, "\u25A0"},
                                  Sign{0x6F, "\u25A1"}, Sign{0x71, "\u2751"}, Sign{0x75, "\u25C6"},
                                  Sign{0x76, "\u2756"}, Sign{0xA7, "\u25AA"}, Sign{0xA8, "\u25FB"},
                                  Sign{0xD8, "\u27A2"}, Sign{0xE0, "\u2192"}, Sign{0xFB, "\u2717"},
                                  Sign{0xFC, "\u2713"}};

std::string FromSigns(std::u32string_view signs, std::size_t place) {
    return place < signs.size() ? FromCodePoints(signs.substr(place, 1)) : "\u2022";
}

}  // namespace

bool IsSymbolFont(std::string_view name) {
    return name == "Symbol" || StartsWith(name, "Wingdings");
}

std::string SymbolFontText(std::string_view font, unsigned char byte) {
    if (StartsWith(font, "Wingdings")) {
        const auto found = std::find_if(Wingdings.begin(), Wingdings.end(),
                                        [&](const Sign& sign) { return sign.byte == byte; });
        return std::string(found == Wingdings.end() ? "\u2022" : found->text);
    }
    if (byte < 0x20) return "";
    return byte < 0xA0 ? FromSigns(LowSigns, byte - 0x20U) : FromSigns(HighSigns, byte - 0xA0U);
}

}  // namespace tendo
