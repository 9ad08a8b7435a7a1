#include "platform/database/like_pattern.h"

#include <algorithm>

#include "platform/text/text.h"

namespace tendo {
namespace {

char32_t FoldedAscii(char c) {
    return static_cast<char32_t>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

/// A text of ASCII letters, folded while it is read: most texts are, and need no copy then.
struct AsciiText {
    std::string_view bytes;
    std::size_t size() const { return bytes.size(); }
    char32_t operator[](std::size_t i) const { return FoldedAscii(bytes[i]); }
};

}  // namespace

bool LikePattern::ReadSet(std::u32string_view set, Element& element) {
    element.kind = Kind::InSet;
    if (set.starts_with(U'!') && set.size() > 1) {
        element.kind = Kind::NotInSet;
        set.remove_prefix(1);
    }
    for (std::size_t i = 0; i < set.size(); ++i) {
        Range range{set[i], set[i]};
        if (i + 2 < set.size() && set[i + 1] == U'-') {
            range.last = set[i + 2];
            i += 2;
        }
        if (range.last < range.first) return false;
        element.set.push_back(range);
    }
    return true;
}

std::optional<LikePattern> LikePattern::Read(std::string_view pattern) {
    const std::u32string folded = ToCodePoints(LowerCase(pattern));
    LikePattern result;
    for (std::size_t i = 0; i < folded.size(); ++i) {
        Element element{Kind::Character, folded[i], {}};
        if (folded[i] == U'*') element.kind = Kind::AnyCharacters;
        if (folded[i] == U'?') element.kind = Kind::OneCharacter;
        if (folded[i] == U'#') element.kind = Kind::Digit;
        if (folded[i] == U'[') {
            const std::size_t end = folded.find(U']', i + 1);
            if (end == std::u32string::npos) return std::nullopt;
            const bool isEmpty = end == i + 1;  // [] stands for no character at all
            if (!ReadSet(std::u32string_view(folded).substr(i + 1, end - i - 1), element))
                return std::nullopt;
            i = end;
            if (isEmpty) continue;
        }
        result.elements_.push_back(std::move(element));
    }
    return result;
}

bool LikePattern::Fits(const Element& element, char32_t character) {
    const auto holds = [character](const Range& range) {
        return range.first <= character && character <= range.last;
    };
    switch (element.kind) {
        case Kind::Character:
            return element.character == character;
        case Kind::Digit:
            return character >= U'0' && character <= U'9';
        case Kind::InSet:
            return std::any_of(element.set.begin(), element.set.end(), holds);
        case Kind::NotInSet:
            return std::none_of(element.set.begin(), element.set.end(), holds);
        default:
            return true;
    }
}

/// Walks both; on a misfit the last `*` takes one character more.
template <class Text>
bool LikePattern::MatchesFolded(const Text& text) const {
    constexpr std::size_t None = static_cast<std::size_t>(-1);
    std::size_t at = 0, element = 0, star = None, starAt = 0;
    while (at < text.size()) {
        if (element < elements_.size() && elements_[element].kind == Kind::AnyCharacters) {
            star = element++;
            starAt = at;
        } else if (element < elements_.size() && Fits(elements_[element], text[at])) {
            ++element;
            ++at;
        } else if (star != None) {
            element = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    while (element < elements_.size() && elements_[element].kind == Kind::AnyCharacters)
        ++element;
    return element == elements_.size();
}

bool LikePattern::Matches(std::string_view text) const {
    if (IsAscii(text)) return MatchesFolded(AsciiText{text});
    return MatchesFolded(ToCodePoints(LowerCase(text)));
}

}  // namespace tendo
