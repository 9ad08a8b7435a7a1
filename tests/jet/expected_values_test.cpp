// Every table of the sample files against what an independent reader made of it.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "jet_files.h"
#include "platform/text/text.h"

namespace tendo::jet {

namespace {

using Json = nlohmann::ordered_json;

std::string CurrencyText(std::int64_t tenThousandths) {
    char text[40];
    const auto size = static_cast<unsigned long long>(std::llabs(tenThousandths));
    std::snprintf(text, sizeof text, "%s%llu.%04llu", tenThousandths < 0 ? "-" : "", size / 10000,
                  size % 10000);
    return text;
}

/// The fraction counts forwards from midnight, also before 1900.
std::string DateText(double serial) {
    const double days = std::trunc(serial);
    const auto seconds = static_cast<long>(std::lround(std::fabs(serial - days) * 86400));
    const std::chrono::sys_days start{std::chrono::year{1899} / 12 / 30};
    const std::chrono::year_month_day day{
        start + std::chrono::days(static_cast<int>(days) + seconds / 86400)};
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02ld:%02ld:%02ld", int(day.year()),
                  unsigned(day.month()), unsigned(day.day()), seconds % 86400 / 3600,
                  seconds / 60 % 60, seconds % 60);
    return text;
}

std::string Hex(const std::string& bytes) {
    std::string text;
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        char two[3];
        std::snprintf(two, sizeof two, "%02x", byte);
        text += two;
    }
    return text;
}

/// U+FFFD in the expected text stands for any one character: the other reader does not know the
/// five bytes that the code page leaves open.
bool SameText(const std::string& got, const std::string& expected) {
    const std::u32string left = ToCodePoints(got), right = ToCodePoints(expected);
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && right[i] != 0xFFFD) return false;
    }
    return true;
}

bool SameNumber(ColumnType type, double got, const Json& expected) {
    if (type == ColumnType::Date) return DateText(got) == expected.get<std::string>();
    if (!expected.is_number()) return false;
    const double wanted = expected.get<double>();
    if (type == ColumnType::Single) return static_cast<float>(got) == static_cast<float>(wanted);
    return got == wanted;
}

bool SameValue(const Column& column, const Value& got, const Json& expected) {
    if (std::holds_alternative<std::monostate>(got)) return expected.is_null();
    if (expected.is_null()) return false;
    if (const bool* truth = std::get_if<bool>(&got)) return expected == *truth;
    if (const auto* whole = std::get_if<std::int64_t>(&got)) {
        if (column.type == ColumnType::Currency) return expected == CurrencyText(*whole);
        return expected == *whole;
    }
    if (const double* real = std::get_if<double>(&got))
        return SameNumber(column.type, *real, expected);
    const std::string& text = std::get<std::string>(got);
    const bool bytes = column.type == ColumnType::Ole || column.type == ColumnType::Binary;
    return bytes ? expected == Hex(text) : SameText(text, expected.get<std::string>());
}

std::string ExpectedFile(const std::string& folder, const std::string& file, std::string table) {
    for (char& c : table) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return SharedJetFile(folder + "/expected/" + file + "." + table + ".jsonl");
}

void CompareTable(const Reader& reader, const std::string& table, const std::string& expectedFile) {
    const TableDefinition& definition = reader.Table(table);
    const Rows rows = AllRows(reader, table);
    std::ifstream lines(expectedFile);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        ASSERT_LT(count, rows.size()) << table;
        const Json expected = Json::parse(line);
        ASSERT_EQ(expected.size(), definition.columns.size()) << table;
        for (std::size_t c = 0; c < definition.columns.size(); ++c) {
            const Column& column = definition.columns[c];
            ASSERT_TRUE(expected.contains(column.name)) << table << "." << column.name;
            EXPECT_TRUE(SameValue(column, rows[count][c], expected[column.name]))
                << table << " row " << count << "." << column.name << ": expected "
                << expected[column.name];
        }
    }
    EXPECT_EQ(count, rows.size()) << table;
}

struct Sample {
    const char* folder;
    const char* file;
    int generation;
    std::size_t tables;  // as many as the file's README lists
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.file;
}

class ExpectedValues : public testing::TestWithParam<Sample> {};

TEST_P(ExpectedValues, EachTableReadsAsTheIndependentReaderRead) {
    const Sample& sample = GetParam();
    TENDO_SHARED_JET_FILE(path, std::string(sample.folder) + "/" + sample.file);
    const Reader reader = Reader::OpenFile(path);
    EXPECT_EQ(reader.Generation(), sample.generation);
    EXPECT_EQ(reader.TableNames().size(), sample.tables);
    for (const std::string& table : reader.TableNames()) {
        const std::string expected = ExpectedFile(sample.folder, sample.file, table);
        ASSERT_FALSE(expected.empty()) << table;
        CompareTable(reader, table, expected);
    }
}

TEST_P(ExpectedValues, TheFileIsFoundWhole) {
    const Sample& sample = GetParam();
    TENDO_SHARED_JET_FILE(path, std::string(sample.folder) + "/" + sample.file);
    EXPECT_EQ(Reader::OpenFile(path).Check(), std::vector<std::string>{});
}

constexpr Sample Samples[] = {
    {"real", "j3_01.mdb", 3, 4},        {"real", "j3_02.mdb", 3, 1},
    {"real", "j3_03.mdb", 3, 29},       {"real", "j3_04.mdb", 3, 1},
    {"real", "j3_05.mdb", 3, 3},        {"real", "j3_06.mdb", 3, 3},
    {"real", "j3_07.mdb", 3, 1},        {"real", "j3_08.mdb", 3, 8},
    {"real", "j4_01.mdb", 4, 1},        {"real", "j4_02.mdb", 4, 1},
    {"real", "j4_03.mdb", 4, 6},        {"real", "j4_04.mdb", 4, 1},
    {"real", "j4_05.mdb", 4, 1},        {"real", "j4_06.mdb", 4, 1},
    {"real", "j4_07.mdb", 4, 1},        {"real", "j4_08.mdb", 4, 0},
    {"fixtures", "project.tdw", 4, 13}, {"fixtures", "models_small.mdb", 4, 6},
    {"fixtures", "melda.mld", 4, 3},    {"fixtures", "materials.mdb", 4, 6},
};
std::string NameOf(const testing::TestParamInfo<Sample>& sample) {
    return std::filesystem::path(sample.param.file).stem().string();
}
INSTANTIATE_TEST_SUITE_P(Samples, ExpectedValues, testing::ValuesIn(Samples), NameOf);

}  // namespace

}  // namespace tendo::jet
