#pragma once

#include <string>
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

}  // namespace tendo
