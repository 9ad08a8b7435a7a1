#include "platform/print/rtf_reader.h"

#include <algorithm>
#include <array>

#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t DeepestGroup = 100;
constexpr std::size_t MostTableEntries = 1000;
constexpr int MostTabs = 50;
constexpr int LargestIndent = 8640;

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

int HexValue(char character) {
    if (IsDigit(character)) return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

/// Backslash words that stand for a character.
struct CharacterWord {
    std::string_view word, text;
};
constexpr std::array CharacterWords = {
    CharacterWord{"tab", "\t"},           CharacterWord{"cell", "\t"},
    CharacterWord{"line", "\n"},          CharacterWord{"bullet", "\u2022"},
    CharacterWord{"endash", "\u2013"},    CharacterWord{"emdash", "\u2014"},
    CharacterWord{"lquote", "\u2018"},    CharacterWord{"rquote", "\u2019"},
    CharacterWord{"ldblquote", "\u201C"}, CharacterWord{"rdblquote", "\u201D"},
    CharacterWord{"emspace", " "},        CharacterWord{"enspace", " "}};

/// Groups whose text isn't the document's.
constexpr std::array<std::string_view, 14> SkippedWords = {
    "stylesheet", "info",    "pict",    "object",  "header",  "footer",  "headerl",
    "headerr",    "headerf", "footerl", "footerr", "footerf", "filetbl", "footnote"};

/// Words at the head of a document that name its code page.
struct PageWord {
    std::string_view word;
    int page;
};
constexpr std::array PageWords = {PageWord{"ansi", 1252}, PageWord{"mac", 10000},
                                  PageWord{"pc", 437}, PageWord{"pca", 850}};

/// Code pages of the character sets that fonts name; set 2 is that of symbols.
struct CharacterSet {
    int set, page;
};
constexpr int SymbolSet = 2;
constexpr std::array CharacterSets = {
    CharacterSet{77, 10000}, CharacterSet{128, 932},  CharacterSet{129, 949},
    CharacterSet{134, 936},  CharacterSet{136, 950},  CharacterSet{161, 1253},
    CharacterSet{162, 1254}, CharacterSet{163, 1258}, CharacterSet{177, 1255},
    CharacterSet{178, 1256}, CharacterSet{186, 1257}, CharacterSet{204, 1251},
    CharacterSet{222, 874},  CharacterSet{238, 1250}, CharacterSet{255, 437}};

int PageOfSet(int set) {
    const auto found = std::find_if(CharacterSets.begin(), CharacterSets.end(),
                                    [&](const CharacterSet& entry) { return entry.set == set; });
    return found == CharacterSets.end() ? 0 : found->page;
}

/// What a byte of a symbol font shows; all marks of lists become the one bullet.
std::string SymbolText(unsigned char byte) {
    const bool mark = byte == 0xB7 || byte == 0xA7 || byte == 0xA8 || byte == 0x6C || byte == 0x6E;
    return mark ? "\u2022" : FromWindows1252(std::string(1, static_cast<char>(byte)));
}

}  // namespace

RtfReader::RtfReader(std::string_view text, const RichRun& base) : text_(text), base_(base) {
    base_.text.clear();
    states_.emplace_back().format = base_;
}

RichText RtfReader::Read() {
    while (at_ < text_.size() && !states_.empty())
        Step();
    if (states_.empty()) states_.emplace_back();
    if (!runs_.empty() || result_.paragraphs.empty()) EndParagraph();
    return std::move(result_);
}

void RtfReader::Step() {
    const char character = text_[at_++];
    switch (character) {
        case '{':
            OpenGroup();
            break;
        case '}':
            CloseGroup();
            break;
        case '\\':
            Backslash();
            break;
        case '\r':
        case '\n':
        case '\0':
            break;
        default:
            AddByte(static_cast<unsigned char>(character));
    }
}

void RtfReader::OpenGroup() {
    skipBytes_ = 0;
    if (states_.size() >= DeepestGroup) {
        ++tooDeep_;
        return;
    }
    State copy = Now();
    states_.push_back(std::move(copy));
    starred_ = false;
}

/// The text behind the last closing brace is no part of the document; a brace too many is passed
/// over when nothing was opened.
void RtfReader::CloseGroup() {
    skipBytes_ = 0;
    if (tooDeep_ > 0) {
        --tooDeep_;
        return;
    }
    const bool last = wholeDocument_ && states_.size() == 2;
    if (last && !runs_.empty()) EndParagraph();
    if (states_.size() > 1) states_.pop_back();
    if (states_.size() == 1 && wholeDocument_) at_ = text_.size();
}

void RtfReader::Backslash() {
    if (at_ >= text_.size()) return;
    const char next = text_[at_];
    if (IsLetter(next)) {
        Apply(ReadControl());
        return;
    }
    ++at_;
    switch (next) {
        case '\'':
            HexByte();
            break;
        case '*':
            starred_ = true;
            break;
        case '~':
            AddText("\u00A0");
            break;
        case '_':
            AddText("-");
            break;
        case '-':
            break;  // a place to hyphenate
        case '\r':
        case '\n':
            EndParagraph();
            break;
        default:
            AddByte(static_cast<unsigned char>(next));
    }
}

void RtfReader::HexByte() {
    if (at_ + 1 >= text_.size()) {
        at_ = text_.size();
        return;
    }
    const int high = HexValue(text_[at_]), low = HexValue(text_[at_ + 1]);
    if (high < 0 || low < 0) return;
    at_ += 2;
    if (skipBytes_ > 0) {
        --skipBytes_;
        return;
    }
    if (Now().destination != Destination::Text) return;
    const auto byte = static_cast<unsigned char>(high * 16 + low);
    if (Now().symbolFont)
        AddText(SymbolText(byte));
    else
        AddCodePageByte(byte);
}

/// In the pages of the Far East a byte from 0x81 on is the first half of a character.
void RtfReader::AddCodePageByte(unsigned char byte) {
    const int page = Now().codePage == 0 ? documentPage_ : Now().codePage;
    const bool second = !leadByte_.empty();
    leadByte_ += static_cast<char>(byte);
    if (!second && IsDoubleByteCodePage(page) && byte > 0x80 && byte < 0xFF) return;
    const std::string bytes = std::move(leadByte_);
    leadByte_.clear();
    AddText(FromCodePage(bytes, page));
}

RtfReader::Control RtfReader::ReadControl() {
    const std::size_t start = at_;
    while (at_ < text_.size() && IsLetter(text_[at_]) && at_ - start < 32)
        ++at_;
    Control control;
    control.word = text_.substr(start, at_ - start);
    bool negative = false;
    if (at_ + 1 < text_.size() && text_[at_] == '-' && IsDigit(text_[at_ + 1])) {
        negative = true;
        ++at_;
    }
    while (at_ < text_.size() && IsDigit(text_[at_])) {
        control.number = std::min(control.number * 10 + (text_[at_++] - '0'), 10'000'000);
        control.hasNumber = true;
    }
    if (negative) control.number = -control.number;
    if (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return control;
}

void RtfReader::Apply(const Control& control) {
    if (control.word == "bin") {  // raw bytes follow
        at_ += std::min(static_cast<std::size_t>(std::max(control.number, 0)), text_.size() - at_);
        return;
    }
    if (ApplyDestination(control) || Now().destination == Destination::Skipped) return;
    if (Now().destination == Destination::ColorTable) return ApplyColorEntry(control);
    if (ApplyFont(control) || ApplyParagraph(control) || ApplyCodePage(control)) return;
    ApplyCharacter(control);
}

bool RtfReader::ApplyCodePage(const Control& control) {
    if (control.word == "ansicpg") {
        if (control.number > 0) documentPage_ = control.number;
        return true;
    }
    const auto found = std::find_if(PageWords.begin(), PageWords.end(), [&](const PageWord& entry) {
        return entry.word == control.word;
    });
    if (found == PageWords.end()) return false;
    documentPage_ = found->page;
    return true;
}

bool RtfReader::ApplyDestination(const Control& control) {
    if (tooDeep_ > 0) return true;
    const auto enter = [&](Destination destination) {
        Now().destination = destination;
        starred_ = false;
        return true;
    };
    if (control.word == "fonttbl") return enter(Destination::FontTable);
    if (control.word == "colortbl") {
        colors_.clear();
        colorEntry_ = base_.color;  // the first entry is the automatic colour
        return enter(Destination::ColorTable);
    }
    const bool skipped =
        std::find(SkippedWords.begin(), SkippedWords.end(), control.word) != SkippedWords.end();
    if (starred_ || skipped) return enter(Destination::Skipped);
    if (control.word == "rtf") {
        wholeDocument_ = true;
        Now().format = base_;
        FontSpec& font = Now().format.font;
        font.sizeTwips = 240;
        font.bold = font.italic = font.underline = font.strike = false;
        return true;
    }
    return false;
}

bool RtfReader::ApplyFont(const Control& control) {
    if (control.word == "f" && Now().destination == Destination::FontTable) {
        if (fonts_.size() < MostTableEntries) fonts_.push_back({control.number, "", false});
        return true;
    }
    if (control.word == "fcharset" && Now().destination == Destination::FontTable) {
        if (fonts_.empty()) return true;
        fonts_.back().symbol = control.number == SymbolSet;
        fonts_.back().codePage = PageOfSet(control.number);
        return true;
    }
    if (Now().destination == Destination::FontTable) return true;
    FontSpec& font = Now().format.font;
    if (control.word == "f")
        SelectFont(control.number);
    else if (control.word == "fs")
        font.sizeTwips = std::clamp(control.number, 2, 400) * 10;
    else if (control.word == "b")
        font.bold = control.On();
    else if (control.word == "i")
        font.italic = control.On();
    else if (control.word == "ul")
        font.underline = control.On();
    else if (control.word == "ulnone")
        font.underline = false;
    else if (control.word == "strike")
        font.strike = control.On();
    else if (control.word == "plain") {
        Now().symbolFont = false;
        Now().codePage = 0;
        const int size = font.sizeTwips;
        font = base_.font;
        font.sizeTwips = size;
        font.bold = font.italic = font.underline = font.strike = false;
        Now().format.color = base_.color;
    } else if (control.word == "cf") {
        const auto index = static_cast<std::size_t>(std::max(control.number, 0));
        Now().format.color = index < colors_.size() ? colors_[index] : base_.color;
    } else {
        return false;
    }
    return true;
}

bool RtfReader::ApplyParagraph(const Control& control) {
    RichParagraph& paragraph = Now().paragraph;
    const int indent = std::clamp(control.number, -LargestIndent, LargestIndent);
    if (control.word == "par" || control.word == "row" || control.word == "sect" ||
        control.word == "page")
        EndParagraph();
    else if (control.word == "pard")
        paragraph = {};
    else if (control.word == "ql" || control.word == "qj")
        paragraph.align = RichAlign::Left;
    else if (control.word == "qc")
        paragraph.align = RichAlign::Center;
    else if (control.word == "qr")
        paragraph.align = RichAlign::Right;
    else if (control.word == "li")
        paragraph.leftIndent = std::max(indent, 0);
    else if (control.word == "ri")
        paragraph.rightIndent = std::max(indent, 0);
    else if (control.word == "fi")
        paragraph.firstIndent = indent;
    else if (control.word == "sb")
        paragraph.spaceBefore = std::max(indent, 0);
    else if (control.word == "sa")
        paragraph.spaceAfter = std::max(indent, 0);
    else if (control.word == "tx") {
        if (paragraph.tabs.size() < MostTabs && indent > 0) paragraph.tabs.push_back(indent);
    } else {
        return false;
    }
    return true;
}

bool RtfReader::ApplyCharacter(const Control& control) {
    if (control.word == "u" && control.hasNumber) {
        AddUnicode(control.number);
        return true;
    }
    if (control.word == "pntext" || control.word == "listtext") {
        listText_ = true;
        return true;
    }
    if (control.word == "uc") {
        Now().unicodeSkip = std::clamp(control.number, 0, 16);
        return true;
    }
    const auto found =
        std::find_if(CharacterWords.begin(), CharacterWords.end(),
                     [&](const CharacterWord& entry) { return entry.word == control.word; });
    if (found == CharacterWords.end()) return false;
    AddText(found->text);
    return true;
}

void RtfReader::ApplyColorEntry(const Control& control) {
    const auto value = static_cast<Rgb>(std::clamp(control.number, 0, 255));
    const auto put = [&](int shift) {
        colorEntry_ = (colorEntry_ & ~(Rgb{255} << shift)) | (value << shift);
    };
    if (control.word == "red") put(16);
    if (control.word == "green") put(8);
    if (control.word == "blue") put(0);
}

void RtfReader::AddByte(unsigned char byte) {
    if (skipBytes_ > 0) {
        --skipBytes_;
        return;
    }
    if (Now().destination == Destination::FontTable || Now().destination == Destination::ColorTable)
        return AddTableText(static_cast<char>(byte));
    if (Now().symbolFont && byte >= 0x60) return AddText(SymbolText(byte));
    const char character = static_cast<char>(byte);
    AddText({&character, 1});
}

void RtfReader::AddTableText(char character) {
    if (Now().destination == Destination::ColorTable) {
        if (character != ';') return;
        if (colors_.size() < MostTableEntries) colors_.push_back(colorEntry_);
        colorEntry_ = 0;
    } else if (!fonts_.empty() && character != ';' && fonts_.back().name.size() < 64) {
        fonts_.back().name += character;
    }
}

/// Text joins the run before it when the format is the same. Bytes above 127 that stand in the text
/// as they are belong to a text in UTF-8.
void RtfReader::AddText(std::string_view text) {
    if (Now().destination != Destination::Text || tooDeep_ > 0) return;
    const RichRun& format = Now().format;
    if (runs_.empty() || !(runs_.back().font == format.font) || runs_.back().color != format.color)
        runs_.push_back(format);
    runs_.back().text += text;
}

void RtfReader::AddUnicode(int number) {
    skipBytes_ = Now().unicodeSkip;
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
    if (Now().symbolFont && point >= 0xF000 && point <= 0xF0FF)  // private place of symbol fonts
        return AddText(SymbolText(static_cast<unsigned char>(point - 0xF000)));
    AddText(FromCodePoints(std::u32string(1, point)));
}

void RtfReader::EndParagraph() {
    if (Now().destination != Destination::Text || tooDeep_ > 0) return;
    RichParagraph paragraph = Now().paragraph;
    if (runs_.empty()) runs_.push_back(Now().format);
    paragraph.runs = std::move(runs_);
    paragraph.bullet = listText_ && StartsWith(paragraph.runs.front().text, "\u2022");
    listText_ = false;
    runs_.clear();
    result_.paragraphs.push_back(std::move(paragraph));
}

/// A font that isn't in the table keeps the font in use: behind a page break the table is lost.
void RtfReader::SelectFont(int number) {
    const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const Font& font) { return font.number == number; });
    if (found == fonts_.end()) return;
    Now().codePage = found->codePage;
    Now().symbolFont = found->symbol || found->name == "Symbol" || found->name == "Wingdings";
    if (!Now().symbolFont && !found->name.empty())
        Now().format.font.family = std::string(Trimmed(found->name));
}

}  // namespace tendo
