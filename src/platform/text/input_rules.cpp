#include "platform/text/input_rules.h"

#include <algorithm>
#include <charconv>

#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int smallestSansSize = 8;
constexpr int smallestSize = 5;

bool IsDigit(char32_t key) {
    return key >= U'0' && key <= U'9';
}

bool Holds(std::u32string_view text, char32_t character) {
    return text.find(character) != std::u32string_view::npos;
}

/// The value of a text that is still being typed: "$12." and "-" too.
double TypedValue(const std::u32string& text) {
    const std::string plain = FromCodePoints(text);
    double value = 0;
    return ReadNumber(plain, value) ? value : LeadingNumber(plain);
}

int PlacesBehindPoint(const std::u32string& text) {
    const auto point = text.find(U'.');
    if (point == std::u32string::npos) return 0;
    return static_cast<int>(
        std::count_if(text.begin() + static_cast<std::ptrdiff_t>(point), text.end(), IsDigit));
}

bool NumberKeyPasses(const InputValidator& validator, const EntryText& entry, char32_t key) {
    if (key == U'-')
        return entry.left.empty() && !Holds(entry.right, U'-') && validator.MinNumberValue < 0;
    if (key == U'.')
        return validator.NumberOfDecimalPlaces > 0 && !Holds(entry.left + entry.right, U'.');
    if (!IsDigit(key)) return false;
    const std::u32string text = entry.left + key + entry.right;
    const double value = TypedValue(text);
    if (value > validator.MaxNumberValue) return false;
    if (Holds(text, U'-') && value < validator.MinNumberValue) return false;
    return PlacesBehindPoint(text) <= validator.NumberOfDecimalPlaces;
}

char32_t InCase(CaseRestriction restriction, char32_t key) {
    if (restriction == CaseRestriction::None) return key;
    const std::string letter = FromCodePoints(std::u32string(1, key));
    const bool upper = restriction == CaseRestriction::Upper;
    const std::u32string turned = ToCodePoints(upper ? UpperCase(letter) : LowerCase(letter));
    return turned.size() == 1 ? turned[0] : key;
}

std::optional<char32_t> TextKey(const InputValidator& validator, const EntryText& entry,
                                char32_t key) {
    key = InCase(validator.CaseRestriction, key);
    if (!validator.AllowableCharacters.empty() &&
        !Holds(ToCodePoints(validator.AllowableCharacters), key))
        return std::nullopt;
    const std::size_t length = entry.left.size() + 1 + entry.right.size();
    if (length > static_cast<std::size_t>(std::max(0, validator.MaxTextLength)))
        return std::nullopt;
    return key;
}

std::optional<char32_t> ListKey(const std::vector<std::string>& list, const EntryText& entry,
                                char32_t key) {
    const std::string typed = FromCodePoints(entry.left + key + entry.right);
    for (const std::string& item : list) {
        const std::u32string letters = ToCodePoints(item);
        if (letters.size() > entry.left.size() &&
            EqualsNoCase(FirstCharacters(item, CharacterCount(typed)), typed))
            return letters[entry.left.size()];
    }
    return std::nullopt;
}

}  // namespace

std::string InputValidator::Range() const {
    if (!NumberField) return {};
    std::string picture = "#,##0";
    if (NumberOfDecimalPlaces > 0)
        picture += "." + std::string(static_cast<std::size_t>(NumberOfDecimalPlaces), '0');
    return FormatNumber(MinNumberValue, picture) + " to " + FormatNumber(MaxNumberValue, picture);
}

std::optional<char32_t> FilterKey(const InputValidator& validator, const EntryText& entry,
                                  char32_t key, const std::vector<std::string>& list) {
    if (key == BackspaceKey) return key;
    if (validator.AllowOnlyComboFormListItems) return ListKey(list, entry, key);
    if (!validator.NumberField) return TextKey(validator, entry, key);
    if (!NumberKeyPasses(validator, entry, key)) return std::nullopt;
    return key;
}

bool PlainNumberKeyPasses(char32_t key, bool money, std::u32string_view rest) {
    if (IsDigit(key) || key == BackspaceKey) return true;
    return money && key == U'.' && !Holds(rest, U'.');
}

std::string PlainNumberOnLeave(std::string_view text, std::string_view picture) {
    double value = 0;
    ReadNumber(text, value);
    return FormatNumber(value, picture);
}

bool KeyLeavesField(MoveKey key, const CaretState& state) {
    if (!state.textField) return true;
    const bool all = state.selected == state.length;
    if (key == MoveKey::Left) return all || (state.caret == 0 && state.selected == 0);
    if (key == MoveKey::Right) return all || (state.caret == state.length && state.selected == 0);
    return true;
}

int StepInArray(MoveKey key, bool horizontal, bool nextIndexOnReturn) {
    if (key == MoveKey::Return) return nextIndexOnReturn ? 1 : 0;
    if (key == (horizontal ? MoveKey::Right : MoveKey::Down)) return 1;
    if (key == (horizontal ? MoveKey::Left : MoveKey::Up)) return -1;
    return 0;
}

std::optional<ArrayName> ReadArrayName(std::string_view name) {
    const auto open = name.rfind('(');
    if (open == std::string_view::npos || open == 0 || name.back() != ')') return std::nullopt;
    const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
    ArrayName result{std::string(name.substr(0, open)), 0};
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), result.index);
    if (error != std::errc() || end != digits.data() + digits.size() || result.index < 0)
        return std::nullopt;
    return result;
}

FittingFont FontForWidth(int width, int largestSize,
                         const std::function<int(const FittingFont&)>& textWidth) {
    FittingFont font{"MS Sans Serif", std::max(largestSize, smallestSize)};
    for (;; --font.size) {
        font.family = font.size >= smallestSansSize ? "MS Sans Serif" : "Small Fonts";
        if (font.size <= smallestSize || textWidth(font) <= width) return font;
    }
}

}  // namespace tendo
