// Files written and read back: by our own reader with its check, by the independent checker, by
// mdbtools.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "written_file.h"

namespace tendo::jet {

namespace {

using namespace std::string_literals;
using Strings = std::vector<std::string>;

Value Whole(std::int64_t value) {
    return value;
}

/// One column of the type with these values, written and read back.
Rows BackOf(const Column& column, const Rows& rows) {
    const Reader reader = WrittenAndChecked({TableOf({"T", {column}, {}}, rows)});
    return AllRows(reader, "T");
}

TEST(Writer, AFileWithoutTablesIsWholeAndEmpty) {
    const Reader reader = WrittenAndChecked({});
    EXPECT_EQ(reader.Generation(), 4);
    EXPECT_TRUE(reader.TableNames().empty());
    EXPECT_FALSE(reader.NotKeptOnWrite().any());
}

TEST(Writer, TablesKeepTheirOrderAndATableWithoutRowsItsColumns) {
    const std::vector<Column> columns = {ColumnOf("Name", ColumnType::Text, 40)};
    const Reader reader = WrittenAndChecked({TableOf({"Zebra", columns, {}}, {}),
                                             TableOf({"Apple", columns, {}}, {{"x"s}}),
                                             TableOf({"Mango", columns, {}}, {})});
    EXPECT_EQ(reader.TableNames(), (Strings{"Zebra", "Apple", "Mango"}));
    EXPECT_EQ(reader.Table("Zebra").columns[0].size, 40);
    EXPECT_TRUE(AllRows(reader, "Zebra").empty());
}

TEST(Writer, EveryTypeComesBackWithItsEndsAndItsNull) {
    const double tiny = std::numeric_limits<double>::denorm_min();
    const double large = std::numeric_limits<double>::max();
    const float third = 1.0f / 3;
    const std::vector<std::pair<Column, Rows>> cases = {
        {ColumnOf("C", ColumnType::Boolean), {{true}, {false}}},
        {ColumnOf("C", ColumnType::Byte), {{Whole(0)}, {Whole(255)}, {Value()}}},
        {ColumnOf("C", ColumnType::Integer), {{Whole(-32768)}, {Whole(32767)}, {Value()}}},
        {ColumnOf("C", ColumnType::Long), {{Whole(INT32_MIN)}, {Whole(INT32_MAX)}, {Value()}}},
        {ColumnOf("C", ColumnType::Currency), {{Whole(INT64_MIN)}, {Whole(INT64_MAX)}, {Value()}}},
        {ColumnOf("C", ColumnType::Single),
         {{-0.0}, {double(third)}, {3.4028234663852886e38}, {Value()}}},
        {ColumnOf("C", ColumnType::Double), {{tiny}, {large}, {-large}, {Value()}}},
        {ColumnOf("C", ColumnType::Date), {{-1.25}, {38000.75}, {2958465.0}, {Value()}}},
        {ColumnOf("C", ColumnType::Text, 255),
         {{""s}, {"a  "s}, {std::string(255, 'x')}, {Value()}}},
        {ColumnOf("C", ColumnType::Memo), {{""s}, {"line\r\nline"s}, {Value()}}},
        {ColumnOf("C", ColumnType::Ole), {{"\0\xff\xfe\1"s}, {""s}, {Value()}}},
        {ColumnOf("C", ColumnType::Binary, 8),
         {{"\xff\xfe\0\0"s}, {std::string(8, '\0')}, {Value()}}},
        {ColumnOf("C", ColumnType::Guid), {{"{00112233-4455-6677-8899-AABBCCDDEEFF}"s}, {Value()}}},
    };
    for (const auto& [column, rows] : cases) {
        EXPECT_EQ(BackOf(column, rows), rows) << int(column.type);
    }
}

TEST(Writer, ANumericComesBackAsItsDecimalText) {
    Column column = ColumnOf("C", ColumnType::Numeric);
    column.precision = 20;
    column.scale = 10;
    const Rows rows = {{"3245.0000000000"s}, {"-0.0000000001"s}, {"0.0000000000"s}, {Value()}};
    const Reader reader = WrittenAndChecked({TableOf({"T", {column}, {}}, rows)});
    EXPECT_EQ(AllRows(reader, "T"), rows);
    EXPECT_EQ(reader.Table("T").columns[0].precision, 20);
    EXPECT_EQ(reader.Table("T").columns[0].scale, 10);
}

TEST(Writer, TextOfAnyScriptComesBack) {
    const Rows rows = {{"Gr\xC3\xB6\xC3\x9F"
                        "e \xE2\x82\xAC 5"s},
                       {"\xE6\xB8\xA9\xE5\xBA\xA6"s},
                       {"\xF0\x9F\x94\xA5 hot \xF0\x9F\x94\xA5"s},
                       {"\xC4\x80\xC5\x80"s},  // U+0100, U+0140: bytes with a zero in front
                       {"tab\tand\1control\x7f"s},
                       {"\xEF\xBB\xBFmark in front"s}};  // its bytes are those of compressed text
    EXPECT_EQ(BackOf(ColumnOf("C", ColumnType::Text, 60), rows), rows);
    EXPECT_EQ(BackOf(ColumnOf("C", ColumnType::Memo), rows), rows);
}

/// 64 bytes stand in the row, 4,076 on one row of a page, more in pieces of 4,072 bytes.
TEST(Writer, LongValuesOfEveryEdgeSizeComeBack) {
    Rows rows;
    for (const std::size_t size :
         {0u, 1u, 63u, 64u, 65u, 4075u, 4076u, 4077u, 8144u, 8145u, 1500000u}) {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 7 + size);
        rows.push_back({bytes});
    }
    EXPECT_EQ(BackOf(ColumnOf("C", ColumnType::Ole), rows), rows);
}

TEST(Writer, MemosOfEveryEdgeSizeComeBack) {
    Rows rows;
    for (const std::size_t size : {0u, 31u, 32u, 33u, 2037u, 2038u, 2039u, 4072u, 4073u, 700000u}) {
        rows.push_back({std::string(size, 'm') + (size % 2 ? "\xC3\xB8" : "")});
    }
    EXPECT_EQ(BackOf(ColumnOf("C", ColumnType::Memo), rows), rows);
}

TEST(Writer, SeveralLongColumnsKeepTheirValuesApart) {
    TableDefinition table{"T",
                          {ColumnOf("A", ColumnType::Memo), ColumnOf("N", ColumnType::Long),
                           ColumnOf("B", ColumnType::Ole), ColumnOf("C", ColumnType::Memo)},
                          {}};
    Rows rows;
    for (int i = 0; i < 40; ++i) {
        rows.push_back({std::string(static_cast<std::size_t>(i) * 120, 'a'), Whole(i),
                        i % 3 ? Value(std::string(200, 'b')) : Value(),
                        std::string(i % 2 ? 5000 : 5, 'c')});
    }
    const Reader reader = WrittenAndChecked({TableOf(table, rows)});
    EXPECT_EQ(AllRows(reader, "T"), rows);
}

/// Eight texts and two bytes take 2 + 2 + 18 + 2 + 2 = 26 bytes beside the texts: 4,034 bytes of
/// text, 2,017 characters, make the longest row of 4,060.
TEST(Writer, TheLongestRowFitsAndOneCharacterMoreIsRefused) {
    TableDefinition table{"T", {}, {}};
    Row row;
    for (int i = 0; i < 8; ++i) {
        table.columns.push_back(ColumnOf("T" + std::to_string(i), ColumnType::Text, 255));
        row.push_back(std::string(i == 7 ? 253 : 252, 'x'));
    }
    for (const char* name : {"P", "Q"}) {
        table.columns.push_back(ColumnOf(name, ColumnType::Byte));
        row.push_back(Whole(7));
    }
    const Rows rows = {row, row};
    EXPECT_EQ(AllRows(WrittenAndChecked({TableOf(table, rows)}), "T"), rows);
    row[0] = std::string(253, 'x');
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {row})}, 1); }), 3047);
}

TEST(Writer, AFileOfSmallRowsPutsAtMost255OnAPage) {
    Rows rows;
    for (int i = 0; i < 1000; ++i)
        rows.push_back({Whole(i % 256)});
    EXPECT_EQ(BackOf(ColumnOf("C", ColumnType::Byte), rows), rows);
}

TEST(Writer, ATextTooLongForItsColumnIsRefused) {
    const TableDefinition table{"T", {ColumnOf("Name", ColumnType::Text, 5)}, {}};
    std::string text;
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"abcdef"s}})}, 1); }, &text), 3163);
    EXPECT_NE(text.find("Name"), std::string::npos);
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"abcde"s}})}, 1); }), 0);
    // A character outside the first plane takes two places: three of them are six.
    EXPECT_EQ(ErrorOf([&] {
                  WriteFile(
                      {TableOf(table, {{"\xF0\x9F\x94\xA5\xF0\x9F\x94\xA5\xF0\x9F\x94\xA5"s}})}, 1);
              }),
              3163);
}

TEST(Writer, BytesTooLongForABinaryColumnAreRefused) {
    const TableDefinition table{"T", {ColumnOf("B", ColumnType::Binary, 4)}, {}};
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"12345"s}})}, 1); }), 3163);
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"1234"s}})}, 1); }), 0);
}

TEST(Writer, AColumnKeepsItsProperties) {
    TableDefinition table{"T", {}, {}};
    for (int i = 0; i < 4; ++i) {
        Column column =
            ColumnOf("C" + std::to_string(i), i == 3 ? ColumnType::Long : ColumnType::Text, 10);
        column.size = i == 3 ? 0 : 10;
        column.allowZeroLength = i == 0;
        column.required = i == 1 || i == 3;
        table.columns.push_back(column);
    }
    const Reader reader = WrittenAndChecked({TableOf(table, {})});
    const std::vector<Column>& back = reader.Table("T").columns;
    EXPECT_TRUE(back[0].allowZeroLength);
    EXPECT_FALSE(back[1].allowZeroLength);
    EXPECT_FALSE(back[0].required);
    EXPECT_TRUE(back[1].required);
    EXPECT_TRUE(back[3].required);
}

TEST(Writer, AnAutoNumberColumnStaysOne) {
    Column column = ColumnOf("Id", ColumnType::Long);
    column.autoNumber = true;
    const Reader reader =
        WrittenAndChecked({TableOf({"T", {column}, {}}, {{Whole(4)}, {Whole(9)}})});
    EXPECT_TRUE(reader.Table("T").columns[0].autoNumber);
}

TEST(Writer, TheWidestTableTakesADefinitionOfManyPages) {
    TableDefinition table{"T", {}, {}};
    Row row;
    for (int i = 0; i < 255; ++i) {
        const std::string number = std::to_string(i);
        table.columns.push_back(
            ColumnOf(std::string(64 - number.size(), 'n') + number, ColumnType::Integer));
        row.push_back(Whole(i));
    }
    const Reader reader = WrittenAndChecked({TableOf(table, {row, row})});
    EXPECT_EQ(reader.Table("T").columns.size(), 255u);
    EXPECT_EQ(AllRows(reader, "T"), (Rows{row, row}));
    table.columns.push_back(ColumnOf("One more", ColumnType::Byte));
    EXPECT_NE(ErrorOf([&] { WriteFile({TableOf(table, {})}, 1); }), 0);
}

TEST(Writer, ManyMemoColumnsTakeMoreMapsThanOnePageHolds) {
    TableDefinition table{"T", {}, {}};
    Row row;
    for (int i = 0; i < 60; ++i) {
        table.columns.push_back(ColumnOf("M" + std::to_string(i), ColumnType::Memo));
        row.push_back("memo " + std::to_string(i));
    }
    row[30] = std::string(9000, 'z');
    const Reader reader = WrittenAndChecked({TableOf(table, {row})});
    EXPECT_EQ(AllRows(reader, "T"), Rows{row});
}

/// 120,000 rows of about 100 bytes take some 3,000 pages: the map needs pages of its own.
TEST(Writer, AHundredThousandRowsNeedAMapOfTheSecondKind) {
    TableDefinition table{
        "Big", {ColumnOf("N", ColumnType::Long), ColumnOf("T", ColumnType::Text, 50)}, {}};
    Index index;
    index.name = "N";
    index.columns = {"N"};
    index.unique = true;
    table.indexes = {index};
    TableToWrite big;
    big.definition = table;
    big.rows = [](const auto& add) {
        const std::string text(40, 't');
        for (std::int64_t i = 0; i < 120000; ++i) {
            const ValueView row[] = {i * 7919 % 120000, std::string_view(text)};
            add(row);
        }
    };
    const Reader reader = WrittenAndChecked({big});
    std::int64_t at = 0;
    const std::size_t count = reader.ReadRows("Big", [&](std::span<const ValueView> row) {
        return std::get<std::int64_t>(row[0]) == at++ * 7919 % 120000;
    });
    EXPECT_EQ(count, 120000u);
}

TEST(Writer, AValueOfTheWrongTypeIsRefused) {
    const TableDefinition table{"T", {ColumnOf("N", ColumnType::Long)}, {}};
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"text"s}})}, 1); }), 13);
}

}  // namespace

}  // namespace tendo::jet
