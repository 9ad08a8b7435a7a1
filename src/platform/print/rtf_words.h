#pragma once

#include <string_view>

namespace tendo {

/// What a backslash word asks for.
enum class RtfMeaning {
    None,
    // Groups: what their text is for.
    Skip,
    FontTable,
    ColorTable,
    Note,
    Substitute,  // skipped but for a group within that is a `Result`
    Result,
    Shown,        // read although marked as one that may be passed over
    NestedProps,  // of a table within a table
    ListStyle,
    TextBefore,
    TextAfter,
    Document,
    // Tables at the head, code pages.
    CharacterSet,
    DefaultFont,
    CodePage,
    NamedCodePage,
    Red,
    Green,
    Blue,
    // Characters.
    Text,
    Unicode,
    UnicodeSkip,
    NoteNumber,
    Font,
    Size,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Strike,
    Color,
    Plain,
    Raised,
    Lowered,
    Superscript,
    Subscript,
    OnBaseLine,
    Hidden,
    Capitals,
    // Paragraphs.
    Paragraph,
    Page,
    PageBefore,
    ParagraphDefaults,
    AlignLeft,
    AlignCenter,
    AlignRight,
    LeftIndent,
    RightIndent,
    FirstIndent,
    SpaceBefore,
    SpaceAfter,
    LineHeight,
    LineMultiple,
    TabKind,
    TabLeader,
    Tab,
    ListKind,
    ListStart,
    ListNumber,
    ListLevel,
    ListText,
    // Tables of the text.
    InTable,
    RowDefaults,
    RowLeft,
    CellBorder,
    BorderStyle,
    NoBorder,
    CellRight,
    Cell,
    Row,
    NestedCell,
    NestedRow,
};

/// A backslash word: its meaning, and the text, code page or kind that it stands for.
struct RtfWord {
    RtfMeaning meaning = RtfMeaning::None;
    std::string_view text = {};
    int value = 0;
};

/// The meaning of a word; `None` for the many that don't matter here.
RtfWord FindRtfWord(std::string_view word);

/// The code page of a character set that a font names, 0 when the document's holds.
int CodePageOfCharacterSet(int set);

}  // namespace tendo
