#include "platform/print/rtf_words.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "platform/print/rich_model.h"
#include "platform/print/rtf_list.h"
#include "platform/print/tab_stop.h"

namespace tendo {

namespace {

using Meaning = RtfMeaning;

/// Groups whose text isn't the document's, where no star says so.
constexpr std::string_view SkippedGroups[] = {"stylesheet", "info",       "pict",
                                              "header",     "footer",     "headerl",
                                              "headerr",    "headerf",    "footerl",
                                              "footerr",    "footerf",    "filetbl",
                                              "fldinst",    "datafield",  "annotation",
                                              "atnid",      "atnauthor",  "atnref",
                                              "xe",         "tc",         "rxe",
                                              "bkmkstart",  "bkmkend",    "template",
                                              "listtable",  "ftnsep",     "ftnsepc",
                                              "ftncn",      "aftnsep",    "aftnsepc",
                                              "aftncn",     "nonshppict", "nonesttables",
                                              "objdata",    "objclass",   "objname",
                                              "sp",         "rsidtbl",    "listoverridetable",
                                              "revtbl",     "private"};

struct Entry {
    std::string_view word;
    RtfWord meaning;
};

constexpr RtfWord Kind(RtfListStyle::Kind kind) {
    return {Meaning::ListKind, {}, static_cast<int>(kind)};
}

constexpr Entry Entries[] = {
    {"fonttbl", {Meaning::FontTable}},
    {"colortbl", {Meaning::ColorTable}},
    {"footnote", {Meaning::Note}},
    {"upr", {Meaning::Substitute}},
    {"object", {Meaning::Substitute}},
    {"ud", {Meaning::Result}},
    {"result", {Meaning::Result}},
    {"nesttableprops", {Meaning::NestedProps}},
    {"fldrslt", {Meaning::Shown}},
    {"pn", {Meaning::ListStyle}},
    {"pntxtb", {Meaning::TextBefore}},
    {"pntxta", {Meaning::TextAfter}},
    {"rtf", {Meaning::Document}},

    {"fcharset", {Meaning::CharacterSet}},
    {"deff", {Meaning::DefaultFont}},
    {"ansicpg", {Meaning::CodePage}},
    {"ansi", {Meaning::NamedCodePage, {}, 1252}},
    {"mac", {Meaning::NamedCodePage, {}, 10000}},
    {"pc", {Meaning::NamedCodePage, {}, 437}},
    {"pca", {Meaning::NamedCodePage, {}, 850}},
    {"red", {Meaning::Red}},
    {"green", {Meaning::Green}},
    {"blue", {Meaning::Blue}},

    {"tab", {Meaning::Text, "\t"}},
    {"line", {Meaning::Text, "\n"}},
    {"lbr", {Meaning::Text, "\n"}},
    {"bullet", {Meaning::Text, "\u2022"}},
    {"endash", {Meaning::Text, "\u2013"}},
    {"emdash", {Meaning::Text, "\u2014"}},
    {"lquote", {Meaning::Text, "\u2018"}},
    {"rquote", {Meaning::Text, "\u2019"}},
    {"ldblquote", {Meaning::Text, "\u201C"}},
    {"rdblquote", {Meaning::Text, "\u201D"}},
    {"emspace", {Meaning::Text, " "}},
    {"enspace", {Meaning::Text, " "}},
    {"qmspace", {Meaning::Text, " "}},
    {"u", {Meaning::Unicode}},
    {"uc", {Meaning::UnicodeSkip}},
    {"chftn", {Meaning::NoteNumber}},

    {"f", {Meaning::Font}},
    {"fs", {Meaning::Size}},
    {"b", {Meaning::Bold}},
    {"i", {Meaning::Italic}},
    {"ul", {Meaning::Underline}},
    {"uld", {Meaning::Underline}},
    {"uldash", {Meaning::Underline}},
    {"uldashd", {Meaning::Underline}},
    {"uldb", {Meaning::Underline}},
    {"ulth", {Meaning::Underline}},
    {"ulw", {Meaning::Underline}},
    {"ulwave", {Meaning::Underline}},
    {"ulnone", {Meaning::NoUnderline}},
    {"strike", {Meaning::Strike}},
    {"striked", {Meaning::Strike}},
    {"cf", {Meaning::Color}},
    {"plain", {Meaning::Plain}},
    {"up", {Meaning::Raised}},
    {"dn", {Meaning::Lowered}},
    {"super", {Meaning::Superscript}},
    {"sub", {Meaning::Subscript}},
    {"nosupersub", {Meaning::OnBaseLine}},
    {"v", {Meaning::Hidden}},
    {"deleted", {Meaning::Hidden}},
    {"caps", {Meaning::Capitals}},

    {"par", {Meaning::Paragraph}},
    {"sect", {Meaning::Paragraph}},
    {"page", {Meaning::Page}},
    {"pagebb", {Meaning::PageBefore}},
    {"pard", {Meaning::ParagraphDefaults}},
    {"ql", {Meaning::AlignLeft}},
    {"qj", {Meaning::AlignLeft}},
    {"qc", {Meaning::AlignCenter}},
    {"qr", {Meaning::AlignRight}},
    {"li", {Meaning::LeftIndent}},
    {"ri", {Meaning::RightIndent}},
    {"fi", {Meaning::FirstIndent}},
    {"sb", {Meaning::SpaceBefore}},
    {"sa", {Meaning::SpaceAfter}},
    {"sl", {Meaning::LineHeight}},
    {"slmult", {Meaning::LineMultiple}},
    {"tqc", {Meaning::TabKind, {}, static_cast<int>(TabAlign::Center)}},
    {"tqr", {Meaning::TabKind, {}, static_cast<int>(TabAlign::Right)}},
    {"tqdec", {Meaning::TabKind, {}, static_cast<int>(TabAlign::Decimal)}},
    {"tldot", {Meaning::TabLeader, ".", 0}},
    {"tlmdot", {Meaning::TabLeader, ".", 0}},
    {"tlhyph", {Meaning::TabLeader, "-", 0}},
    {"tlul", {Meaning::TabLeader, "_", 0}},
    {"tx", {Meaning::Tab}},
    {"pnlvlblt", Kind(RtfListStyle::Kind::Bullet)},
    {"pndec", Kind(RtfListStyle::Kind::Decimal)},
    {"pnucrm", Kind(RtfListStyle::Kind::UpperRoman)},
    {"pnlcrm", Kind(RtfListStyle::Kind::LowerRoman)},
    {"pnucltr", Kind(RtfListStyle::Kind::UpperLetter)},
    {"pnlcltr", Kind(RtfListStyle::Kind::LowerLetter)},
    {"pnstart", {Meaning::ListStart}},
    {"ls", {Meaning::ListNumber}},
    {"ilvl", {Meaning::ListLevel}},
    {"listtext", {Meaning::ListText}},
    {"pntext", {Meaning::ListText}},

    {"intbl", {Meaning::InTable}},
    {"trowd", {Meaning::RowDefaults}},
    {"trleft", {Meaning::RowLeft}},
    {"clbrdrl", {Meaning::CellBorder, {}, cell_side::Left}},
    {"clbrdrt", {Meaning::CellBorder, {}, cell_side::Top}},
    {"clbrdrr", {Meaning::CellBorder, {}, cell_side::Right}},
    {"clbrdrb", {Meaning::CellBorder, {}, cell_side::Bottom}},
    {"brdrs", {Meaning::BorderStyle}},
    {"brdrth", {Meaning::BorderStyle}},
    {"brdrdb", {Meaning::BorderStyle}},
    {"brdrdot", {Meaning::BorderStyle}},
    {"brdrdash", {Meaning::BorderStyle}},
    {"brdrhair", {Meaning::BorderStyle}},
    {"brdrnone", {Meaning::NoBorder}},
    {"brdrnil", {Meaning::NoBorder}},
    {"cellx", {Meaning::CellRight}},
    {"cell", {Meaning::Cell}},
    {"row", {Meaning::Row}},
    {"nestcell", {Meaning::NestedCell}},
    {"nestrow", {Meaning::NestedRow}},
};

using WordMap = std::unordered_map<std::string_view, RtfWord>;

WordMap MakeWords() {
    WordMap words;
    for (const std::string_view word : SkippedGroups)
        words[word] = {Meaning::Skip};
    for (const Entry& entry : Entries)
        words[entry.word] = entry.meaning;
    return words;
}

struct CharacterSet {
    int set, page;
};
constexpr std::array CharacterSets = {
    CharacterSet{77, 10000}, CharacterSet{128, 932},  CharacterSet{129, 949},
    CharacterSet{134, 936},  CharacterSet{136, 950},  CharacterSet{161, 1253},
    CharacterSet{162, 1254}, CharacterSet{163, 1258}, CharacterSet{177, 1255},
    CharacterSet{178, 1256}, CharacterSet{186, 1257}, CharacterSet{204, 1251},
    CharacterSet{222, 874},  CharacterSet{238, 1250}, CharacterSet{255, 437}};

}  // namespace

RtfWord FindRtfWord(std::string_view word) {
    static const WordMap words = MakeWords();
    const auto found = words.find(word);
    return found == words.end() ? RtfWord() : found->second;
}

int CodePageOfCharacterSet(int set) {
    const auto found = std::find_if(CharacterSets.begin(), CharacterSets.end(),
                                    [&](const CharacterSet& entry) { return entry.set == set; });
    return found == CharacterSets.end() ? 0 : found->page;
}

}  // namespace tendo
