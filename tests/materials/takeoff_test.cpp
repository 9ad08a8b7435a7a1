#include "materials/takeoff.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

using Field = TakeoffField;

/// Materials 1 to `count`, ten to a category ("Category 1" ...), of $1.00 and $2.00 list.
std::vector<MaterialRow> Book(int count) {
    std::vector<MaterialRow> rows(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        MaterialRow& row = rows[static_cast<std::size_t>(i)];
        row.Category = "Category " + std::to_string(i / 10 + 1);
        row.Description = "Material " + std::to_string(i + 1);
        row.PartNumber = "P" + std::to_string(i + 1);
        row.UnitCst = 1;
        row.ListCst = row.SalePrice = 2;
    }
    return rows;
}

class TakeoffTest : public testing::Test {
  protected:
    explicit TakeoffTest(int count = 40) : book(Book(count)), takeoff(book, "Select") {}

    void Enter(int row, Field field, const std::string& text) {
        takeoff.Line(row).SetText(field, text);
        takeoff.Leave(row, field);
    }
    void Select(int number, std::int16_t quantity, bool accessory = false) {
        MaterialRow& row = book.at(static_cast<std::size_t>(number - 1));
        row.ItemQty = quantity;
        row.Accessory = accessory ? 1 : 0;
    }
    std::string Shown(int row) const { return takeoff.Line(row).Text(Field::ItemDesc); }

    std::vector<MaterialRow> book;
    Takeoff takeoff;
};

TEST_F(TakeoffTest, StartsAtTheTopOfTheWholeList) {
    EXPECT_EQ(takeoff.Title(), "Select - Viewing All Materials and Accessories - 40 Materials");
    EXPECT_EQ(Shown(0), "Material 1");
    EXPECT_EQ(Shown(14), "Material 15");
    EXPECT_EQ(takeoff.ScrollRange(), 25);
    EXPECT_EQ(takeoff.Count(), 40);
}

TEST_F(TakeoffTest, TheTitleFollowsTheRowsAsTheUserMoves) {
    takeoff.SetCurrentRow(2);
    EXPECT_EQ(takeoff.Title(),
              "Select - Viewing All Materials and Accessories - 3 of 40 Materials");
    takeoff.TurnPage(1);
    EXPECT_EQ(takeoff.Title(),
              "Select - Viewing All Materials and Accessories - 18 of 40 Materials");
}

TEST_F(TakeoffTest, EachViewHasItsTitles) {
    Select(1, 1);
    Select(2, 1);
    Select(3, 1);
    Select(4, 1, true);
    Select(5, 1, true);
    struct {
        TakeoffView view;
        const char* built;
        const char* moved;
    } const titles[] = {
        {TakeoffView::Materials, "Select - Viewing Selected Materials - 3 Selected",
         "Select - Viewing Selected Materials - 2 of 3 Materials"},
        {TakeoffView::Accessories, "Select - Viewing Selected Accessories- 2 Selected",
         "Select - Viewing Selected Accessories - 2 of 2 Materials"},
        {TakeoffView::Both, "Select - Viewing Selected Materials and Accessories- 5 Selected",
         "Select - Viewing Selected Materials and Accessories - 2 of 5 Materials"},
        {TakeoffView::All, "Select - Viewing All Materials and Accessories - 40 Materials",
         "Select - Viewing All Materials and Accessories - 2 of 40 Materials"}};
    for (const auto& title : titles) {
        takeoff.Show(title.view);
        EXPECT_EQ(takeoff.Title(), title.built);
        takeoff.SetCurrentRow(1);
        EXPECT_EQ(takeoff.Title(), title.moved);
    }
}

TEST_F(TakeoffTest, TheTitlesOfAListAreSpelledAlikeWhileTheUserMoves) {
    Takeoff list(book, "List", true);
    Select(7, 3, true);
    Select(9, 1, true);
    list.Show(TakeoffView::Accessories);
    EXPECT_EQ(list.Title(), "List - Viewing Selected Accessories- 2 Selected");
    list.SetCurrentRow(1);
    EXPECT_EQ(list.Title(), "List - Viewing Selected Accessories- 2 of 2 Materials");
}

TEST_F(TakeoffTest, AViewTakesTheRowsOfItsKindAndBlanksTheRest) {
    Select(7, 3);
    Select(9, 1, true);
    Select(33, 2);
    takeoff.Show(TakeoffView::Materials);
    EXPECT_EQ(Shown(0), "Material 7");
    EXPECT_EQ(takeoff.Line(0).Text(Field::ItemQty), "3");
    EXPECT_EQ(Shown(1), "Material 33");
    EXPECT_TRUE(takeoff.Line(2).IsBlank());
    EXPECT_EQ(takeoff.ScrollRange(), 0);
    takeoff.Show(TakeoffView::Accessories);
    EXPECT_EQ(takeoff.Count(), 1);
    EXPECT_EQ(Shown(0), "Material 9");
    takeoff.Show(TakeoffView::Both);
    EXPECT_EQ(takeoff.Count(), 3);
    EXPECT_EQ(Shown(1), "Material 9");
}

TEST_F(TakeoffTest, ANegativeQuantityIsNotSelected) {
    Select(7, -3);
    takeoff.Show(TakeoffView::Both);
    EXPECT_EQ(takeoff.Count(), 0);
    EXPECT_EQ(takeoff.Title(), "Select - Viewing Selected Materials and Accessories- 0 Selected");
}

TEST_F(TakeoffTest, MovingThroughAnEmptyViewChangesNothing) {
    takeoff.Show(TakeoffView::Both);
    const std::string title = takeoff.Title();
    takeoff.Step(1);
    takeoff.Step(-1);
    takeoff.TurnPage(1);
    takeoff.SetCurrentRow(5);
    EXPECT_EQ(takeoff.CurrentRow(), 0);
    EXPECT_EQ(takeoff.Title(), title);
}

class LongTakeoffTest : public TakeoffTest {
  protected:
    LongTakeoffTest() : TakeoffTest(200) {}
};

TEST_F(LongTakeoffTest, Of101SelectedRowsTheSelectedViewShowsAndReports100) {
    for (int number = 1; number <= 101; ++number)
        Select(number, 1);
    takeoff.Show(TakeoffView::Materials);
    EXPECT_EQ(takeoff.Count(), 100);
    EXPECT_EQ(takeoff.Row(99).Description.Trimmed(), "Material 100");
    EXPECT_EQ(takeoff.Title(), "Select - Viewing Selected Materials - 100 Selected");
    EXPECT_EQ(takeoff.ScrollRange(), 85);
    takeoff.Show(TakeoffView::All);
    EXPECT_EQ(SelectedMaterials(book).size(), 101U);
}

TEST_F(TakeoffTest, AnEditInASelectedViewReachesTheCatalogueRow) {
    Select(7, 3);
    Select(33, 2);
    takeoff.Show(TakeoffView::Materials);
    Enter(1, Field::ItemQty, "5");
    takeoff.Show(TakeoffView::All);
    EXPECT_EQ(book[32].ItemQty, 5);
    EXPECT_EQ(book[6].ItemQty, 3);
}

TEST_F(TakeoffTest, AnEditInASelectedViewStaysInItWhenThePageMovesAway) {
    for (int number = 1; number <= 20; ++number)
        Select(number, 1);
    takeoff.Show(TakeoffView::Materials);
    Enter(0, Field::ItemQty, "0");
    takeoff.ScrollTo(5);
    takeoff.ScrollTo(0);
    EXPECT_EQ(takeoff.Count(), 20);  // it leaves the view when that is built anew
    EXPECT_EQ(takeoff.Line(0).Text(Field::ItemQty), "0");
    takeoff.Show(TakeoffView::Materials);
    EXPECT_EQ(takeoff.Count(), 19);
}

TEST_F(TakeoffTest, TwoMaterialsOfOneDescriptionStayTwo) {
    book[10].Description = book[20].Description = "Concentric vent kit, t";
    book[20].UnitCst = 46;
    Select(21, 1);
    takeoff.Show(TakeoffView::Materials);
    Enter(0, Field::ItemQty, "4");
    takeoff.Show(TakeoffView::All);
    EXPECT_EQ(book[20].ItemQty, 4);
    EXPECT_EQ(book[10].ItemQty, 0);
}

TEST_F(TakeoffTest, TextsThatWereNotLeftAreStoredWhenThePageMoves) {
    takeoff.Line(1).SetText(Field::ItemQty, "6");
    takeoff.Line(1).SetText(Field::SalePrice, "12.5");
    EXPECT_EQ(book[1].ItemQty, 0);
    takeoff.ScrollTo(10);
    EXPECT_EQ(book[1].ItemQty, 6);
    EXPECT_EQ(book[1].SalePrice, 12.5F);
    EXPECT_EQ(book[1].Tax, 1);
    EXPECT_EQ(book[0], Book(40)[0]);  // shown, not edited
}

TEST_F(TakeoffTest, ScrollingStopsAtBothEnds) {
    takeoff.ScrollTo(99);
    EXPECT_EQ(takeoff.Top(), 25);
    EXPECT_EQ(Shown(14), "Material 40");
    takeoff.ScrollTo(-5);
    EXPECT_EQ(takeoff.Top(), 0);
}

TEST_F(TakeoffTest, SteppingMovesThePageAtItsEdges) {
    takeoff.Step(14);
    EXPECT_EQ(takeoff.Position(), 14);
    EXPECT_EQ(takeoff.Top(), 0);
    takeoff.Step(1);
    EXPECT_EQ(takeoff.Position(), 15);
    EXPECT_EQ(takeoff.Top(), 1);
    EXPECT_EQ(takeoff.CurrentRow(), 14);
    takeoff.Step(-14);
    takeoff.Step(-1);
    EXPECT_EQ(takeoff.Top(), 0);
    EXPECT_EQ(takeoff.CurrentRow(), 0);
    takeoff.Step(-1);
    EXPECT_EQ(takeoff.Position(), 0);
    takeoff.ScrollTo(25);
    takeoff.SetCurrentRow(14);
    takeoff.Step(1);
    EXPECT_EQ(takeoff.Position(), 39);
}

TEST_F(TakeoffTest, ABookShorterThanThePageNeverScrolls) {
    book = Book(4);
    takeoff.Reset();
    EXPECT_EQ(takeoff.ScrollRange(), 0);
    EXPECT_TRUE(takeoff.Line(4).IsBlank());
    takeoff.TurnPage(1);
    takeoff.SetCurrentRow(9);
    EXPECT_EQ(takeoff.CurrentRow(), 3);
    EXPECT_TRUE(takeoff.GoToCategory("Category 1"));
    EXPECT_EQ(takeoff.Top(), 0);
}

TEST_F(TakeoffTest, ACategoryIsShownFromItsFirstMaterialAsFarAsThePageStaysInside) {
    book[9].Category = "  Category 2";
    EXPECT_TRUE(takeoff.GoToCategory("Category 2"));
    EXPECT_EQ(takeoff.Top(), 9);
    EXPECT_TRUE(takeoff.GoToCategory("Category 4"));
    EXPECT_EQ(takeoff.Top(), 25);  // row 30 and the fifteen behind it would pass the end at 39
    EXPECT_EQ(takeoff.Position(), 30);
    EXPECT_FALSE(takeoff.GoToCategory("(None)"));
    EXPECT_EQ(takeoff.Position(), 30);
}

TEST_F(TakeoffTest, ASearchBeginsBehindTheCurrentRowAndKnowsNoCase) {
    book[0].Description = "Flex duct";
    book[5].Description = "Round flex";
    book[30].Description = "FLEX end";
    EXPECT_TRUE(takeoff.FindNext("flex"));
    EXPECT_EQ(takeoff.Position(), 5);
    EXPECT_TRUE(takeoff.FindNext("flex"));
    EXPECT_EQ(takeoff.Position(), 30);
    EXPECT_FALSE(takeoff.FindNext("flex"));
    EXPECT_EQ(takeoff.Position(), 30);
    EXPECT_TRUE(takeoff.FindFirst("flex"));
    EXPECT_EQ(takeoff.Position(), 0);
    EXPECT_FALSE(takeoff.FindNext("P12"));  // part numbers aren't searched
}

TEST_F(TakeoffTest, InASelectedViewTheSearchRunsOverItsRowsOnly) {
    Select(3, 1);
    Select(22, 1);
    takeoff.Show(TakeoffView::Both);
    EXPECT_FALSE(takeoff.FindNext("Material 4"));
    EXPECT_TRUE(takeoff.FindNext("Material 22"));
    EXPECT_EQ(takeoff.Position(), 1);
}

TEST_F(TakeoffTest, TypeAheadPrefersTheBeginningOfADescription) {
    book[3].Description = "Round flex";
    book[12].Description = "Flex duct";
    EXPECT_TRUE(takeoff.JumpTo("fl"));
    EXPECT_EQ(takeoff.Position(), 12);
    EXPECT_TRUE(takeoff.JumpTo("nd fl"));
    EXPECT_EQ(takeoff.Position(), 3);
    EXPECT_FALSE(takeoff.JumpTo("nowhere"));
    EXPECT_FALSE(takeoff.JumpTo(" "));
    EXPECT_EQ(takeoff.Position(), 3);
}

TEST_F(TakeoffTest, ClearingTakesTheSelectionsAndLeavesThePrices) {
    Select(7, 3);
    Select(9, 1, true);
    book[6].Tax = 1;
    book[6].SalePrice = 44;
    book[6].GrossMargin = 20;
    takeoff.Show(TakeoffView::Both);
    takeoff.ClearSelections();
    EXPECT_EQ(takeoff.Count(), 0);
    EXPECT_EQ(takeoff.Title(), "Select - Viewing Selected Materials and Accessories- 0 Selected");
    EXPECT_TRUE(SelectedMaterials(book).empty());
    EXPECT_EQ(book[6].Tax, 0);
    EXPECT_EQ(book[8].Accessory, 0);
    EXPECT_EQ(book[6].SalePrice, 44.0F);
    EXPECT_EQ(book[6].GrossMargin, 20.0F);
}

TEST_F(TakeoffTest, AViewDoesNotBuildWhileOneIsBuilding) {
    Select(7, 3);
    int filled = 0;
    takeoff.PageFilled = [&] {
        if (++filled == 1) takeoff.Show(TakeoffView::All);
    };
    takeoff.Show(TakeoffView::Materials);
    EXPECT_EQ(filled, 1);
    EXPECT_EQ(takeoff.View(), TakeoffView::Materials);
}

TEST_F(TakeoffTest, AnEditInAViewOfACatalogueThatBecameShorterIsDropped) {
    Select(33, 2);
    takeoff.Show(TakeoffView::Both);
    book.resize(10);
    Enter(0, Field::ItemQty, "5");
    takeoff.Show(TakeoffView::All);
    EXPECT_EQ(takeoff.Count(), 10);
    EXPECT_TRUE(SelectedMaterials(book).empty());
}

TEST_F(TakeoffTest, ARowChangedBehindThePageIsShownAfterARefill) {
    takeoff.Line(0).SetText(Field::ItemQty, "9");
    Select(1, 2);
    takeoff.Refill();
    EXPECT_EQ(takeoff.Line(0).Text(Field::ItemQty), "2");
}

}  // namespace
}  // namespace tendo
