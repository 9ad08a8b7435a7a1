#include "jet3_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "jet3_row.h"
#include "platform/jet/jet_reader.h"

namespace tendo::jet3 {
namespace {

using jet::ColumnType;
using std::monostate;

jet::Value Text(const std::string& text) {
    return text;
}

std::string Hex(const std::string& bytes) {
    std::string text;
    for (const char each : bytes) {
        char two[4];
        std::snprintf(two, sizeof two, "%02x ", static_cast<unsigned char>(each));
        text += two;
    }
    return text;
}

/// A table of `count` texts of 50 characters at most, with a number before them.
Table WideTable(int count, const std::vector<jet::Row>& rows) {
    Table table;
    table.definition.name = "Wide";
    table.definition.columns = {{.name = "Number", .type = ColumnType::Integer}};
    for (int i = 0; i < count; ++i)
        table.definition.columns.push_back(
            {.name = "Text" + std::to_string(i), .type = ColumnType::Text, .size = 50});
    table.rows = rows;
    return table;
}

std::vector<jet::Row> RowsOf(const jet::Reader& reader, const std::string& table) {
    std::vector<jet::Row> rows;
    reader.ReadRows(table, [&](std::span<const jet::ValueView> row) {
        jet::Row own;
        for (const jet::ValueView& value : row) {
            if (const auto* text = std::get_if<std::string_view>(&value))
                own.emplace_back(std::string(*text));
            else
                std::visit(
                    [&](auto held) {
                        if constexpr (!std::is_same_v<decltype(held), std::string_view>)
                            own.emplace_back(held);
                    },
                    value);
        }
        rows.push_back(own);
        return true;
    });
    return rows;
}

/// A known row of nine columns: two texts of 7 and 9 letters, a number of each kind, a date, an
/// amount, a truth value.
TEST(Jet3File, ARowHasTheBytesOfAKnownOne) {
    std::vector<jet::Column> columns;
    for (const ColumnType type : {ColumnType::Text, ColumnType::Text, ColumnType::Byte,
                                  ColumnType::Integer, ColumnType::Long, ColumnType::Double,
                                  ColumnType::Date, ColumnType::Currency, ColumnType::Boolean})
        columns.push_back({.name = "C", .type = type, .size = 50});
    const std::string row =
        RowBytes(PlaceColumns(columns), {Text("abcdefg"), Text("hijklmnop"), std::int64_t{2},
                                         std::int64_t{222}, std::int64_t{333333333}, 444.555,
                                         27293.0,  // 21 September 1974
                                         std::int64_t{35000}, true});
    EXPECT_EQ(Hex(row),
              "09 02 de 00 55 43 de 13 7b 14 ae 47 e1 c8 7b 40 00 00 00 00 40 a7 da 40 b8 88 00 00 "
              "00 00 00 00 61 62 63 64 65 66 67 68 69 6a 6b 6c 6d 6e 6f 70 30 27 20 02 ff 01 ");
}

/// Six texts of 50 letters from byte 3 on: the sixth starts at 253, the data ends at 303. The row
/// is 303 + 7 offsets + 1 jump + 1 count + 1 mask = 313 long, so one jump, at the end of data (6).
TEST(Jet3File, AnOffsetBeyondAByteIsJumpedTo) {
    const Table table = WideTable(6, {});
    jet::Row row = {std::int64_t{1}};
    row.resize(7, Text(std::string(50, 'x')));
    const std::string bytes = RowBytes(PlaceColumns(table.definition.columns), row);
    ASSERT_EQ(bytes.size(), 313U);
    // 303 is 47 and 256; then 253 down to 3; the jump, the count, the mask of seven columns.
    EXPECT_EQ(Hex(bytes.substr(303)), "2f fd cb 99 67 35 03 06 06 7f ");
}

TEST(Jet3File, TheReaderFindsWhatWasPutIn) {
    std::vector<jet::Row> rows;
    for (int i = 0; i < 40; ++i) {
        jet::Row row = {std::int64_t{i}};
        for (int column = 0; column < 20; ++column)
            row.push_back(Text(std::string(static_cast<std::size_t>((i * 7 + column * 13) % 51),
                                           static_cast<char>('a' + column))));
        row[5] = monostate();
        rows.push_back(row);
    }
    rows[3][7] = Text("Tr\u00E8s \u20AC");
    const jet::Reader reader = jet::Reader::OpenBytes(FileBytes({WideTable(20, rows)}), "wide");
    EXPECT_EQ(reader.Generation(), 3);
    EXPECT_EQ(reader.Check(), std::vector<std::string>());
    EXPECT_EQ(reader.TableNames(), std::vector<std::string>{"Wide"});
    EXPECT_EQ(RowsOf(reader, "Wide"), rows);
}

TEST(Jet3File, NullsAndTruthValuesOfEachTypeComeBack) {
    Table table;
    table.definition.name = "Kinds";
    int number = 0;
    for (const ColumnType type :
         {ColumnType::Boolean, ColumnType::Integer, ColumnType::Single, ColumnType::Currency,
          ColumnType::Date, ColumnType::Text, ColumnType::Boolean})
        table.definition.columns.push_back(
            {.name = "K" + std::to_string(++number), .type = type, .size = 35});
    table.rows = {{false, monostate(), monostate(), monostate(), monostate(), monostate(), true},
                  {true, std::int64_t{-5}, 14.5, std::int64_t{12501250}, 35125.0, Text(""), false}};
    const jet::Reader reader = jet::Reader::OpenBytes(FileBytes({table}), "kinds");
    EXPECT_EQ(RowsOf(reader, "Kinds"), table.rows);
    EXPECT_EQ(reader.Check(), std::vector<std::string>());
}

TEST(Jet3File, WhatDoesNotFitIsRefused) {
    const jet::Row row = {std::int64_t{1}, Text(std::string(51, 'x'))};
    EXPECT_THROW(FileBytes({WideTable(1, {row})}), std::invalid_argument);
    EXPECT_THROW(FileBytes({WideTable(1, {{Text("one"), Text("two")}})}), std::invalid_argument);
}

/// Another program's reader, where it is installed.
TEST(Jet3File, AnIndependentReaderReadsTheModels) {
    const std::string file = std::string(TENDO_BINARY_DIR) +
                             "/tests/screens/five_systems_jet3.home/Common/Harrowgate.mdb";
    ASSERT_TRUE(std::filesystem::exists(file));
    if (std::system("command -v mdb-export > /dev/null") != 0) GTEST_SKIP() << "no mdb-export here";
    const std::string listing =
        (std::filesystem::temp_directory_path() / ("tendo_jet3_" + std::to_string(::getpid())))
            .string();
    ASSERT_EQ(std::system(("mdb-export '" + file + "' 'AC File' > " + listing).c_str()), 0);
    std::ifstream lines(listing);
    std::string line;
    std::vector<std::string> rows;
    while (std::getline(lines, line))
        rows.push_back(line);
    std::filesystem::remove(listing);
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_EQ(rows[1].find("1,\"HA-24\",\"Harrowgate\",\"Air conditioner, 2 tons\",1250.1250,"),
              0U);
    EXPECT_NE(rows[3].find("\"Labor warranty by the contractor...\""), std::string::npos);
}

}  // namespace
}  // namespace tendo::jet3
