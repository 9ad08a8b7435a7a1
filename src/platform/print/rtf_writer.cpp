#include "platform/print/rtf_writer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "platform/print/symbol_fonts.h"
#include "platform/text/text.h"
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
constexpr std::string_view TabKinds[] = {"", "\\tqc", "\\tqr", "\\tqdec"};
constexpr std::string_view SymbolFont = "Symbol";

constexpr std::pair<unsigned, std::string_view> CellBorders[] = {{cell_side::Top, "\\clbrdrt"},
                                                                 {cell_side::Left, "\\clbrdrl"},
                                                                 {cell_side::Bottom, "\\clbrdrb"},
                                                                 {cell_side::Right, "\\clbrdrr"}};

std::string LeaderWord(char leader) {
    if (leader == '.') return "\\tldot";
    if (leader == '-') return "\\tlhyph";
    return leader == '_' ? "\\tlul" : "";
}

/// Letters in a font of symbols would be read as its signs.
std::string TextFamily(const FontSpec& font) {
    const std::string_view family = Trimmed(font.family);
    return std::string(IsSymbolFont(family) || family.empty() ? FontSpec().family : family);
}

/// Where the mark ends that begins with the "<" at `start`: a word of capitals or dollar signs in
/// angle brackets. npos when it is none.
std::size_t EndOfMark(std::string_view text, std::size_t start) {
    constexpr std::size_t LongestMark = 12;
    for (std::size_t at = start + 1; at < std::min(text.size(), start + LongestMark); ++at) {
        if (text[at] == '>') return at + 1;
        if (text[at] != '$' && (text[at] < 'A' || text[at] > 'Z')) break;
    }
    return std::string_view::npos;
}

/// Moves the first `count` bytes of the runs behind `place` into the run there.
void TakeFromFollowing(std::vector<RichRun>& runs, std::size_t place, std::size_t count) {
    for (std::size_t next = place + 1; count > 0 && next < runs.size(); ++next) {
        const std::size_t taken = std::min(count, runs[next].text.size());
        runs[place].text += runs[next].text.substr(0, taken);
        runs[next].text.erase(0, taken);
        count -= taken;
    }
}

/// A mark in angle brackets ("<PAGE>") is searched for in the written text, so it takes the format
/// of its first character and is never parted by the words of another one.
void JoinMarks(std::vector<RichRun>& runs) {
    for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
        const std::size_t start = runs[i].text.rfind('<');
        if (start == std::string::npos) continue;
        std::string text = runs[i].text.substr(start);
        const std::size_t own = text.size();
        for (std::size_t next = i + 1; next < runs.size() && text.size() < 16; ++next)
            text += runs[next].text.substr(0, 16);
        const std::size_t end = EndOfMark(text, 0);
        if (end != std::string::npos && end > own) TakeFromFollowing(runs, i, end - own);
    }
}

class RtfWriter {
  public:
    std::string Write(const RichText& text) {
        for (const RichParagraph& paragraph : text.paragraphs)
            AddParagraph(paragraph);
        return Head() + body_ + "}";
    }

  private:
    void AddParagraph(const RichParagraph& given) {
        RichParagraph paragraph = given;
        JoinMarks(paragraph.runs);
        if (!paragraph.cells.empty()) return AddRow(paragraph);
        body_ += paragraph.pageBefore ? "\\pard\\pagebb" : "\\pard";
        const bool bullet = paragraph.bullet && !paragraph.runs.empty() &&
                            paragraph.runs.front().text.starts_with(BulletMark);
        if (bullet) AddBullet();
        AddParagraphFormat(paragraph);
        for (const RichRun& run : paragraph.runs) {
            std::string_view shown = run.text;
            if (bullet && &run == &paragraph.runs.front()) shown.remove_prefix(BulletMark.size());
            AddRun(run, shown);
        }
        body_ += "\\par\r\n";
    }

    void AddParagraphFormat(const RichParagraph& paragraph) {
        body_ += Alignments[static_cast<std::size_t>(paragraph.align)];
        const std::array<std::pair<std::string_view, int>, 5> measures = {
            {{"fi", paragraph.firstIndent},
             {"li", paragraph.leftIndent},
             {"ri", paragraph.rightIndent},
             {"sb", paragraph.spaceBefore},
             {"sa", paragraph.spaceAfter}}};
        for (const auto& [word, twips] : measures)
            if (twips != 0) body_ += Word(word, twips);
        if (paragraph.exactLine > 0)
            body_ += Word("sl", -paragraph.exactLine) + "\\slmult0";
        else if (paragraph.leastLine > 0)
            body_ += Word("sl", paragraph.leastLine) + "\\slmult0";
        else if (paragraph.lineSpacing != 100)
            body_ += Word("sl", (paragraph.lineSpacing * 240 + 50) / 100) + "\\slmult1";
        for (const TabStop& tab : paragraph.tabs) {
            body_ += TabKinds[static_cast<std::size_t>(tab.align)];
            body_ += LeaderWord(tab.leader) + Word("tx", tab.position);
        }
    }

    void AddRow(const RichParagraph& row) {
        body_ += "\\trowd\\trgaph108" + Word("trleft", row.leftIndent);
        for (const RichCell& cell : row.cells) {
            for (const auto& [side, word] : CellBorders)
                if (cell.lines & side) body_ += std::string(word) + "\\brdrs\\brdrw10";
            body_ += Word("cellx", row.leftIndent + cell.right);
        }
        auto cell = row.cells.begin();
        const auto begin = [&] {
            body_ += "\\pard\\intbl";
            body_ += Alignments[static_cast<std::size_t>(cell->align)];
        };
        begin();
        for (const RichRun& run : row.runs) {
            std::string_view rest = run.text;
            for (std::size_t tab = rest.find('\t');
                 tab != std::string_view::npos && cell + 1 != row.cells.end();
                 tab = rest.find('\t')) {
                AddRun(run, rest.substr(0, tab));
                body_ += "\\cell";
                ++cell;
                begin();
                rest.remove_prefix(tab + 1);
            }
            AddRun(run, rest);
        }
        for (; cell != row.cells.end(); ++cell)
            body_ += "\\cell";
        body_ += "\\row\r\n";
    }

    /// The mark as text for readers that know no lists, and as a list for those that do.
    void AddBullet() {
        const std::string font = std::to_string(PlaceIn(fonts_, std::string(SymbolFont)));
        body_ += "{\\pntext\\f" + font + "\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf" + font +
                 "\\pnindent0{\\pntxtb\\'B7}}";
    }

    void AddRun(const RichRun& run, std::string_view shown) {
        const FontSpec& font = run.font;
        body_ += "\\plain" + Word("f", PlaceIn(fonts_, TextFamily(font)));
        body_ += Word("fs", font.sizeTwips / 10);
        if (font.bold) body_ += "\\b";
        if (font.italic) body_ += "\\i";
        if (font.underline) body_ += "\\ul";
        if (font.strike) body_ += "\\strike";
        if (run.rise != 0) body_ += Word(run.rise > 0 ? "up" : "dn", std::abs(run.rise) / 10);
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
