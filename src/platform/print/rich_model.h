#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/tab_stop.h"

namespace tendo {

/// Text in one format. `rise` lifts it above the base line (below it when negative), in twips.
struct RichRun {
    std::string text;  // UTF-8; '\n' is a line break within the paragraph, '\t' a tab
    FontSpec font;
    Rgb color = 0;
    int rise = 0;
};

enum class RichAlign { Inherit, Left, Center, Right };

/// Sides of a cell, to be added up.
namespace cell_side {
inline constexpr unsigned Left = 1, Top = 2, Right = 4, Bottom = 8, All = 15;
}

/// A cell of a table's row; `right` is its edge in twips from the text's left edge, 0 when unknown.
struct RichCell {
    int right = 0;
    RichAlign align = RichAlign::Inherit;
    unsigned lines = 0;  // sides drawn with a line
    friend bool operator==(const RichCell&, const RichCell&) = default;
};

/// Indents and spaces in twips; `firstIndent` counts from `leftIndent`. Lines are `lineSpacing`
/// percent of their height apart and at least `leastLine` twips, or just `exactLine` when it is
/// given.
struct RichParagraph {
    RichAlign align = RichAlign::Inherit;
    int leftIndent = 0, rightIndent = 0, firstIndent = 0;
    int spaceBefore = 0, spaceAfter = 0;
    int lineSpacing = 100, leastLine = 0, exactLine = 0;
    std::vector<TabStop> tabs;
    bool bullet = false;          // a point of a list: its text begins with the mark and a tab
    bool pageBefore = false;      // begins on a new page
    std::vector<RichCell> cells;  // of a table's row: tabs part its cells; none in other paragraphs
    std::vector<RichRun> runs;
};

/// What a bulleted paragraph begins with.
inline constexpr std::string_view BulletMark = "\u2022\t";

struct RichText {
    std::vector<RichParagraph> paragraphs;
};

}  // namespace tendo
