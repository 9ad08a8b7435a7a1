#include "platform/print/rtf_list.h"

#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr int LargestRoman = 3999;

std::string Roman(int number) {
    constexpr std::pair<int, std::string_view> Digits[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    std::string roman;
    for (const auto& [value, digits] : Digits)
        for (; number >= value; number -= value)
            roman += digits;
    return roman;
}

/// a to z, then aa, bb and on.
std::string Letters(int number) {
    const int turn = (number - 1) % (26 * 10);
    return std::string(static_cast<std::size_t>(turn / 26 + 1), static_cast<char>('a' + turn % 26));
}

std::string NumberText(RtfListStyle::Kind kind, int number) {
    using Kind = RtfListStyle::Kind;
    const bool roman = kind == Kind::LowerRoman || kind == Kind::UpperRoman;
    if (number < 1 || kind == Kind::Decimal || (roman && number > LargestRoman))
        return std::to_string(number);
    const std::string text = roman ? Roman(number) : Letters(number);
    return kind == Kind::UpperRoman || kind == Kind::UpperLetter ? UpperCase(text) : text;
}

}  // namespace

std::string RtfLists::NextMark(const RtfListStyle& style) {
    if (style.kind == RtfListStyle::Kind::None) return "";
    if (style.kind == RtfListStyle::Kind::Bullet) return "\u2022";
    counts_.erase(counts_.upper_bound({style.list, style.level}),
                  counts_.lower_bound({style.list + 1, -1}));
    const auto [count, isNew] = counts_.try_emplace({style.list, style.level}, style.start);
    if (!isNew) ++count->second;
    return style.before + NumberText(style.kind, count->second) + style.after;
}

}  // namespace tendo
