#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/font_table.h"
#include "platform/print/rich_model.h"

namespace tendo {

/// Text in one font and colour, `rise` twips above the base line; '\n' ends a line, '\t' goes to
/// the next tab stop.
struct StyledRun {
    std::string_view text;
    int font = 0;
    Rgb color = 0;
    int rise = 0;
};

/// The runs of a paragraph with the numbers of their fonts; the texts stay the paragraph's.
std::vector<StyledRun> StyledRuns(FontTable& fonts, const RichParagraph& paragraph);

/// A stretch of one font on a line; `x` counts from the line's own left edge.
struct LineFragment {
    double x = 0, width = 0;
    int font = 0;
    Rgb color = 0;
    std::string text;
    int rise = 0;
};

/// A broken line. `width` without blanks at its end; heights in twips at single spacing. A torn one
/// ends between two letters of a word.
struct TextLine {
    std::vector<LineFragment> fragments;
    double width = 0;
    int ascent = 0, height = 0;
    bool torn = false;
};

/// Where lines may run, in twips. The indents count within `width`.
struct LineShape {
    int width = 0;
    int firstIndent = 0, restIndent = 0;
    std::vector<TabStop> tabs;
};

/// Breaks runs into lines. Blanks at a paragraph's start stay, those at a break vanish; a word
/// wider than the line is broken behind its hyphens or, failing that, between characters. There is
/// always at least one line.
std::vector<TextLine> BreakLines(FontTable& fonts, std::span<const StyledRun> runs,
                                 const LineShape& shape);

}  // namespace tendo
