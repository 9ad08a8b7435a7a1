#include "reports/sales_table.h"

#include <gmock/gmock.h>

#include "reports/sales_columns.h"
#include "sales_table_fixture.h"

namespace tendo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Rows = std::vector<std::string>;

TEST_F(SalesTable, WithAllRowOptionsOffOnlyTheThreeFixedRowsStand) {
    SwitchOffAllRows();
    Fill(1);
    Print();
    EXPECT_THAT(LastTableRows(),
                ElementsAre("|||", "Equipment Manufacturer:|Clgman 1|Htgman 1|Whman 1",
                            "Unit Model Number:|CN-1|HN-1|WN-1",
                            "Unit Description:|Clg unit 1|Htg unit 1|Wh unit 1"));
}

TEST_F(SalesTable, WithAllRowOptionsOffEachSectionKeepsItsThreeFixedRows) {
    SwitchOffAllRows();
    Fill(2);
    Print();
    EXPECT_THAT(
        LastTableRows(),
        ElementsAre("||", "Equipment Manufacturer:|Clgman 1|Clgman 2",
                    "Unit Model Number:|CN-1|CN-2", "Unit Description:|Clg unit 1|Clg unit 2", "||",
                    "Equipment Manufacturer:|Htgman 1|Htgman 2", "Unit Model Number:|HN-1|HN-2",
                    "Unit Description:|Htg unit 1|Htg unit 2", "||",
                    "Equipment Manufacturer:|Whman 1|Whman 2", "Unit Model Number:|WN-1|WN-2",
                    "Unit Description:|Wh unit 1|Wh unit 2"));
}

TEST_F(SalesTable, OneSystemWithAWaterHeaterOnlyLeavesTheOtherCellsBlank) {
    Fill(1);
    project.CLGModelData[0] = {};
    project.HTGModelData[0] = {};
    const float price = Info(0).WHSalePrice;
    Info(0) = {};
    Info(0).WHSalePrice = price;
    Print();
    EXPECT_EQ(CountPricedSystems(project), 1);
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|||WN-1");
    EXPECT_EQ(Row("Capacity:"), "Capacity:|||201.00");
    EXPECT_EQ(Row("Proposed Operating Cost:"), "Proposed Operating Cost:|||$521.00");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|||$801.00");
    EXPECT_EQ(Row("Sound Level:"), "none");
    EXPECT_EQ(Row("Available Cooling:"), "none");
}

TEST_F(SalesTable, AWaterHeaterPriceOfZeroGivesNoHotWaterColumnAndNoNote) {
    Fill(1);
    Info(0).WHSalePrice = 0;
    project.WHModelData[0].WHIsHydroAirComponent = 1;
    Print();
    EXPECT_EQ(TableField(1), "|COOLING|HEATING|");
    EXPECT_EQ(TableField(0), "<~3600|<~2400|<~2400|<~2350");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|HN-1|");
    EXPECT_EQ(CountOf("Paragraph"), 0);
}

TEST_F(SalesTable, TheNoteOnAHydroAirWaterHeaterFollowsTheTable) {
    Fill(1);
    Print();
    EXPECT_EQ(CountOf("Paragraph"), 0);
    project.WHModelData[0].WHIsHydroAirComponent = 1;
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"),
              (Rows{"", "  Water Heater is used for both Hot Water and Space Heat"}));
}

TEST_F(SalesTable, TheNotesOfSeveralSystemsCountByColumn) {
    SwitchOffAllRows();
    for (const int system : {1, 3})
        FillSystem(project, system);
    project.WHModelData[3].WHIsHydroAirComponent = 1;
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"),
              (Rows{"", "  Water Heater is used for both Hot Water and Space Heat in System #2"}));
}

TEST_F(SalesTable, TheEmptyParagraphBehindSeveralSystemsAlwaysStands) {
    SwitchOffAllRows();
    Fill(2);
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), Rows{""});
    project.WHModelData = {};
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), Rows{""});
}

TEST_F(SalesTable, WithoutAWaterHeaterModelThereIsNoWaterSection) {
    Fill(2);
    project.WHModelData = {};
    Print();
    const Rows rows = LastTableRows();
    EXPECT_EQ(std::count(rows.begin(), rows.end(), "||"), 2);
    project.WHModelData[1].ModelNum = "WN-2";
    Print();
    const Rows more = LastTableRows();
    EXPECT_EQ(std::count(more.begin(), more.end(), "||"), 3);
    EXPECT_THAT(more, Contains("Unit Model Number:||WN-2"));
    EXPECT_THAT(more, Contains("Total Price:||$802.00"));  // no price without a model
}

TEST_F(SalesTable, AHeatPumpInTheHeatingModelShowsTheSoundLevelAndNoFurnaceRows) {
    Fill(1);
    project.CLGModelData[0] = {};
    project.HTGModelData[0].ModelType = "Heat Pump";
    Print();
    EXPECT_EQ(Row("Sound Level:"), "Sound Level:||181.00|");
    EXPECT_EQ(Row("Air Handler:"), "Air Handler:|||");
    EXPECT_EQ(Row("Available Cooling:"), "none");
    EXPECT_EQ(Row("CFM Rate:"), "none");
}

TEST_F(SalesTable, AHeatPumpAmongSeveralShowsTheSoundLevelInTheHeatingSection) {
    Fill(2);
    for (auto& model : project.CLGModelData)
        model.ModelType = "";
    project.HTGModelData[0].ModelType = "Heat Pump";
    project.HTGModelData[1].ModelType = "";
    Print();
    EXPECT_THAT(LastTableRows(), Contains("Sound Level:|71.00|72.00"));
    EXPECT_THAT(LastTableRows(), Contains("Sound Level:|181.00|182.00"));
    EXPECT_EQ(Row("Configuration:"), "none");
}

TEST_F(SalesTable, ACoolingUnitAloneShowsNoSoundLevelInTheHeatingSection) {
    Fill(2);
    Print();
    EXPECT_THAT(LastTableRows(), Contains("Sound Level:|71.00|72.00"));
    EXPECT_THAT(LastTableRows(), Not(Contains("Sound Level:|181.00|182.00")));
}

TEST_F(SalesTable, ABoilerHasTheFurnaceRowsAndItsRateInPlainText) {
    Fill(1);
    project.HTGModelData[0].ModelType = "Boiler";
    Print();
    EXPECT_EQ(Row("CFM Rate:"), "CFM Rate:||1201.5|");
}

TEST_F(SalesTable, TheOperatingCostOfOneSystemFollowsTheSelectedOneOnTheCoolingSideOnly) {
    Fill(1);
    project.SystemInfo[0].CLGSystemSelected = 3;
    project.SystemInfo[3].CLGOpCostforSystem = 999;
    project.SystemInfo[3].HTGOpCostforSystem = 888;
    Print();
    EXPECT_EQ(Row("Operating Cost for System #"),
              "Operating Cost for System #4:|$999.00|$411.00|$511.00");
}

TEST_F(SalesTable, TheOperatingCostsOfSeveralSystemsFollowTheSelectedOnes) {
    Fill(2);
    project.SystemInfo[0].HTGSystemSelected = 1;
    project.SystemInfo[1].HTGSystemSelected = 0;
    Print();
    EXPECT_THAT(LastTableRows(), Contains("Operating Cost for System #1:|$311.00|$312.00"));
    EXPECT_THAT(LastTableRows(), Contains("Operating Cost for System #2:|$412.00|$411.00"));
    EXPECT_THAT(LastTableRows(), Contains("Operating Cost for System #1:|$511.00|$512.00"));
}

TEST_F(SalesTable, TheListPriceOfAWaterHeaterIsItsDealerCost) {
    Fill(2);
    Print();
    EXPECT_THAT(LastTableRows(), Contains("List Price:|$701.00|$702.00"));
}

TEST_F(SalesTable, ABarOrSemicolonInADescriptionSplitsTheRow) {
    Fill(1);
    project.CLGModelData[0].ModelDesc = "a|b;c";
    Print();
    EXPECT_THAT(LastTableRows(), Contains("Unit Description:|a|b"));
    EXPECT_THAT(LastTableRows(), Contains("c|Htg unit 1|Wh unit 1"));
}

TEST_F(SalesTable, TheFormDoesNotDependOnTheKindOfPrice) {
    Fill(2);
    Print();
    const std::string calls = CallsText();
    project.GPDProjectFormat.SingleProposalType = !project.GPDProjectFormat.SingleProposalType;
    Print();
    EXPECT_EQ(CallsText(), calls);
}

TEST_F(SalesTable, TheOperatingCostsLabelIsThatOfTheFirstColumn) {
    for (const int system : {2, 4})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #3:|$313.00|$315.00");
}

TEST_F(SalesTable, ANoteStandsForEachColumnThatIsMarkedWithOne) {
    SwitchOffAllRows();
    Fill(5);
    const std::string note = "  Water Heater is used for both Hot Water and Space Heat in System #";
    for (auto& model : project.WHModelData)
        model.WHIsHydroAirComponent = 1;
    project.WHModelData[2].ModelNum = "";  // the section stands, so its note does too
    project.WHModelData[3].WHIsHydroAirComponent = 2;
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), (Rows{"", note + "1", note + "2", note + "3", note + "5"}));
    for (auto& model : project.WHModelData)
        model.ModelNum = " ";  // no section, no note
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), Rows{""});
}

TEST_F(SalesTable, BarsAndSemicolonsInSeveralSystemsSplitTheirRowsToo) {
    SwitchOffAllRows();
    Fill(2);
    project.CLGModelData[0].Manuf = "A|B";
    project.HTGModelData[1].ModelDesc = "c;d";
    Print();
    EXPECT_THAT(LastTableRows(), Contains("Equipment Manufacturer:|A|B|Clgman 2"));
    EXPECT_THAT(LastTableRows(), Contains("Unit Description:|Htg unit 1|c"));
    EXPECT_THAT(LastTableRows(), Contains("d"));
    surface.Action(6);
    EXPECT_EQ(layout.Result().pages.size(), 1U);
}

}  // namespace
}  // namespace tendo
