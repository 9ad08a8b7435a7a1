// A file read and written back holds what it held; other programs read it the same.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "written_file.h"

namespace tendo::jet {

namespace {

constexpr const char* Samples[] = {
    "real/j3_01.mdb",     "real/j3_02.mdb",         "real/j3_03.mdb",
    "real/j3_04.mdb",     "real/j3_05.mdb",         "real/j3_06.mdb",
    "real/j3_07.mdb",     "real/j3_08.mdb",         "real/j4_01.mdb",
    "real/j4_02.mdb",     "real/j4_03.mdb",         "real/j4_04.mdb",
    "real/j4_05.mdb",     "real/j4_06.mdb",         "real/j4_07.mdb",
    "real/j4_08.mdb",     "fixtures/project.tdw",   "fixtures/models_small.mdb",
    "fixtures/melda.mld", "fixtures/materials.mdb", "fixtures/blank.mdb"};

class Rewrite : public testing::TestWithParam<const char*> {};

std::vector<TableToWrite> TablesOf(const Reader& reader) {
    std::vector<TableToWrite> tables;
    for (const std::string& name : reader.TableNames()) {
        tables.push_back({reader.Table(name), [&reader, name](const auto& add) {
                              reader.ReadRows(name, [&](std::span<const ValueView> row) {
                                  add(row);
                                  return true;
                              });
                          }});
    }
    return tables;
}

/// Doubles by their bits, so that a NaN equals itself and zero is not its negative.
bool SameBits(const Value& a, const Value& b) {
    const double* left = std::get_if<double>(&a);
    const double* right = std::get_if<double>(&b);
    if (left && right) return std::memcmp(left, right, sizeof *left) == 0;
    return a == b;
}

void ExpectSameColumns(const TableDefinition& before, const TableDefinition& after) {
    ASSERT_EQ(before.columns.size(), after.columns.size());
    for (std::size_t i = 0; i < before.columns.size(); ++i) {
        const Column &a = before.columns[i], &b = after.columns[i];
        EXPECT_EQ(a.name, b.name);
        EXPECT_EQ(a.type, b.type) << a.name;
        EXPECT_EQ(a.size, b.size) << a.name;
        EXPECT_EQ(a.required, b.required) << a.name;
        EXPECT_EQ(a.autoNumber, b.autoNumber) << a.name;
        EXPECT_EQ(a.scale, b.scale) << a.name;
        if (a.type == ColumnType::Text || a.type == ColumnType::Memo) {
            EXPECT_EQ(a.allowZeroLength, b.allowZeroLength) << a.name;
        }
    }
    EXPECT_EQ(before.indexes.size(), after.indexes.size()) << before.name;
}

TEST_P(Rewrite, LosesNothing) {
    TENDO_SHARED_JET_FILE(path, std::string(GetParam()));
    const Reader before = Reader::OpenFile(path);
    const Reader after = WrittenAndChecked(TablesOf(before));
    ASSERT_EQ(before.TableNames(), after.TableNames());
    for (const std::string& name : before.TableNames()) {
        ExpectSameColumns(before.Table(name), after.Table(name));
        const Rows old = AllRows(before, name), back = AllRows(after, name);
        ASSERT_EQ(old.size(), back.size()) << name;
        for (std::size_t i = 0; i < old.size(); ++i) {
            EXPECT_TRUE(
                std::equal(old[i].begin(), old[i].end(), back[i].begin(), back[i].end(), SameBits))
                << name << " row " << i;
        }
    }
}

std::string NameOf(const testing::TestParamInfo<const char*>& sample) {
    std::string name = sample.param;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}
INSTANTIATE_TEST_SUITE_P(Samples, Rewrite, testing::ValuesIn(Samples), NameOf);

bool HasMdbTools() {
    int status = 1;
    OutputOf("mdb-tables --version", &status);
    return status == 0;
}

TEST(MdbTools, ReadsTheSameTablesRowsAndKeys) {
    if (!HasMdbTools()) GTEST_SKIP() << "mdbtools is not installed";
    TableDefinition table{
        "Price Book",
        {ColumnOf("Id", ColumnType::Long), ColumnOf("Name", ColumnType::Text, 30),
         ColumnOf("Cost", ColumnType::Currency), ColumnOf("Note", ColumnType::Memo),
         ColumnOf("Taxed", ColumnType::Boolean), ColumnOf("Weight", ColumnType::Single)},
        {}};
    Index index;
    index.name = "PrimaryKey";
    index.columns = {"Id"};
    index.primary = index.unique = true;
    table.indexes = {index};
    const Rows rows = {
        {std::int64_t{1}, "Gas piping", std::int64_t{125000}, std::string(5000, 'n'), true, 1.5},
        {std::int64_t{2}, "\xC3\x98re 3/4\"", Value(), Value(), false, Value()}};
    const TemporaryFile file(
        "tools.mdb",
        WriteFile({TableOf(table, rows), TableOf({"Empty", table.columns, {}}, {})}, 38000));
    EXPECT_EQ(OutputOf("mdb-tables -1 '" + file.Path() + "'"), "Price Book\nEmpty\n");
    EXPECT_EQ(OutputOf("mdb-export -H '" + file.Path() + "' 'Price Book'"),
              "1,\"Gas piping\",12.5000,\"" + std::string(5000, 'n') +
                  "\",1,1.5\n2,\"\xC3\x98re 3/4\"\"\",,,0,\n");
    const std::string schema = OutputOf("mdb-schema -T 'Price Book' '" + file.Path() + "' sqlite");
    EXPECT_NE(schema.find("`Weight`"), std::string::npos) << schema;
    EXPECT_EQ(OutputOf("mdb-count '" + file.Path() + "' 'Price Book'"), "2\n");
    EXPECT_EQ(OutputOf("mdb-count '" + file.Path() + "' Empty"), "0\n");
}

}  // namespace

}  // namespace tendo::jet
