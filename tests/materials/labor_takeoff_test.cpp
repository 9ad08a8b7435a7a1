#include "materials/labor_takeoff.h"

#include <gtest/gtest.h>

#include "platform/text/runtime_error.h"
#include "project/program_state.h"
#include "project/project_records.h"

namespace tendo {
namespace {

class LaborTakeoff : public testing::Test {
  protected:
    void TearDown() override {
        Project() = ProjectRecords();
        State() = ProgramState();
    }

    std::vector<LaborRow>& rows = Project().ProjectLabor;
    SystemTendosRecord& tendos = Project().SystemTendos;
};

TEST_F(LaborTakeoff, TheSumsSkipNoRowOfTheFifteen) {
    rows[0] = {10, "Set condenser", 40, 400, 25, 33.3F, 533.33F};
    rows[1] = {0, "Permit", 0, 0, 0, 0, 120};  // without hours, and still in the sum
    rows[14] = {1.5F, "Start up", 40, 60, 25, 33.3F, 80};
    rows[15] = {9, "The spare row", 9, 81, 0, 0, 900};
    tendos.LaborDealerOverride = 1;  // typed on the price table; it lasts until here
    SumLabor();
    EXPECT_EQ(tendos.LaborDealerCost, 460);  // 400 + 0 + 60
    EXPECT_EQ(tendos.LaborDealerOverride, 460);
    EXPECT_EQ(tendos.LaborSalePrice, 733.33F);  // 533.33 + 120 + 80
}

TEST_F(LaborTakeoff, ASumBeyondTheRangeOverflowsAndLeavesTheTable) {
    rows[0].LaborCost = rows[1].LaborCost = 3E38F;
    tendos.LaborDealerCost = 7;
    EXPECT_THROW(SumLabor(), RuntimeError);
    EXPECT_EQ(tendos.LaborDealerCost, 7);
}

TEST_F(LaborTakeoff, ClearingBlanksTheFifteenRows) {
    for (LaborRow& row : rows)
        row = {10, "Set condenser", 40, 400, 25, 33.3F, 533.33F};
    ClearProjectLabor();
    for (std::size_t i = 0; i < SavedLaborRowCount; ++i) {
        const LaborRow& row = rows[i];
        EXPECT_TRUE(row.LaborDescription.IsBlank()) << i;
        EXPECT_EQ(row.QtyHrs + row.LaborPerHour + row.LaborCost, 0) << i;
        EXPECT_EQ(row.GrossMargin + row.PriceMarkup + row.LaborPrice, 0) << i;
    }
    EXPECT_EQ(rows[15].QtyHrs, 10);
}

TEST_F(LaborTakeoff, TheListBaseOfLaborIsItsCostAndNotItsPrice) {
    rows[0] = {10, "Set condenser", 40, 400, 25, 33.3F, 533.33F};
    tendos.ModelLDPrice = 1000;
    tendos.TaxMatLDPrice = 200;
    tendos.NonTaxLDPrice = 50;
    tendos.TaxSalePrice = 99;
    CloseLaborTakeoff();
    EXPECT_EQ(tendos.LaborLDPrice, 400);
    EXPECT_EQ(tendos.TotalLDPrice, 1749);  // 1000 + 200 + 50 + 400 + 99
}

TEST_F(LaborTakeoff, ClosingChangesTheProjectWhenAFigureMoved) {
    rows[0] = {10, "Set condenser", 40, 400, 25, 33.3F, 533.33F};
    CloseLaborTakeoff();
    EXPECT_TRUE(State().ProjectChanged);
    State().ProjectChanged = false;
    CloseLaborTakeoff();
    EXPECT_FALSE(State().ProjectChanged);
}

}  // namespace
}  // namespace tendo
