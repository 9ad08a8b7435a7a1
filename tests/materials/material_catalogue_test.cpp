#include "materials/material_catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "material_databases.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/settings_store.h"
#include "project/program_state.h"

namespace tendo {
namespace {

using Texts = std::vector<std::string>;

TEST(MaterialCatalogue, IsReadInTheOrderOfCategoryAndDescription) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {{"Zinc pipe", "Z-1", "Duct", 4.1, 5.5},
                                                   {"whip", "W-1", "Electrical", 17.25, 23},
                                                   {"Boot", "B-1", "Duct", 9.85, 13.13},
                                                   {"Loose end", "L-1", std::nullopt, 1, 2}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    ASSERT_EQ(MaterialCatalogue().size(), 4U);
    EXPECT_EQ(MaterialCatalogue()[0].Description.Trimmed(),
              "Loose end");  // no category comes first
    EXPECT_EQ(MaterialCatalogue()[1].Description.Trimmed(), "Boot");
    EXPECT_EQ(MaterialCatalogue()[2].Description.Trimmed(), "Zinc pipe");
    EXPECT_EQ(MaterialCatalogue()[3].Description.Trimmed(), "whip");
    const MaterialRow& boot = MaterialCatalogue()[1];
    EXPECT_EQ(boot.Category.Trimmed(), "Duct");
    EXPECT_EQ(boot.PartNumber.Trimmed(), "B-1");
    EXPECT_EQ(boot.UnitCst, 9.85F);
    EXPECT_EQ(boot.ListCst, 13.13F);
    EXPECT_EQ(boot.SalePrice, 13.13F);
    EXPECT_EQ(boot.ItemQty, 0);
    EXPECT_EQ(boot.Tax, 0);
    EXPECT_EQ(boot.Accessory, 0);
    EXPECT_EQ(boot.GrossMargin, 0.0F);
}

TEST(MaterialCatalogue, TheOrderKnowsNoCaseAndPutsNullsFirstAndKeepsEqualRowsAsTheyStand) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {{"b", "1", "duct", 1, 1},
                                                   {"A", "2", "Duct", 1, 1},
                                                   {"co-op", "3", "DUCT", 1, 1},
                                                   {"coop", "4", "duct", 1, 1},
                                                   {"\u00e9clair", "5", "duct", 1, 1},
                                                   {"Eclipse", "6", "Duct", 1, 1},
                                                   {"same", "7", "Z", 1, 1},
                                                   {"SAME", "8", "z", 1, 1},
                                                   {"", "9", "z", 1, 1},
                                                   {std::nullopt, "10", "Z", 1, 1},
                                                   {"x", "11", "", 1, 1}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    std::string order;
    for (const MaterialRow& row : MaterialCatalogue())
        order += row.PartNumber.Trimmed() + " ";
    // An empty category, A, b, coop before its hyphened twin, éclair among the e's; a null
    // description before an empty one, equal ones as in the file.
    EXPECT_EQ(order, "11 2 1 4 3 5 6 10 9 7 8 ");
}

TEST(MaterialCatalogue, IsInTheOrderThatAQueryGives) {
    BookFolder book;
    std::vector<BookRow> rows;
    std::mt19937 random(17);
    const std::string letters = "aAbB-' 12\"./(";
    const auto text = [&](std::size_t longest) {
        std::string made;
        for (std::size_t length = random() % longest; length > 0; --length)
            made += letters[random() % letters.size()];
        return made;
    };
    for (int i = 0; i < 2000; ++i) {
        const bool noCategory = random() % 9 == 0;
        const std::string category = text(3), description = text(7);
        rows.push_back({description, std::to_string(i), category, 1, 2});
        if (noCategory) rows.back().category.reset();
    }
    WriteMaterialDatabase(book.Path("tendo.mdb"), rows);
    ASSERT_TRUE(LoadMaterialCatalogue());
    Database database = Database::OpenDatabase(book.Path("tendo.mdb"));
    Recordset query =
        database.OpenRecordset("SELECT * FROM Materials ORDER BY Category, Description");
    for (const MaterialRow& row : MaterialCatalogue()) {
        ASSERT_EQ(row.PartNumber.Trimmed(), query.Text("Part Number"));
        query.MoveNext();
    }
    EXPECT_TRUE(query.EOF_());
}

TEST(MaterialCatalogue, CostsOfOtherTypesAreTaken) {
    BookFolder book;
    Database::CreateDatabase(book.Path("tendo.mdb"));
    Database database = Database::OpenDatabase(book.Path("tendo.mdb"));
    jet::TableDefinition materials;
    materials.name = "Materials";
    const std::pair<const char*, jet::ColumnType> columns[] = {
        {"Description", jet::ColumnType::Memo},
        {"UnitCst", jet::ColumnType::Currency},
        {"ListCst", jet::ColumnType::Double},
        {"Part Number", jet::ColumnType::Long},
        {"Category", jet::ColumnType::Text}};
    for (const auto& [name, type] : columns) {
        jet::Column column;
        column.name = name;
        column.type = type;
        if (type == jet::ColumnType::Text) column.size = 50;
        materials.columns.push_back(column);
    }
    database.AppendTable(materials);
    database.AppendRows("Materials", {{std::string("One"), std::int64_t{98500}, 13.13,
                                       std::int64_t{4711}, std::string("A")}});
    database.Close();
    ASSERT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue()[0].UnitCst, 9.85F);
    EXPECT_EQ(MaterialCatalogue()[0].ListCst, 13.13F);
    EXPECT_EQ(MaterialCatalogue()[0].PartNumber.Trimmed(), "4711");
}

TEST(MaterialCatalogue, ACostThatIsATextFailsAtTheFifthLocation) {
    BookFolder book;
    const std::string text = "12";
    WriteTextMaterials(book.Path("tendo.mdb"),
                       {"Description", "Category", "Part Number", "UnitCst", "ListCst"},
                       {{text, text, text, text, text}});
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(13, 5)}));
}

TEST(MaterialCatalogue, ATableThatCannotBeOrderedFailsAtTheSecondLocation) {
    BookFolder book;
    WriteTextMaterials(book.Path("tendo.mdb"), {"Description"});
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(3061, 2)}));
}

TEST(MaterialCatalogue, ABookOf32768MaterialsIsTooLargeAtTheThirdLocation) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"),
                          std::vector<BookRow>(32768, BookRow{"One", "1", "A", 1, 2}));
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(6, 3)}));
    WriteMaterialDatabase(book.Path("other.mdb"),
                          std::vector<BookRow>(32767, BookRow{"One", "1", "A", 1, 2}));
    State().MaterialDatabaseName = book.Path("other.mdb");
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue().size(), 32767U);
}

TEST(MaterialCatalogue, ADescriptionOverTwentyTwoCharactersIsCut) {
    BookFolder book;
    const std::string description = "Concentric vent kit, two inch, with screen";
    WriteMaterialDatabase(book.Path("tendo.mdb"),
                          {{description, std::string(40, 'p'), "PVC vent", 46, 61}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue()[0].Description.Trimmed(), "Concentric vent kit, t");
    EXPECT_EQ(MaterialCatalogue()[0].PartNumber.Trimmed(), std::string(35, 'p'));
}

TEST(MaterialCatalogue, AMaterialWhoseListCostIsNullLoadsWithSalePriceZero) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {{"Unlisted", "U-1", "Duct", 5, std::nullopt}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue()[0].SalePrice, 0.0F);
    EXPECT_EQ(MaterialCatalogue()[0].ListCst, 0.0F);
    EXPECT_EQ(MaterialCatalogue()[0].UnitCst, 5.0F);
}

TEST(MaterialCatalogue, ARowOfNullsIsABlankRow) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {BookRow{}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    ASSERT_EQ(MaterialCatalogue().size(), 1U);
    EXPECT_TRUE(MaterialCatalogue()[0].Description.IsBlank());
    EXPECT_EQ(MaterialCatalogue()[0].UnitCst, 0.0F);
}

TEST(MaterialCatalogue, ALoadReplacesTheCatalogueWhole) {
    BookFolder book;
    MaterialCatalogue().resize(7);
    MaterialCatalogue()[0].ItemQty = 3;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {{"One", "1", "A", 1, 2}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    ASSERT_EQ(MaterialCatalogue().size(), 1U);
    EXPECT_EQ(MaterialCatalogue()[0].ItemQty, 0);
}

TEST(MaterialCatalogue, AnEmptyBookLoads) {
    BookFolder book;
    WriteMaterialDatabase(book.Path("tendo.mdb"), {});
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_TRUE(MaterialCatalogue().empty());
    EXPECT_TRUE(State().MaterialDatabaseLoaded);
}

TEST(MaterialCatalogue, ALoadEnablesItsToolsAndRemembersTheDatabase) {
    BookFolder book;
    State().MaterialDatabaseName = book.Path("other.mdb");
    WriteMaterialDatabase(book.Path("other.mdb"), {{"One", "1", "A", 1, 2}});
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_TRUE(State().MaterialDatabaseLoaded);
    EXPECT_EQ(book.tools, (Texts{"ToolMaterialDB", "ToolMaterialLists", "ToolLaborLists"}));
    EXPECT_EQ(Settings().GetSetting("Settings", "MaterialDatabase"), book.Path("other.mdb"));
    EXPECT_TRUE(book.messages.empty());
}

TEST(MaterialCatalogue, AFailureTellsItsErrorAndWhereItHappened) {
    EXPECT_EQ(CatalogueFailureText(3078, 2),
              "This material database is of the wrong format or is corrupted.  If you have the DOS "
              "version of TENDO, please convert the DOS materials database for use with Windows by "
              "clicking on the Database menu item and selecting CONVERT DOS TENDO FOOTNOTE AND "
              "MATERIAL DATABASES.  If you don't have the DOS version of TENDO, please reinstall "
              "TENDO for Windows. Error: 3078\nLocation =2");
}

TEST(MaterialCatalogue, AMissingFileFailsAtTheFirstLocationAndKeepsTheCatalogue) {
    BookFolder book;
    MaterialCatalogue().resize(3);
    State().MaterialDatabaseLoaded = true;
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_FALSE(State().MaterialDatabaseLoaded);
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(3024, 1)}));
    EXPECT_EQ(MaterialCatalogue().size(), 3U);
    EXPECT_TRUE(book.tools.empty());
    EXPECT_FALSE(FileExists(book.Path("settings.ini")));
}

TEST(MaterialCatalogue, AFileThatIsNoDatabaseFailsAtTheFirstLocation) {
    BookFolder book;
    std::ofstream(book.Path("tendo.mdb")) << std::string(5000, 'x');
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(3343, 1)}));
}

TEST(MaterialCatalogue, ADatabaseWithoutTheTableFailsAtTheSecondLocation) {
    BookFolder book;
    Database::CreateDatabase(book.Path("tendo.mdb"));
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(3078, 2)}));
}

TEST(MaterialCatalogue, ADatabaseWithoutACostColumnFailsAtTheFifthLocation) {
    BookFolder book;
    WriteTextMaterials(book.Path("tendo.mdb"), {"Description", "Category", "Part Number"},
                       {{std::string("One"), std::string("A"), std::string("1")}});
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(book.messages, (Texts{CatalogueFailureText(3265, 5)}));
    // What was read before the failure stands.
    ASSERT_EQ(MaterialCatalogue().size(), 1U);
    EXPECT_EQ(MaterialCatalogue()[0].Description.Trimmed(), "One");
}

TEST(MaterialCatalogue, TheStoredDatabaseIsTrimmedAndFallsBackToTheProgramsOwn) {
    BookFolder book;
    EXPECT_EQ(StoredMaterialDatabase(), book.Path("tendo.mdb"));
    Settings().SaveSetting("Settings", "MaterialDatabase", book.Path("gone.mdb"));
    EXPECT_EQ(StoredMaterialDatabase(), book.Path("tendo.mdb"));
    std::ofstream(book.Path("mine.mdb")) << "x";
    Settings().SaveSetting("Settings", "MaterialDatabase", "  " + book.Path("mine.mdb") + "  ");
    EXPECT_EQ(StoredMaterialDatabase(), book.Path("mine.mdb"));
}

/// A row with a value in every field.
MaterialRow FullRow() {
    MaterialRow row;
    row.Category = "Duct";
    row.Description = "Flex duct R8 8in 25ft";
    row.PartNumber = "FD-R8-08";
    row.ItemQty = 14;
    row.Accessory = row.Tax = 1;
    row.UnitCst = 41.2F;
    row.ListCst = 54.93F;
    row.GrossMargin = 25;
    row.PriceMarkup = 33.3F;
    row.ListDiscount = 3.1F;
    row.SalePrice = 769.07F;
    return row;
}

void ExpectNothingChosen(const MaterialRow& row) {
    EXPECT_EQ(row.ItemQty, 0);
    EXPECT_EQ(row.Accessory, 0);
    EXPECT_EQ(row.Tax, 0);
    EXPECT_EQ(row.GrossMargin, 0.0F);
    EXPECT_EQ(row.PriceMarkup, 0.0F);
    EXPECT_EQ(row.ListDiscount, 0.0F);
    EXPECT_EQ(row.SalePrice, 0.0F);
}

TEST(CatalogueSelections, AResetClearsWhatWasChosenAndTheSalePriceToo) {
    BookFolder book;
    MaterialCatalogue().assign(2, FullRow());
    ResetCatalogueSelections();
    for (const MaterialRow& row : MaterialCatalogue()) {
        ExpectNothingChosen(row);
        EXPECT_EQ(row.Category.Trimmed(), "Duct");
        EXPECT_EQ(row.Description.Trimmed(), "Flex duct R8 8in 25ft");
        EXPECT_EQ(row.PartNumber.Trimmed(), "FD-R8-08");
        EXPECT_EQ(row.UnitCst, 41.2F);
        EXPECT_EQ(row.ListCst, 54.93F);
    }
}

TEST(CatalogueSelections, AProjectResetBlanksTheRowsSoThatNoneStaysSelected) {
    BookFolder book;
    MaterialCatalogue().assign(2, FullRow());
    State().MaterialDatabaseLoaded = true;
    ClearCatalogueRows();
    ASSERT_EQ(MaterialCatalogue().size(), 2U);
    for (const MaterialRow& row : MaterialCatalogue()) {
        ExpectNothingChosen(row);
        EXPECT_TRUE(row.Description.IsBlank());
        EXPECT_TRUE(row.PartNumber.IsBlank());
        EXPECT_EQ(row.UnitCst, 0.0F);
        EXPECT_EQ(row.ListCst, 0.0F);
        EXPECT_EQ(row.Category.Trimmed(), "Duct");
    }
    EXPECT_FALSE(State().MaterialDatabaseLoaded);
}

TEST(MaterialCatalogueFixtures, ABookOfAnotherWriterLoads) {
    BookFolder book;
    State().MaterialDatabaseName =
        std::string(TENDO_SOURCE_DIR) + "/../shared/jet/fixtures/materials.mdb";
    if (!FileExists(State().MaterialDatabaseName)) GTEST_SKIP() << "no shared fixtures here";
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue().size(), 300U);
    for (const MaterialRow& row : MaterialCatalogue())
        EXPECT_EQ(row.SalePrice, row.ListCst);
}

}  // namespace
}  // namespace tendo
