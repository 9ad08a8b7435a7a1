#include "selection_fixture.h"

namespace tendo {
namespace {

/// Four air conditioners, of which the last one has no sound level.
class ModelOrder : public SelectionTest {
  protected:
    ModelOrder() {
        std::vector<NamedRow>& rows = TableNamed(tables, "AC File").rows;
        rows = {
            AirConditioner("FC-30", 30, 13, 900, 1300), AirConditioner("fa-18", 18, 16, 700, 990),
            AirConditioner("FB-24", 24, 13, 800, 1300), AirConditioner("FD-12", 12, 14, 600, 990)};
        for (std::size_t i = 0; i < 3; ++i)
            rows[i]["Sound"] = 70.0 - static_cast<double>(i);
    }

    Texts Shown(int tab = TabAC) const {
        Texts models;
        for (int place = 0; place < selection->RowCount(tab); ++place)
            models.push_back(selection->CellText(tab, selection->RowAt(tab, place), 1));
        return models;
    }

    int ColumnHeaded(const std::string& heading) const {
        for (int column = 0; column < selection->ColumnCount(TabAC); ++column)
            if (selection->ColumnHeading(TabAC, column) == heading) return column;
        return -1;
    }

    void ClickHead(const std::string& heading) {
        selection->SortByColumn(TabAC, ColumnHeaded(heading));
    }
};

const Texts tableOrder = {"FC-30", "fa-18", "FB-24", "FD-12"};

TEST_F(ModelOrder, AClickOnAColumnHeadSortsTheNextTurnsItRoundAThirdGivesTheTableOrder) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Shown(), tableOrder);
    ClickHead("Capacity");
    EXPECT_EQ(Shown(), (Texts{"FD-12", "fa-18", "FB-24", "FC-30"}));
    ASSERT_TRUE(s.Sorting(TabAC).has_value());
    EXPECT_FALSE(s.Sorting(TabAC)->descending);
    ClickHead("Capacity");
    EXPECT_EQ(Shown(), (Texts{"FC-30", "FB-24", "fa-18", "FD-12"}));
    EXPECT_TRUE(s.Sorting(TabAC)->descending);
    ClickHead("Capacity");
    EXPECT_EQ(Shown(), tableOrder);
    EXPECT_FALSE(s.Sorting(TabAC).has_value());
}

TEST_F(ModelOrder, TextsSortWithoutRegardToCaseAndAnotherColumnBeginsUpwardsAgain) {
    Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    ClickHead("Capacity");
    ClickHead("Model");
    EXPECT_EQ(Shown(), (Texts{"fa-18", "FB-24", "FC-30", "FD-12"}));
}

TEST_F(ModelOrder, RowsOfOneValueStandInTableOrderBothWays) {
    Open(SelectionMode::Cooling);
    ClickHead("Price");  // 1300, 990, 1300, 990
    EXPECT_EQ(Shown(), (Texts{"fa-18", "FD-12", "FC-30", "FB-24"}));
    ClickHead("Price");
    EXPECT_EQ(Shown(), (Texts{"FC-30", "FB-24", "fa-18", "FD-12"}));
}

TEST_F(ModelOrder, AnEmptyCellCountsAsTheSmallest) {
    Open(SelectionMode::Cooling);
    ClickHead("Sound");  // 70, 69, 68 and none
    EXPECT_EQ(Shown(), (Texts{"FD-12", "FB-24", "fa-18", "FC-30"}));
}

TEST_F(ModelOrder, EveryPlaceHoldsOneRowAndEveryRowKnowsItsPlace) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    for (int place = 0; place < 4; ++place)
        EXPECT_EQ(s.PlaceOf(TabAC, s.RowAt(TabAC, place)), place);
    for (const int outside : {-1, 4, 99}) {
        EXPECT_EQ(s.RowAt(TabAC, outside), -1);
        EXPECT_EQ(s.PlaceOf(TabAC, outside), -1);
    }
}

TEST_F(ModelOrder, SortingTouchesNeitherTheRowsNorTheCurrentOneNorTheMark) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.ClickRow(TabAC, 2);
    ClickHead("Capacity");
    EXPECT_EQ(Models(TabAC), tableOrder);
    EXPECT_EQ(s.CurrentRow(TabAC), 2);
    EXPECT_EQ(s.MarkedTab(), TabAC);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FB-24");
}

TEST_F(ModelOrder, WithoutAMarkTheFirstShownRowBecomesTheCurrentOne) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    EXPECT_EQ(s.CellText(TabAC, s.CurrentRow(TabAC), 1), "FD-12");
    ClickHead("Capacity");
    EXPECT_EQ(s.CellText(TabAC, s.CurrentRow(TabAC), 1), "FC-30");
    EXPECT_FALSE(s.MarkedTab().has_value());
}

TEST_F(ModelOrder, ASearchGoesOnInTableOrderHoweverTheGridIsSorted) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    s.SetCurrentRow(TabAC, 0);
    EXPECT_TRUE(s.Search("F"));
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
    EXPECT_TRUE(s.RepeatSearch());
    EXPECT_EQ(s.CurrentRow(TabAC), 2);
}

TEST_F(ModelOrder, NewLimitsKeepTheSortAndMakeTheFirstShownRowTheCurrentOne) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Model");
    s.SetLimit(ModelLimit::MaximumCapacity, "29");
    EXPECT_EQ(Shown(), (Texts{"fa-18", "FB-24", "FD-12"}));
    EXPECT_EQ(s.CurrentRow(TabAC), s.RowAt(TabAC, 0));
    EXPECT_EQ(s.CellText(TabAC, s.CurrentRow(TabAC), 1), "fa-18");
}

TEST_F(ModelOrder, AMarkedRowStaysTheCurrentOneUnderNewLimits) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Model");
    s.ClickRow(TabAC, 3);
    s.SetLimit(ModelLimit::MaximumCapacity, "29");
    EXPECT_EQ(s.CellText(TabAC, s.CurrentRow(TabAC), 1), "FD-12");
    EXPECT_EQ(s.MarkedTab(), TabAC);
}

TEST_F(ModelOrder, EachTabHasItsOwnSort) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    EXPECT_FALSE(s.Sorting(TabHP).has_value());
    s.SetCurrentTab(TabHP);
    s.SetCurrentTab(TabAC);
    EXPECT_EQ(Shown(), (Texts{"FD-12", "fa-18", "FB-24", "FC-30"}));
}

TEST_F(ModelOrder, TheSortGoesOnInAnotherDatabase) {
    Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    TableNamed(tables, "AC File").rows.push_back(AirConditioner("FE-20", 20, 13, 1, 2));
    WriteModelDatabase(folder.Path("Other.mdb"), tables);
    EXPECT_TRUE(selection->ChangeDatabase(folder.Path("Other.mdb")));
    EXPECT_EQ(Shown(), (Texts{"FD-12", "fa-18", "FE-20", "FB-24", "FC-30"}));
}

TEST_F(ModelOrder, AColumnThatTheDatabaseLacksSortsNothing) {
    std::erase(TableNamed(tables, "AC File").columns, "Eer:s");
    Open(SelectionMode::Cooling);
    ClickHead("Eer");
    EXPECT_EQ(Shown(), tableOrder);
    EXPECT_TRUE(messages.empty());
}

TEST_F(ModelOrder, EveryColumnOfEveryTabCanBeSortedBy) {
    for (const SelectionMode mode :
         {SelectionMode::Cooling, SelectionMode::Heating, SelectionMode::WaterHeater}) {
        ModelSelection& s = Open(mode);
        for (const int tab : s.VisibleTabs())
            for (int column = 0; column < s.ColumnCount(tab); ++column)
                s.SortByColumn(tab, column);
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(ModelOrder, WithoutRowsThereIsNothingToSort) {
    TableNamed(tables, "AC File").rows.clear();
    ModelSelection& s = Open(SelectionMode::Cooling);
    ClickHead("Model");
    EXPECT_EQ(s.RowAt(TabAC, 0), -1);
    EXPECT_EQ(s.CurrentRow(TabAC), -1);
    EXPECT_FALSE(s.FindTyped(TabAC, "F"));
}

class FindAsYouType : public ModelOrder {
  protected:
    std::string Found(const std::string& typed) {
        return selection->FindTyped(TabAC, typed)
                   ? selection->CellText(TabAC, selection->CurrentRow(TabAC), 1)
                   : "nothing";
    }
};

TEST_F(FindAsYouType, GoesToTheNextModelThatBeginsWithTheTextInLettersOfEitherCase) {
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Found("F"), "FC-30");  // the current one begins so already
    EXPECT_EQ(Found("Fa"), "fa-18");
    EXPECT_EQ(Found("fD"), "FD-12");
    EXPECT_EQ(Found("fc"), "FC-30");  // round to the beginning
}

TEST_F(FindAsYouType, ABeginningCountsBeforeAnyOtherPart) {
    TableNamed(tables, "AC File").rows.push_back(AirConditioner("24-A", 24, 13, 1, 2));
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Found("24"), "24-A");
    selection->SetCurrentRow(TabAC, 0);
    EXPECT_EQ(Found("-24"), "FB-24");
}

TEST_F(FindAsYouType, GoesInTheShownOrder) {
    Open(SelectionMode::Cooling);
    ClickHead("Capacity");
    selection->SetCurrentRow(TabAC, 3);  // FD-12, shown first
    EXPECT_EQ(Found("-"), "FD-12");
    selection->SetCurrentRow(TabAC, 1);
    EXPECT_EQ(Found("f"), "fa-18");
    EXPECT_EQ(Found("fc"), "FC-30");
}

TEST_F(FindAsYouType, AMissLeavesTheCurrentRowAndNothingIsMarked) {
    Open(SelectionMode::Cooling);
    selection->SetCurrentRow(TabAC, 2);
    EXPECT_EQ(Found("zz"), "nothing");
    EXPECT_EQ(Found(""), "nothing");
    EXPECT_EQ(selection->CurrentRow(TabAC), 2);
    EXPECT_FALSE(selection->MarkedTab().has_value());
    EXPECT_TRUE(questions.empty());
    EXPECT_TRUE(messages.empty());
}

TEST_F(FindAsYouType, SignsOfPatternsAndApostrophesStandForThemselves) {
    TableNamed(tables, "AC File").rows.push_back(AirConditioner("O'N*[1]", 24, 13, 1, 2));
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Found("o'n*["), "O'N*[1]");
    EXPECT_EQ(Found("?"), "nothing");
    EXPECT_EQ(Found("#"), "nothing");
}

TEST_F(FindAsYouType, AModelWithoutANumberIsPassedOver) {
    TableNamed(tables, "AC File")
        .rows.insert(TableNamed(tables, "AC File").rows.begin(),
                     NamedRow{{"Capacity", 10.0}, {"Seer", 10.0}});
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Found("FC"), "FC-30");
}

}  // namespace
}  // namespace tendo
