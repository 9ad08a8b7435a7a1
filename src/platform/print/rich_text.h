#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print/document.h"

namespace tendo {

/// Text in one format.
struct RichRun {
    std::string text;  // UTF-8; '\n' is a line break within the paragraph, '\t' a tab
    FontSpec font;
    Rgb color = 0;
};

enum class RichAlign { Inherit, Left, Center, Right };

/// Indents and spaces in twips; `firstIndent` counts from `leftIndent`.
struct RichParagraph {
    RichAlign align = RichAlign::Inherit;
    int leftIndent = 0, rightIndent = 0, firstIndent = 0;
    int spaceBefore = 0, spaceAfter = 0;
    std::vector<int> tabs;
    std::vector<RichRun> runs;
};

struct RichText {
    std::vector<RichParagraph> paragraphs;
};

/// True when the text is to be read as rich text: a group that holds at least one backslash word.
bool IsRichText(std::string_view text);

/// Reads rich text. Format the text doesn't name itself is that of `base`; a whole document
/// ("{\rtf1") starts from twelve points, regular. Never fails: broken groups end with the text,
/// groups deeper than 100 and numbers out of range are passed over, pictures and objects are left
/// out.
RichText ReadRichText(std::string_view text, const RichRun& base);

/// A plain text as one paragraph in one format.
RichText PlainAsRich(std::string_view text, const RichRun& base);

/// A text that may be rich or plain. What remains of a plain text after the footnote markers were
/// taken out of it can hold a brace without a partner at either end; it isn't shown.
RichText ReadRichOrPlainText(std::string_view text, const RichRun& base);

}  // namespace tendo
