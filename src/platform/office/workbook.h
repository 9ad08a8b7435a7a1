#pragma once

#include <string>

#include "platform/office/cell_grid.h"

namespace tendo {

/// What a file is by its content; its name says nothing.
enum class WorkbookKind { Xls, Xlsx, WebPage, SeparatedText };

/// The first sheet of a workbook.
struct Workbook {
    WorkbookKind kind = WorkbookKind::SeparatedText;
    /// A sentence for the user where the content is not what the name says ("This .xls file is
    /// really a web page; its table was read."); else empty.
    std::string remark;
    /// Empty where the format has no names of sheets.
    std::string sheetName;
    CellGrid cells;

    std::size_t RowCount() const { return cells.RowCount(); }
    std::size_t ColumnCount() const { return cells.ColumnCount(); }
    CellValue Cell(std::size_t row, std::size_t column) const { return cells.Cell(row, column); }
};

}  // namespace tendo
