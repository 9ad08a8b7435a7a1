#pragma once

#include <string_view>

#include "platform/office/cell_grid.h"

namespace tendo {

/// True when a text is a web page with a table.
bool IsWebPage(std::string_view text);

/// The outermost tables of a web page, one beneath the other; a table within a cell gives the cell
/// its text. A cell over several columns or rows has its value in the first of them. False when
/// there is no table.
bool ReadWebTables(std::string_view text, CellGrid& cells);

}  // namespace tendo
