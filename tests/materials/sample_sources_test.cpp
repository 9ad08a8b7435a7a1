#include <gtest/gtest.h>

#include "platform/text/runtime_error.h"
#include "programs/sample_data/csv.h"
#include "programs/sample_data/tables.h"

namespace tendo {
namespace {

TEST(Csv, CellsAreSplitAtCommasAndRowsAtLineEnds) {
    const std::vector<CsvRow> rows = ParseCsv("a,b,\r\n,,\nlast");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], (CsvRow{"a", "b", ""}));
    EXPECT_EQ(rows[1], (CsvRow{"", "", ""}));
    EXPECT_EQ(rows[2], (CsvRow{"last"}));
}

TEST(Csv, AQuotedCellHoldsCommasLineEndsAndDoubledQuotes) {
    const std::vector<CsvRow> rows = ParseCsv("\"a, b\",\"3/8\"\" line\",\"two\nlines\"\n");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0], (CsvRow{"a, b", "3/8\" line", "two\nlines"}));
}

TEST(Csv, EmptyLinesArePassedOver) {
    EXPECT_TRUE(ParseCsv("").empty());
    EXPECT_EQ(ParseCsv("\n\na\n\n").size(), 1U);
}

TEST(Csv, BrokenTextIsRefused) {
    EXPECT_THROW(ParseCsv("a,\"never closed"), RuntimeError);
    EXPECT_THROW(ParseCsv("\"a\"b,c\n"), RuntimeError);
    EXPECT_THROW(ParseCsv(std::string(300, ',')), RuntimeError);
}

TEST(ColumnHeads, EndInTheirType) {
    const jet::Column text = ColumnOfHead("Part Number Text(255)");
    EXPECT_EQ(text.name, "Part Number");
    EXPECT_EQ(text.type, jet::ColumnType::Text);
    EXPECT_EQ(text.size, 255);
    EXPECT_EQ(ColumnOfHead("EPA Boolean").type, jet::ColumnType::Boolean);
    EXPECT_EQ(ColumnOfHead("DealerCost Currency").type, jet::ColumnType::Currency);
    EXPECT_THROW(ColumnOfHead("Model Words"), RuntimeError);
    EXPECT_THROW(ColumnOfHead("Model"), RuntimeError);
    EXPECT_THROW(ColumnOfHead(""), RuntimeError);
}

TEST(CellValues, AreReadByTheirType) {
    EXPECT_EQ(ValueOfCell("Yes", jet::ColumnType::Boolean), jet::Value(true));
    EXPECT_EQ(ValueOfCell("No", jet::ColumnType::Boolean), jet::Value(false));
    EXPECT_EQ(ValueOfCell("2636.94", jet::ColumnType::Currency),
              jet::Value(std::int64_t{26369400}));
    EXPECT_EQ(ValueOfCell("14.5", jet::ColumnType::Single), jet::Value(14.5));
    EXPECT_EQ(ValueOfCell("-3", jet::ColumnType::Integer), jet::Value(std::int64_t{-3}));
    EXPECT_EQ(ValueOfCell("1899-12-31", jet::ColumnType::Date), jet::Value(1.0));
    EXPECT_EQ(ValueOfCell("", jet::ColumnType::Text), jet::Value(std::string()));
    EXPECT_EQ(ValueOfCell("", jet::ColumnType::Single), jet::Value(std::monostate()));
    EXPECT_THROW(ValueOfCell("many", jet::ColumnType::Single), RuntimeError);
    EXPECT_THROW(ValueOfCell("May", jet::ColumnType::Date), RuntimeError);
}

}  // namespace
}  // namespace tendo
