#pragma once

#include <optional>
#include <string_view>

#include "platform/print/page_flow.h"

namespace tendo {

/// How a table looks. `border`: 3 a comparison, whose sections end with a fine rule and whose
/// totals are bold; 2 a fine rule under each row; 7 a grid; others none.
struct TableStyle {
    int font = 0, boldFont = 0;
    Rgb color = 0, headerColor = 0;
    int border = 0;
    std::optional<Rgb> headerShade;
    int lineSpacing = 100;
};

/// Writes a table at the pen. Cells wrap; a row that fits on a page isn't split; the header row
/// stands again on each page the table goes on. A table wider than the page is narrowed to it.
void WriteTable(PageFlow& flow, const TableStyle& style, std::string_view format,
                std::string_view header, std::string_view body);

}  // namespace tendo
