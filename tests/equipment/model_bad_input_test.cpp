#include <limits>

#include "platform/text/runtime_error.h"
#include "selection_fixture.h"

namespace tendo {
namespace {

/// Databases that a dealer may have spoilt, and texts that nobody expects.
class BadModels : public CoolingSelection {
  protected:
    SmallTable& AC() { return TableNamed(tables, "AC File"); }

    /// A column is of another type, or isn't there.
    static void Retype(SmallTable& table, const std::string& was, const std::string& is) {
        for (std::string& column : table.columns)
            if (column == was) column = is;
    }

    void Drop(const std::string& table) {
        std::erase_if(tables, [&](const SmallTable& t) { return t.name == table; });
    }

    ModelSelection& OpenAndFail(SelectionMode mode) {
        WriteModelDatabase(folder.Path("Small.mdb"), tables);
        selection.emplace(mode, records, 0, Dialogs());
        EXPECT_FALSE(selection->Open());
        return *selection;
    }

    std::string Message(const std::string& kind, int error) const {
        return "The database " + folder.Path("Small.mdb") +
               " is not a properly formatted manufacturer's model database for " + kind +
               ".  Please choose another database.  Error " + std::to_string(error);
    }

    std::string Cell(int row, const std::string& heading) const {
        for (int column = 0; column < selection->ColumnCount(TabAC); ++column)
            if (selection->ColumnHeading(TabAC, column) == heading)
                return selection->CellText(TabAC, row, column);
        return "no such column";
    }
};

TEST_F(BadModels, AMissingTableIsToldWithItsKindAndTheUserMayChooseAnother) {
    Drop("HP File");
    ModelSelection& s = OpenAndFail(SelectionMode::Cooling);
    EXPECT_EQ(messages, (Texts{Message("air source heat pumps", error_number::TableNotFound)}));
    EXPECT_EQ(s.RowCount(TabAC), 0);
    tables = EmptyModelTables();
    AC().rows = {AirConditioner("FA-1813", 18, 13, 1557, 2225)};
    WriteModelDatabase(folder.Path("Good.mdb"), tables);
    EXPECT_TRUE(s.ChangeDatabase(folder.Path("Good.mdb")));
    EXPECT_EQ(Models(TabAC), (Texts{"FA-1813"}));
}

TEST_F(BadModels, ATableOfAnotherModeIsNotMissedOnOpening) {
    Drop("AC File");
    TableNamed(tables, "WH File").rows = {
        {{"Model", std::string("FW")}, {"StorVol", 50.0}, {"EFF", 0.6}}};
    ModelSelection& s = Open(SelectionMode::WaterHeater);
    EXPECT_EQ(s.RowCount(TabWH), 1);
    EXPECT_TRUE(messages.empty());
}

TEST_F(BadModels, AMissingColumnOfAQueryIsTold) {
    std::erase(AC().columns, "Seer:s");
    for (NamedRow& row : AC().rows)
        row.erase("Seer");
    OpenAndFail(SelectionMode::Cooling);
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::TooFewParameters)}));
}

TEST_F(BadModels, AColumnOfTextsWhereAQueryWantsNumbersIsTold) {
    Retype(AC(), "Capacity:s", "Capacity:t");
    for (NamedRow& row : AC().rows)
        row["Capacity"] = std::string("large");
    OpenAndFail(SelectionMode::Cooling);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages[0].find("database for air conditioners.  Please choose"), std::string::npos);
}

TEST_F(BadModels, AMissingColumnThatIsOnlyShownLeavesItsCellsEmpty) {
    std::erase(AC().columns, "Tradename:t");
    std::erase(AC().columns, "HILOPressure:t");
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "Tradename"), "");
    EXPECT_EQ(Cell(0, "HILOPressureSwitch"), "");
    selection->ClickRow(TabAC, 0);
    EXPECT_TRUE(selection->SelectModel());
    EXPECT_TRUE(records.CLGModelData[0].HILOPressure.IsBlank());
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FA-1813");
}

TEST_F(BadModels, AMissingModelColumnLeavesNothingToFindOrCopy) {
    std::erase(AC().columns, "Model:t");
    for (NamedRow& row : AC().rows)
        row.erase("Model");
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_FALSE(s.FindTyped(TabAC, "F"));
    EXPECT_FALSE(s.Search("F"));
    EXPECT_EQ(messages.size(), 1U);
    s.ClickRow(TabAC, 0);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_TRUE(records.CLGModelData[0].ModelNum.IsBlank());
}

TEST_F(BadModels, WithoutTheColumnOfComplianceADatabaseOpensButCannotBeChangedTo) {
    std::erase(AC().columns, "EPA:b");
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "EPA"), "");
    EXPECT_FALSE(s.EPACompliant(TabAC));
    EXPECT_FALSE(s.ChangeDatabase(folder.Path("Small.mdb")));
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::ItemNotFound)}));
    EXPECT_EQ(s.RowCount(TabAC), 3);
}

TEST_F(BadModels, WithoutAPriceColumnNothingIsCopiedAndTheOldModelStays) {
    std::erase(AC().columns, "ListPrice:c");
    for (NamedRow& row : AC().rows)
        row.erase("ListPrice");
    records.CLGModelData[0].ModelNum = "OLD";
    records.SystemTendos.ModelSalePrice = 100;
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "Price"), "");
    s.ClickRow(TabAC, 0);
    EXPECT_FALSE(s.SelectModel());
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::ItemNotFound)}));
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "OLD");
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 100.0F);
}

TEST_F(BadModels, ATextInAPriceColumnIsShownAndNotTakenForZeroDollars) {
    Retype(AC(), "DealerCost:c", "DealerCost:t");
    AC().rows[0]["DealerCost"] = std::string("on request");
    AC().rows[1]["DealerCost"] = std::string("$2,317.00");
    AC().rows[2]["DealerCost"] = std::string("  ");
    AC().rows.pop_back();
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "Cost"), "on request");
    s.ClickRow(TabAC, 0);
    EXPECT_FALSE(s.SelectModel());
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::TypeMismatch)}));
    EXPECT_TRUE(records.CLGModelData[0].ModelNum.IsBlank());
    s.ClickRow(TabAC, 1);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 2317.0F);
    s.ClickRow(TabAC, 2);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 0.0F);
}

TEST_F(BadModels, TextsInColumnsOfFiguresCountAsTheirNumberOrZero) {
    for (const char* name : {"Weight", "Height", "Sound", "Eer", "RefrigTubingMaxLen"}) {
        Retype(AC(), std::string(name) + ":s", std::string(name) + ":t");
        AC().rows[0][name] = std::string("about 200");
    }
    AC().rows[0]["Height"] = std::string("31.5");
    Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "Weight"), "about 200");
    EXPECT_EQ(Cell(0, "Eer"), "about 200");
    selection->ClickRow(TabAC, 0);
    EXPECT_TRUE(selection->SelectModel());
    EXPECT_EQ(records.CLGModelData[0].Weight, 0.0F);
    EXPECT_EQ(records.CLGModelData[0].Height, 31.5F);
}

TEST_F(BadModels, ATextInTheColumnOfComplianceIsShownAsItStands) {
    Retype(AC(), "EPA:b", "EPA:t");
    AC().rows[0]["EPA"] = std::string("Yes");
    AC().rows[1]["EPA"] = std::string("pending");
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "EPA"), "Yes");
    EXPECT_TRUE(s.EPACompliant(TabAC));
    s.SetCurrentRow(TabAC, 1);
    EXPECT_EQ(Cell(1, "EPA"), "pending");
    EXPECT_FALSE(s.EPACompliant(TabAC));
}

TEST_F(BadModels, NumbersInColumnsOfTextsAreCopiedAsTheirTexts) {
    Retype(AC(), "Electrical:t", "Electrical:s");
    AC().rows[0]["Electrical"] = 208.5;
    Open(SelectionMode::Cooling);
    selection->ClickRow(TabAC, 0);
    EXPECT_TRUE(selection->SelectModel());
    EXPECT_EQ(records.CLGModelData[0].Electrical.Trimmed(), "208.5");
}

TEST_F(BadModels, FiguresBeyondAFloatAreShownAndRefusedWhenCopied) {
    Retype(AC(), "Eer:s", "Eer:f");
    Retype(AC(), "Weight:s", "Weight:f");
    AC().rows[0]["Eer"] = 1e300;
    AC().rows[1]["Weight"] = 1e300;
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(0, "Eer"), "1E+300");
    s.ClickRow(TabAC, 1);
    EXPECT_FALSE(s.SelectModel());
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::Overflow)}));
    EXPECT_TRUE(records.CLGModelData[0].ModelNum.IsBlank());
}

TEST_F(BadModels, AHeaderWithoutRowsWithNullsWithoutItsColumnOrMissingGivesABlankMaker) {
    const SmallTable header = TableNamed(tables, "Header");
    const std::vector<SmallTable> headers = {
        {"Header", header.columns, {}},
        {"Header", header.columns, {{}}},
        {"Header", {"Other:w"}, {{{"Other", std::string("x")}}}},
        {"Nothing", header.columns, {}}};
    int count = 0;
    for (const SmallTable& other : headers) {
        tables.back() = other;
        const std::string name = folder.Path("H" + std::to_string(++count) + ".mdb");
        WriteModelDatabase(name, tables);
        records.CLGModelData[0] = CLGModelRecord{};
        records.CLGModelData[0].DB = name;
        ModelSelection& s = Open(SelectionMode::Cooling);
        s.ClickRow(TabAC, 0);
        EXPECT_TRUE(s.SelectModel());
        EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FA-1813");
        EXPECT_TRUE(records.CLGModelData[0].Manuf.IsBlank()) << count;
    }
}

TEST_F(BadModels, NullsEverywhereOpenShowAndAreWithinNoLimits) {
    for (SmallTable& table : tables)
        table.rows = {{}, {}};
    WriteModelDatabase(folder.Path("Small.mdb"), tables);
    for (const SelectionMode mode :
         {SelectionMode::Cooling, SelectionMode::Heating, SelectionMode::WaterHeater}) {
        ModelSelection& s = Open(mode);
        for (const int tab : s.VisibleTabs())
            EXPECT_EQ(s.RowCount(tab), 0) << ModelTabAt(tab).name;
        EXPECT_TRUE(s.ChangeDatabase(folder.Path("Small.mdb")));
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(BadModels, AfterAChangeOfDatabaseARowOfNullsIsShownAndCanBeChosen) {
    AC().rows = {{}};
    Open(SelectionMode::Cooling);
    EXPECT_TRUE(selection->ChangeDatabase(folder.Path("Small.mdb")));
    ASSERT_EQ(selection->RowCount(TabAC), 1);
    EXPECT_EQ(Cell(0, "EPA"), "No");
    EXPECT_EQ(Cell(0, "Capacity"), "");
    EXPECT_EQ(Cell(0, "Cost"), "");
    selection->ClickRow(TabAC, 0);
    EXPECT_TRUE(selection->SelectModel());
    EXPECT_EQ(records.CLGModelData[0].ModelType.Trimmed(), "Air Conditioner");
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 1);
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 0.0F);
}

TEST_F(BadModels, ApostrophesPipesAndSemicolonsAreTextsLikeAnyOther) {
    AC().rows[1]["Model"] = std::string("A'B|C;D");
    AC().rows[1]["Description"] = std::string("12\" x 14\"; left|right isn't [set] *");
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Cell(1, "Model"), "A'B|C;D");
    EXPECT_TRUE(s.Search("B|C;D"));
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
    s.ClickRow(TabAC, 1);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "A'B|C;D");
    EXPECT_EQ(records.CLGModelData[0].ModelDesc.Trimmed(), "12\" x 14\"; left|right isn't [set] *");
}

TEST_F(BadModels, ASearchForSignsOfPatternsNeverFails) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    for (const char* text : {"[", "]", "[]", "[!", "[z-a]", "*", "?", "#", "%", "_", "\"", ";--",
                             "|", "\\", "(", "\xc3\xa4"}) {
        s.SetCurrentRow(TabAC, 0);
        EXPECT_NO_THROW(s.Search(text)) << text;
        EXPECT_GE(s.CurrentRow(TabAC), 0) << text;
    }
    for (const std::string& message : messages)
        EXPECT_FALSE(message.empty());
}

TEST_F(BadModels, ANegativeCapacityIsHiddenUntilTheMinimumLiesBelowIt) {
    AC().rows[0]["Capacity"] = -5.0;
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(Models(TabAC), (Texts{"FA-3614", "FA-3616"}));
    EXPECT_TRUE(s.SetLimit(ModelLimit::MinimumCapacity, "-5"));
    EXPECT_EQ(Models(TabAC), (Texts{"FA-1813", "FA-3614", "FA-3616"}));
    EXPECT_EQ(s.LimitLabel(ModelLimit::MinimumCapacity), "Set Mi&nimum Capacity = -5");
    EXPECT_EQ(Cell(0, "Capacity"), "-5.0");
    s.ClickRow(TabAC, 0);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].Cap, -5.0F);
}

TEST_F(BadModels, AModelAboveTheStartingMaximumShowsOnceTheMaximumIsRaised) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_TRUE(s.SetLimit(ModelLimit::MaximumCapacity, "1,200"));
    EXPECT_EQ(s.LimitLabel(ModelLimit::MaximumCapacity), "Set Ma&ximum Capacity = 1200");
    EXPECT_EQ(Models(TabAC).back(), "FB-9999");
}

TEST_F(BadModels, LimitsOfEverySizeMakeAQueryThatRuns) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    for (const char* text : {"1E+20", "-1E+20", "1e-20", "-0", "00012", "3.4e38", "$18", "(5)",
                             " 7 ", "16777217", ".5", "1."}) {
        for (const ModelLimit limit : {ModelLimit::MinimumCapacity, ModelLimit::MaximumCapacity,
                                       ModelLimit::MinimumEfficiency})
            EXPECT_TRUE(s.SetLimit(limit, text)) << text;
    }
    EXPECT_TRUE(messages.empty());
    s.SetLimit(ModelLimit::MinimumCapacity, "-1E+20");
    s.SetLimit(ModelLimit::MaximumCapacity, "1E+20");
    s.SetLimit(ModelLimit::MinimumEfficiency, "-1E+20");
    EXPECT_EQ(s.RowCount(TabAC), 4);
}

TEST_F(BadModels, TextsThatAreNoNumberLeaveEveryLimitAlone) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    for (const char* text : {"", " ", "many", "1e39", "1e400", "nan", "inf", "12abc", "1 or 1=1",
                             "--1", "0x10", "'", "1;2", "\xd9\xa3"}) {
        for (const ModelLimit limit : {ModelLimit::MinimumCapacity, ModelLimit::MaximumCapacity,
                                       ModelLimit::MinimumEfficiency})
            EXPECT_FALSE(s.SetLimit(limit, text)) << text;
    }
    EXPECT_EQ(s.LimitText(ModelLimit::MinimumCapacity), "0");
    EXPECT_EQ(s.LimitText(ModelLimit::MaximumCapacity), "999.9");
    EXPECT_EQ(s.LimitText(ModelLimit::MinimumEfficiency), "0");
    EXPECT_EQ(s.RowCount(TabAC), 3);
}

TEST_F(BadModels, ADatabaseFileThatVanishesMeanwhileCanStillBeChosenFrom) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    std::filesystem::remove(folder.Path("Small.mdb"));
    EXPECT_TRUE(s.SetLimit(ModelLimit::MinimumCapacity, "30"));
    s.SetCurrentTab(TabHP);
    s.SetCurrentTab(TabAC);
    EXPECT_EQ(Models(TabAC), (Texts{"FA-3614", "FA-3616"}));
    s.ClickRow(TabAC, 1);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FA-3616");
    EXPECT_EQ(records.CLGModelData[0].Manuf.Trimmed(), "Frostelm");
    EXPECT_FALSE(s.ChangeDatabase(folder.Path("Small.mdb")));
    EXPECT_EQ(messages, (Texts{Message("air conditioners", error_number::CouldNotFindFile)}));
}

TEST_F(BadModels, ADatabaseFileCutShortMeanwhileDoesNotMatterEither) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    std::filesystem::resize_file(folder.Path("Small.mdb"), 100);
    s.ClickRow(TabAC, 0);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].Manuf.Trimmed(), "Frostelm");
}

class BadBurners : public SelectionTest {};

TEST_F(BadBurners, FuelsOutOfTheTableStandOnTheBoilersTabWithoutAName) {
    SmallTable& table = TableNamed(tables, "GAMA File");
    for (const int fuel : {9, 300, -1, 0})
        table.rows.push_back({{"Model", "M" + std::to_string(fuel)},
                              {"FuelType", std::int64_t{fuel}},
                              {"Capacity", 80.0},
                              {"AFUE", 90.0}});
    table.rows.push_back({{"Model", std::string("none")}, {"Capacity", 80.0}, {"AFUE", 90.0}});
    ModelSelection& s = Open(SelectionMode::Heating);
    EXPECT_EQ(Models(TabBoiler), (Texts{"M9", "M300"}));
    EXPECT_EQ(Models(TabFurnace), (Texts{"M-1", "M0"}));  // a null lies on neither side
    s.ClickRow(TabBoiler, 1);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_TRUE(records.HTGModelData[0].FuelType.IsBlank());
    EXPECT_EQ(records.HTGModelData[0].ModelType.Trimmed(), "Boiler");
}

TEST_F(BadBurners, AWaterHeaterWithoutAReadableFuelHasNone) {
    SmallTable& table = TableNamed(tables, "WH File");
    for (std::string& column : table.columns)
        if (column == "FuelType:i") column = "FuelType:t";
    const NamedRow row = {{"Model", std::string("W")}, {"StorVol", 50.0}, {"EFF", 0.6}};
    table.rows = {row, row};
    table.rows[0]["FuelType"] = std::string("wood");
    table.rows[1]["FuelType"] = std::string("2");
    ModelSelection& s = Open(SelectionMode::WaterHeater);
    s.ClickRow(TabWH, 0);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_TRUE(records.WHModelData[0].FuelType.IsBlank());
    s.ClickRow(TabWH, 1);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.WHModelData[0].FuelType.Trimmed(), "Propane");
}

}  // namespace
}  // namespace tendo
