#include "reports/sales_columns.h"

#include <gmock/gmock.h>

#include "platform/text/runtime_error.h"
#include "reports/generate_reports.h"
#include "sales_table_fixture.h"

namespace tendo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using Rows = std::vector<std::string>;
using SalesColumns = SalesTable;

TEST_F(SalesColumns, ColumnsAreHeadedByPosition) {
    for (const int system : {1, 3})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-2|CN-4");
}

TEST_F(SalesColumns, TheOneSystemFormShowsTheLastSystemWithACost) {
    FillSystem(project, 0);
    Info(3).CLGModelDealerCost = 5;  // a cost, no price: the count leaves it out
    project.CLGModelData[3].ModelNum = "CN-4";
    Print();
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-4||");
}

TEST_F(SalesColumns, TwoPricedSystemsOfWhichOneHoldsOnlyAWaterHeaterEndTheReport) {
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

TEST_F(SalesColumns, TheReportThatEndsThereIsAProperDocument) {
    Fill(1);
    Info(1).WHSalePrice = 800;
    EXPECT_TRUE(PreviewSalesOnly(context));
    EXPECT_EQ(CountOf("AddTable"), 1);  // the Project Summary
    EXPECT_EQ(ValuesOf("Action"), (Rows{"3", "6"}));
    EXPECT_EQ(layout.Result().pages.size(), 1U);
}

TEST_F(SalesColumns, TheUserIsToldWhichSystemEndedTheReportAndWhatToDo) {
    Fill(1);
    Info(1).WHSalePrice = 800;
    PreviewSalesOnly(context);
    EXPECT_EQ(context.Problems,
              Rows{"The Sales Report is not complete. System 2 has a price but neither a cooling "
                   "nor a heating model, so the comparison table and the footnotes behind it are "
                   "left out. Choose a model there, or set the prices there to 0. Then write the "
                   "report again."});
}

TEST_F(SalesColumns, TheUserIsToldOfEachSystemWithoutAColumn) {
    Fill(1);
    for (const std::size_t system : {1U, 2U, 4U})
        Info(system).WHSalePrice = 800;
    PreviewSalesOnly(context);
    EXPECT_THAT(context.Problems,
                ElementsAre(HasSubstr(". Systems 2, 3 and 5 have a price but neither ")));
}

TEST_F(SalesColumns, ACompleteReportTellsNothing) {
    Fill(5);
    PreviewSalesOnly(context);
    EXPECT_EQ(context.Problems, Rows{});
}

TEST_F(SalesColumns, APriceWithoutAnyCostEndsTheReport) {
    Info(0).CLGSalePrice = 100;
    PreviewSalesOnly(context);
    EXPECT_EQ(CountOf("AddTable"), 1);  // the Project Summary
    EXPECT_THAT(context.Problems,
                ElementsAre(HasSubstr("System 1 has a price but no dealer cost, so the ")));
}

TEST_F(SalesColumns, ASystemWithAModelButNoPriceTakesAColumnAheadOfAPricedOne) {
    Fill(3);
    Info(0) = {};
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-2");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|$0.00|$2,002.00");
}

TEST_F(SalesColumns, ASelectedSystemThatIsNoneEndsTheReport) {
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

TEST_F(SalesColumns, FiveSystemsWithOnlySomeModelsLeaveTheOtherCellsBlank) {
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

TEST_F(SalesColumns, SystemsPricedOutOfOrderStandInTheirOwnOrder) {
    for (const int system : {4, 0, 2})
        FillSystem(project, system);
    Print();
    EXPECT_EQ(TableField(1), "|SYSTEM #1|SYSTEM #2|SYSTEM #3");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-3|CN-5");
    // Each column names its own system, and the label that of the first column.
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #1:|$311.00|$313.00|$315.00");
}

TEST_F(SalesColumns, APricedSystemBehindTwoUnpricedModelsLosesItsColumn) {
    Fill(4);
    Info(0) = Info(1) = {};  // models of systems 1 and 2, prices of 3 and 4
    Print();
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-1|CN-2");
    EXPECT_EQ(Row("Total Price:"), "Total Price:|$0.00|$0.00");
    EXPECT_THAT(LastTableRows(), Contains("Total Price:|$0.00|$0.00").Times(3));
}

TEST_F(SalesColumns, OnePricedSystemIsShownAloneHoweverManyModelsThereAre) {
    Fill(3);
    Info(0) = Info(2) = {};
    Print();
    EXPECT_EQ(TableField(1), "|COOLING|HEATING|HOT WATER");
    EXPECT_EQ(Row("Unit Model Number:"), "Unit Model Number:|CN-2|HN-2|WN-2");
    EXPECT_EQ(Row("Operating Cost for"), "Operating Cost for System #2:|$312.00|$412.00|$512.00");
}

TEST_F(SalesColumns, APriceOfAnyModelCountsASystem) {
    for (float ModelInfoRecord::*price :
         {&ModelInfoRecord::CLGSalePrice, &ModelInfoRecord::HTGSalePrice,
          &ModelInfoRecord::WHSalePrice}) {
        project.ModelInfo = {};
        EXPECT_EQ(CountPricedSystems(project), 0);
        Info(4).*price = -0.01F;
        EXPECT_EQ(CountPricedSystems(project), 1);
    }
}

TEST_F(SalesColumns, TheLastWaterHeaterPriceWinsTheOneSystemForm) {
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

TEST_F(SalesColumns, ASingleWaterHeaterIsFoundByItsPrice) {
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

/// Every choice of what the five systems hold, a letter for each: "." nothing, "m" a cooling model
/// without a price, "C" a priced cooling model, "H" a priced heating model, "W" a priced water
/// heater and no other model.
class EveryChoiceOfSystems : public ReportTest {
  protected:
    static constexpr std::string_view Letters = ".mCHW";

    void Fill(const std::string& systems) {
        project.CLGModelData = {};
        project.HTGModelData = {};
        project.ModelInfo = {};
        for (std::size_t i = 0; i < systems.size(); ++i) {
            const std::string number = std::to_string(i + 1);
            ModelInfoRecord& info = project.ModelInfo[i];
            if (systems[i] == 'm' || systems[i] == 'C') project.CLGModelData[i].ModelNum = number;
            if (systems[i] == 'H') project.HTGModelData[i].ModelNum = number;
            if (systems[i] == 'C') info.CLGSalePrice = info.CLGModelDealerCost = 1;
            if (systems[i] == 'H') info.HTGSalePrice = info.HTGModelDealerCost = 1;
            if (systems[i] == 'W') info.WHSalePrice = 1;
        }
    }

    static std::string Places(const std::string& systems, std::string_view letters) {
        std::string places;
        for (std::size_t i = 0; i < systems.size(); ++i)
            if (letters.find(systems[i]) != std::string_view::npos)
                places += static_cast<char>('1' + i);
        return places;
    }

    /// "none"; "stops at" and the systems at fault; or the rows of model numbers.
    static std::string Expected(const std::string& systems) {
        const std::string priced = Places(systems, "CHW");
        if (priced.empty()) return "none";
        if (priced.size() == 1) {
            const char letter = systems[static_cast<std::size_t>(priced[0] - '1')];
            return letter == 'C' ? priced + "||" : letter == 'H' ? "|" + priced + "|" : "||";
        }
        const std::string columns = Places(systems, "mCH");
        if (columns.size() < priced.size()) return "stops at " + Places(systems, "W");
        std::string cooling, heating;
        for (const char place : columns.substr(0, priced.size())) {
            const bool isHeating = systems[static_cast<std::size_t>(place - '1')] == 'H';
            (isHeating ? heating : cooling) += place;
            cooling += '|';
            heating += '|';
        }
        cooling.pop_back();
        heating.pop_back();
        return cooling + " " + heating;
    }

    std::string Written() {
        plainContext.Problems.clear();
        PreviewSalesOnly(plainContext);
        if (!plainContext.Problems.empty()) {
            std::string numbers;
            const std::string& text = plainContext.Problems.front();
            for (const char character : text.substr(0, text.find(" a price but")))
                if (character >= '1' && character <= '5') numbers += character;
            return "stops at " + numbers;
        }
        std::string found;
        for (const SurfaceCall& call : plainSurface.Calls())
            if (call.op == "AddTable") found = std::get<std::string>(call.fields.at(2).second);
        std::string rows;
        const std::string label = "Unit Model Number:|";
        for (std::size_t at = found.find(label); at != std::string::npos;
             at = found.find(label, at + 1)) {
            const std::size_t from = at + label.size();
            rows += (rows.empty() ? "" : " ") + found.substr(from, found.find(';', from) - from);
        }
        return rows.empty() ? "none" : rows;
    }
};

TEST_F(EveryChoiceOfSystems, ShowsTheSystemsThatItIsTo) {
    SwitchOffAllRows();
    std::string systems(5, '.');
    for (int choice = 0; choice < 3125; ++choice) {
        int rest = choice;
        for (char& letter : systems) {
            letter = Letters[static_cast<std::size_t>(rest % 5)];
            rest /= 5;
        }
        Fill(systems);
        ASSERT_EQ(Written(), Expected(systems)) << systems;
    }
}

}  // namespace
}  // namespace tendo
