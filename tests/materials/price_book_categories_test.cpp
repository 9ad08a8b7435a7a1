#include "price_book_fixture.h"

namespace tendo {
namespace {

constexpr int Category = 0, Description = 1;

class PriceBookCategories : public PriceBookTest {
  protected:
    PriceBookCategories() {
        Make({{"Boot", "C-3", "Duct", 9.85, 40},
              {"Elbow", "B-2", "Copper", 12, 13},
              {"Pipe", "A-1", "Duct", 4.1, 5.5},
              {"Whip", "D-4", "Electrical", 17.25, 23}},
             {"Electrical", "Duct", "Copper"});
    }
    std::string Selected() const {
        const int index = book.SelectedCategory();
        return index < 0 ? "" : book.Categories()[static_cast<std::size_t>(index)];
    }
    void Select(const std::string& name) {
        for (std::size_t i = 0; i < book.Categories().size(); ++i)
            if (book.Categories()[i] == name) return book.SelectCategory(static_cast<int>(i));
        FAIL() << "no category " << name;
    }
};

TEST_F(PriceBookCategories, TheListFollowsTheRow) {
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_EQ(Selected(), "Copper");
    EXPECT_TRUE(book.MoveTo(3));
    EXPECT_EQ(Selected(), "Electrical");
}

TEST_F(PriceBookCategories, ASelectedCategoryLeadsToItsFirstMaterial) {
    Select("Electrical");
    EXPECT_EQ(book.Rows().CurrentRow(), 3);
    Select("Duct");
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 1 of 4 Materials");
}

TEST_F(PriceBookCategories, ACategoryWithoutMaterialsLeavesTheRow) {
    inputs = {"Hangers"};
    book.NewCategory();
    EXPECT_TRUE(book.MoveTo(2));
    Select("Hangers");
    EXPECT_EQ(book.Rows().CurrentRow(), 2);
    EXPECT_EQ(Selected(), "Hangers");
    EXPECT_EQ(notes.back(), "No material has the category Hangers.");
}

TEST_F(PriceBookTest, ABlankCategoryDoesNothing) {
    Make({{"A", "1", "Duct", 1, 2}, {"B", "2", "", 1, 2}}, {"", "Duct"});
    EXPECT_EQ(Categories(), "|Duct");
    book.SelectCategory(0);
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
}

TEST_F(PriceBookCategories, ANewCategoryIsTrimmedAndMayStandThereTwice) {
    inputs = {"  Hangers ", "Hangers"};
    book.NewCategory();
    EXPECT_EQ(prompts.back(), "New Category: Please enter the name of the new category.");
    book.NewCategory();
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical|Hangers|Hangers");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Categories", "Category"), "Electrical|Duct|Copper|Hangers|Hangers");
}

TEST_F(PriceBookCategories, ANameWithAnApostropheIsAskedForAgain) {
    inputs = {"Plumber's", "Plumbers'", "Plumbers"};
    book.NewCategory();
    EXPECT_EQ(prompts.size(), 3U);
    EXPECT_EQ(told, std::vector<std::string>(
                        2, "You can't have a Category name with a '.  Please try again."));
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical|Plumbers");
}

TEST_F(PriceBookCategories, AnEmptyAnswerEndsTheCommand) {
    inputs = {"", "   ", std::nullopt};
    for (int i = 0; i < 3; ++i)
        book.NewCategory();
    inputs = {"", std::nullopt};
    for (int i = 0; i < 2; ++i)
        book.RenameCategory();
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical");
    EXPECT_FALSE(book.HasUnwrittenChanges());
}

TEST_F(PriceBookCategories, ARenamedCategoryTakesItsMaterialsAlong) {
    inputs = {"Ducts"};
    book.RenameCategory();
    EXPECT_EQ(prompts.back(), "Rename Category: Please enter the new name for the category Duct.");
    EXPECT_EQ(Column(Category), "Ducts|Copper|Ducts|Electrical");
    EXPECT_EQ(Categories(), "Copper|Ducts|Electrical");
    EXPECT_EQ(Selected(), "Ducts");
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
}

TEST_F(PriceBookCategories, AnotherSpellingOfTheSameNameIsARenameToo) {
    inputs = {"DUCT"};
    book.RenameCategory();
    EXPECT_EQ(Column(Category), "DUCT|Copper|DUCT|Electrical");
    EXPECT_EQ(Categories(), "Copper|DUCT|Electrical");
}

TEST_F(PriceBookCategories, RenamingToANameThatExistsMergesTheMaterialsAndLeavesTwoRows) {
    inputs = {"Copper"};
    book.RenameCategory();
    EXPECT_EQ(Column(Category), "Copper|Copper|Copper|Electrical");
    EXPECT_EQ(Categories(), "Copper|Copper|Electrical");
}

TEST_F(PriceBookCategories, ADeletedCategoryLeavesItsMaterialsWithoutOne) {
    answers = {false};
    book.DeleteCategory();
    EXPECT_EQ(asked.back(), "Are you sure you want to delete the category Duct?");
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical");
    answers = {true};
    book.DeleteCategory();
    EXPECT_EQ(Categories(), "Copper|Electrical");
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Column(Category), "|Copper||Electrical");
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Categories", "Category"), "Electrical|Copper");
}

TEST_F(PriceBookCategories, ADeletedCategoryComesBackWithItsMaterials) {
    answers = {true};
    book.DeleteCategory();
    EXPECT_TRUE(book.MoveTo(2));
    book.DeleteMaterial();  // Pipe, which has no category now
    book.UndoDelete();
    book.UndoDelete();
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical");
    // Pipe came back as another row: only Boot gets its category again.
    EXPECT_EQ(Column(Category), "Duct|Copper||Electrical");
}

TEST_F(PriceBookCategories, WithoutASelectionRenameAndDeleteDoNothing) {
    answers = {true};
    book.DeleteCategory();
    book.DeleteCategory();
    book.RenameCategory();
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_TRUE(prompts.empty());
}

/// Such a name can only come from elsewhere. It breaks the criterion, and nothing changes.
TEST_F(PriceBookTest, ACategoryWithAnApostropheIsRefusedByItsCommands) {
    Make({{"A", "1", "Plumber's", 1, 2}, {"B", "2", "6\" pipe", 3, 4}}, {"Plumber's", "6\" pipe"});
    ASSERT_EQ(Categories(), "6\" pipe|Plumber's");
    inputs = {"Plumber"};
    answers = {true};
    book.SelectCategory(1);
    book.RenameCategory();
    book.DeleteCategory();
    ASSERT_EQ(told.size(), 3U);
    const char* subs[] = {"DBLCategory_Click", "btnRenameCategory_Click",
                          "btnDeleteCategory_Click"};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(told[i].rfind(
                      std::string("TENDO encountered an error while in Sub ") + subs[i] + "\n", 0),
                  0U)
            << told[i];
    EXPECT_FALSE(book.HasUnwrittenChanges());
    EXPECT_EQ(Categories(), "6\" pipe|Plumber's");
    book.SelectCategory(0);  // a quotation mark is a letter like any other
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    inputs = {"7\" pipe"};
    book.RenameCategory();
    EXPECT_EQ(Column(Category), "Plumber's|7\" pipe");
}

TEST_F(PriceBookCategories, ANameTooLongIsTold) {
    inputs = {std::string(256, 'n'), std::string(256, 'n')};
    book.NewCategory();
    book.RenameCategory();
    EXPECT_EQ(told.size(), 2U);
    EXPECT_FALSE(book.HasUnwrittenChanges());
    EXPECT_EQ(Column(Category), "Duct|Copper|Duct|Electrical");
}

}  // namespace
}  // namespace tendo
