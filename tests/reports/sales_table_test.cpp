#include "reports/sales_table.h"

#include <gmock/gmock.h>

#include "platform/text/runtime_error.h"
#include "report_fixture.h"
#include "reports/generate_reports.h"
#include "reports/sales_columns.h"

namespace tendo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Rows = std::vector<std::string>;

class SalesTable : public ReportTest {
  protected:
    void Fill(int systems) {
        for (int system = 0; system < systems; ++system)
            FillSystem(project, system);
    }
    void Print() {
        surface.Action(3);
        PrintSalesTable(surface, project);
    }
    std::string TableField(std::size_t field) const {
        return std::get<std::string>(LastTable().fields.at(field).second);
    }
    ModelInfoRecord& Info(std::size_t system) { return project.ModelInfo[system]; }
    /// The row that begins with a label.
    std::string Row(const std::string& label) const {
        for (const std::string& row : LastTableRows())
            if (row.rfind(label, 0) == 0) return row;
        return "none";
    }
};

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

TEST_F(SalesTable, ColumnsAreHeadedByPosition) {
    for (const int system : {1, 3})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-2|CN-4");
}

TEST_F(SalesTable, TheOneSystemFormShowsTheLastSystemWithACost) {
    FillSystem(project, 0);
    Info(3).CLGModelDealerCost = 5;  // a cost, no price: the count leaves it out
    project.CLGModelData[3].ModelNum = "CN-4";
    Print();
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-4||");
}

TEST_F(SalesTable, TwoPricedSystemsOfWhichOneHoldsOnlyAWaterHeaterEndTheReport) {
    Fill(1);
    project.WHModelData[1].ModelNum = "WN-2";
    Info(1).WHSalePrice = 800;
    EXPECT_EQ(CountPricedSystems(project), 2);
    surface.Action(3);
    try {
        PrintSalesTable(surface, project);
        FAIL() << "the second column has no system";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error_number::SubscriptOutOfRange);
    }
    EXPECT_EQ(CountOf("AddTable"), 0);
}

TEST_F(SalesTable, TheReportThatEndsThereIsAProperDocument) {
    Fill(1);
    Info(1).WHSalePrice = 800;
    EXPECT_TRUE(PreviewSalesOnly(context));
    EXPECT_EQ(CountOf("AddTable"), 1);  // the Project Summary
    EXPECT_EQ(ValuesOf("Action"), (Rows{"3", "6"}));
    EXPECT_EQ(layout.Result().pages.size(), 1U);
}

TEST_F(SalesTable, TheUserIsToldWhichSystemEndedTheReportAndWhatToDo) {
    Fill(1);
    Info(1).WHSalePrice = 800;
    PreviewSalesOnly(context);
    EXPECT_EQ(context.Problems,
              Rows{"The Sales Report is not complete. System 2 has a price but neither a cooling "
                   "nor a heating model, so the comparison table and the footnotes behind it are "
                   "left out. Choose a model there, or set the prices there to 0. Then write the "
                   "report again."});
}

TEST_F(SalesTable, TheUserIsToldOfEachSystemWithoutAColumn) {
    Fill(1);
    for (const std::size_t system : {1U, 2U, 4U})
        Info(system).WHSalePrice = 800;
    PreviewSalesOnly(context);
    EXPECT_THAT(context.Problems,
                ElementsAre(HasSubstr(". Systems 2, 3 and 5 have a price but neither ")));
}

TEST_F(SalesTable, ACompleteReportTellsNothing) {
    Fill(5);
    PreviewSalesOnly(context);
    EXPECT_EQ(context.Problems, Rows{});
}

TEST_F(SalesTable, APriceWithoutAnyCostEndsTheReport) {
    Info(0).CLGSalePrice = 100;
    PreviewSalesOnly(context);
    EXPECT_EQ(CountOf("AddTable"), 1);  // the Project Summary
    EXPECT_THAT(context.Problems,
                ElementsAre(HasSubstr("System 1 has a price but no dealer cost, so the ")));
}

TEST_F(SalesTable, ASystemWithAModelButNoPriceTakesAColumnAheadOfAPricedOne) {
    Fill(3);
    Info(0) = {};
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-2");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|$0.00|$2,002.00");
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

TEST_F(SalesTable, ASelectedSystemThatIsNoneEndsTheReport) {
    Fill(1);
    project.SystemInfo[0].CLGSystemSelected = 5;
    PreviewSalesOnly(context);
    EXPECT_THAT(context.Problems,
                ElementsAre(HasSubstr("The cooling operating cost of system 1 is to come from "
                                      "system 6, which does not exist, so the comparison table ")));
    Option("chkSelectedOpCost", "0");
    surface.Action(3);
    EXPECT_NO_THROW(PrintSalesTable(surface, project));
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

TEST_F(SalesTable, FiveSystemsWithOnlySomeModelsLeaveTheOtherCellsBlank) {
    Fill(5);
    project.CLGModelData[1] = {};  // heating only
    project.WHModelData[1] = {};
    project.HTGModelData[3] = {};  // cooling only
    project.WHModelData[3] = {};
    project.CLGModelData[4].ModelNum = "   ";  // a number of blanks is none
    project.HTGModelData[2] = {};
    Print();
    const Rows rows = LastTableRows();
    EXPECT_THAT(rows, Contains("Unit Model Number:|CN-1||CN-3|CN-4|"));
    EXPECT_THAT(rows, Contains("Unit Description:|Clg unit 1||Clg unit 3|Clg unit 4|Clg unit 5"));
    EXPECT_THAT(rows, Contains("Capacity:|31.00||33.00|34.00|"));
    EXPECT_THAT(rows, Contains("Total Price:|$2,001.00||$2,003.00|$2,004.00|"));
    EXPECT_THAT(rows, Contains("Unit Model Number:|HN-1|HN-2|||HN-5"));
    EXPECT_THAT(rows, Contains("Capacity:|101.00|102.00|||105.00"));
    EXPECT_THAT(rows, Contains("CFM Rate:|1201.5|1202.5|0|0|1205.5"));  // a plain number, always
    EXPECT_THAT(rows, Contains("Total Price:|$5,001.00|$5,002.00|||$5,005.00"));
    EXPECT_THAT(rows, Contains("Unit Model Number:|WN-1||WN-3||WN-5"));
    EXPECT_THAT(rows, Contains("List Price:|$701.00||$703.00||$705.00"));
    for (const std::string& row : rows)
        EXPECT_EQ(std::count(row.begin(), row.end(), '|'), 5) << row;
}

TEST_F(SalesTable, SystemsPricedOutOfOrderStandInTheirOwnOrder) {
    for (const int system : {4, 0, 2})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2|SYSTEM #3");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-3|CN-5");
    // Each column names its own system, and the label that of the first column.
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #1:|$311.00|$313.00|$315.00");
}

TEST_F(SalesTable, TheOperatingCostsLabelIsThatOfTheFirstColumn) {
    for (const int system : {2, 4})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #3:|$313.00|$315.00");
}

TEST_F(SalesTable, APricedSystemBehindTwoUnpricedModelsLosesItsColumn) {
    Fill(4);
    Info(0) = Info(1) = {};  // models of systems 1 and 2, prices of 3 and 4
    Print();
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-2");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|$0.00|$0.00");
    EXPECT_THAT(LastTableRows(), Contains("Total Price:|$0.00|$0.00").Times(3));
}

TEST_F(SalesTable, OnePricedSystemIsShownAloneHoweverManyModelsThereAre) {
    Fill(3);
    Info(0) = Info(2) = {};
    Print();
    EXPECT_EQ(TableField(1), "|COOLING|HEATING|HOT WATER");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-2|HN-2|WN-2");
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #2:|$312.00|$412.00|$512.00");
}

TEST_F(SalesTable, APriceOfAnyModelCountsASystem) {
    for (float ModelInfoRecord::*price :
         {&ModelInfoRecord::CLGSalePrice, &ModelInfoRecord::HTGSalePrice,
          &ModelInfoRecord::WHSalePrice}) {
        project.ModelInfo = {};
        EXPECT_EQ(CountPricedSystems(project), 0);
        Info(4).*price = -0.01F;
        EXPECT_EQ(CountPricedSystems(project), 1);
    }
}

TEST_F(SalesTable, TheLastWaterHeaterPriceWinsTheOneSystemForm) {
    FillSystem(project, 1);
    Info(3).WHModelDealerCost = 5;  // neither a dealer cost of a water heater
    Info(3).CLGListPrice = 5;       // nor a list price is looked at
    Print();
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-2|HN-2|WN-2");
    Info(1) = {};
    Info(2).HTGModelDealerCost = 1;
    Info(4).WHSalePrice = 1;
    Print();
    EXPECT_EQ(SystemOfSingleTable(project), 4);
}

TEST_F(SalesTable, ASingleWaterHeaterIsFoundByItsPrice) {
    project.WHModelData[2].ModelNum = "WN-3";
    project.WHModelData[2].WHIsHydroAirComponent = 1;
    Info(2).WHSalePrice = 803;
    PreviewSalesOnly(context);
    EXPECT_EQ(context.Problems, Rows{});
    EXPECT_EQ(TableField(1), "|COOLING|HEATING|HOT WATER");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|||WN-3");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|||$803.00");
    EXPECT_THAT(ValuesOf("Paragraph"),
                Contains("  Water Heater is used for both Hot Water and Space Heat"));
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
