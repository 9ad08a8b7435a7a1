#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/print/rtf_reader.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t MostTabs = 50;
constexpr int LargestIndent = 8640;
constexpr int WidestRow = 20000;
constexpr int SingleSpacing = 240;  // of \sl, when it is a multiple
constexpr int ScriptPercent = 62;   // size of raised and lowered signs
constexpr int UsualRise = 6;        // half points
constexpr int UsualSize = 240;      // 12 points

using Meaning = RtfMeaning;

int Held(int number, int least = 0) {
    return std::clamp(number, least, LargestIndent);
}

bool HasLetters(const RichHead::Font& font) {
    return !font.symbol && !font.name.empty();
}

/// Words that switch something on or, with 0, off.
struct Switch {
    Meaning meaning;
    bool FontSpec::*flag;
};
constexpr Switch Switches[] = {{Meaning::Bold, &FontSpec::bold},
                               {Meaning::Italic, &FontSpec::italic},
                               {Meaning::Underline, &FontSpec::underline},
                               {Meaning::Strike, &FontSpec::strike}};

/// Measures of a paragraph in twips.
struct Measure {
    Meaning meaning;
    int RichParagraph::*value;
    int least;
};
constexpr Measure Measures[] = {{Meaning::LeftIndent, &RichParagraph::leftIndent, 0},
                                {Meaning::RightIndent, &RichParagraph::rightIndent, 0},
                                {Meaning::FirstIndent, &RichParagraph::firstIndent, -LargestIndent},
                                {Meaning::SpaceBefore, &RichParagraph::spaceBefore, 0},
                                {Meaning::SpaceAfter, &RichParagraph::spaceAfter, 0}};

struct Alignment {
    Meaning meaning;
    RichAlign align;
};
constexpr Alignment Alignments[] = {{Meaning::AlignLeft, RichAlign::Left},
                                    {Meaning::AlignCenter, RichAlign::Center},
                                    {Meaning::AlignRight, RichAlign::Right}};

/// The entry of a word in one of the tables above, or null.
template <typename Entry, std::size_t count>
const Entry* EntryOf(const Entry (&table)[count], Meaning meaning) {
    const Entry* found = std::find_if(std::begin(table), std::end(table),
                                      [&](const Entry& entry) { return entry.meaning == meaning; });
    return found == std::end(table) ? nullptr : found;
}

}  // namespace

void RtfReader::ApplyCharacter(const RtfWord& word, const RtfToken& token) {
    FontSpec& font = Now().format.font;
    if (const Switch* entry = EntryOf(Switches, word.meaning)) {
        font.*entry->flag = token.On();
        return;
    }
    switch (word.meaning) {
        case Meaning::Text:
            if (!SkipsOne()) AddText(word.text);
            return;
        case Meaning::Unicode:
            if (token.hasNumber) AddUnicode(token.number);
            return;
        case Meaning::UnicodeSkip:
            Now().unicodeSkip = std::clamp(token.number, 0, 16);
            return;
        case Meaning::NoteNumber:
            if (!builder_.InNote()) builder_.CountNote();
            return AddText(std::to_string(builder_.Notes()));
        case Meaning::Font:
            return SelectFont(token.number);
        case Meaning::Size:
            font.sizeTwips = std::clamp(token.number, 2, 400) * 10;
            return;
        case Meaning::NoUnderline:
            font.underline = false;
            return;
        case Meaning::Color: {
            const auto index = static_cast<std::size_t>(std::max(token.number, 0));
            Now().format.color = index < colors_.size() ? colors_[index] : base_.color;
            return;
        }
        case Meaning::Plain:
            return SetPlain();
        case Meaning::Raised:
            Now().rise = std::clamp(token.hasNumber ? token.number : UsualRise, 0, 100) * 10;
            return;
        case Meaning::Lowered:
            Now().rise = -std::clamp(token.hasNumber ? token.number : UsualRise, 0, 100) * 10;
            return;
        case Meaning::Superscript:
            return SetScript(token.On() ? Script::Super : Script::OnBaseLine);
        case Meaning::Subscript:
            return SetScript(token.On() ? Script::Sub : Script::OnBaseLine);
        case Meaning::OnBaseLine:
            return SetScript(Script::OnBaseLine);
        case Meaning::Hidden:
            Now().hidden = token.On();
            return;
        default:
            Now().capitals = token.On();
    }
}

/// Back to regular letters of 12 points in the default font.
void RtfReader::SetPlain() {
    State& now = Now();
    now.format = base_;
    now.format.font = {base_.font.family, UsualSize};
    now.font = -1;
    now.rise = 0;
    now.script = Script::OnBaseLine;
    now.hidden = now.capitals = false;
}

void RtfReader::ApplyParagraph(const RtfWord& word, const RtfToken& token) {
    RichParagraph& paragraph = Now().paragraph;
    if (const Measure* entry = EntryOf(Measures, word.meaning))
        paragraph.*entry->value = Held(token.number, entry->least);
    if (const Alignment* entry = EntryOf(Alignments, word.meaning)) paragraph.align = entry->align;
    switch (word.meaning) {
        case Meaning::Paragraph:
            return EndParagraph();
        case Meaning::Page:
            return builder_.BreakPage(ParagraphFormat(), Format());
        case Meaning::PageBefore:
            paragraph.pageBefore = token.On();
            return;
        case Meaning::ParagraphDefaults:
            paragraph = {};
            Now().inTable = Now().lineMultiple = false;
            Now().lineHeight = 0;
            Now().tab = {};
            Now().list = {};
            return;
        case Meaning::LineHeight:
            Now().lineHeight = Held(token.number, -LargestIndent);
            return;
        case Meaning::LineMultiple:
            Now().lineMultiple = token.On();
            return;
        case Meaning::TabKind:
            Now().tab.align = static_cast<TabAlign>(word.value);
            return;
        case Meaning::TabLeader:
            Now().tab.leader = word.text.front();
            return;
        case Meaning::Tab:
            return SetTab(std::clamp(token.number, 0, WidestRow));
        default:
            return;
    }
}

/// Kind and leader stand before the place of a stop.
void RtfReader::SetTab(int position) {
    std::vector<TabStop>& tabs = Now().paragraph.tabs;
    TabStop tab = std::exchange(Now().tab, {});
    tab.position = position;
    if (tabs.size() < MostTabs && position > 0) tabs.push_back(tab);
}

/// The style of a list holds for the paragraph around its group.
void RtfReader::ApplyList(const RtfWord& word, const RtfToken& token) {
    const bool within = Now().destination == Destination::ListStyle;
    RtfListStyle& style = within ? states_[Now().listOwner].list : Now().list;
    switch (word.meaning) {
        case Meaning::ListKind:
            style.kind = static_cast<RtfListStyle::Kind>(word.value);
            return;
        case Meaning::ListStart:
            style.start = token.number;
            return;
        case Meaning::ListNumber:
            style.list = token.number;
            return;
        case Meaning::ListLevel:
            style.level = std::clamp(token.number, 0, 8);
            return;
        case Meaning::ListText:
            if (!within) builder_.MarkListText();
            return;
        default:
            return;
    }
}

void RtfReader::ApplyRow(const RtfWord& word, const RtfToken& token) {
    if (Now().nestedProps && word.meaning != Meaning::NestedRow) return;
    switch (word.meaning) {
        case Meaning::InTable:
            Now().inTable = true;
            return;
        case Meaning::RowDefaults:
            cellSide_ = cellLines_ = 0;
            return builder_.ResetRow();
        case Meaning::RowLeft:
            return builder_.SetRowLeft(Held(token.number, -LargestIndent));
        case Meaning::CellBorder:
            cellSide_ = static_cast<unsigned>(word.value);
            return;
        case Meaning::BorderStyle:
            cellLines_ |= cellSide_;
            return;
        case Meaning::NoBorder:
            cellSide_ = 0;
            return;
        case Meaning::CellRight:
            cellSide_ = 0;
            return builder_.AddCellEdge(std::clamp(token.number, 0, WidestRow),
                                        std::exchange(cellLines_, 0));
        case Meaning::Cell:
            return builder_.EndCell(ParagraphFormat());
        case Meaning::Row:
            return builder_.EndRow();
        case Meaning::NestedCell:
            return AddText("   ");
        case Meaning::NestedRow:
            return AddText("\n");
        default:
            return;
    }
}

/// A font that isn't in the table keeps the font in use. Behind a page break the table is lost, but
/// for what it says about bytes.
void RtfReader::SelectFont(int number) {
    const auto found = head_.fonts.find(number);
    if (found == head_.fonts.end()) return;
    Now().font = number;
    if (wholeDocument_ && HasLetters(found->second))
        Now().format.font.family = std::string(Trimmed(found->second.name));
}

const RtfReader::Font& RtfReader::FontInUse() const {
    static const Font none;
    const int number = states_.back().font;
    const auto found = head_.fonts.find(number < 0 ? head_.defaultFont : number);
    return found == head_.fonts.end() ? none : found->second;
}

RichRun RtfReader::Format() const {
    const State& now = states_.back();
    RichRun format = now.format;
    if (const Font& font = FontInUse(); now.font < 0 && wholeDocument_ && HasLetters(font))
        format.font.family = std::string(Trimmed(font.name));
    format.rise = now.rise;
    if (now.script == Script::OnBaseLine) return format;
    const int size = format.font.sizeTwips;
    format.font.sizeTwips = std::max(size * ScriptPercent / 100 / 10 * 10, 20);
    format.rise = now.script == Script::Super ? size / 3 : -size / 8;
    return format;
}

RichParagraph RtfReader::ParagraphFormat() const {
    const State& now = states_.back();
    RichParagraph format = now.paragraph;
    if (now.lineMultiple && now.lineHeight != 0)
        format.lineSpacing = std::clamp(std::abs(now.lineHeight) * 100 / SingleSpacing, 50, 400);
    else if (now.lineHeight > 0)
        format.leastLine = now.lineHeight;
    else
        format.exactLine = -now.lineHeight;
    return format;
}

}  // namespace tendo
