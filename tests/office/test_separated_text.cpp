#include <gtest/gtest.h>

#include "platform/office/local_number.h"
#include "platform/office/read_workbook.h"
#include "platform/office/separated_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

TEST(SeparatedText, QuotesMayEncloseSeparatorsLineEndsAndDoubledQuotes) {
    const Workbook book = ReadWorkbook("a,\"b,\"\"c\"\"\nd\",12.5\r\n0012,,-3\n", "p.csv");
    EXPECT_EQ(book.kind, WorkbookKind::SeparatedText);
    EXPECT_EQ(book.remark, "");
    EXPECT_EQ(book.RowCount(), 2u);
    EXPECT_EQ(book.ColumnCount(), 3u);
    EXPECT_EQ(book.Cell(0, 1).text, "b,\"c\"\nd");
    EXPECT_EQ(book.Cell(0, 2).kind, CellKind::Number);
    EXPECT_EQ(book.Cell(0, 2).number, 12.5);
    EXPECT_EQ(book.Cell(1, 0).kind, CellKind::Text);
    EXPECT_EQ(book.Cell(1, 1).kind, CellKind::Empty);
    EXPECT_EQ(book.Cell(1, 2).number, -3);
}

TEST(SeparatedText, TheSeparatorIsTheOneThatPartsTheLinesEvenly) {
    EXPECT_EQ(SeparatorOf("a;1,5\nb;2,5\n"), ';');
    EXPECT_EQ(SeparatorOf("a,b\tc\nd\te\n"), '\t');
    EXPECT_EQ(SeparatorOf("a,b\nc,d\n"), ',');
    EXPECT_EQ(SeparatorOf("sep=;\na,b;c\n"), ';');
}

TEST(SeparatedText, WindowsAndSixteenBitTextsAreRead) {
    EXPECT_EQ(ReadWorkbook("Gr\xF6\xDF"
                           "e,1\n",
                           "a.csv")
                  .Cell(0, 0)
                  .text,
              "Größe");
    const std::string wide(
        "\xFF\xFE"
        "a\0\t\0b\0\n\0",
        10);
    EXPECT_EQ(ReadWorkbook(wide, "a.txt").Cell(0, 1).text, "b");
}

TEST(SeparatedText, ATextNamedXlsIsReadAndTold) {
    const Workbook book = ReadWorkbook("a\tb\n", "Prices.xls");
    EXPECT_EQ(book.remark, "This .xls file is really a text with separators; its lines were read.");
}

TEST(SeparatedText, MoreLinesThanASheetHoldsAreRefused) {
    EXPECT_THROW(ReadWorkbook(std::string(MaximumRows + 1, '\n'), "a.csv"), RuntimeError);
}

TEST(SeparatedText, WhatIsWrittenReadsBackTheSame) {
    CellGrid cells;
    cells.PutText(0, 0, "a \"b\", c");
    cells.Put(0, 2, CellKind::Number, -0.25);
    cells.Put(2, 0, CellKind::Boolean, 1);
    cells.Put(2, 1, CellKind::Date, 35919);  // 4 May 1998
    cells.Sort();
    EXPECT_EQ(WriteCsv(cells), "\"a \"\"b\"\", c\",,-0.25\r\n\r\nTRUE,1998-05-04\r\n");
}

TEST(SeparatedText, OnlyATextBeyondAsciiIsWrittenWithTheMarkOfUtf8) {
    CellGrid cells;
    cells.PutText(0, 0, "Duct 6\"");
    cells.Sort();
    EXPECT_EQ(WriteCsv(cells), "\"Duct 6\"\"\"\r\n");
    cells.PutText(1, 0, "Größe");
    cells.PutText(1, 1, "5 €");
    cells.Sort();
    const std::string text = WriteCsv(cells);
    EXPECT_EQ(text, "\xEF\xBB\xBF\"Duct 6\"\"\"\r\nGröße,5 €\r\n");
    const Workbook book = ReadWorkbook(text, "p.csv");
    EXPECT_EQ(book.Cell(0, 0).text, "Duct 6\"");  // the mark is no part of the first value
    EXPECT_EQ(book.Cell(1, 0).text, "Größe");
    EXPECT_EQ(ReadWorkbook(text.substr(3), "p.csv").Cell(1, 1).text, "5 €");
}

TEST(LocalNumber, NumbersOfSeveralCountriesAreRead) {
    const std::pair<const char*, double> cases[] = {
        {"1,234.50", 1234.5}, {"1.234,50", 1234.5}, {"1 234,50", 1234.5}, {"1'234.50", 1234.5},
        {"12,5", 12.5},       {"1,234", 1234},      {"1.234", 1.234},     {"$12.00", 12},
        {"12,50 €", 12.5},    {"(12.00)", -12},     {"12.00-", -12},      {"1.234.567", 1234567}};
    for (const auto& [text, expected] : cases) {
        double value = 0;
        EXPECT_TRUE(ReadLocalNumber(text, value)) << text;
        EXPECT_DOUBLE_EQ(value, expected) << text;
    }
}

TEST(LocalNumber, WhatIsNoNumberLeavesTheValueAlone) {
    for (const char* text : {"", "-", ".", "12abc", "1,23,4", "1.2.3", "A-7", "()"}) {
        double value = 7;
        EXPECT_FALSE(ReadLocalNumber(text, value)) << text;
        EXPECT_EQ(value, 7) << text;
    }
}

TEST(WebPage, ATableNamedXlsIsReadAndTold) {
    const Workbook book = ReadWorkbook(
        "<html><style>td{}</style><table><tr><th colspan=2>A&amp;B<th>C</tr>"
        "<tr><td rowspan=2>x<td>12.5<td>a<br>b</tr><!-- <td> --><tr><td>q</table></html>",
        "Prices.xls");
    EXPECT_EQ(book.kind, WorkbookKind::WebPage);
    EXPECT_EQ(book.remark, "This .xls file is really a web page; its table was read.");
    EXPECT_EQ(book.Cell(0, 0).text, "A&B");
    EXPECT_EQ(book.Cell(0, 2).text, "C");
    EXPECT_EQ(book.Cell(1, 1).number, 12.5);
    EXPECT_EQ(book.Cell(1, 2).text, "a\nb");
    EXPECT_EQ(book.Cell(2, 1).text, "q");
}

TEST(WebPage, EnormousSpansAreHeldWithinBounds) {
    const Workbook book = ReadWorkbook(
        "<table><tr><td colspan=99999999 rowspan=99999999>a<td>b<tr><td>c</table>", "a.htm");
    EXPECT_EQ(book.RowCount(), 1u);
    EXPECT_EQ(book.ColumnCount(), 1u);
}

}  // namespace
}  // namespace tendo
