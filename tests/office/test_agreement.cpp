#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/files/safe_file.h"
#include "platform/office/local_number.h"
#include "platform/office/read_workbook.h"
#include "platform/office/separated_text.h"
#include "platform/text/date_text.h"

namespace tendo {
namespace {

const std::filesystem::path Books = TENDO_TEST_DATA "/office/books";

std::vector<std::string> BookNames() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(Books))
        if (file.path().extension() != ".csv") names.push_back(file.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

bool SameNumber(double a, std::string_view text) {
    double b = 0;
    return ReadPlainNumber(text, b) && std::abs(a - b) <= 1e-12 * std::max(1.0, std::abs(a));
}

/// A cell against what the other program shows of it.
bool Agrees(const CellValue& cell, std::string_view shown) {
    switch (cell.kind) {
        case CellKind::Empty:
            return shown.empty();
        case CellKind::Number:
            return SameNumber(cell.number, shown);
        case CellKind::Boolean:  // the other program shows those of an .xls file as numbers
            return shown == (cell.number != 0 ? "TRUE" : "FALSE") ||
                   shown == (cell.number != 0 ? "1" : "0");
        case CellKind::Date: {
            const auto date = ReadIsoDate(shown);
            return date && SerialOfDate(*date) == cell.number;
        }
        default:
            return cell.text == shown;
    }
}

class Agreement : public testing::TestWithParam<std::string> {};

TEST_P(Agreement, EachCellIsWhatTheOtherProgramShows) {
    const std::string name = GetParam();
    const Workbook book = ReadWorkbook(ReadWholeFile((Books / name).string()), name);
    CellGrid shown;
    const std::string csv = std::filesystem::path(name).replace_extension(".csv").string();
    ASSERT_TRUE(ReadSeparatedText(ReadWholeFile((Books / csv).string()), shown));
    EXPECT_EQ(book.remark, "");
    ASSERT_GT(shown.RowCount(), 0u);
    ASSERT_EQ(book.RowCount(), shown.RowCount());
    for (std::size_t row = 0; row < shown.RowCount(); ++row) {
        const std::size_t columns =
            std::max(book.cells.ColumnCountOf(row), shown.ColumnCountOf(row));
        for (std::size_t column = 0; column < columns; ++column) {
            const std::string text(shown.Cell(row, column).text);  // of numbers their source
            EXPECT_TRUE(Agrees(book.Cell(row, column), text))
                << "row " << row << " column " << column << ": " << book.Cell(row, column).text
                << " " << book.Cell(row, column).number << " against " << text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Books, Agreement, testing::ValuesIn(BookNames()), [](const auto& book) {
    std::string name = book.param;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

TEST(AgreementBooks, ThereAreThreeVersionsOfSixBooks) {
    EXPECT_EQ(BookNames().size(), 18u);
}

}  // namespace
}  // namespace tendo
