// Indexes of written files. The check recomputes every key; the independent checker does so by
// other code.

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/jet/general_order.h"
#include "platform/jet/index_key.h"
#include "written_file.h"

namespace tendo::jet {

namespace {

using namespace std::string_literals;

Index IndexOf(const std::string& name, const std::vector<std::string>& columns,
              const std::vector<bool>& descending = {}) {
    Index index;
    index.name = name;
    index.columns = columns;
    index.descending = descending;
    return index;
}

std::string Hex(const std::string& bytes) {
    std::string text;
    char two[3];
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        std::snprintf(two, sizeof two, "%02x", byte);
        text += two;
    }
    return text;
}

std::string KeyOf(ColumnType type, const ValueView& value, bool descending = false) {
    std::string key;
    AppendIndexKey(value, ColumnOf("C", type), descending, key);
    return Hex(key);
}

/// The worked keys of engine files.
TEST(IndexKeys, AreTheEnginesByteForByte) {
    EXPECT_EQ(KeyOf(ColumnType::Text, ""), "7f0100");
    EXPECT_EQ(KeyOf(ColumnType::Text, "Boot 10\" brass"), "7f4c64646d0738360a074c694a6b6b0100");
    EXPECT_EQ(KeyOf(ColumnType::Text, "Boot 1-1/8\""), "7f4c64646d0738381e460a01010101801f068200");
    EXPECT_EQ(KeyOf(ColumnType::Text,
                    "AA\xC3\x9D"
                    "AA"),
              "7f4a4a764a4a0102020e00");
    EXPECT_EQ(KeyOf(ColumnType::Text, "-AAA-"), "7f4a4a4a01010101800706828013068200");
    EXPECT_EQ(KeyOf(ColumnType::Long, std::int64_t{5}), "7f80000005");
}

/// By the rules: whole numbers big-endian with the top bit flipped; a negative float inverted,
/// another with its top bit set (1.5 is 3fc00000, -1.5 is bfc00000); descending all of it inverted.
TEST(IndexKeys, OfNumbersAndNullsFollowTheirRules) {
    EXPECT_EQ(KeyOf(ColumnType::Byte, std::int64_t{7}), "7f07");
    EXPECT_EQ(KeyOf(ColumnType::Integer, std::int64_t{-1}), "7f7fff");
    EXPECT_EQ(KeyOf(ColumnType::Currency, std::int64_t{1}), "7f8000000000000001");
    EXPECT_EQ(KeyOf(ColumnType::Single, 1.5), "7fbfc00000");
    EXPECT_EQ(KeyOf(ColumnType::Single, -1.5), "7f403fffff");
    EXPECT_EQ(KeyOf(ColumnType::Boolean, true), "7f00");
    EXPECT_EQ(KeyOf(ColumnType::Boolean, false), "7fff");
    EXPECT_EQ(KeyOf(ColumnType::Boolean, std::monostate{}), "7fff");  // null counts as false
    EXPECT_EQ(KeyOf(ColumnType::Long, std::monostate{}), "00");
    EXPECT_EQ(KeyOf(ColumnType::Long, std::monostate{}, true), "ff");
    EXPECT_EQ(KeyOf(ColumnType::Long, std::int64_t{5}, true), "807ffffffa");
    EXPECT_EQ(KeyOf(ColumnType::Text, "", true), "80feff00");
    EXPECT_EQ(KeyOf(ColumnType::Binary, "abc"), "7f616263000000000003");
    EXPECT_EQ(KeyOf(ColumnType::Binary, "12345678a"), "7f313233343536373809610000000000000001");
}

TEST(GeneralOrder, TellsNoCaseAndPutsAccentsAndHyphensLast) {
    EXPECT_EQ(CompareGeneral("ABC", "abc"), 0);
    EXPECT_EQ(CompareGeneral("abc  ", "abc"), 0);
    EXPECT_LT(CompareGeneral("", "a"), 0);
    EXPECT_LT(CompareGeneral("a", "b"), 0);
    EXPECT_LT(CompareGeneral("9", "a"), 0);         // digits before letters
    EXPECT_LT(CompareGeneral("a b", "ab"), 0);      // a blank before all letters
    EXPECT_LT(CompareGeneral("coop", "co-op"), 0);  // a hyphen breaks a tie only
    EXPECT_LT(CompareGeneral("co-op", "coops"), 0);
    EXPECT_LT(CompareGeneral("e", "\xC3\xA9"), 0);  // so does an accent
    EXPECT_LT(CompareGeneral("\xC3\xA9", "f"), 0);
    EXPECT_NE(CompareGeneral("\xC3\xA9", "e"), 0);
    EXPECT_EQ(CompareGeneral("\xC3\xA9", "\xC3\x89"), 0);
}

TEST(GeneralOrder, ComparingIsWhatTheKeysSay) {
    const std::vector<std::string> texts = {"",
                                            " ",
                                            "a",
                                            "A ",
                                            "ab",
                                            "a b",
                                            "a-b",
                                            "ab-",
                                            "-ab",
                                            "a'b",
                                            "\xC3\xA4",
                                            "ae",
                                            "\xC3\xA6",
                                            "\xC3\x9F",
                                            "ss",
                                            "1/2",
                                            "\xC2\xBD",
                                            "z",
                                            "~",
                                            "_",
                                            "a_",
                                            "\t",
                                            "tab\t",
                                            "\xE2\x82\xAC",
                                            "\xE2\x80\x93",
                                            "\xCE\xB1",
                                            "\xCE\x91",
                                            "\xF0\x9F\x94\xA5",
                                            "\xFF",
                                            "no\0zero"s,
                                            "nozero",
                                            "a\x01",
                                            "B-1",
                                            "B1",
                                            "b-1 ",
                                            "B-2"};
    for (const std::string& a : texts) {
        for (const std::string& b : texts) {
            const int byKey = GeneralSortKey(a).compare(GeneralSortKey(b));
            const int direct = CompareGeneral(a, b);
            EXPECT_EQ(direct < 0, byKey < 0) << a << " | " << b;
            EXPECT_EQ(direct > 0, byKey > 0) << a << " | " << b;
        }
    }
}

struct Typed {
    const char* name;
    ColumnType type;
    Rows values;
};

const std::vector<Typed>& TypedValues() {
    static const std::vector<Typed> values = {
        {"Bool", ColumnType::Boolean, {{true}, {false}, {true}}},
        {"Byte", ColumnType::Byte, {{std::int64_t{200}}, {Value()}, {std::int64_t{3}}}},
        {"Int", ColumnType::Integer, {{std::int64_t{-5}}, {std::int64_t{5}}, {Value()}}},
        {"Long", ColumnType::Long, {{std::int64_t{70000}}, {std::int64_t{-70000}}, {Value()}}},
        {"Money", ColumnType::Currency, {{std::int64_t{-12345}}, {std::int64_t{0}}, {Value()}}},
        {"Single", ColumnType::Single, {{-1.5}, {Value()}, {0.25}}},
        {"Double", ColumnType::Double, {{1e300}, {-1e-300}, {Value()}}},
        {"Date", ColumnType::Date, {{38000.5}, {-3.25}, {Value()}}},
        {"Text", ColumnType::Text, {{"Boot 1-1/8\""s}, {""s}, {"\xC3\x98re"s}}},
        {"Memo", ColumnType::Memo, {{"note"s}, {Value()}, {std::string(300, 'm')}}},
        {"Binary", ColumnType::Binary, {{"12345678"s}, {"123456789"s}, {Value()}}},
        {"Guid",
         ColumnType::Guid,
         {{"{00112233-4455-6677-8899-AABBCCDDEEFF}"s}, {Value()}, {Value()}}}};
    return values;
}

TEST(Indexes, OfEveryTypeAscendingAndDescendingAreFoundRight) {
    for (const bool descending : {false, true}) {
        TableDefinition table{"T", {}, {}};
        Rows rows(3);
        for (const Typed& one : TypedValues()) {
            table.columns.push_back(ColumnOf(one.name, one.type, 20));
            table.indexes.push_back(IndexOf("By"s + one.name, {one.name}, {descending}));
            for (std::size_t i = 0; i < rows.size(); ++i)
                rows[i].push_back(one.values[i][0]);
        }
        const Reader reader = WrittenAndChecked({TableOf(table, rows)});
        EXPECT_EQ(AllRows(reader, "T"), rows);
        EXPECT_EQ(reader.Table("T").indexes.size(), TypedValues().size());
        EXPECT_EQ(reader.Table("T").indexes[0].descending, std::vector<bool>{descending});
    }
}

TEST(Indexes, OfSeveralColumnsKeepColumnsAndDirections) {
    TableDefinition table{
        "T", {ColumnOf("A", ColumnType::Text, 20), ColumnOf("B", ColumnType::Long)}, {}};
    table.indexes = {IndexOf("Two", {"A", "B"}, {false, true}), IndexOf("Back", {"B", "A"})};
    table.indexes[0].primary = table.indexes[0].unique = table.indexes[0].required = true;
    table.indexes[1].ignoreNulls = true;
    const Rows rows = {{"x"s, std::int64_t{1}}, {"x"s, std::int64_t{2}}, {"w"s, std::int64_t{1}}};
    const Reader reader = WrittenAndChecked({TableOf(table, rows)});
    std::vector<Index> indexes = reader.Table("T").indexes;
    std::sort(indexes.begin(), indexes.end(),
              [](const Index& a, const Index& b) { return a.name > b.name; });
    ASSERT_EQ(indexes.size(), 2u);
    EXPECT_EQ(indexes[0].columns, (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(indexes[0].descending, (std::vector<bool>{false, true}));
    EXPECT_TRUE(indexes[0].primary && indexes[0].unique && indexes[0].required);
    EXPECT_TRUE(indexes[1].ignoreNulls && !indexes[1].unique && !indexes[1].primary);
}

TEST(Indexes, AUniqueOneRefusesADuplicateButNotASecondNull) {
    TableDefinition table{"T", {ColumnOf("A", ColumnType::Text, 20)}, {IndexOf("Key", {"A"})}};
    table.indexes[0].unique = true;
    WrittenAndChecked({TableOf(table, {{"a"s}, {Value()}, {Value()}, {"b"s}})});
    // The order tells no case: these are one key.
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"Same"s}, {"SAME"s}})}, 1); }), 3022);
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{"re-sign"s}, {"resign"s}})}, 1); }), 0);
}

TEST(Indexes, APrimaryKeyRefusesNull) {
    TableDefinition table{"T", {ColumnOf("A", ColumnType::Long)}, {IndexOf("Key", {"A"})}};
    table.indexes[0].primary = true;
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {{Value()}})}, 1); }), 3058);
}

TEST(Indexes, AnUnknownColumnIsRefused) {
    const TableDefinition table{"T", {ColumnOf("A", ColumnType::Long)}, {IndexOf("Key", {"B"})}};
    EXPECT_EQ(ErrorOf([&] { WriteFile({TableOf(table, {})}, 1); }), 3265);
}

/// Some 130 entries fit on a leaf here and some 120 children on a node: three levels.
TEST(Indexes, ATreeOfThreeLevelsHoldsEveryRow) {
    TableDefinition table{"T", {ColumnOf("A", ColumnType::Text, 60)}, {IndexOf("Key", {"A"})}};
    Rows rows;
    for (int i = 0; i < 30000; ++i) {
        rows.push_back({"Model " + std::to_string(i * 7919 % 30011) + " of a line"});
    }
    const Reader reader = WrittenAndChecked({TableOf(table, rows)});
    EXPECT_EQ(AllRows(reader, "T"), rows);
}

/// Node entries of every fill: the last child of a level must not stand in a node alone.
TEST(Indexes, TreesOfEverySizeAroundANodesRoomAreSound) {
    const TableDefinition table{
        "T", {ColumnOf("A", ColumnType::Text, 255)}, {IndexOf("Key", {"A"})}};
    for (int count : {1, 13, 14, 26, 27, 28, 170, 180, 181, 182, 183, 190, 196, 209, 2300}) {
        Rows rows;
        for (int i = 0; i < count; ++i)
            rows.push_back({std::string(240, 'k') + std::to_string(10000 + i)});
        WrittenAndChecked({TableOf(table, rows)});
    }
}

TEST(Indexes, OnlyTheFirst255CharactersOfAMemoCount) {
    const TableDefinition table{"T", {ColumnOf("M", ColumnType::Memo)}, {IndexOf("Key", {"M"})}};
    const Rows rows = {{std::string(9000, 'b')}, {std::string(9000, 'a')}, {std::string(256, 'b')}};
    EXPECT_EQ(AllRows(WrittenAndChecked({TableOf(table, rows)}), "T"), rows);
}

/// A hyphen adds four bytes to a key; ten such columns would fill more than an index page.
TEST(Indexes, AKeyLongerThanAnIndexPageIsRefused) {
    TableDefinition table{"T", {}, {IndexOf("Key", {})}};
    Row row;
    for (int i = 0; i < 7; ++i) {
        table.columns.push_back(ColumnOf("C" + std::to_string(i), ColumnType::Text, 255));
        table.indexes[0].columns.push_back(table.columns.back().name);
        row.push_back(std::string(250, '-'));
    }
    EXPECT_NE(ErrorOf([&] { WriteFile({TableOf(table, {row, row, row})}, 1); }), 0);
}

}  // namespace

}  // namespace tendo::jet
