#include "platform/print/document_search.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "platform/text/text.h"
#include "platform/text/utf8.h"

namespace tendo {
namespace {

constexpr char32_t ParagraphEnd = 0;

/// A character of a page and where it comes from. A blank between two texts comes from neither.
struct Place {
    std::size_t text = 0;
    std::size_t begin = 0, end = 0;
};

enum class Joint { None, Blank, Apart };

/// The texts of a page as one run of lower-case characters.
class PageRun {
  public:
    PageRun(const Page& page, const std::vector<FontSpec>& fonts) : page_(page), fonts_(fonts) {
        for (std::size_t i = 0; i < page.texts.size(); ++i) {
            if (i > 0) Join(JointBefore(i));
            AddText(i);
        }
    }

    const std::u32string& Characters() const { return characters_; }

    std::vector<MatchPart> Parts(std::size_t from, std::size_t to) const {
        std::vector<MatchPart> parts;
        for (std::size_t i = from; i < to; ++i) {
            const Place& place = places_[i];
            if (place.begin == place.end) continue;
            if (!parts.empty() && parts.back().text == place.text)
                parts.back().end = place.end;
            else
                parts.push_back({place.text, place.begin, place.end});
        }
        return parts;
    }

  private:
    int SizeOf(const TextItem& text) const {
        return fonts_.at(static_cast<std::size_t>(text.font)).sizeTwips;
    }

    /// How a text goes on from the one before it.
    Joint JointBefore(std::size_t i) const {
        const TextItem& before = page_.texts[i - 1];
        const TextItem& text = page_.texts[i];
        const int size = std::max(SizeOf(before), SizeOf(text));
        const int down = text.y - before.y;
        if (down == 0) {
            const int gap = text.x - before.x - before.width;
            return std::abs(gap) < size / 8 ? Joint::None : Joint::Blank;
        }
        // A cell of several lines is left for the head of the next one.
        const bool nextCell = down < 0 && text.x > before.x;
        const bool nextLine = down > 0 && down <= size * 7 / 4 && text.x < before.x + before.width;
        return nextCell || nextLine ? Joint::Blank : Joint::Apart;
    }

    void Join(Joint joint) {
        if (joint == Joint::Blank) Add(U' ', {});
        if (joint == Joint::Apart) Add(ParagraphEnd, {});
    }

    void AddText(std::size_t index) {
        const std::string& text = page_.texts[index].text;
        std::size_t at = 0;
        for (const char32_t character : ToCodePoints(LowerCase(text))) {
            const std::size_t length = Utf8At(text, at).length;
            Add(character, {index, at, at + length});
            at += length;
        }
    }

    void Add(char32_t character, const Place& place) {
        constexpr char32_t HardBlank = 0xA0;
        if (character == HardBlank || character == U'\t') character = U' ';
        if (character == U' ' && !characters_.empty() && characters_.back() == U' ') return;
        characters_ += character;
        places_.push_back(place);
    }

    const Page& page_;
    const std::vector<FontSpec>& fonts_;
    std::u32string characters_;
    std::vector<Place> places_;
};

/// The searched text as a page's characters are kept; empty when it has nothing but blanks.
std::u32string Wanted(std::string_view text) {
    std::string words;
    for (const std::string& word : Split(LowerCase(text), ' ')) {
        if (word.empty()) continue;
        if (!words.empty()) words += ' ';
        words += word;
    }
    return ToCodePoints(words);
}

}  // namespace

std::vector<DocumentMatch> FindText(const Document& document, std::string_view text) {
    std::vector<DocumentMatch> matches;
    const std::u32string wanted = Wanted(text);
    if (wanted.empty()) return matches;
    for (std::size_t page = 0; page < document.pages.size(); ++page) {
        const PageRun run(document.pages[page], document.fonts);
        std::size_t at = run.Characters().find(wanted);
        while (at != std::u32string::npos) {
            matches.push_back({static_cast<int>(page), run.Parts(at, at + wanted.size())});
            at = run.Characters().find(wanted, at + wanted.size());
        }
    }
    return matches;
}

std::vector<TextBox> BoxesOf(const Document& document, const DocumentMatch& match,
                             TextMeasurer& measurer) {
    std::vector<TextBox> boxes;
    const Page& page = document.pages.at(static_cast<std::size_t>(match.page));
    for (const MatchPart& part : match.parts) {
        const TextItem& text = page.texts.at(part.text);
        const FontSpec& font = document.fonts.at(static_cast<std::size_t>(text.font));
        const FontMetrics metrics = measurer.Metrics(font);
        const auto xAt = [&](std::size_t bytes) {
            const double width = measurer.Width(font, std::string_view(text.text).substr(0, bytes));
            return text.x + static_cast<int>(std::lround(width));
        };
        boxes.push_back(
            {xAt(part.begin), text.y - metrics.ascent, xAt(part.end), text.y + metrics.descent});
    }
    return boxes;
}

}  // namespace tendo
