#pragma once

#include <string>
#include <string_view>

#include "platform/office/cell_grid.h"

namespace tendo {

/// The sign that parts the values of a text: tab, ';' or ',', the one that does it most evenly in
/// the first lines. A first line "sep=;" names it.
char SeparatorOf(std::string_view text);

/// Reads lines of separated values. Quotes may enclose separators, line ends and doubled quotes.
/// False when there are more lines than a sheet can hold.
bool ReadSeparatedText(std::string_view text, CellGrid& cells);

/// A sheet as lines of values between commas, with the line ends of Windows; dates as
/// "1998-05-04", booleans as TRUE and FALSE. Empty cells at the end of a line are left out. The
/// text is UTF-8, with its mark in front only when there are characters beyond ASCII.
std::string WriteCsv(const CellGrid& cells);

}  // namespace tendo
