#include "price_table_fixture.h"

namespace tendo {
namespace {

class ProjectTotals : public PriceTableTest {
  protected:
    /// Model 1000, taxable materials 100, other materials 50, labor 200, typed as an estimator
    /// would.
    void EnterFourRows() {
        Enter(Field::ModelSalePrice, "1000");
        Enter(Field::TaxMatSalePrice, "100");
        Enter(Field::NonTaxSalePrice, "50");
        Enter(Field::LaborSalePrice, "200");
    }
};

TEST_F(ProjectTotals, FourRowsWithLaborTaxed) {
    table.Open();
    EnterFourRows();
    EXPECT_EQ(Text(Field::TaxableAmount), "$1,300.00");  // 1000 + 100 + 200
    EXPECT_EQ(Text(Field::TaxSalePrice), "$107.25");     // 8.25 % of 1300
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$1,350.00");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,457.25");
    EXPECT_EQ(Text(Field::SuperProfit), "$0.00");
    EXPECT_EQ(Text(Field::Profit), "$1,350.00");  // no cost yet
    EXPECT_EQ(tendos().TotalSalePrice, 1457.25F);
}

TEST_F(ProjectTotals, WithLaborUntaxedItStaysOutOfTheTaxableAmount) {
    records.GPDProjectFormat.TaxLabor = false;
    table.Open();
    EnterFourRows();
    EXPECT_EQ(Text(Field::TaxableAmount), "$1,100.00");
    EXPECT_EQ(Text(Field::TaxSalePrice), "$90.75");  // 8.25 % of 1100
    EXPECT_EQ(LaborLabel(records), "Labor (no tax):");
}

TEST_F(ProjectTotals, NonTaxableMaterialsNeverEnterTheTaxableAmount) {
    table.Open();
    Enter(Field::NonTaxSalePrice, "5000");
    EXPECT_EQ(Text(Field::TaxableAmount), "$0.00");
    EXPECT_EQ(Text(Field::TaxSalePrice), "$0.00");
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$5,000.00");
}

TEST_F(ProjectTotals, TaxIsRoundedInItsSalePriceAndKeptUnroundedInItsCost) {
    table.Open();
    Enter(Field::ModelSalePrice, "333.33");  // 8.25 % is 27.499725
    EXPECT_EQ(Text(Field::TaxSalePrice), "$27.50");
    EXPECT_EQ(Text(Field::TaxDealerCost), "$27.50");  // shown in cents, and only shown
    EXPECT_EQ(tendos().TaxSalePrice, 27.5F);
    EXPECT_NEAR(static_cast<double>(tendos().TaxDealerCost), 27.499725, 1e-5);
    table.Close();
    EXPECT_NEAR(static_cast<double>(tendos().TaxDealerCost), 27.499725, 1e-5);
}

TEST_F(ProjectTotals, ATotalMarginLiesOnTopOfSubTotalAndTax) {
    table.Open();
    Enter(Field::TaxPercentage, "0");
    Enter(Field::ModelSalePrice, "900");
    Enter(Field::TotalGrossMargin, "10");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,000.00");  // 900 / 0.9
    EXPECT_EQ(Text(Field::SuperProfit), "$100.00");
    EXPECT_EQ(Text(Field::ModelSalePrice), "$900.00");  // the rows keep their prices
}

TEST_F(ProjectTotals, TheBaseOfATotalMarginHoldsTheTax) {
    table.Open();
    Enter(Field::TaxPercentage, "12.5");
    Enter(Field::ModelSalePrice, "800");  // with 12.5 % tax: 900
    Enter(Field::TotalGrossMargin, "10");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,000.00");
    EXPECT_EQ(Text(Field::SuperProfit), "$100.00");  // 1000 - 800 - 100
}

TEST_F(ProjectTotals, ATotalMarginOnAZeroTotalStartsFromNothing) {
    table.Open();
    Enter(Field::TaxPercentage, "0");
    Enter(Field::ModelSalePrice, "900");
    table.SetText(Field::TotalSalePrice, "0");
    Enter(Field::TotalGrossMargin, "10");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$900.00");
    EXPECT_EQ(table.EditedGrossMargin[4], 0);
}

TEST_F(ProjectTotals, ATypedTotalStandsAndShowsAsExtraProfit) {
    table.Open();
    EnterFourRows();
    Enter(Field::TotalSalePrice, "1600");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,600.00");
    EXPECT_EQ(Text(Field::SuperProfit), "$142.75");  // 1600 - 1350 - 107.25
    EXPECT_EQ(Text(Field::LaborSalePrice), "$200.00");
    EXPECT_EQ(tendos().TotalSalePrice, 1600);
}

TEST_F(ProjectTotals, ChangingARowThrowsATypedTotalAway) {
    table.Open();
    EnterFourRows();
    Enter(Field::TotalSalePrice, "5000");
    Enter(Field::NonTaxSalePrice, "60");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,467.25");
    EXPECT_EQ(Text(Field::SuperProfit), "$0.00");
}

TEST_F(ProjectTotals, AZeroTotalIsFilledInFromTheSubTotalWhenTheProfitMoves) {
    table.Open();
    EnterFourRows();
    table.SetText(Field::TotalSalePrice, "0");
    Enter(Field::LaborDealerOverride, "50");
    EXPECT_EQ(Text(Field::Profit), "$1,300.00");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,350.00");
}

TEST_F(ProjectTotals, ATotalTypedAsZeroBecomesSubTotalAndTax) {
    table.Open();
    EnterFourRows();
    Enter(Field::TotalSalePrice, "0");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,457.25");
}

TEST_F(ProjectTotals, TheTwoTotalMarginsDifferAndTheLastOneStands) {
    table.Open();
    Enter(Field::ModelSalePrice, "1000");  // tax 82.50
    Enter(Field::TotalSalePrice, "1200");
    // A typed total leaves the tax in: (1200 - 1000) / 1200
    EXPECT_EQ(Text(Field::TotalGrossMargin), "16.7");
    Enter(Field::ModelDealerOverride, "50");
    // A moved profit takes it off first: (1117.50 - 1000) / 1117.50
    EXPECT_EQ(Text(Field::TotalGrossMargin), "10.5");
}

TEST_F(ProjectTotals, AnOverrideThatIsSameCountsAsTheRowsCost) {
    tendos().ModelSalePrice = tendos().TaxMatSalePrice = tendos().NonTaxSalePrice = 1000;
    tendos().TaxMatDealerCost = tendos().TaxMatDealerOverride = 300;  // "same"
    tendos().NonTaxDealerCost = 200;
    tendos().NonTaxDealerOverride = 150;
    table.Open();
    EXPECT_EQ(Text(Field::TaxMatDealerOverride), "same");
    EXPECT_EQ(Text(Field::TotalDealerCost), "$500.00");
    EXPECT_EQ(Text(Field::TotalDealerOverride), "$450.00");
    EXPECT_EQ(Text(Field::Profit), "$2,550.00");  // 3000 - 450
}

TEST_F(ProjectTotals, ATaxPercentageReplacesTheTotalAndLeavesTheFlagSet) {
    table.Open();
    EnterFourRows();
    table.FieldChanged = false;
    Enter(Field::TaxPercentage, "10");
    EXPECT_EQ(Text(Field::TaxSalePrice), "$130.00");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,480.00");
    EXPECT_EQ(Text(Field::TaxPercentage), "10");
    EXPECT_EQ(tendos().TaxPercentage, 10);
    EXPECT_TRUE(table.FieldChanged);
}

TEST_F(ProjectTotals, TheTotalDealerCostLeavesTheTaxOut) {
    tendos().TaxMatDealerCost = 100;
    tendos().LaborDealerCost = 250;
    tendos().TaxMatSalePrice = tendos().LaborSalePrice = 400;
    table.Open();
    EXPECT_EQ(Text(Field::TotalDealerCost), "$350.00");
}

TEST_F(ProjectTotals, ATextWrittenAgainAsItStandsCausesNothing) {
    table.Open();
    EnterFourRows();
    int changes = 0;
    table.TextChanged = [&](TableField) { ++changes; };
    table.FieldChanged = false;
    table.SetText(Field::SubTotalSalePrice, "$1,350.00");
    table.RecalcSubTotalSalePrice();
    table.RecalcTax();
    table.RecalcTotalSalePrice();
    table.RecalcTotalDealerCost();
    table.RecalcTotalDealerOverride();
    table.RecalcProfit();
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(ProjectTotals, NoCalculationWritesTheTotalsMarkupAndDiscount) {
    tendos().TotalPriceMarkup = 12;
    tendos().TotalListDiscount = 13;
    table.Open();
    EnterFourRows();
    table.Close();
    EXPECT_EQ(tendos().TotalPriceMarkup, 12);
    EXPECT_EQ(tendos().TotalListDiscount, 13);
}

TEST_F(ProjectTotals, AnOverflowInTheTotalsReachesTheReport) {
    table.Open();
    const std::string most = "3" + std::string(38, '0');  // 3 * 10^38, near the largest float
    Enter(Field::ModelSalePrice, most);
    EXPECT_TRUE(messages.empty());
    Enter(Field::TaxMatSalePrice, most);
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(titles[0], "Tendo");
    EXPECT_EQ(messages.back().find("TENDO encountered an error while in Sub "), 0U)
        << messages.back();
}

TEST_F(ProjectTotals, MaterialsBoughtWhileTheScreenIsClosedReachTheTotals) {
    tendos().TaxMatDealerCost = tendos().TaxMatDealerOverride = 80;
    tendos().TaxMatSalePrice = tendos().TaxMatLDPrice = 100;
    RecalcClosedPriceTable(records);
    EXPECT_EQ(tendos().TotalSalePrice, 108.25F);
    EXPECT_EQ(tendos().TotalDealerCost, 80);
    EXPECT_EQ(tendos().Profit, 20);
}

}  // namespace
}  // namespace tendo
