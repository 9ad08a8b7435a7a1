// The sample files that differ from a base file in one point each; row counts are those of their
// README.

#include <gtest/gtest.h>

#include <algorithm>

#include "jet_files.h"

namespace tendo::jet {

namespace {

bool HasColumn(const TableDefinition& table, const std::string& name) {
    return std::any_of(table.columns.begin(), table.columns.end(),
                       [&](const Column& column) { return column.name == name; });
}

struct MissingColumn {
    const char* file;
    const char* table;
    const char* column;
};

TEST(FixtureVariants, ALackingColumnIsLackingAndTheRestReads) {
    constexpr MissingColumn cases[] = {
        {"project_nocompanyid.tdw", "GPDCompanyFormat", "CompanyIDNumber"},
        {"project_noclientfax.tdw", "GPDClientFormat", "Fax"},
        {"project_nocoil.tdw", "CLGModelData", "Coil"},
        {"models_noepa.mdb", "AC File", "EPA"}};
    for (const MissingColumn& one : cases) {
        TENDO_SHARED_JET_FILE(path, std::string("fixtures/") + one.file);
        const Reader reader = Reader::OpenFile(path);
        EXPECT_FALSE(HasColumn(reader.Table(one.table), one.column)) << one.file;
        EXPECT_FALSE(AllRows(reader, one.table).empty()) << one.file;
        EXPECT_TRUE(reader.Check().empty()) << one.file;
    }
}

struct Count {
    const char* file;
    const char* table;
    std::size_t rows;
};

TEST(FixtureVariants, RowCountsAreThoseOfTheReadme) {
    constexpr Count cases[] = {{"project_labor17.tdw", "Labor", 17},
                               {"project_system6.tdw", "ModelInfo", 6},
                               {"project_system6.tdw", "SystemInfo", 6},
                               {"project_system6.tdw", "WHModelData", 6},
                               {"models_emptygs.mdb", "GS HP File", 0},
                               {"models_emptygs.mdb", "AC File", 5},
                               {"models_nogama.mdb", "WH File", 5},
                               {"blank.mdb", "Materials", 0},
                               {"blank.mdb", "Categories", 0}};
    for (const Count& one : cases) {
        TENDO_SHARED_JET_FILE(path, std::string("fixtures/") + one.file);
        const Reader reader = Reader::OpenFile(path);
        EXPECT_EQ(AllRows(reader, one.table).size(), one.rows) << one.file << " " << one.table;
        EXPECT_TRUE(reader.Check().empty()) << one.file;
    }
}

TEST(FixtureVariants, AMissingTableIsAnErrorThatNamesItAndTheFile) {
    TENDO_SHARED_JET_FILE(path, "fixtures/models_nogama.mdb");
    const Reader reader = Reader::OpenFile(path);
    EXPECT_FALSE(reader.HasTable("GAMA File"));
    std::string text;
    EXPECT_EQ(ErrorOf([&] { reader.Table("GAMA File"); }, &text), 3078);
    EXPECT_NE(text.find("GAMA File"), std::string::npos);
    EXPECT_NE(text.find("models_nogama.mdb"), std::string::npos);
}

TEST(FixtureVariants, TableNamesAreFoundWithoutRegardToCase) {
    TENDO_SHARED_JET_FILE(path, "fixtures/models_small.mdb");
    const Reader reader = Reader::OpenFile(path);
    EXPECT_TRUE(reader.HasTable("ac file"));
    EXPECT_EQ(reader.Table("AC FILE").name, "AC File");
}

TEST(FixtureVariants, ColumnPropertiesComeOutOfTheirBlock) {
    TENDO_SHARED_JET_FILE(path, "fixtures/materials.mdb");
    const Reader reader = Reader::OpenFile(path);
    for (const Column& column : reader.Table("Materials").columns) {
        if (column.type == ColumnType::Text) {
            EXPECT_TRUE(column.allowZeroLength) << column.name;
        }
        EXPECT_FALSE(column.required) << column.name;
    }
}

TEST(FixtureVariants, AnIndexComesWithItsColumnsAndKind) {
    TENDO_SHARED_JET_FILE(path, "fixtures/materials.mdb");
    const Reader reader = Reader::OpenFile(path);
    const std::vector<Index>& indexes = reader.Table("Materials").indexes;
    ASSERT_EQ(indexes.size(), 1u);
    EXPECT_EQ(indexes[0].name, "Key");
    EXPECT_EQ(indexes[0].columns, std::vector<std::string>{"Description"});
    EXPECT_FALSE(indexes[0].unique);
    EXPECT_FALSE(indexes[0].primary);
}

TEST(FixtureVariants, WhatAWriteWouldLoseIsTold) {
    TENDO_SHARED_JET_FILE(plain, "fixtures/project.tdw");
    EXPECT_FALSE(Reader::OpenFile(plain).NotKeptOnWrite().any());
    TENDO_SHARED_JET_FILE(virgin, "real/j4_08.mdb");
    EXPECT_FALSE(Reader::OpenFile(virgin).NotKeptOnWrite().any());
    TENDO_SHARED_JET_FILE(related, "real/j3_05.mdb");
    EXPECT_TRUE(Reader::OpenFile(related).NotKeptOnWrite().relations);
    EXPECT_FALSE(Reader::OpenFile(related).NotKeptOnWrite().password);
}

TEST(FixtureVariants, StoppingInARowReadsNoFurther) {
    TENDO_SHARED_JET_FILE(path, "fixtures/models_small.mdb");
    const Reader reader = Reader::OpenFile(path);
    std::size_t seen = 0;
    const std::size_t given =
        reader.ReadRows("AC File", [&](std::span<const ValueView>) { return ++seen < 3; });
    EXPECT_EQ(seen, 3u);
    EXPECT_EQ(given, 3u);
}

}  // namespace

}  // namespace tendo::jet
