#include "platform/print/rtf_writer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "platform/text/utf8.h"

namespace tendo {

namespace {

/// A backslash word and its number; words stand before what they govern, so a blank ends them.
std::string Word(std::string_view word, int number) {
    return "\\" + std::string(word) + std::to_string(number);
}

/// The place of an entry in a table, which grows by it when it is new.
template <typename Entry>
int PlaceIn(std::vector<Entry>& table, const Entry& entry) {
    const auto found = std::find(table.begin(), table.end(), entry);
    const auto place = static_cast<int>(found - table.begin());
    if (found == table.end()) table.push_back(entry);
    return place;
}

/// A 16-bit unit as older readers want it: signed, with a substitute behind it.
std::string UnicodeUnit(char32_t unit) {
    return Word("u", static_cast<std::int16_t>(unit)) + "?";
}

std::string CharacterText(char32_t point) {
    if (point == U'\n') return "\\line ";
    if (point == U'\t') return "\\tab ";
    if (point == U'\\' || point == U'{' || point == U'}') return {'\\', static_cast<char>(point)};
    if (point < 0x20) return "";
    if (point < 0x80) return {static_cast<char>(point)};
    if (point < 0x10000) return UnicodeUnit(point);
    const char32_t rest = point - 0x10000;
    return UnicodeUnit(0xD800 + (rest >> 10)) + UnicodeUnit(0xDC00 + (rest & 0x3FF));
}

std::string EscapedText(std::string_view text) {
    std::string escaped;
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Step step = Utf8At(text, at);
        escaped += CharacterText(step.codePoint);
        at += step.length;
    }
    return escaped;
}

constexpr std::string_view Alignments[] = {"", "\\ql", "\\qc", "\\qr"};
constexpr std::string_view SymbolFont = "Symbol";

class RtfWriter {
  public:
    std::string Write(const RichText& text) {
        for (const RichParagraph& paragraph : text.paragraphs)
            AddParagraph(paragraph);
        return Head() + body_ + "}";
    }

  private:
    void AddParagraph(const RichParagraph& paragraph) {
        body_ += "\\pard";
        const bool bullet = paragraph.bullet && !paragraph.runs.empty() &&
                            paragraph.runs.front().text.starts_with(BulletMark);
        if (bullet) AddBullet();
        body_ += Alignments[static_cast<std::size_t>(paragraph.align)];
        const std::array<std::pair<std::string_view, int>, 5> measures = {
            {{"fi", paragraph.firstIndent},
             {"li", paragraph.leftIndent},
             {"ri", paragraph.rightIndent},
             {"sb", paragraph.spaceBefore},
             {"sa", paragraph.spaceAfter}}};
        for (const auto& [word, twips] : measures)
            if (twips != 0) body_ += Word(word, twips);
        for (const int tab : paragraph.tabs)
            body_ += Word("tx", tab);
        for (const RichRun& run : paragraph.runs) {
            std::string_view shown = run.text;
            if (bullet && &run == &paragraph.runs.front()) shown.remove_prefix(BulletMark.size());
            AddRun(run, shown);
        }
        body_ += "\\par\r\n";
    }

    /// The mark as text for readers that know no lists, and as a list for those that do.
    void AddBullet() {
        const std::string font = std::to_string(PlaceIn(fonts_, std::string(SymbolFont)));
        body_ += "{\\pntext\\f" + font + "\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf" + font +
                 "\\pnindent0{\\pntxtb\\'B7}}";
    }

    void AddRun(const RichRun& run, std::string_view shown) {
        const FontSpec& font = run.font;
        body_ += "\\plain" + Word("f", PlaceIn(fonts_, font.family));
        body_ += Word("fs", font.sizeTwips / 10);
        if (font.bold) body_ += "\\b";
        if (font.italic) body_ += "\\i";
        if (font.underline) body_ += "\\ul";
        if (font.strike) body_ += "\\strike";
        // Entry 0 is the automatic colour, which is black.
        if (run.color != 0) body_ += Word("cf", PlaceIn(colors_, run.color) + 1);
        body_ += " " + EscapedText(shown);
    }

    std::string Head() const {
        std::string head = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl";
        for (std::size_t i = 0; i < fonts_.size(); ++i) {
            head += "{" + Word("f", static_cast<int>(i)) + "\\fnil";
            if (fonts_[i] == SymbolFont) head += "\\fcharset2";
            head += " " + EscapedText(fonts_[i]) + ";}";
        }
        head += "}{\\colortbl ;";
        for (const Rgb color : colors_)
            head += Word("red", static_cast<int>(color >> 16 & 0xFF)) +
                    Word("green", static_cast<int>(color >> 8 & 0xFF)) +
                    Word("blue", static_cast<int>(color & 0xFF)) + ";";
        return head + "}\\uc1\r\n";
    }

    std::vector<std::string> fonts_;
    std::vector<Rgb> colors_;
    std::string body_;
};

}  // namespace

std::string WriteRichText(const RichText& text) {
    return RtfWriter().Write(text);
}

}  // namespace tendo
