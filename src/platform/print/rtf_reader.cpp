#include "platform/print/rtf_reader.h"

#include <algorithm>

#include "platform/print/symbol_fonts.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t DeepestGroup = 100;
constexpr std::size_t MostTableEntries = 1000;
constexpr int UsualSize = 240;  // of a whole document, 12 points
constexpr std::size_t LongestFontName = 64;
constexpr std::size_t LongestListText = 16;

using Meaning = RtfMeaning;

bool IsAmong(Meaning meaning, Meaning first, Meaning last) {
    return meaning >= first && meaning <= last;
}

}  // namespace

RtfReader::RtfReader(std::string_view text, const RichRun& base, RichHead* head)
    : scanner_(text), base_(base), keptHead_(head) {
    base_.text.clear();
    states_.emplace_back().format = base_;
    if (head) head_ = *head;
}

RichText RtfReader::Read() {
    for (RtfToken token = scanner_.Next(); token.kind != RtfToken::Kind::End && !ended_;
         token = scanner_.Next())
        Step(token);
    tooDeep_ = 0;
    if (keptHead_ && wholeDocument_) *keptHead_ = head_;
    return builder_.Take(ParagraphFormat(), Format());
}

void RtfReader::Step(const RtfToken& token) {
    switch (token.kind) {
        case RtfToken::Kind::Open:
            return OpenGroup();
        case RtfToken::Kind::Close:
            return CloseGroup();
        case RtfToken::Kind::Word:
            return Word(token);
        case RtfToken::Kind::Symbol:
            return Symbol(token.byte);
        case RtfToken::Kind::HexByte:
        case RtfToken::Kind::Byte:
            return AddByte(token.byte, token.kind == RtfToken::Kind::Byte);
        case RtfToken::Kind::End:
            return;
    }
}

void RtfReader::OpenGroup() {
    skip_ = 0;
    starred_ = false;
    if (states_.size() >= DeepestGroup) {
        ++tooDeep_;
        return;
    }
    State copy = Now();
    copy.note = false;
    states_.push_back(std::move(copy));
}

/// The text behind the last closing brace is no part of the document; a brace too many is passed
/// over when nothing was opened.
void RtfReader::CloseGroup() {
    skip_ = 0;
    if (tooDeep_ > 0) {
        --tooDeep_;
        return;
    }
    if (Now().note) builder_.EndNote(ParagraphFormat(), Format());
    if (wholeDocument_ && states_.size() == 2) ended_ = true;
    if (states_.size() > 1 && !ended_) states_.pop_back();
}

void RtfReader::Symbol(unsigned char sign) {
    switch (sign) {
        case '*':
            starred_ = true;
            return;
        case '-':  // a place to hyphenate
        case '|':  // marks of formulas and indexes
            return;
        case '\r':
        case '\n':
            if (InText()) EndParagraph();
            return;
        default:
            break;
    }
    if (SkipsOne()) return;
    if (sign == '~') return AddText("\u00A0");
    if (sign == '_') return AddText("-");
    AddByte(sign, true);
}

void RtfReader::Word(const RtfToken& token) {
    const RtfWord word = FindRtfWord(token.word);
    if (tooDeep_ > 0 || ApplyDestination(word)) return;
    if (Now().destination == Destination::Skipped) return;
    if (IsAmong(word.meaning, Meaning::CharacterSet, Meaning::Blue))
        ApplyHead(word, token);
    else if (Now().destination == Destination::FontTable && word.meaning == Meaning::Font)
        Now().font = token.number;
    else if (Now().destination == Destination::ListStyle)
        ApplyList(word, token);
    else if (Now().destination != Destination::Text)
        return;
    else if (IsAmong(word.meaning, Meaning::ListKind, Meaning::ListText))
        ApplyList(word, token);
    else if (IsAmong(word.meaning, Meaning::Text, Meaning::Capitals))
        ApplyCharacter(word, token);
    else if (IsAmong(word.meaning, Meaning::Paragraph, Meaning::Tab))
        ApplyParagraph(word, token);
    else if (word.meaning != Meaning::None)
        ApplyRow(word, token);
}

/// A word behind a star that isn't known names a group that may be passed over.
bool RtfReader::ApplyDestination(const RtfWord& word) {
    const bool starred = std::exchange(starred_, false);
    State& now = Now();
    switch (word.meaning) {
        case Meaning::FontTable:
            now.destination = Destination::FontTable;
            return true;
        case Meaning::ColorTable:
            now.destination = Destination::ColorTable;
            colors_.clear();
            colorEntry_ = base_.color;  // the first entry is the automatic colour
            return true;
        case Meaning::Substitute:
            now.outside = std::exchange(now.destination, Destination::Skipped);
            return true;
        case Meaning::Result:
            now.destination = now.outside;
            return true;
        case Meaning::Note:
            if (InText()) {
                builder_.BeginNote();
                now.note = true;
            }
            return true;
        case Meaning::Document:
            StartDocument();
            return true;
        case Meaning::Shown:
            return true;
        case Meaning::NestedProps:
            now.nestedProps = true;
            return true;
        default:
            break;
    }
    if (ApplyListGroup(word.meaning)) return true;
    if (starred || word.meaning == Meaning::Skip)
        now.destination = now.outside = Destination::Skipped;
    return now.destination == Destination::Skipped;
}

bool RtfReader::ApplyListGroup(RtfMeaning meaning) {
    State& now = Now();
    if (meaning == Meaning::ListStyle && now.destination == Destination::Text) {
        now.destination = Destination::ListStyle;
        now.listOwner = states_.size() < 2 ? 0 : states_.size() - 2;
        RtfListStyle& style = states_[now.listOwner].list;
        style.kind = RtfListStyle::Kind::None;
        style.before.clear();
        style.after.clear();
        return true;
    }
    if (meaning != Meaning::TextBefore && meaning != Meaning::TextAfter) return false;
    if (now.destination != Destination::ListStyle)
        now.destination = now.outside = Destination::Skipped;
    else
        now.destination =
            meaning == Meaning::TextBefore ? Destination::ListBefore : Destination::ListAfter;
    return true;
}

void RtfReader::StartDocument() {
    if (!wholeDocument_) head_ = {};
    wholeDocument_ = true;
    base_.font = {base_.font.family, UsualSize};
    states_.front().format = Now().format = base_;
}

void RtfReader::ApplyHead(const RtfWord& word, const RtfToken& token) {
    const auto put = [&](int shift) {
        const auto value = static_cast<Rgb>(std::clamp(token.number, 0, 255));
        colorEntry_ = (colorEntry_ & ~(Rgb{255} << shift)) | (value << shift);
    };
    switch (word.meaning) {
        case Meaning::CharacterSet:
            if (Now().destination != Destination::FontTable ||
                head_.fonts.size() >= MostTableEntries)
                return;
            head_.fonts[Now().font].codePage = CodePageOfCharacterSet(token.number);
            head_.fonts[Now().font].symbol = token.number == 2;
            return;
        case Meaning::DefaultFont:
            head_.defaultFont = token.number;
            return;
        case Meaning::CodePage:
            if (token.number > 0) head_.codePage = token.number;
            return;
        case Meaning::NamedCodePage:
            head_.codePage = word.value;
            return;
        case Meaning::Red:
            return put(16);
        case Meaning::Green:
            return put(8);
        default:
            return put(0);
    }
}

void RtfReader::AddByte(unsigned char byte, bool raw) {
    if (SkipsOne()) return;
    if (Now().destination == Destination::FontTable || Now().destination == Destination::ColorTable)
        return AddHeadByte(static_cast<char>(byte));
    if (Now().destination == Destination::ListBefore || Now().destination == Destination::ListAfter)
        return AddListByte(static_cast<char>(byte));
    if (!InText()) return;
    if (FontInUse().symbol) return AddText(SymbolFontText(FontInUse().name, byte));
    // Bytes above 127 that stand in the text as they are belong to a text in UTF-8.
    const char character = static_cast<char>(byte);
    if (raw && leadByte_.empty()) return AddText({&character, 1});
    AddEncoded(byte);
}

void RtfReader::AddHeadByte(char character) {
    if (Now().destination == Destination::ColorTable) {
        if (character != ';') return;
        if (colors_.size() < MostTableEntries) colors_.push_back(colorEntry_);
        colorEntry_ = 0;
        return;
    }
    const bool control = character >= 0 && character < ' ';
    if (control || character == ';' ||
        (head_.fonts.size() >= MostTableEntries && !head_.fonts.contains(Now().font)))
        return;
    std::string& name = head_.fonts[Now().font].name;
    if (name.size() < LongestFontName && !(name.empty() && character == ' ')) name += character;
    if (IsSymbolFont(name)) head_.fonts[Now().font].symbol = true;
}

void RtfReader::AddListByte(char character) {
    RtfListStyle& style = states_[Now().listOwner].list;
    std::string& text = Now().destination == Destination::ListBefore ? style.before : style.after;
    const bool plain = static_cast<unsigned char>(character) < 0x80;
    if (plain && text.size() < LongestListText) text += character;
}

/// In the pages of the Far East some bytes are the first half of a character.
void RtfReader::AddEncoded(unsigned char byte) {
    const int page = FontInUse().codePage == 0 ? head_.codePage : FontInUse().codePage;
    const bool second = !leadByte_.empty();
    leadByte_ += static_cast<char>(byte);
    if (!second && IsLeadByte(byte, page)) return;
    AddText(Decoded(std::exchange(leadByte_, {}), page));
}

/// Each character of a page is asked for once: texts repeat them, and a conversion costs much.
const std::string& RtfReader::Decoded(const std::string& bytes, int page) {
    const auto found = decoded_.find({page, bytes});
    if (found != decoded_.end()) return found->second;
    return decoded_[{page, bytes}] = FromCodePage(bytes, page);
}

void RtfReader::AddUnicode(int number) {
    skip_ = Now().unicodeSkip;
    const auto unit = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    if (unit >= 0xD800 && unit < 0xDC00) {
        highSurrogate_ = unit;
        return;
    }
    char32_t point = unit;
    if (unit >= 0xDC00 && unit < 0xE000)
        point =
            highSurrogate_ ? 0x10000 + ((highSurrogate_ - 0xD800) << 10) + (unit - 0xDC00) : 0xFFFD;
    highSurrogate_ = 0;
    if (point > 0x10FFFF || point == 0) point = 0xFFFD;
    if (FontInUse().symbol && point >= 0xF000 && point <= 0xF0FF)  // private place of symbol fonts
        return AddText(SymbolFontText(FontInUse().name, static_cast<unsigned char>(point & 0xFF)));
    AddText(FromCodePoints(std::u32string(1, point)));
}

void RtfReader::AddText(std::string_view text) {
    leadByte_.clear();
    if (!InText() || Now().hidden) return;
    if (Now().capitals)
        builder_.AddText(UpperCase(text), Format());
    else
        builder_.AddText(text, Format());
}

void RtfReader::EndParagraph() {
    if (!Now().inTable && Now().list.kind != RtfListStyle::Kind::None && builder_.NeedsListMark())
        builder_.AddListMark(lists_.NextMark(Now().list));
    builder_.EndParagraph(ParagraphFormat(), Format(), Now().inTable);
}

}  // namespace tendo
