#include "equipment/model_prices.h"

#include <gtest/gtest.h>

#include "equipment/model_fields.h"
#include "equipment/model_price_line.h"
#include "equipment/operating_costs.h"

namespace tendo {
namespace {

constexpr auto Cooling = SelectionMode::Cooling;

class ModelPrices : public testing::Test {
  protected:
    void SetUp() override {
        ModelInfoRecord& info = records.ModelInfo[0];
        info.CLGModelDealerCost = info.CLGModelDealerOverride = 750;
        info.CLGSalePrice = 1000;
        info.CLGListPrice = 1200;
        records.CLGModelData[0].ModelNum = "FA-1";
        records.CLGModelData[0].ModelQty = 1;
        line.Show(0);
    }

    void Enter(FieldKind column, const std::string& text) {
        line.SetText(column, text);
        line.Commit(column);
    }

    static const ModelField& Field(std::span<const ModelField> fields, std::string_view name) {
        for (const ModelField& field : fields)
            if (name == field.name) return field;
        throw std::out_of_range(std::string(name));
    }

    ProjectRecords records;
    ModelPriceLine line{records, Cooling};
};

TEST_F(ModelPrices, TheLineTellsItsPercentagesFromItsPrices) {
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "25.0");   // 250 / 1000
    EXPECT_EQ(line.Text(FieldKind::PriceMarkup), "33.3");   // 250 / 750
    EXPECT_EQ(line.Text(FieldKind::ListDiscount), "16.7");  // 200 / 1200
}

TEST_F(ModelPrices, AMarginOfExactlyHundredGivesAHugePriceAndNoError) {
    Enter(FieldKind::GrossMargin, "100");
    // 750 / (1 - 100 / 100.000001) = 750 / 1e-8, nearly
    EXPECT_NEAR(records.ModelInfo[0].CLGSalePrice, 7.5e10, 1e6);
}

TEST_F(ModelPrices, EachFieldTakesTheOthersAlong) {
    Enter(FieldKind::GrossMargin, "40");  // 750 / 0.6
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$1,250.00");
    EXPECT_EQ(line.Text(FieldKind::PriceMarkup), "66.7");
    EXPECT_EQ(line.Text(FieldKind::ListDiscount), "-4.2");  // -50 / 1200
    Enter(FieldKind::PriceMarkup, "20");                    // 750 * 1.2
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$900.00");
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "16.7");
    Enter(FieldKind::ListDiscount, "50");  // 1200 / 2
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$600.00");
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "-25.0");
    Enter(FieldKind::SalePrice, "1000");
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "25.0");
}

TEST_F(ModelPrices, AnEditOfLessThanATenthLeavesTheExactMarginInForce) {
    Enter(FieldKind::GrossMargin, "25.09");
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$1,000.00");
}

TEST_F(ModelPrices, AnEditOfExactlyATenthLeavesTheExactMarginInForce) {
    Enter(FieldKind::GrossMargin, "25.1");                    // over 25.0
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$1,000.00");  // 750 / 0.75
    EXPECT_EQ(records.ModelInfo[0].CLGModelGrossMargin, 25);
    Enter(FieldKind::GrossMargin, "25.2");
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$1,002.67");  // 750 / 0.748 = 1002.674
}

TEST_F(ModelPrices, TextInANumericFieldCountsAsZero) {
    // An override of 0 means none: the cost of 750 stays in force.
    Enter(FieldKind::DealerOverride, "twelve");
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerOverride, 0);
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "25.0");
    Enter(FieldKind::PriceMarkup, "12abc");  // at cost
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$750.00");
    Enter(FieldKind::ListDiscount, "none");  // at list
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$1,200.00");
    Enter(FieldKind::GrossMargin, "?");  // at cost
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$750.00");
    Enter(FieldKind::SalePrice, "free");
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$0.00");
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "-75000.0");  // (0 - 750) * 100
    Enter(FieldKind::DealerCost, "-");
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 0);
}

TEST_F(ModelPrices, ThePriceTellsWhereItComesFrom) {
    EXPECT_EQ(line.Why(FieldKind::SalePrice).title, "Sale price · System 1, cooling FA-1");
    EXPECT_EQ(line.Why(FieldKind::SalePrice).rule,
              "Saved with the project, or the list price of the chosen model");
    EXPECT_EQ(line.Why(FieldKind::ListDiscount).worked,
              "($1,200.00 − $1,000.00) ÷ $1,200.00 × 100 = 16.7");
    Enter(FieldKind::GrossMargin, "40");
    EXPECT_EQ(line.Why(FieldKind::SalePrice).worked, "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    Enter(FieldKind::DealerOverride, "800");  // the price stays
    EXPECT_EQ(line.Why(FieldKind::SalePrice).worked, "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    EXPECT_EQ(line.Why(FieldKind::GrossMargin).worked,
              "($1,250.00 − $800.00) ÷ $1,250.00 × 100 = 36.0");
    Enter(FieldKind::ListDiscount, "10");
    EXPECT_EQ(line.Why(FieldKind::SalePrice).worked,
              "$1,200.00 − 10 ÷ 100 × $1,200.00 = $1,080.00");
    Enter(FieldKind::SalePrice, "900");
    EXPECT_EQ(line.Why(FieldKind::SalePrice).rule,
              "Entered; margin, markup and discount follow from it");
    line.Show(0);
    EXPECT_EQ(line.Why(FieldKind::SalePrice).rule,
              "Saved with the project, or the list price of the chosen model");
}

TEST_F(ModelPrices, AnEmptyTextCommitsNothing) {
    line.SetText(FieldKind::SalePrice, "");
    EXPECT_FALSE(line.Commit(FieldKind::SalePrice));
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 1000);
}

TEST_F(ModelPrices, APriceBeyondTheRangeChangesNothing) {
    Enter(FieldKind::PriceMarkup, "3E38");
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 1000);
    EXPECT_EQ(line.Text(FieldKind::PriceMarkup), "33.3");
}

TEST_F(ModelPrices, WithQuantityTwoTheCostShowsTwiceAndTheStoredOneStays) {
    SetModelQuantity(records, Cooling, 0, "2");
    line.Show(0);
    EXPECT_EQ(line.Text(FieldKind::DealerCost), "$1,500.00");
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 750);
    Enter(FieldKind::DealerOverride, "1200");  // 600 for each of the two
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerOverride, 600);
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "40.0");  // 400 / 1000
}

TEST_F(ModelPrices, AQuantityRebuildsTheListBases) {
    records.ModelInfo[4].WHListPrice = 300;
    records.WHModelData[4].ModelQty = 1;
    records.SystemTendos.TaxMatLDPrice = 10;
    records.SystemTendos.NonTaxLDPrice = 20;
    records.SystemTendos.LaborLDPrice = 30;
    records.SystemTendos.TaxSalePrice = 40;
    SetModelQuantity(records, Cooling, 0, "2");
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 2700);  // 2 * 1200 + 300
    EXPECT_EQ(records.SystemTendos.TotalLDPrice, 2800);
}

TEST_F(ModelPrices, ClosingTakesTheSumOfListPricesAndNotOfSalePrices) {
    records.ModelInfo[1].HTGListPrice = 500;
    records.ModelInfo[1].HTGModelDealerCost = 100;
    records.ModelInfo[1].HTGModelDealerOverride = 90;
    records.HTGModelData[1].ModelQty = 3;
    records.SystemTendos.ModelSalePrice = 1;
    RebuildModelRow(records);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 1050);      // 750 + 3 * 100
    EXPECT_EQ(records.SystemTendos.ModelDealerOverride, 1020);  // 750 + 3 * 90
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 1700);       // 1200 + 500
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 1700);
}

TEST_F(ModelPrices, AnEmptyOperatingCostBecomesZeroDollars) {
    records.SystemInfo[0].CLGOpCostforSystem = 400;
    EXPECT_TRUE(CommitOperatingCost(records, Cooling, 0, OperatingCost::Existing, ""));
    EXPECT_EQ(OperatingCostText(records, Cooling, 0, OperatingCost::Existing), "$0.00");
}

TEST_F(ModelPrices, SavingsFollowTheCostsAndCanBeTypedOver) {
    CommitOperatingCost(records, Cooling, 0, OperatingCost::Existing, "400");
    CommitOperatingCost(records, Cooling, 0, OperatingCost::Proposed, "650.5");
    EXPECT_EQ(OperatingCostText(records, Cooling, 0, OperatingCost::Savings), "-$250.50");
    CommitOperatingCost(records, Cooling, 0, OperatingCost::Savings, "99");
    EXPECT_FALSE(CommitOperatingCost(records, Cooling, 0, OperatingCost::Existing, "$400.00"));
    EXPECT_EQ(records.SystemInfo[0].CLGOpCostSavings, 99);
}

TEST_F(ModelPrices, AChoiceTakesTheCostOfThatSystem) {
    records.SystemInfo[2].CLGOpCostforSystem = 1234.5F;
    ChooseOperatingCost(records, Cooling, 0, 3);
    EXPECT_EQ(records.SystemInfo[0].CLGOpCostforSystem, 1234.5F);
    EXPECT_EQ(OperatingCostSystem(records, Cooling, 0), 2);
}

TEST_F(ModelPrices, AHeaterMarkedForSpaceHeatKeepsItsPricesAndOneDroppedLosesThem) {
    records.ModelInfo[0].WHSalePrice = 900;
    records.WHModelData[0].ModelNum = "WH-1";
    records.WHModelData[0].WHIsHydroAirComponent = 1;
    EXPECT_EQ(records.ModelInfo[0].WHSalePrice, 900);
    const ModelField& number = Field(WaterHeaterFields(), "txtWHModelNum");
    EXPECT_TRUE(CommitModelField(number, records, 0, ""));
    EXPECT_EQ(records.ModelInfo[0].WHSalePrice, 0);
    EXPECT_EQ(records.WHModelData[0].WHIsHydroAirComponent, 0);
}

TEST_F(ModelPrices, TheTaxCountsLaborOnlyWhereItIsTaxed) {
    records.SystemTendos.TaxPercentage = 10;
    RecalcTax(records, 1000, 100, 200);
    EXPECT_EQ(records.SystemTendos.TaxDealerCost, 130);
    records.GPDProjectFormat.TaxLabor = false;
    RecalcTax(records, 1000, 100, 200);
    EXPECT_EQ(records.SystemTendos.TaxDealerCost, 110);
}

TEST_F(ModelPrices, AFieldLeftAsItStoodKeepsItsOtherDecimals) {
    records.CLGModelData[0].Cap = 35.125F;
    const ModelField& capacity = Field(CoolingDetailFields(), "txtCLGCap");
    EXPECT_FALSE(CommitModelField(capacity, records, 0, "35.13"));
    EXPECT_EQ(records.CLGModelData[0].Cap, 35.125F);
    EXPECT_TRUE(CommitModelField(capacity, records, 0, "abc"));
    EXPECT_EQ(records.CLGModelData[0].Cap, 0);
}

TEST_F(ModelPrices, OtherTextThanAChoiceMayBeTyped) {
    const ModelField& fuel = Field(HeatingMiscFields(), "txtHTGFuelType");
    ASSERT_EQ(fuel.choices.size(), 5U);
    CommitModelField(fuel, records, 0, "Wood");
    EXPECT_EQ(records.HTGModelData[0].FuelType.Trimmed(), "Wood");
}

TEST_F(ModelPrices, SumsBeyondTheRangeLeaveThePriceTableAsItWas) {
    records.SystemTendos.ModelDealerCost = 5;
    records.SystemTendos.ModelLDPrice = 6;
    records.SystemTendos.TaxDealerCost = 7;
    records.SystemTendos.TaxPercentage = 100;
    records.ModelInfo[0].CLGModelDealerCost = records.ModelInfo[0].CLGListPrice = 3e38F;
    SetModelQuantity(records, Cooling, 0, "2");
    RebuildModelRow(records);
    RecalcTax(records, 3e38F, 3e38F, 0);
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 2);
    EXPECT_EQ(records.SystemTendos.ModelDealerCost, 5);
    EXPECT_EQ(records.SystemTendos.ModelLDPrice, 6);
    EXPECT_EQ(records.SystemTendos.TaxDealerCost, 7);
}

TEST_F(ModelPrices, PercentagesBeyondTheRangeShowAsZero) {
    records.ModelInfo[0].CLGModelDealerCost = records.ModelInfo[0].CLGModelDealerOverride = 3e38F;
    records.ModelInfo[0].CLGSalePrice = 0;
    line.Show(0);  // minus a hundred times the cost
    EXPECT_EQ(line.Text(FieldKind::GrossMargin), "0.0");
    EXPECT_EQ(line.Text(FieldKind::SalePrice), "$0.00");
}

TEST_F(ModelPrices, SavingsBeyondTheRangeChangeNoOperatingCost) {
    EXPECT_TRUE(CommitOperatingCost(records, Cooling, 0, OperatingCost::Existing, "3E38"));
    EXPECT_FALSE(CommitOperatingCost(records, Cooling, 0, OperatingCost::Proposed, "-3E38"));
    EXPECT_EQ(records.SystemInfo[0].CLGProposedOpCost, 0);
}

TEST_F(ModelPrices, AQuantityIsHeldWithinItsRange) {
    SetModelQuantity(records, Cooling, 0, "99999");
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 32767);
    SetModelQuantity(records, Cooling, 0, "-3");
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 0);
    SetModelQuantity(records, Cooling, 0, "two");
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 0);
}

TEST_F(ModelPrices, ATextIsCutAtTheWidthOfItsRecord) {
    const ModelField& electrical = Field(CoolingMiscFields(), "txtCLGElectrical");
    const ModelField& notes = Field(HeatingMiscFields(), "txtHTGNotes");
    EXPECT_EQ(electrical.width, 35);
    EXPECT_EQ(notes.width, 250);
    CommitModelField(electrical, records, 0, std::string(40, 'e'));
    CommitModelField(notes, records, 0, std::string(260, 'n'));
    EXPECT_EQ(records.CLGModelData[0].Electrical.Trimmed(), std::string(35, 'e'));
    EXPECT_EQ(records.HTGModelData[0].Notes.Trimmed(), std::string(250, 'n'));
}

}  // namespace
}  // namespace tendo
