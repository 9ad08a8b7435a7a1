#include "materials/material_lists.h"

#include <gtest/gtest.h>

#include "list_tables.h"
#include "material_databases.h"
#include "materials/material_catalogue.h"
#include "project/program_state.h"

namespace tendo {
namespace {

using Names = std::vector<std::string>;
constexpr const char* unable = "Unable to Access Material Lists Table in tendo.mdb. Error: ";

/// The current database holds Boot, Duct and Grille; it is tendo.mdb itself.
class MaterialListsTest : public testing::Test {
  protected:
    void SetUp() override {
        WriteMaterialDatabase(path, book);
        LoadMaterialCatalogue();
        ResetCatalogueSelections();
    }

    const std::vector<BookRow> book = {{"Boot", "P-1", "Duct", 9.5, 19},
                                       {"Duct", "P-2", "Duct", 41.25, 82.5},
                                       {"Grille", "P-3", "Duct", 18, 36}};
    BookFolder folder;
    std::string path = folder.Path("tendo.mdb");
    std::vector<MaterialRow>& catalogue = MaterialCatalogue();
};

bool Apply(std::string name) {
    return ApplyMaterialList(name);
}

TEST_F(MaterialListsTest, ApplyingGivesTheMatchingRowsTheirMarksQuantityAndPrice) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5, 19, 30},
                            {"Other", "Duct", 9, 41.25, 82.5, 99},
                            {"Run", "Grille", 4, 18, 36, 120, "Q-9", "Else", 1, 1}});
    std::string name = "  Run ";
    EXPECT_TRUE(ApplyMaterialList(name));
    EXPECT_EQ(name, "Run");
    ASSERT_EQ(catalogue.size(), 3U);
    EXPECT_EQ(catalogue[0].ItemQty, 2);
    EXPECT_EQ(catalogue[0].SalePrice, 30);
    EXPECT_EQ(catalogue[1].ItemQty, 0);
    EXPECT_EQ(catalogue[2].ItemQty, 4);
    EXPECT_EQ(catalogue[2].Accessory, 1);
    EXPECT_EQ(catalogue[2].Tax, 1);
    EXPECT_EQ(catalogue[2].SalePrice, 120);
    EXPECT_EQ(catalogue[2].PartNumber.Trimmed(), "P-3");  // the book's own columns stay
    EXPECT_EQ(catalogue[2].ListCst, 36);
    EXPECT_EQ(catalogue[2].GrossMargin, 0);  // a list brings prices but no margins
}

TEST_F(MaterialListsTest, AChangedUnitCostMakesALineUnmatched) {
    AddMaterialLists(path, {{"Run", "Grille", 4, 17.5, 36, 120}});
    EXPECT_TRUE(Apply("Run"));
    ASSERT_EQ(catalogue.size(), 4U);
    EXPECT_EQ(catalogue[2].ItemQty, 0);
    EXPECT_EQ(catalogue[3].UnitCst, 17.5F);
}

TEST_F(MaterialListsTest, OfTheMaterialsAbsentFromTheDatabaseOnlyTheFirstIsAppended) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5, 19, 30},
                            {"Run", "Damper of a long name that is cut", 1, 7, 14, 21,
                             std::string(40, 'p'), "Dampers"},
                            {"Run", "Elbow", 3, 5, 10, 15},
                            {"Run", "Grille", 4, 18, 36, 120}});
    EXPECT_TRUE(Apply("Run"));
    ASSERT_EQ(catalogue.size(), 4U);
    EXPECT_EQ(catalogue[0].ItemQty, 2);
    EXPECT_EQ(catalogue[3].Description.Trimmed(), "Damper of a long name");  // 22 characters
    EXPECT_EQ(catalogue[3].PartNumber.Trimmed(), std::string(35, 'p'));
    EXPECT_EQ(catalogue[3].UnitCst, 7);
    EXPECT_EQ(catalogue[3].ListCst, 14);
    EXPECT_EQ(catalogue[3].SalePrice, 21);
    EXPECT_TRUE(catalogue[3].Category.IsBlank());  // it is written, and not read back
    EXPECT_EQ(catalogue[2].ItemQty, 0);            // behind the second absent one all are lost
}

TEST_F(MaterialListsTest, AListWhoseNameDiffersOnlyInBlanksAtTheEndsIsTheSameList) {
    AddMaterialLists(
        path, {{" Run", "Boot", 2, 9.5}, {"Run  ", "Duct", 3, 41.25}, {"run", "Grille", 1, 18}});
    EXPECT_EQ(MaterialListNames(), (Names{"Run", "run"}));
    EXPECT_TRUE(Apply("Run "));
    EXPECT_EQ(catalogue[0].ItemQty, 2);
    EXPECT_EQ(catalogue[1].ItemQty, 3);
    EXPECT_EQ(catalogue[2].ItemQty, 0);
}

TEST_F(MaterialListsTest, TwoListsOfTheSameNameInDifferentDatabasesAreDifferentLists) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5}});
    const std::string other = folder.Path("other.mdb");
    WriteMaterialDatabase(other, book);
    AddMaterialLists(other, {{"Run", "Duct", 7, 41.25}});
    State().MaterialDatabaseName = other;
    EXPECT_TRUE(Apply("Run"));
    EXPECT_EQ(catalogue[0].ItemQty, 0);
    EXPECT_EQ(catalogue[1].ItemQty, 7);
}

TEST_F(MaterialListsTest, AFailureToReadIsToldAndLeavesTheCatalogue) {
    catalogue[0].ItemQty = 5;
    EXPECT_FALSE(Apply("Run"));
    ASSERT_EQ(folder.messages.size(), 1U);
    EXPECT_EQ(folder.messages[0].find(std::string(unable) + "3078 "), 0U) << folder.messages[0];
    EXPECT_EQ(catalogue[0].ItemQty, 5);
}

TEST_F(MaterialListsTest, SavingReplacesTheRowsOfItsNameAndKeepsNoMargins) {
    AddMaterialLists(path,
                     {{"Run", "Old", 1}, {"Other", "Stays", 1, 2, 3, 4}, {" Run ", "Old too", 1}});
    catalogue[1].ItemQty = 6;
    catalogue[1].Accessory = catalogue[1].Tax = 1;
    catalogue[1].GrossMargin = 20;
    catalogue[1].SalePrice = 309.5F;
    catalogue[2].SalePrice = 50;  // no quantity: not a line of the list
    EXPECT_TRUE(SaveMaterialList(" Run ", catalogue));
    const std::vector<MaterialListRow> expected = {
        {"Other", "Stays", 1, 2, 3, 4},
        {"Run", "Duct", 6, 41.25, 82.5, 309.5, "P-2", "Duct", 1, 1}};
    EXPECT_EQ(MaterialLists(path), expected);
}

TEST_F(MaterialListsTest, SavingUnderANewNameCopies) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5, 19, 30}});
    EXPECT_TRUE(Apply("Run"));
    EXPECT_TRUE(SaveMaterialList("Run, upstairs", catalogue));
    EXPECT_EQ(MaterialListNames(), (Names{"Run", "Run, upstairs"}));
    EXPECT_EQ(MaterialLists(path).size(), 2U);
}

TEST_F(MaterialListsTest, ADatabaseOfTheOlderLayoutGetsTheColumnCategory) {
    AddMaterialLists(path, {{"Older", "Duct", 3, 41.25, 82.5, 100}}, "Category");
    catalogue[0].ItemQty = 2;
    EXPECT_TRUE(SaveMaterialList("Run", catalogue));
    const std::vector<MaterialListRow> expected = {{"Older", "Duct", 3, 41.25, 82.5, 100},
                                                   {"Run", "Boot", 2, 9.5, 19, 0, "P-1", "Duct"}};
    EXPECT_EQ(MaterialLists(path), expected);
}

TEST_F(MaterialListsTest, ANewPriceBookGetsTheTableWithItsFirstList) {
    EXPECT_EQ(MaterialListNames(), Names());
    EXPECT_TRUE(folder.messages.empty());
    catalogue[0].ItemQty = 2;
    EXPECT_TRUE(SaveMaterialList("Run", catalogue));
    EXPECT_EQ(MaterialListNames(), Names{"Run"});
}

TEST_F(MaterialListsTest, RowsDeletedBeforeAFailureStayDeleted) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5}, {"Other", "Duct", 1, 41.25}}, "ListCst");
    catalogue[0].ItemQty = 2;
    EXPECT_FALSE(SaveMaterialList("Run", catalogue));
    ASSERT_EQ(folder.messages.size(), 1U);
    EXPECT_EQ(folder.messages[0].find(std::string(unable) + "3265 "), 0U) << folder.messages[0];
    EXPECT_EQ(MaterialListNames(), Names{"Other"});
}

TEST_F(MaterialListsTest, DeletingRemovesEveryRowOfTheName) {
    AddMaterialLists(path, {{"Run", "Boot", 2}, {"Other", "Duct", 1}, {" Run ", "Grille", 1}});
    EXPECT_TRUE(DeleteMaterialList("Run"));
    EXPECT_EQ(MaterialListNames(), Names{"Other"});
}

TEST_F(MaterialListsTest, DeletingWhileAnotherDatabaseIsCurrentLeavesTheListInPlace) {
    AddMaterialLists(path, {{"Run", "Boot", 2, 9.5}});
    const std::string other = folder.Path("other.mdb");
    WriteMaterialDatabase(other, book);
    AddMaterialLists(other, {{"Run", "Duct", 7, 41.25}, {"Mine", "Duct", 7, 41.25}});
    State().MaterialDatabaseName = other;
    EXPECT_TRUE(DeleteMaterialList("Run"));
    EXPECT_TRUE(DeleteMaterialList("Mine"));
    EXPECT_EQ(MaterialListNames(), (Names{"Run", "Mine"}));
    EXPECT_TRUE(MaterialLists(path).empty());  // it went where nobody looked
}

}  // namespace
}  // namespace tendo
