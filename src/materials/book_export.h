#pragma once

#include <string>
#include <string_view>

#include "materials/book_rows.h"

namespace tendo {

/// The materials of a price book, in the order of the grid, as the bytes of a workbook (".xlsx") or
/// of a text with commas (".csv", by the ending of `name`). The first four columns stand as the
/// import wants them: part number, description, unit cost, list cost; the category follows.
std::string ExportOfBook(const BookRows& rows, std::string_view name);

}  // namespace tendo
