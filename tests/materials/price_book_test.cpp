#include "materials/price_book.h"

#include <cmath>
#include <limits>
#include <span>

#include "materials/material_catalogue.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/settings_store.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/runtime_error.h"
#include "price_book_fixture.h"

namespace tendo {
namespace {

constexpr int Category = 0, Description = 1, PartNumber = 2, UnitCost = 3, ListCost = 4;

/// By description: Boot, Elbow, Pipe, Whip.
const std::vector<BookRow> fourRows = {{"Whip", "D-4", "Electrical", 17.25, 23},
                                       {"Boot", "C-3", "Duct", 9.85, 40},
                                       {"Pipe", "A-1", "Duct", 4.1, 5.5},
                                       {"Elbow", "B-2", "Copper", 12, 13}};

class PriceBookGrid : public PriceBookTest {
  protected:
    PriceBookGrid() { Make(fourRows, {"Electrical", "Duct", "Copper"}); }
};

TEST_F(PriceBookGrid, OpensByDescriptionWithTheCategoriesInOrder) {
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
    EXPECT_EQ(Column(UnitCost), "$9.85|$12.00|$4.10|$17.25");
    EXPECT_EQ(Categories(), "Copper|Duct|Electrical");
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 1 of 4 Materials");
    EXPECT_EQ(book.Categories()[1], "Duct");
    EXPECT_EQ(book.SelectedCategory(), 1);  // Boot's
}

TEST_F(PriceBookGrid, AColumnHeadSortsWithItsOwnText) {
    book.SortBy(0);  // the first head sorts by description: the pairing is meant
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
    book.SortBy(1);
    EXPECT_EQ(Column(Description), "Elbow|Boot|Pipe|Whip");
    book.SortBy(2);
    EXPECT_EQ(Column(Description), "Pipe|Elbow|Boot|Whip");
    book.SortBy(3);
    EXPECT_EQ(Column(Description), "Pipe|Boot|Elbow|Whip");
    book.SortBy(4);
    EXPECT_EQ(Column(Description), "Pipe|Elbow|Whip|Boot");
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 1 of 4 Materials");
}

TEST_F(PriceBookGrid, AnEditIsWrittenWhenItsRowIsLeft) {
    EXPECT_TRUE(book.SetCell(Description, "Boot, round"));
    EXPECT_TRUE(book.SetCell(UnitCost, "$1,010.5"));
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "$1,010.50");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip|Boot|Pipe|Elbow");
    EXPECT_TRUE(book.MoveTo(2));
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 3 of 4 Materials");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip|Boot, round|Pipe|Elbow");
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "17.25|1010.5|4.1|12");
    EXPECT_FALSE(book.HasUnwrittenChanges());
}

TEST_F(PriceBookGrid, WhatWasTypedCanBeGivenUp) {
    EXPECT_TRUE(book.SetCell(Description, "Other"));
    EXPECT_TRUE(book.HasUnwrittenChanges());
    book.CancelEdits();
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_FALSE(book.HasUnwrittenChanges());
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
}

TEST_F(PriceBookGrid, AnEmptyCostIsReplacedByZeroDollars) {
    for (const int column : {UnitCost, ListCost})
        EXPECT_TRUE(book.SetCell(column, " "));
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "$0.00");
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_EQ(Column(ListCost), "$0.00|$13.00|$5.50|$23.00");
}

TEST_F(PriceBookGrid, ACostThatIsNoNumberIsRefused) {
    EXPECT_FALSE(book.SetCell(UnitCost, "twelve"));
    EXPECT_EQ(Told(), "\"twelve\" is not a cost.  Please enter a number.");
    EXPECT_FALSE(book.SetCell(UnitCost, "1E39"));  // beyond what a Single holds
    EXPECT_EQ(Told(), "\"1E39\" is not a cost.  Please enter a number.");
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "$9.85");
}

TEST_F(PriceBookGrid, DecimalsBeyondTheCentsAreKeptAndEdited) {
    EXPECT_TRUE(book.SetCell(UnitCost, "0.1275"));
    EXPECT_TRUE(book.LeaveRow());
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "$0.13");
    EXPECT_EQ(book.Rows().EditText(0, UnitCost), "0.1275");
    EXPECT_EQ(book.Rows().EditText(0, ListCost), "$40.00");
    EXPECT_TRUE(book.SetCell(UnitCost, "0.1275"));  // opened and closed unchanged
    EXPECT_FALSE(book.Rows().IsEdited());
}

TEST_F(PriceBookGrid, ATextTooLongKeepsTheRow) {
    EXPECT_TRUE(book.SetCell(Description, std::string(256, 'x')));
    EXPECT_FALSE(book.MoveTo(1));
    EXPECT_NE(Told().find("too small"), std::string::npos);
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_TRUE(book.SetCell(Description, std::string(255, 'x')));
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_EQ(book.Rows().CellText(0, Description), std::string(255, 'x'));
}

TEST_F(PriceBookGrid, ADescriptionOverTwentyTwoCharactersStaysWholeInTheTable) {
    const std::string whole = "Concentric vent kit, two inch, with screen";
    EXPECT_TRUE(book.SetCell(Description, whole));
    EXPECT_TRUE(book.LeaveRow());
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip|" + whole + "|Pipe|Elbow");
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue()[1].Description.Trimmed(), whole.substr(0, 22));
}

TEST_F(PriceBookGrid, ANewMaterialIsEmptyCostsNothingAndStandsLast) {
    book.AddMaterial();
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 5 Total Materials");
    EXPECT_EQ(book.Rows().CurrentRow(), 4);
    for (const int column : {Category, Description, PartNumber})
        EXPECT_EQ(book.Rows().CellText(4, column), "");
    EXPECT_EQ(book.Rows().CellText(4, UnitCost), "$0.00");
    EXPECT_EQ(book.Rows().CellText(4, ListCost), "$0.00");
    EXPECT_TRUE(book.MoveTo(4));  // another column
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 5 of 5 Materials");
    EXPECT_TRUE(book.Write());
    Database database = Database::OpenDatabase(File());
    Recordset rows = database.OpenRecordset("Materials");
    rows.MoveLast();
    EXPECT_FALSE(rows.IsNull("Category"));
    EXPECT_EQ(rows.Single("ListCst"), 0.0F);
}

TEST_F(PriceBookGrid, InCellModeTheCurrentRowIsDeleted) {
    EXPECT_STREQ(book.DeleteCaption(), "Delete Material");
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_TRUE(book.SetCell(Description, "typed, not written"));
    book.DeleteMaterial();
    EXPECT_EQ(Column(Description), "Boot|Pipe|Whip");
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 3 Total Materials");
    EXPECT_TRUE(book.MoveTo(2));
    book.DeleteMaterial();
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
}

TEST_F(PriceBookGrid, AllRowsCanBeDeletedAndMoreDoesNothing) {
    for (int i = 0; i < 6; ++i)
        book.DeleteMaterial();
    EXPECT_EQ(book.Rows().Count(), 0);
    EXPECT_EQ(book.Rows().CurrentRow(), -1);
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 0 Total Materials");
    answers = {true};
    book.Search("x");
    EXPECT_EQ(Told(), "No records found with x.");
    EXPECT_FALSE(book.SetCell(Description, "x"));
    EXPECT_NE(Told(), "");
    book.AddMaterial();
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
}

TEST_F(PriceBookGrid, RepeatedF12MarksARunOfRows) {
    EXPECT_TRUE(book.GridKey(123, Description));
    EXPECT_TRUE(book.GridKey(123, Description));
    EXPECT_STREQ(book.DeleteCaption(), "Delete Materials");
    EXPECT_EQ(book.Rows().CurrentRow(), 2);
    EXPECT_TRUE(book.IsMarked(0));
    EXPECT_TRUE(book.IsMarked(1));
    EXPECT_FALSE(book.IsMarked(2));
    book.DeleteMaterial();
    EXPECT_EQ(Column(Description), "Pipe|Whip");
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 2 Total Materials");
    EXPECT_TRUE(book.InRowMode());
    book.DeleteMaterial();  // nothing is marked now
    EXPECT_EQ(book.Rows().Count(), 2);
}

TEST_F(PriceBookGrid, TheLastRowIsMarkedOnce) {
    EXPECT_TRUE(book.MoveTo(3));
    book.GridKey(123, Description);
    book.GridKey(123, Description);
    EXPECT_EQ(book.Rows().CurrentRow(), 3);
    book.DeleteMaterial();
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe");
    EXPECT_EQ(book.Rows().CurrentRow(), 2);
}

TEST_F(PriceBookGrid, AnyOtherKeyAndAClickReturnToCellMode) {
    book.GridKey(123, Description);
    EXPECT_FALSE(book.GridKey(40, Description));
    EXPECT_STREQ(book.DeleteCaption(), "Delete Material");
    EXPECT_FALSE(book.IsMarked(0));
    book.GridKey(123, Description);
    book.ClickCell();
    EXPECT_STREQ(book.DeleteCaption(), "Delete Material");
    book.DeleteMaterial();  // the current row alone, which the two marks moved to
    EXPECT_EQ(Column(Description), "Boot|Elbow|Whip");
}

TEST_F(PriceBookGrid, DeleteAndBackspaceClearACategoryAndNothingElse) {
    EXPECT_TRUE(book.GridKey(46, Category));
    EXPECT_EQ(book.Rows().CellText(0, Category), "");
    EXPECT_FALSE(book.GridKey(46, Description));
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_TRUE(book.GridKey(8, Category));
    EXPECT_FALSE(book.GridKey(8, UnitCost));
    EXPECT_TRUE(book.MoveTo(0));
    EXPECT_EQ(Column(Category), "||Duct|Electrical");
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
}

TEST_F(PriceBookTest, TooManyMarkedRowsAreTold) {
    Make(std::vector<BookRow>(32769, BookRow{"Pipe", "P", "Duct", 1, 2}));
    for (int i = 0; i < 32767; ++i)
        book.GridKey(123, Description);
    EXPECT_EQ(Told(), "");
    EXPECT_TRUE(book.GridKey(123, Description));
    EXPECT_EQ(Told(),
              "You are trying to select too many materials at once.  Try selecting a smaller "
              "amount of materials next time.");
    EXPECT_EQ(book.Rows().CurrentRow(), 32767);
}

TEST_F(PriceBookGrid, ADeleteCanBeTakenBackIntoItsPlace) {
    EXPECT_FALSE(book.CanUndo());
    EXPECT_TRUE(book.MoveTo(1));
    book.DeleteMaterial();
    EXPECT_TRUE(book.MoveTo(0));
    book.GridKey(123, Description);
    book.GridKey(123, Description);
    book.DeleteMaterial();
    EXPECT_EQ(Column(Description), "Whip");
    book.UndoDelete();
    EXPECT_EQ(Column(Description), "Boot|Pipe|Whip");
    book.UndoDelete();
    EXPECT_EQ(Column(Description), "Boot|Elbow|Pipe|Whip");
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    EXPECT_EQ(Column(UnitCost), "$9.85|$12.00|$4.10|$17.25");
    EXPECT_FALSE(book.CanUndo());
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip|Boot|Pipe|Elbow");
}

TEST_F(PriceBookGrid, ASearchTextIsFoundAnywhereInADescription) {
    book.Search(" pE ");  // trimmed, in either case
    EXPECT_EQ(book.Rows().CurrentRow(), 2);
    EXPECT_TRUE(book.MoveTo(0));
    book.Search("o");  // from the current row on: Boot itself is passed over
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 2 of 4 Materials");
    EXPECT_EQ(book.Categories()[static_cast<std::size_t>(book.SelectedCategory())], "Copper");
}

TEST_F(PriceBookGrid, FailingTheDescriptionsAPartNumberIsFound) {
    book.Search("-4");
    EXPECT_EQ(book.Rows().CurrentRow(), 3);
    EXPECT_TRUE(book.MoveTo(0));
    answers = {false};
    book.SearchAgain("-4");  // looks at descriptions alone
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_EQ(asked.back(), "No more records found with -4.  Restart search from the beginning?");
}

TEST_F(PriceBookGrid, ARestartedSearchDoesNotTestTheFirstRow) {
    EXPECT_TRUE(book.MoveTo(3));
    answers = {true};
    book.Search("Boot");
    EXPECT_EQ(asked.back(), "No more records found with Boot.  Restart search from the beginning?");
    EXPECT_EQ(Told(), "No records found with Boot.");
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_TRUE(book.MoveTo(3));
    answers = {true};
    book.SearchAgain("Elbow");
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    EXPECT_EQ(Told(), "");
}

TEST_F(PriceBookGrid, AnApostropheReachesTheCriterionAsItStands) {
    book.Search("5' pipe");
    const std::string text = Told();
    EXPECT_EQ(text.rfind("TENDO encountered an error while in Sub btnSearch_Click\n", 0), 0U)
        << text;
    EXPECT_EQ(book.Rows().CurrentRow(), 0);
    EXPECT_EQ(book.Rows().Count(), 4);
}

TEST_F(PriceBookTest, MoreMaterialsThanATakeoffCanCountAreShownAndEdited) {
    std::vector<BookRow> rows(33000, BookRow{"Pipe", "P", "Duct", 1, 2});
    Make(rows);
    EXPECT_TRUE(book.MoveTo(31999));
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 32,000 of 33,000 Materials");
    // The takeoff counts its rows in 16 bits: it refuses such a book and says why (6, Overflow).
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_EQ(folder.messages.back(), CatalogueFailureText(error_number::Overflow, 3));
}

TEST_F(PriceBookTest, NullsAreShownEmptyAndKeepTheSelectedCategory) {
    Make({{"A", "1", "Duct", 1, 2}, {"B", std::nullopt, std::nullopt, std::nullopt, std::nullopt}},
         {"Duct"});
    EXPECT_TRUE(book.MoveTo(1));
    for (const int column : {Category, PartNumber, UnitCost, ListCost})
        EXPECT_EQ(book.Rows().CellText(1, column), "");
    EXPECT_EQ(book.Rows().EditText(1, UnitCost), "");
    EXPECT_EQ(book.SelectedCategory(), 0);
    EXPECT_TRUE(book.SetCell(ListCost, ""));
    EXPECT_TRUE(book.LeaveRow());
    EXPECT_EQ(book.Rows().CellText(1, ListCost), "$0.00");
    EXPECT_EQ(book.Rows().CellText(1, UnitCost), "");
}

TEST_F(PriceBookTest, CostsThatAreNoneInAFileOfOthersAreShownAndCanBeMended) {
    Make({});
    Database blank = Database::OpenDatabase(File());
    const auto none = [](const std::function<void(std::span<const jet::ValueView>)>& add) {
        for (const double cost : {std::numeric_limits<double>::infinity(), std::nan("")})
            add(std::vector<jet::ValueView>{"A", cost, 2.0, "1", "Duct"});
    };
    ReplaceFile(
        File(),
        jet::WriteFile({{blank.Table("Materials"), none}, {blank.Table("Categories"), {}}}, 0));
    ASSERT_TRUE(book.Open());
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "1.#INF");
    EXPECT_EQ(book.Rows().CellText(1, UnitCost), "");
    EXPECT_EQ(book.Rows().EditText(0, UnitCost), "1.#INF");
    EXPECT_TRUE(book.SetCell(UnitCost, "3"));
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "$3.00");
}

TEST_F(PriceBookTest, CostsKeptAsTextAreShownAsTheyStand) {
    Make({{"A", "1", "Duct", 1, 2}});
    Database database = Database::OpenDatabase(File());
    jet::TableDefinition materials = database.Table("Materials");
    materials.columns[1] = materials.columns[0];
    materials.columns[1].name = "UnitCst";
    database.DeleteTable("Materials");
    database.AppendTable(materials);
    database.AppendRows("Materials", {{std::string("A"), std::string("call"), 2.0, std::string("1"),
                                       std::string("Duct")}});
    database.Close();
    ASSERT_TRUE(book.Open());
    EXPECT_EQ(book.Rows().CellText(0, UnitCost), "call");
    EXPECT_TRUE(book.SetCell(Description, "B"));
    EXPECT_TRUE(book.LeaveRow());
    EXPECT_EQ(Column(Description), "B");
}

}  // namespace
}  // namespace tendo
