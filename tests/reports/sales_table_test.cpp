#include "reports/sales_table.h"

#include <gmock/gmock.h>

#include "platform/text/runtime_error.h"
#include "report_fixture.h"
#include "reports/generate_reports.h"
#include "reports/sales_columns.h"
#include "reports/sales_rows.h"

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
    void SwitchOffAllRows() {
        for (const SalesRow& row : SalesRows())
            if (row.option) Option(row.option, "0");
    }
    ModelInfoRecord& Info(std::size_t system) { return project.ModelInfo[system]; }
    /// The row that begins with a label.
    std::string Row(const std::string& label) const {
        for (const std::string& row : LastTableRows())
            if (row.rfind(label, 0) == 0) return row;
        return "none";
    }
};

TEST_F(SalesTable, TwoSystemsWithAllRowsStandInThreeSections) {
    Fill(2);
    Print();
    ExpectGolden("table_two_systems.txt");
}

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

}  // namespace
}  // namespace tendo
