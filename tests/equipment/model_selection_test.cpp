#include "platform/text/date_text.h"
#include "selection_fixture.h"

namespace tendo {
namespace {

TEST_F(CoolingSelection, ANewTabHidesAModelAboveTheStartingMaximum) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(s.Limits(TabAC).minimumCapacity, 0.0F);
    EXPECT_EQ(s.Limits(TabAC).maximumCapacity, 999.9F);
    EXPECT_EQ(s.Limits(TabAC).minimumEfficiency, 0.0F);
    EXPECT_EQ(s.SearchText(TabAC), "");
    EXPECT_EQ(Models(TabAC), (Texts{"FA-1813", "FA-3614", "FA-3616"}));
    EXPECT_EQ(s.Title(), "Selecting Cooling Models - 3 AC Models");
    EXPECT_EQ(s.TotalRowCount(TabAC), 4);
}

TEST_F(CoolingSelection, ARowWithoutACapacityLiesWithinNoLimits) {
    TableNamed(tables, "AC File").rows = {{{"Model", std::string("none")}}};
    Open(SelectionMode::Cooling);
    EXPECT_EQ(selection->RowCount(TabAC), 0);
    EXPECT_EQ(selection->CurrentRow(TabAC), -1);
    EXPECT_FALSE(selection->EPACompliant(TabAC));
}

TEST_F(CoolingSelection, TheLimitsAreExactBoundsThatCountThemselves) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_TRUE(s.SetLimit(ModelLimit::MinimumCapacity, "18"));
    EXPECT_TRUE(s.SetLimit(ModelLimit::MaximumCapacity, "36"));
    EXPECT_TRUE(s.SetLimit(ModelLimit::MinimumEfficiency, "14.5"));
    EXPECT_EQ(Models(TabAC), (Texts{"FA-3614", "FA-3616"}));
    EXPECT_TRUE(s.SetLimit(ModelLimit::MaximumCapacity, "35.9"));
    EXPECT_EQ(s.Title(), "Selecting Cooling Models - 0 AC Models");
}

TEST_F(CoolingSelection, LimitsSetOnOneTabDoNotChangeAnother) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetLimit(ModelLimit::MinimumCapacity, "20");
    s.SetCurrentTab(TabHP);
    EXPECT_EQ(s.Limits(TabHP).minimumCapacity, 0.0F);
    EXPECT_EQ(s.LimitLabel(ModelLimit::MinimumCapacity), "Set Mi&nimum Capacity = 0");
    s.SetCurrentTab(TabAC);
    EXPECT_EQ(s.Limits(TabAC).minimumCapacity, 20.0F);
    EXPECT_EQ(Models(TabAC), (Texts{"FA-3614", "FA-3616"}));
}

TEST_F(CoolingSelection, TheCommandsCarryTheTabsValues) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetLimit(ModelLimit::MinimumCapacity, "17.5");
    EXPECT_EQ(s.LimitLabel(ModelLimit::MinimumCapacity), "Set Mi&nimum Capacity = 17.5");
    EXPECT_EQ(s.LimitLabel(ModelLimit::MaximumCapacity), "Set Ma&ximum Capacity = 999.9");
    EXPECT_EQ(s.LimitLabel(ModelLimit::MinimumEfficiency), "Set Minimum &Efficiency = 0");
    EXPECT_EQ(s.SearchLabel(), "&Search for ");
    EXPECT_EQ(s.LimitPrompt(ModelLimit::MinimumCapacity), "Please Enter the Minimum Capacity:");
    EXPECT_EQ(s.LimitPrompt(ModelLimit::MaximumCapacity), "Please Enter the Maximum Capacity:");
    EXPECT_EQ(s.LimitPrompt(ModelLimit::MinimumEfficiency), "Please Enter the Minimum Efficiency:");
}

TEST_F(CoolingSelection, TextThatIsNoNumberLeavesALimitAlone) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    for (const char* text : {"", "abc", "-", "12abc"})
        EXPECT_FALSE(s.SetLimit(ModelLimit::MaximumCapacity, text)) << text;
    EXPECT_EQ(s.Limits(TabAC).maximumCapacity, 999.9F);
}

TEST_F(CoolingSelection, CellsShowYesAndNoMoneyPlainNumbersAndShortDates) {
    NamedRow& row = TableNamed(tables, "AC File").rows[1];
    row["EPA"] = true;
    row["Sound"] = 71.5;
    row["HILOPressure"] = std::string("Both Included");
    row["Added"] = SerialOfDate({2024, 5, 4});
    ModelSelection& s = Open(SelectionMode::Cooling);
    const auto cell = [&](const std::string& heading) {
        for (int column = 0; column < s.ColumnCount(TabAC); ++column)
            if (s.ColumnHeading(TabAC, column) == heading) return s.CellText(TabAC, 1, column);
        return std::string("no such column");
    };
    EXPECT_EQ(cell("EPA"), "Yes");
    EXPECT_EQ(cell("Capacity"), "36.0");
    EXPECT_EQ(cell("Seer"), "14.50");
    EXPECT_EQ(cell("Cost"), "$2,317.00");
    EXPECT_EQ(cell("Price"), "$3,310.00");
    EXPECT_EQ(cell("Sound"), "71.5");
    EXPECT_EQ(cell("HILOPressureSwitch"), "Both Included");
    EXPECT_EQ(cell("Added"), "5/4/2024");
    EXPECT_EQ(cell("Updated"), "");
    EXPECT_EQ(cell("Tradename"), "");
    EXPECT_EQ(s.CellText(TabAC, 0, 0), "No");
    EXPECT_EQ(s.CellText(TabAC, 99, 0), "");
    EXPECT_EQ(s.CellText(TabAC, 0, 99), "");
    EXPECT_EQ(s.CellText(TabAC, -1, -1), "");
    EXPECT_EQ(s.CurrentRow(TabAC), 0);
}

TEST_F(CoolingSelection, TheTabShowsComplianceOfItsCurrentRow) {
    TableNamed(tables, "AC File").rows[1]["EPA"] = true;
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_FALSE(s.EPACompliant(TabAC));
    s.SetCurrentRow(TabAC, 1);
    EXPECT_TRUE(s.EPACompliant(TabAC));
    s.SetCurrentRow(TabAC, 77);
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
}

TEST_F(CoolingSelection, ASearchFindsAnyPartOfTheModelNumber) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_TRUE(s.Search("614"));
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
    EXPECT_EQ(s.SearchLabel(), "&Search for 614");
    EXPECT_TRUE(s.Search("fa-36"));  // from the row behind, in letters of any case
    EXPECT_EQ(s.CurrentRow(TabAC), 2);
    EXPECT_TRUE(questions.empty());
}

TEST_F(CoolingSelection, ASearchBeginsAgainFromTheFirstRowOnlyWhenAsked) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_TRUE(s.Search("36"));
    EXPECT_TRUE(s.RepeatSearch());
    EXPECT_EQ(s.CurrentRow(TabAC), 2);
    answerYes = false;
    EXPECT_FALSE(s.RepeatSearch());
    EXPECT_EQ(s.CurrentRow(TabAC), 2);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0],
              "No more records found with 36.  Do you wish to search again from the beginning?");
    answerYes = true;
    EXPECT_TRUE(s.RepeatSearch());
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
    EXPECT_TRUE(messages.empty());
}

TEST_F(CoolingSelection, TheNewSearchTestsTheFirstRowToo) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetCurrentRow(TabAC, 2);
    EXPECT_TRUE(s.Search("1813"));
    EXPECT_EQ(s.CurrentRow(TabAC), 0);
}

TEST_F(CoolingSelection, ASearchThatFindsNothingSaysSoAndStaysWhereItWas) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetCurrentRow(TabAC, 1);
    EXPECT_FALSE(s.Search("nothing"));
    EXPECT_EQ(s.CurrentRow(TabAC), 1);
    EXPECT_EQ(messages, (Texts{"No more records found with nothing."}));
}

TEST_F(CoolingSelection, EmptyTextDoesNothing) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_FALSE(s.Search(""));
    EXPECT_FALSE(s.RepeatSearch());
    EXPECT_TRUE(questions.empty());
    EXPECT_TRUE(messages.empty());
}

TEST_F(CoolingSelection, AnApostropheInTheTextIsToldAndMovesNothing) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_FALSE(s.Search("36'"));
    EXPECT_EQ(s.CurrentRow(TabAC), 0);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_TRUE(questions.empty());
}

TEST_F(CoolingSelection, EachTabKeepsItsOwnSearchText) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.Search("36");
    s.SetCurrentTab(TabHP);
    EXPECT_EQ(s.SearchLabel(), "&Search for ");
    s.SetCurrentTab(TabAC);
    EXPECT_EQ(s.SearchLabel(), "&Search for 36");
}

TEST_F(CoolingSelection, AChosenModelIsAtFirstSoldAtList) {
    Choose(SelectionMode::Cooling, TabAC, 1);
    const ModelInfoRecord& info = records.ModelInfo[0];
    EXPECT_EQ(info.CLGModelDealerCost, 2317.0F);
    EXPECT_EQ(info.CLGModelDealerOverride, 2317.0F);
    EXPECT_EQ(info.CLGSalePrice, 3310.0F);
    EXPECT_EQ(info.CLGListPrice, 3310.0F);
    EXPECT_EQ(info.CLGModelGrossMargin, 0.0F);
    EXPECT_EQ(info.CLGModelPriceMarkup, 0.0F);
    EXPECT_EQ(info.CLGModelListDiscount, 0.0F);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 2317.0F);
    EXPECT_EQ(records.SystemTendos.ModelDealerOverride, 2317.0F);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 3310.0F);
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 3310.0F);
}

TEST_F(CoolingSelection, ASecondModelTakesTheFirstOnesPricesOutBeforeAddingItsOwn) {
    records.SystemTendos.ModelDealerCost = 1000;
    records.SystemTendos.ModelDealerOverride = 900;
    records.SystemTendos.ModelSalePrice = 1500;
    Choose(SelectionMode::Cooling, TabAC, 0);
    Choose(SelectionMode::Cooling, TabAC, 1);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 3317.0F);      // 1000 + 2317
    EXPECT_EQ(records.SystemTendos.ModelDealerOverride, 3217.0F);  // 900 + 2317
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 4810.0F);       // 1500 + 3310
}

TEST_F(CoolingSelection, TheListBaseLosesTheOldCoolingPriceTwice) {
    Choose(SelectionMode::Cooling, TabAC, 0);
    Choose(SelectionMode::Cooling, TabAC, 1);
    // Sale price 2225 - 2225 = 0; list base 0 - 2225 = -2225; then + 3310.
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 1085.0F);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 3310.0F);
}

TEST_F(CoolingSelection, OldPricesEditedSinceAreTheOnesTakenOut) {
    Choose(SelectionMode::Cooling, TabAC, 0);
    records.ModelInfo[0].CLGSalePrice = 2000;
    records.ModelInfo[0].CLGModelDealerOverride = 1500;
    records.ModelInfo[0].CLGModelGrossMargin = 22;
    Choose(SelectionMode::Cooling, TabAC, 1);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 3535.0F);       // 2225 - 2000 + 3310
    EXPECT_EQ(records.SystemTendos.ModelDealerOverride, 2374.0F);  // 1557 - 1500 + 2317
    EXPECT_EQ(records.ModelInfo[0].CLGModelGrossMargin, 0.0F);
}

TEST_F(CoolingSelection, TheTablesArithmeticIsThatOfFloats) {
    TableNamed(tables, "AC File").rows = {AirConditioner("A", 10, 10, 0.1, 0.2)};
    records.SystemTendos.ModelDealerCost = 16777216.0F;  // the next float is 2 further on
    records.SystemTendos.ModelSalePrice = 0.1F;
    Choose(SelectionMode::Cooling, TabAC, 0);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 16777216.0F);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 0.1F + 0.2F);
}

TEST_F(CoolingSelection, AModelWithListPriceZeroHasSalePriceZero) {
    TableNamed(tables, "AC File").rows = {AirConditioner("A", 10, 10, 500, 0)};
    Choose(SelectionMode::Cooling, TabAC, 0);
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 0.0F);
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 500.0F);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 0.0F);
}

TEST_F(CoolingSelection, ARowOfNullsCopiesBlanksAndZeros) {
    TableNamed(tables, "AC File").rows = {{{"Capacity", 10.0}, {"Seer", 10.0}}};
    records.CLGModelData[0].Notes = "of the model before";
    records.CLGModelData[0].ModelNum = "OLD";
    Choose(SelectionMode::Cooling, TabAC, 0);
    const CLGModelRecord& model = records.CLGModelData[0];
    EXPECT_TRUE(model.ModelNum.IsBlank());
    EXPECT_TRUE(model.Notes.IsBlank());
    EXPECT_EQ(model.ModelQty, 1);
    EXPECT_EQ(model.Weight, 0.0F);
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 0.0F);
}

TEST_F(CoolingSelection, WithoutAMarkNothingIsCopied) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetCurrentRow(TabAC, 1);
    EXPECT_FALSE(s.MarkedTab().has_value());
    EXPECT_FALSE(s.SelectModel());
    EXPECT_TRUE(records.CLGModelData[0].ModelNum.IsBlank());
}

TEST_F(CoolingSelection, SelectingClearsTheMark) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.ClickRow(TabAC, 1);
    EXPECT_EQ(s.MarkedTab(), TabAC);
    State().ProjectChanged = false;
    EXPECT_TRUE(s.SelectModel());
    EXPECT_TRUE(State().ProjectChanged);
    EXPECT_FALSE(s.MarkedTab().has_value());
    EXPECT_FALSE(s.SelectModel());
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 3310.0F);
}

TEST_F(CoolingSelection, TheMarkStaysWithItsTabWhenAnotherIsLookedAt) {
    TableNamed(tables, "HP File").rows = {
        {{"Model", std::string("FH-1")}, {"CoolCapacity", 24.0}, {"Seer", 14.0}}};
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.ClickRow(TabAC, 1);
    s.SetCurrentTab(TabHP);
    EXPECT_EQ(s.MarkedTab(), TabAC);
    EXPECT_TRUE(s.SelectModel());
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FA-3614");
}

TEST_F(CoolingSelection, AMarkedRowStaysMarkedUnderNewLimitsUnlessTheyHideIt) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.ClickRow(TabAC, 1);
    s.SetLimit(ModelLimit::MinimumCapacity, "30");
    EXPECT_EQ(s.CurrentRow(TabAC), 0);
    EXPECT_EQ(s.CellText(TabAC, 0, 1), "FA-3614");
    EXPECT_EQ(s.MarkedTab(), TabAC);
    s.SetLimit(ModelLimit::MinimumEfficiency, "15");
    EXPECT_FALSE(s.MarkedTab().has_value());
    EXPECT_FALSE(s.SelectModel());
}

TEST_F(CoolingSelection, ClicksOutsideOfTheGridMarkNothing) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.ClickRow(TabAC, 3);
    s.ClickRow(TabAC, -1);
    s.ClickRow(TabWH, 0);
    s.SetCurrentTab(TabBoiler);
    EXPECT_FALSE(s.MarkedTab().has_value());
    EXPECT_EQ(s.CurrentTab(), TabAC);
}

TEST_F(CoolingSelection, TheModelGoesIntoTheSystemThatWasCurrent) {
    Choose(SelectionMode::Cooling, TabAC, 1, 4);
    EXPECT_EQ(records.CLGModelData[4].ModelNum.Trimmed(), "FA-3614");
    EXPECT_TRUE(records.CLGModelData[0].ModelNum.IsBlank());
    EXPECT_EQ(records.ModelInfo[4].CLGSalePrice, 3310.0F);
}

TEST_F(CoolingSelection, TheModelsOwnDatabaseIsOpened) {
    auto other = tables;
    TableNamed(other, "AC File").rows = {AirConditioner("OTHER", 24, 13, 1, 2)};
    WriteModelDatabase(folder.Path("Other.mdb"), other);
    records.CLGModelData[2].DB = folder.Path("Other");
    ModelSelection& s = Open(SelectionMode::Cooling, 2);
    EXPECT_EQ(s.DatabaseName(), folder.Path("Other.mdb"));
    EXPECT_EQ(Models(TabAC), (Texts{"OTHER"}));
}

TEST_F(CoolingSelection, ADatabaseThatIsGoneFallsBackToTheDefaultAndDoesNotStopTheScreen) {
    records.CLGModelData[0].DB = "/nowhere/Gone.mdb";
    ModelSelection& s = Open(SelectionMode::Cooling);
    EXPECT_EQ(s.DatabaseName(), folder.Path("Small.mdb"));
    EXPECT_EQ(s.RowCount(TabAC), 3);
}

TEST_F(CoolingSelection, ADatabaseThatCannotBeReadGivesTheMessageAndEmptyTabs) {
    records.GPDProjectFormat.DefaultDB = "Missing";
    ModelSelection s(SelectionMode::Cooling, records, 0, Dialogs());
    EXPECT_FALSE(s.Open());
    EXPECT_EQ(messages, (Texts{"The database " + folder.Path("Missing.mdb") +
                               " is not a properly formatted manufacturer's model database for air "
                               "conditioners.  Please choose another database.  Error 3024"}));
    EXPECT_EQ(s.RowCount(TabAC), 0);
    EXPECT_EQ(s.TotalRowCount(TabAC), 0);
    EXPECT_EQ(s.CellText(TabAC, 0, 0), "");
    s.SetCurrentTab(TabHP);
    EXPECT_FALSE(s.Search("x"));
    EXPECT_EQ(s.Title(), "Selecting Cooling Models - 0 HP Models");
}

TEST_F(CoolingSelection, AChangeOfDatabaseShowsAllRowsAndKeepsTheLimits) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    s.SetLimit(ModelLimit::MinimumCapacity, "36");
    s.ClickRow(TabAC, 0);
    auto other = tables;
    TableNamed(other, "AC File").rows.push_back(AirConditioner("LAST", 5, 5, 1, 2));
    WriteModelDatabase(folder.Path("Other.mdb"), other);
    EXPECT_TRUE(s.ChangeDatabase("  " + folder.Path("Other.mdb") + " "));
    EXPECT_EQ(s.DatabaseName(), folder.Path("Other.mdb"));
    EXPECT_EQ(s.RowCount(TabAC), 5);
    EXPECT_FALSE(s.MarkedTab().has_value());
    EXPECT_EQ(s.Limits(TabAC).minimumCapacity, 36.0F);
    s.SetCurrentTab(TabAC);
    EXPECT_EQ(Models(TabAC), (Texts{"FA-3614", "FA-3616"}));
}

TEST_F(CoolingSelection, AChangeToAFileThatFailsTheCheckKeepsTheFormerDatabase) {
    ModelSelection& s = Open(SelectionMode::Cooling);
    auto broken = tables;
    broken.erase(broken.begin() + 4);
    WriteModelDatabase(folder.Path("Broken.mdb"), broken);
    EXPECT_FALSE(s.ChangeDatabase(folder.Path("Broken.mdb")));
    EXPECT_FALSE(s.ChangeDatabase(folder.Path("Missing.mdb")));
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_NE(messages[0].find("database for water heaters.  Please choose another database.  "
                               "Error 3078"),
              std::string::npos);
    EXPECT_EQ(s.DatabaseName(), folder.Path("Small.mdb"));
    EXPECT_EQ(s.RowCount(TabAC), 3);
}

TEST_F(CoolingSelection, LookingAtADatabaseNeverWritesIt) {
    Open(SelectionMode::Cooling);
    const auto before = std::filesystem::last_write_time(folder.Path("Small.mdb"));
    selection->ClickRow(TabAC, 0);
    selection->SelectModel();
    selection.reset();
    EXPECT_EQ(std::filesystem::last_write_time(folder.Path("Small.mdb")), before);
}

class HeatingSelection : public SelectionTest {
  protected:
    static NamedRow Burner(const std::string& model, int fuel, double capacity) {
        return {{"Model", model}, {"FuelType", std::int64_t{fuel}}, {"Capacity", capacity},
                {"AFUE", 95.0},   {"DealerCost", Dollars(1568)},    {"ListPrice", Dollars(2240)}};
    }
};

TEST_F(HeatingSelection, ARowWithFuelTypeFiveShowsOnTheBoilerTabAndNotOnTheFurnaceTab) {
    for (int fuel = 1; fuel <= 8; ++fuel)
        TableNamed(tables, "GAMA File")
            .rows.push_back(Burner("M" + std::to_string(fuel), fuel, 80));
    ModelSelection& s = Open(SelectionMode::Heating);
    EXPECT_EQ(Models(TabFurnace), (Texts{"M1", "M2", "M3", "M4"}));
    EXPECT_EQ(Models(TabBoiler), (Texts{"M5", "M6", "M7", "M8"}));
    EXPECT_EQ(s.VisibleTabs(), (std::vector<int>{TabHP, TabGSHP, TabFurnace, TabBoiler}));
    s.SetCurrentTab(TabBoiler);
    EXPECT_EQ(s.Title(), "Selecting Heating Models - 4 Boiler Models");
}

TEST_F(HeatingSelection, AnOldFurnacesPricesComeOutButTheListBaseIsLeftAlone) {
    TableNamed(tables, "GAMA File").rows = {Burner("FG-80-095", 2, 80), Burner("FB-50-082", 6, 50)};
    Choose(SelectionMode::Heating, TabFurnace, 0);
    Choose(SelectionMode::Heating, TabBoiler, 0);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 2240.0F);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 1568.0F);
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 4480.0F);  // grew twice, never reduced
    EXPECT_EQ(records.HTGModelData[0].ModelType.Trimmed(), "Boiler");
    EXPECT_EQ(records.HTGModelData[0].FuelType.Trimmed(), "Gas");
}

TEST_F(HeatingSelection, TheCoolingSideOfTheSystemIsNotTouched) {
    TableNamed(tables, "GAMA File").rows = {Burner("FG-80-095", 2, 80)};
    records.CLGModelData[0].ModelNum = "FA-3614";
    records.ModelInfo[0].CLGSalePrice = 3310;
    Choose(SelectionMode::Heating, TabFurnace, 0);
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "FA-3614");
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 3310.0F);
    EXPECT_EQ(records.ModelInfo[0].HTGSalePrice, 2240.0F);
    EXPECT_EQ(records.ModelInfo[0].HTGListPrice, 2240.0F);
}

TEST_F(HeatingSelection, AHeatPumpIsFilteredByItsCoolingEfficiency) {
    TableNamed(tables, "HP File").rows = {
        {{"Model", std::string("low")}, {"HPCap5", 20.0}, {"Seer", 12.0}, {"HSPF", 10.0}},
        {{"Model", std::string("high")}, {"HPCap5", 20.0}, {"Seer", 16.0}, {"HSPF", 7.0}}};
    ModelSelection& s = Open(SelectionMode::Heating);
    s.SetLimit(ModelLimit::MinimumEfficiency, "14");
    EXPECT_EQ(Models(TabHP), (Texts{"high"}));
}

class WaterHeaterSelection : public SelectionTest {
  protected:
    WaterHeaterSelection() {
        TableNamed(tables, "WH File").rows = {{{"Model", std::string("FW-50G")},
                                               {"Description", std::string("Gas water heater")},
                                               {"StorVol", 50.0},
                                               {"EFF", 0.62},
                                               {"FuelType", std::int64_t{1}},
                                               {"DealerCost", Dollars(483)},
                                               {"ListPrice", Dollars(690)}}};
    }
};

TEST_F(WaterHeaterSelection, TheTitleChangesItsWordsAfterATabClick) {
    ModelSelection& s = Open(SelectionMode::WaterHeater);
    EXPECT_EQ(s.Title(), "Selecting Water Heater Models - 1 WH Models");
    s.SetCurrentTab(TabWH);
    EXPECT_EQ(s.Title(), "Selecting Water Heaters - 1 WH Models");
}

TEST_F(WaterHeaterSelection, ItsFieldsPricesAndTheStateOfTheCheckBoxAreStored) {
    ModelSelection& s = Open(SelectionMode::WaterHeater, 1);
    s.ClickRow(TabWH, 0);
    EXPECT_TRUE(s.SelectModel(true));
    const WHModelRecord& model = records.WHModelData[1];
    EXPECT_EQ(model.ModelType.Trimmed(), "Water Heater");
    EXPECT_EQ(model.ModelQty, 1);
    EXPECT_EQ(model.ModelNum.Trimmed(), "FW-50G");
    EXPECT_EQ(model.ModelDesc.Trimmed(), "Gas water heater");
    EXPECT_EQ(model.StorVol, 50.0F);
    EXPECT_EQ(model.EFF, 0.62F);
    EXPECT_EQ(model.FuelType.Trimmed(), "Natural Gas");
    EXPECT_EQ(model.WHIsHydroAirComponent, 1);
    EXPECT_EQ(model.Manuf.Trimmed(), "Frostelm");
    EXPECT_EQ(records.ModelInfo[1].WHSalePrice, 690.0F);
    EXPECT_EQ(records.ModelInfo[1].WHListPrice, 690.0F);
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 690.0F);
}

TEST_F(WaterHeaterSelection, ASecondHeaterReplacesTheFirstAndClearsTheCheckMark) {
    records.WHModelData[0].WHIsHydroAirComponent = 1;
    Choose(SelectionMode::WaterHeater, TabWH, 0);
    Choose(SelectionMode::WaterHeater, TabWH, 0);
    EXPECT_EQ(records.WHModelData[0].WHIsHydroAirComponent, 0);
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 690.0F);
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 1380.0F);
}

}  // namespace
}  // namespace tendo
