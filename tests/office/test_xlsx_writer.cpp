#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/office/read_workbook.h"
#include "platform/office/xlsx_writer.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr std::array<SheetColumn, 2> Columns{{{30, false}, {12, true}}};

TEST(XlsxWriter, WhatIsWrittenReadsBackTheSame) {
    CellGrid cells;
    cells.PutText(0, 0, "Description");
    cells.PutText(0, 1, "Unit Cost");
    cells.PutText(1, 0, "Elbow <90\xC2\xB0> & \"long\"");
    cells.Put(1, 1, CellKind::Number, 12.5);
    cells.Put(3, 0, CellKind::Date, 35919);
    cells.Put(3, 2, CellKind::Boolean, 1);
    cells.PutText(4, 0, "0012");
    cells.Sort();

    const Workbook book = ReadWorkbook(WriteXlsx(cells, "Materials", Columns), "book.xlsx");

    EXPECT_EQ(book.kind, WorkbookKind::Xlsx);
    EXPECT_EQ(book.sheetName, "Materials");
    EXPECT_EQ(book.RowCount(), 5u);
    EXPECT_EQ(book.ColumnCount(), 3u);
    EXPECT_EQ(book.Cell(1, 0).text, "Elbow <90\xC2\xB0> & \"long\"");
    EXPECT_EQ(book.Cell(1, 1).kind, CellKind::Number);
    EXPECT_EQ(book.Cell(1, 1).number, 12.5);
    EXPECT_EQ(book.Cell(3, 0).kind, CellKind::Date);
    EXPECT_EQ(book.Cell(3, 0).number, 35919);
    EXPECT_EQ(book.Cell(3, 2).kind, CellKind::Boolean);
    EXPECT_EQ(book.Cell(4, 0).kind, CellKind::Text);
    EXPECT_EQ(book.Cell(4, 0).text, "0012");
}

TEST(XlsxWriter, AnEmptySheetIsAWorkbookToo) {
    const Workbook book = ReadWorkbook(WriteXlsx(CellGrid(), "Empty", {}), "book.xlsx");
    EXPECT_EQ(book.sheetName, "Empty");
    EXPECT_EQ(book.RowCount(), 0u);
}

TEST(XlsxWriter, ATextLongerThanACellHoldsIsRefused) {
    CellGrid cells;
    cells.PutText(0, 0, std::string(40'000, 'x'));
    cells.Sort();
    try {
        WriteXlsx(cells, "S", {});
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error_number::OutOfMemory);
    }
}

}  // namespace
}  // namespace tendo
