#include "materials/book_export.h"

#include <array>

#include "platform/files/paths.h"
#include "platform/office/separated_text.h"
#include "platform/office/xlsx_writer.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr std::array<int, BookColumns.size()> columnOrder = {2, 1, 3, 4, 0};
constexpr std::array<SheetColumn, BookColumns.size()> sheetColumns = {
    {{18, false}, {36, false}, {12, true}, {12, true}, {20, false}}};

void PutCell(CellGrid& cells, std::size_t row, std::size_t column, const BookRows& rows,
             int bookColumn) {
    const std::string text = rows.EditText(static_cast<int>(row) - 1, bookColumn);
    double cost = 0;
    if (BookColumns.at(static_cast<std::size_t>(bookColumn)).money && ReadNumber(text, cost))
        cells.Put(row, column, CellKind::Number, cost);
    else if (!text.empty())
        cells.PutText(row, column, text);
}

}  // namespace

std::string ExportOfBook(const BookRows& rows, std::string_view name) {
    CellGrid cells;
    for (std::size_t column = 0; column < columnOrder.size(); ++column)
        cells.PutText(0, column,
                      BookColumns.at(static_cast<std::size_t>(columnOrder[column])).heading);
    for (std::size_t row = 1; row <= static_cast<std::size_t>(rows.Count()); ++row)
        for (std::size_t column = 0; column < columnOrder.size(); ++column)
            PutCell(cells, row, column, rows, columnOrder[column]);
    cells.Sort();
    if (EqualsNoCase(ExtensionOf(name), ".csv")) return WriteCsv(cells);
    return WriteXlsx(cells, "Materials", sheetColumns);
}

}  // namespace tendo
