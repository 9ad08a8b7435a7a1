#pragma once

#include <span>
#include <string>

#include "platform/office/cell_grid.h"

namespace tendo {

/// How a column of a written sheet looks.
struct SheetColumn {
    double width = 10;   // in characters
    bool money = false;  // numbers with a dollar sign and two decimals
};

/// A sheet as the bytes of an .xlsx workbook. Row 0 is the heading: it is bold and stays in sight.
/// Dates are shown as dates. Columns beyond those told have the usual width. RuntimeError 70 or
/// 75 when the folder for temporary files can't be used, 7 for texts longer than a cell may hold.
std::string WriteXlsx(const CellGrid& cells, const std::string& sheetName,
                      std::span<const SheetColumn> columns);

}  // namespace tendo
