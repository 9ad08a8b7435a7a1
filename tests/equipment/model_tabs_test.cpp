#include "equipment/model_tabs.h"

#include <gtest/gtest.h>

#include <vector>

namespace tendo {
namespace {

using Texts = std::vector<std::string>;

Texts Headings(int tab) {
    Texts headings;
    for (const ModelGridColumn& column : ModelTabAt(tab).columns)
        headings.emplace_back(column.Heading());
    return headings;
}

// From the crankcase heater to the weight and the dates: alike on the three tabs with a compressor.
Texts WithCompressorParts(Texts head, const Texts& beforeWarranties) {
    for (const char* heading :
         {"CrankcaseHeater", "CondensateRemoval", "HILOPressureSwitch", "SupportForCondenser",
          "Electrical", "AirHandler", "RefrigTubingMaxLen", "Height", "Length", "Width", "Weight"})
        head.emplace_back(heading);
    head.insert(head.end(), beforeWarranties.begin(), beforeWarranties.end());
    for (const char* heading : {"CompressorWarranty", "CoilWarranty", "PartsWarranty",
                                "LaborWarranty", "Added", "Updated"})
        head.emplace_back(heading);
    return head;
}

TEST(ModelTabs, TheModeDecidesWhichAreVisible) {
    const auto visible = [](SelectionMode mode) {
        std::vector<int> tabs;
        for (int tab = 0; tab < ModelTabCount; ++tab)
            if (ModelTabAt(tab).VisibleIn(mode)) tabs.push_back(tab);
        return tabs;
    };
    EXPECT_EQ(visible(SelectionMode::Cooling), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(visible(SelectionMode::Heating), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(visible(SelectionMode::WaterHeater), (std::vector<int>{5}));
}

TEST(ModelTabs, AreNamedInTheirOrder) {
    const char* names[] = {"AC", "HP", "GSHP", "Furnace", "Boiler", "WH"};
    for (int tab = 0; tab < ModelTabCount; ++tab)
        EXPECT_EQ(ModelTabAt(tab).name, names[tab]);
}

TEST(ModelTabs, TheGridOfAirConditionersHasItsColumnsInOrder) {
    EXPECT_EQ(Headings(TabAC),
              WithCompressorParts({"EPA", "Model", "Capacity", "Seer", "Cost", "Price", "Tradename",
                                   "Description", "Eer", "Sound", "COP", "CompStartKit"},
                                  {}));
}

TEST(ModelTabs, TheGridOfHeatPumpsHasItsColumnsInOrder) {
    EXPECT_EQ(Headings(TabHP),
              WithCompressorParts(
                  {"EPA", "Model", "CLG Cap", "CLG EFF", "HTG Cap", "HTG EFF", "Cost", "Price",
                   "Tradename", "Description", "Eer", "Sound", "CoolCOP", "CompressorStartKit"},
                  {}));
}

TEST(ModelTabs, TheGridOfGroundSourceHeatPumpsHasItsColumnsInOrder) {
    EXPECT_EQ(Headings(TabGSHP),
              WithCompressorParts({"EPA", "Model", "CLG Cap", "CLG EFF", "HTG Cap", "HTG EFF",
                                   "Cost", "Price", "Tradename", "Description", "Sound",
                                   "HeatingCOP", "COP", "ARICFM", "CompressorStartKit"},
                                  {"MicroprocWarranty"}));
}

TEST(ModelTabs, FurnacesAndBoilersHaveTheSameGrid) {
    const Texts expected = {"EPA",
                            "Model",
                            "Cap (MBH)",
                            "EFF (AFUE)",
                            "CFM",
                            "Cost",
                            "Price",
                            "Tradename",
                            "Description",
                            "FuelType",
                            "FurnElec",
                            "Config",
                            "AvailableCooling",
                            "HeatExchangerType",
                            "IgnitionSystemType",
                            "ExhaustVentType",
                            "CondensateRemoval",
                            "Height",
                            "Width",
                            "Length",
                            "Weight",
                            "HeatExchangeWarranty",
                            "PartsWarranty",
                            "LaborWarranty",
                            "Added",
                            "Updated"};
    EXPECT_EQ(Headings(TabFurnace), expected);
    EXPECT_EQ(Headings(TabBoiler), expected);
}

TEST(ModelTabs, TheGridOfWaterHeatersHasItsColumnsInOrder) {
    EXPECT_EQ(Headings(TabWH), (Texts{"EPA", "Model", "Stor Vol", "EFF (AFUE)", "Cost", "Price",
                                      "Tradename", "Description", "FuelType", "Added", "Updated"}));
}

TEST(ModelQueries, AreJoinedWithoutABlankAdded) {
    const ModelLimits start;
    const auto text = [&](SelectionMode mode, int tab) { return ModelQueryText(mode, tab, start); };
    EXPECT_EQ(
        text(SelectionMode::Cooling, TabAC),
        "Select * from [AC File] where [Capacity] >= 0 And [Capacity] <= 999.9 And [Seer] >= 0");
    EXPECT_EQ(text(SelectionMode::Cooling, TabHP),
              "Select * from [HP File] where [CoolCapacity] >= 0 And [CoolCapacity] <= 999.9 And "
              "[Seer] >= 0");
    EXPECT_EQ(text(SelectionMode::Cooling, TabGSHP),
              "Select * from [GS HP File] where [CoolingCapacity] >= 0 And [CoolingCapacity] <= "
              "999.9 And [CoolingEER] >= 0");
    EXPECT_EQ(text(SelectionMode::Heating, TabFurnace),
              "Select * from [GAMA File] where FuelType <= 4 And [Capacity] >= 0 And [Capacity] <= "
              "999.9 And [AFUE] >= 0");
    EXPECT_EQ(text(SelectionMode::Heating, TabBoiler),
              "Select * from [GAMA File] where FuelType > 4 And [Capacity] >= 0 And [Capacity] <= "
              "999.9 And [AFUE] >= 0");
    EXPECT_EQ(text(SelectionMode::WaterHeater, TabWH),
              "Select * from [WH File] where [StorVol] >= 0 And [StorVol] <= 999.9 And [EFF] >= 0");
}

TEST(ModelQueries, InHeatingModeAHeatPumpIsStillFilteredByItsCoolingEfficiency) {
    EXPECT_EQ(ModelQueryText(SelectionMode::Heating, TabHP, {18, 60, 13}),
              "Select * from [HP File] where [HPCap5] >= 18 And [HPCap5] <= 60 And [Seer] >= 13");
    EXPECT_EQ(ModelQueryText(SelectionMode::Heating, TabGSHP, {17.5F, 60.25F, 13}),
              "Select * from [GS HP File] where [HeatingCapacity] >= 17.5 And [HeatingCapacity] <= "
              "60.25 And [CoolingEER] >= 13");
}

TEST(ModelQueries, AFloatIsWrittenInItsPlainText) {
    EXPECT_EQ(ModelQueryText(SelectionMode::WaterHeater, TabWH, {0.1F, 999.9F, 0.62F}),
              "Select * from [WH File] where [StorVol] >= 0.1 And [StorVol] <= 999.9 And [EFF] >= "
              "0.62");
}

TEST(ModelTabs, AfterAChangeOfDatabaseFurnacesAndBoilersAreStillToldApart) {
    EXPECT_EQ(ModelTabAt(TabFurnace).allRows, "Select * from [GAMA File] where [FuelType] <= 4");
    EXPECT_EQ(ModelTabAt(TabBoiler).allRows, "Select * from [GAMA File] where [FuelType] > 4");
    EXPECT_EQ(ModelTabAt(TabAC).allRows, "AC File");
    EXPECT_EQ(ModelTabAt(TabWH).allRows, "WH File");
}

TEST(ModelTabs, TheTitlesBeginWithTheModeAndTheWaterHeatersOneShortensAfterATabClick) {
    EXPECT_EQ(SelectionModeText(SelectionMode::Cooling, false), "Selecting Cooling Models");
    EXPECT_EQ(SelectionModeText(SelectionMode::Cooling, true), "Selecting Cooling Models");
    EXPECT_EQ(SelectionModeText(SelectionMode::Heating, true), "Selecting Heating Models");
    EXPECT_EQ(SelectionModeText(SelectionMode::WaterHeater, false),
              "Selecting Water Heater Models");
    EXPECT_EQ(SelectionModeText(SelectionMode::WaterHeater, true), "Selecting Water Heaters");
}

}  // namespace
}  // namespace tendo
