// Damaged and hostile files: each gets an error or a fault told, none a crash, a hang or much
// memory.

#include <gtest/gtest.h>

#include <cstring>

#include "platform/jet/page_file.h"
#include "platform/jet/table_definition.h"
#include "platform/jet/usage_map.h"
#include "written_file.h"

namespace tendo::jet {

namespace {

using namespace std::string_literals;

constexpr std::size_t PageSize = 4096;

/// A small file with everything in it: an index with a node, memos of each kind, two tables.
const std::string& SmallFile() {
    static const std::string bytes = [] {
        TableDefinition table{
            "Items",
            {ColumnOf("Name", ColumnType::Text, 200), ColumnOf("Note", ColumnType::Memo),
             ColumnOf("Price", ColumnType::Currency), ColumnOf("Used", ColumnType::Boolean)},
            {}};
        Index index;
        index.name = "Name";
        index.columns = {"Name"};
        table.indexes = {index};
        Rows rows;
        for (int i = 0; i < 60; ++i) {
            const std::size_t note = i % 20 == 0 ? 9000 : i % 3 == 0 ? 300 : 5;
            rows.push_back({std::string(120, 'n') + std::to_string(1000 + i),
                            std::string(note, 'm'), std::int64_t{i} * 10000, i % 2 == 0});
        }
        return WriteFile({TableOf(table, rows), TableOf({"Other", table.columns, {}}, {rows[0]})},
                         38000);
    }();
    return bytes;
}

/// Opens, reads and checks; what it throws must be an error of ours that names the file. Gives
/// everything that was told.
std::string Told(const std::string& bytes) {
    std::string told;
    try {
        const Reader reader = Reader::OpenBytes(bytes, "Job.mdb");
        for (const std::string& fault : reader.Check())
            told += fault + "\n";
        for (const std::string& table : reader.TableNames()) {
            std::string text;
            if (ErrorOf([&] { AllRows(reader, table); }, &text) != 0) told += text + "\n";
        }
    } catch (const RuntimeError& error) {
        told += error.Description();
        EXPECT_TRUE(error.Number() == 3343 || error.Number() == 3031) << error.Number();
    }
    if (!told.empty()) {
        EXPECT_NE(told.find("Job.mdb"), std::string::npos) << told;
    }
    return told;
}

std::string With(std::string bytes, std::size_t at, const std::string& put) {
    bytes.replace(at, put.size(), put);
    return bytes;
}

std::size_t Page(std::uint32_t number) {
    return number * PageSize;
}

/// The definition of a table of the small file.
StoredTable Definition(const PageFile& file, const std::string& name) {
    for (std::uint32_t page = 6; page < file.PageCount(); ++page) {
        if (file.Page(page)[0] != 2) continue;
        StoredTable table = ReadDefinition(file, page);
        if (table.columns.size() == 4 && (table.indexes.size() == 1) == (name == "Items"))
            return table;
    }
    throw std::runtime_error("no such table in the small file");
}

const PageFile& SmallPages() {
    static const PageFile file(SmallFile(), "small");
    return file;
}

std::uint32_t FirstPage(std::uint32_t map) {
    return PagesOfMap(SmallPages(), map).front();
}

TEST(Damage, TheSmallFileItselfIsWhole) {
    EXPECT_EQ(Told(SmallFile()), "");
}

TEST(Damage, AMissingFileIs3024) {
    EXPECT_EQ(ErrorOf([] { Reader::OpenFile("/nowhere/no.mdb"); }), 3024);
}

TEST(Damage, AnEmptyFileAndOneOfAnotherKindAreRefused) {
    for (const std::string& bytes :
         {""s, "x"s, std::string(100000, '\0'), std::string(100000, 'A'), SmallFile().substr(0, 19),
          "PK\3\4"s + std::string(50000, 'z'), With(SmallFile(), 4, "Standard ACE DB")}) {
        std::string text;
        EXPECT_EQ(ErrorOf([&] { Reader::OpenBytes(bytes, "Job.mdb"); }, &text), 3343);
        EXPECT_NE(text.find("Job.mdb"), std::string::npos);
    }
}

TEST(Damage, ALaterVersionAndAnEncryptedFileAreNamedAsSuch) {
    EXPECT_NE(Told(With(SmallFile(), 0x14, "\2")).find("later"), std::string::npos);
    std::string text;
    const std::string key = With(SmallFile(), 0x3E, "\1\2\3\4");
    EXPECT_EQ(ErrorOf([&] { Reader::OpenBytes(key, "Job.mdb"); }, &text), 3031);
    EXPECT_NE(text.find("encrypted"), std::string::npos);
}

TEST(Damage, APasswordAloneLeavesTheFileReadable) {
    std::string bytes = SmallFile();
    bytes[0x42] = static_cast<char>(bytes[0x42] ^ 'p');
    const Reader reader = Reader::OpenBytes(bytes, "Job.mdb");
    EXPECT_TRUE(reader.NotKeptOnWrite().password);
    EXPECT_EQ(AllRows(reader, "Items").size(), 60u);
}

TEST(Damage, AFileCutAnywhereIsNoticed) {
    for (std::size_t size = 0; size < SmallFile().size(); size += 1531) {
        EXPECT_NE(Told(SmallFile().substr(0, size)), "") << size;
    }
}

/// Every bit of the first 32 bytes of every page, one at a time: nothing may crash or run away.
TEST(Damage, NoFlippedBitInAPageHeadDoesHarm) {
    std::string bytes = SmallFile();
    std::size_t noticed = 0;
    for (std::size_t page = 0; page < bytes.size(); page += PageSize) {
        for (std::size_t bit = 0; bit < 32 * 8; ++bit) {
            char& byte = bytes[page + bit / 8];
            byte = static_cast<char>(byte ^ 1 << bit % 8);
            noticed += Told(bytes).empty() ? 0 : 1;
            byte = static_cast<char>(byte ^ 1 << bit % 8);
        }
    }
    EXPECT_EQ(bytes, SmallFile());
    // Bytes that no field claims may change unnoticed; page types and free words alone are 19 bits
    // a page.
    EXPECT_GT(noticed, bytes.size() / PageSize * 19);
}

struct Defect {
    const char* name;
    std::size_t at;
    std::string put;
    const char* told;  // part of the message
};

TEST(Damage, EachKnownDefectIsToldByItsName) {
    const PageFile& file = SmallPages();
    const StoredTable items = Definition(file, "Items");
    const std::uint32_t data = FirstPage(items.dataMap),
                        longs = FirstPage(items.longColumns[0].map);
    const std::uint32_t root = items.realIndexes[0].root, other = Definition(file, "Other").page;
    const Defect defects[] = {
        {"free word off by one", Page(data) + 2,
         std::string(1, static_cast<char>(file.Page(data)[2] + 1)), "free bytes"},
        {"row count off by one", Page(items.page) + 16, "\x3d", "tells of 61 rows and holds 60"},
        {"page of another owner", Page(data) + 4, std::string(1, static_cast<char>(other)),
         "another table"},
        {"long value page without its mark", Page(longs) + 4, "XVAL", "long value"},
        {"definition chain in a circle", Page(items.page) + 4,
         std::string(1, static_cast<char>(items.page)), "circle"},
        {"absurd number of rows", Page(data) + 12, "\xff\xff", "too many rows"},
        {"row offset out of order", Page(data) + 14, "\x10\0"s, "overlap"},
        {"row marked deleted", Page(data) + 15,
         std::string(1, static_cast<char>(file.Page(data)[15] | 0xC0)), "tells of 60 rows"},
        {"tail of a node is the node", Page(root) + 20, std::string(1, static_cast<char>(root)),
         "reached twice"},
        {"index page of another owner", Page(root) + 4, "\7", "another owner"},
        {"prefix longer than its entry", Page(root) + 24, "\xff\xff", "ends nowhere"},
        {"definition too long", Page(items.page) + 8, "\xff\xff\xff\x7f", "length"},
        {"absurd number of columns", Page(items.page) + 45, "\xff\xff", "too much"},
        {"absurd number of indexes", Page(items.page) + 51, "\xff\xff\xff\xff", "too much"},
    };
    for (const Defect& defect : defects) {
        const std::string told = Told(With(SmallFile(), defect.at, defect.put));
        EXPECT_NE(told.find(defect.told), std::string::npos) << defect.name << ": " << told;
    }
}

/// The last character of the first row's name lies somewhere in the page; changing it leaves a
/// sound row that no longer stands under its key.
TEST(Damage, AChangedTextStandsUnderAWrongKey) {
    const std::uint32_t data = FirstPage(Definition(SmallPages(), "Items").dataMap);
    const std::size_t at = SmallFile().find("n\0n\0n\0n\0"s, Page(data));
    ASSERT_NE(at, std::string::npos);
    EXPECT_NE(Told(With(SmallFile(), at, "q")).find("wrong key"), std::string::npos);
}

TEST(Damage, APageBothOwnedAndFreeIsTold) {
    // Page 1 is a data page; its first row, the free map, is at its very end: 69 bytes, bitmap from
    // byte 5.
    const std::size_t bitmap = 2 * PageSize - 69 + 5;
    EXPECT_NE(Told(With(SmallFile(), bitmap, "\x04")).find("is free and belongs to"),
              std::string::npos);
}

TEST(Damage, ALongValueInACircleIsTold) {
    const PageFile& file = SmallPages();
    const StoredTable items = Definition(file, "Items");
    std::string bytes = SmallFile();
    std::size_t changed = 0;
    for (const std::uint32_t page : PagesOfMap(file, items.longColumns[0].map)) {
        const PageFile::RowBytes row = file.Row(file.Page(page), 0);
        if (row.bytes.size() < 4000) continue;  // pieces of chains are longer than the single notes
        const std::uint32_t itself = page << 8;
        std::memcpy(bytes.data() + (row.bytes.data() - file.Page(page).data()) + Page(page),
                    &itself, 4);
        ++changed;
    }
    ASSERT_GT(changed, 0u);
    EXPECT_NE(Told(bytes), "");
}

TEST(Damage, OneTableThatFailsLeavesTheOthersReadable) {
    const std::uint32_t page = Definition(SmallPages(), "Items").page;
    const Reader reader =
        Reader::OpenBytes(With(SmallFile(), Page(page) + 45, "\xff\xff"), "Job.mdb");
    EXPECT_EQ(reader.TableNames().size(), 2u);
    std::string text;
    EXPECT_EQ(ErrorOf([&] { reader.Table("Items"); }, &text), 3343);
    EXPECT_NE(text.find("Items"), std::string::npos);
    EXPECT_NE(text.find("Job.mdb"), std::string::npos);
    EXPECT_EQ(AllRows(reader, "Other").size(), 1u);
}

/// Two thousand rows that all point at one value of half a megabyte would make a gigabyte out of a
/// small file. Each long value row serves one value, so more bytes than the file has are refused.
TEST(Damage, RowsThatShareOneLongValueAreRefusedBeforeTheyFillTheMemory) {
    Rows rows = {{std::string(500000, 'x')}};
    for (int i = 0; i < 2000; ++i)
        rows.push_back({std::string(65, 'y')});
    std::string bytes =
        WriteFile({TableOf({"T", {ColumnOf("V", ColumnType::Ole)}, {}}, rows)}, 38000);
    const PageFile file(bytes, "shared");
    std::string field;
    std::size_t changed = 0;
    for (std::uint32_t page = 6; page < file.PageCount(); ++page) {
        const std::string_view data = file.Page(page);
        // Rows of 21 bytes: two of the count of columns, the field of 12, six of offsets, one of
        // the mask.
        if (data[0] != 1 || file.Row(data, 0).bytes.size() != 21) continue;
        for (std::size_t i = 0; i < file.RowCount(data); ++i) {
            const std::string_view row = file.Row(data, i).bytes;
            if (field.empty()) field = row.substr(2, 12);
            bytes.replace(Page(page) + static_cast<std::size_t>(row.data() - data.data()) + 2, 12,
                          field);
            ++changed;
        }
    }
    ASSERT_EQ(changed, 2001u);
    const Reader reader = Reader::OpenBytes(bytes, "Job.mdb");
    std::size_t given = 0;
    std::string text;
    EXPECT_EQ(ErrorOf(
                  [&] {
                      reader.ReadRows("T", [&](std::span<const ValueView> row) {
                          given += std::get<std::string_view>(row[0]).size();
                          return true;
                      });
                  },
                  &text),
              3343);
    EXPECT_LE(given, bytes.size());
    EXPECT_NE(text.find("share"), std::string::npos) << text;
}

/// A column's flag 1 puts it in the fixed part, where it takes its declared size: two of 4,000
/// bytes can't stand in one row.
TEST(Damage, FixedColumnsLongerThanAPageAreRefused) {
    const std::uint32_t page = Definition(SmallPages(), "Items").page;
    const std::size_t columns = Page(page) + 63 + 12;  // behind the head and one index's figures
    std::string bytes = SmallFile();
    for (std::size_t i = 0; i < 2; ++i) {
        bytes[columns + 25 * i + 15] = 3;
        bytes.replace(columns + 25 * i + 23, 2, "\xa0\x0f");
    }
    EXPECT_NE(Told(bytes).find("longer than a page"), std::string::npos);
}

}  // namespace

}  // namespace tendo::jet
