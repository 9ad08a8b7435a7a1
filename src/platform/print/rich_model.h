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
    bool bullet = false;  // a point of a list: its text begins with the mark and a tab
    std::vector<RichRun> runs;
};

/// What a bulleted paragraph begins with.
inline constexpr std::string_view BulletMark = "\u2022\t";

struct RichText {
    std::vector<RichParagraph> paragraphs;
};

}  // namespace tendo
