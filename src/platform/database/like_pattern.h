#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// A pattern of the operator Like: `*` any characters, `?` one, `#` a digit, `[a-z]` one of a set,
/// `[!a-z]` one outside it, any other character itself in either case. A sign in brackets stands
/// for itself: `[*]`.
class LikePattern {
  public:
    /// Nothing when the pattern is broken: a bracket never closed, a range that runs backwards.
    static std::optional<LikePattern> Read(std::string_view pattern);

    /// True when the whole text fits. Takes at most length of text times length of pattern steps.
    bool Matches(std::string_view text) const;

  private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    enum class Kind { Character, AnyCharacters, OneCharacter, Digit, InSet, NotInSet };
    struct Element {
        Kind kind = Kind::Character;
        char32_t character = 0;
        std::vector<Range> set;
    };

    static bool ReadSet(std::u32string_view set, Element& element);
    static bool Fits(const Element& element, char32_t character);
    template <class Text>
    bool MatchesFolded(const Text& text) const;

    std::vector<Element> elements_;
};

}  // namespace tendo
