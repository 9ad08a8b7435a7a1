#include "price_table_fixture.h"

namespace tendo {
namespace {

/// What the change of one text sets off, in its order.
class ChangeCascades : public PriceTableTest {
  protected:
    void SetUp() override {
        PriceTableTest::SetUp();
        tendos().LaborDealerCost = 160;
        tendos().LaborSalePrice = 200;
        tendos().LaborLDPrice = 160;
        tendos().TotalSalePrice = 216.5F;  // with 8.25 % tax
        table.Open();
        table.TextChanged = [this](Field field) { changed.emplace_back(Describe(field).name); };
    }

    bool Before(const char* first, const char* second) const {
        const auto a = std::find(changed.begin(), changed.end(), first);
        const auto b = std::find(changed.begin(), changed.end(), second);
        return a != changed.end() && b != changed.end() && a < b;
    }

    std::vector<std::string> changed;
};

TEST_F(ChangeCascades, ARowsCostMovesTheTotalCost) {
    table.SetText(Field::LaborDealerCost, "$180.00");
    EXPECT_EQ(Text(Field::TotalDealerCost), "$180.00");
    // The total cost recalculates the Total row: 200 - 180, for "same" counts as the cost.
    EXPECT_EQ(Text(Field::Profit), "$20.00");
    EXPECT_EQ(table.CurrentPriceRow, price_row::Total);
    EXPECT_FALSE(table.FieldChanged);  // cleared at the end of that
}

TEST_F(ChangeCascades, ATotalOverrideRecalculatesTheTotalRowWhichWritesItAnew) {
    table.SetText(Field::TotalDealerOverride, "$1.00");
    EXPECT_EQ(Text(Field::TotalDealerOverride), "$160.00");
    EXPECT_EQ(table.CurrentPriceRow, price_row::Total);
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(ChangeCascades, TheSubTotalMovesTaxTotalAndProfit) {
    Enter(Field::LaborSalePrice, "300");
    // 8.25 % of 300 is 24.75.
    EXPECT_EQ(Text(Field::TaxSalePrice), "$24.75");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$324.75");
    EXPECT_EQ(Text(Field::Profit), "$140.00");
    EXPECT_TRUE(Before("txtSubTotalSalePrice", "txtTaxSalePrice"));
    EXPECT_TRUE(Before("txtTaxSalePrice", "txtTotalSalePrice"));
    // After a sale price the sub-total comes before the row's own percentages.
    EXPECT_TRUE(Before("txtTotalSalePrice", "txtLaborGrossMargin"));
}

TEST_F(ChangeCascades, AfterAMarginTheSubTotalComesLast) {
    Enter(Field::LaborGrossMargin, "50");  // 160 / 0.5
    EXPECT_TRUE(Before("txtLaborSalesPrice", "txtLaborPriceMarkup"));
    EXPECT_TRUE(Before("txtLaborPriceMarkup", "txtLaborListDiscount"));
    EXPECT_TRUE(Before("txtLaborListDiscount", "txtSubTotalSalePrice"));
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$320.00");
}

TEST_F(ChangeCascades, AfterAMarginTheTotalMarginStillComparesWithTheTotalBeforeTheEdit) {
    Enter(Field::LaborGrossMargin, "50");
    // 160 / 0.5 = 320 and 8.25 % tax of it, 26.40. The moved profit sets the Total margin when the
    // total still reads 216.50: 216.50 - 26.40 = 190.10; (190.10 - 320) / 190.10 = -68.33 %.
    EXPECT_EQ(Text(Field::TotalGrossMargin), "-68.3");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$346.40");
    EXPECT_TRUE(Before("txtTotalGrossMargin", "txtTotalSalePrice"));
    // Nothing follows the new total but the flag, which its change sets.
    EXPECT_EQ(changed.back(), "txtSuperProfit");
    EXPECT_TRUE(table.FieldChanged);
}

TEST_F(ChangeCascades, AfterAMarginTheNextRecalculationOfTheTotalRowMendsItsMargin) {
    Enter(Field::LaborGrossMargin, "50");
    table.Commit(Field::TotalSalePrice);
    // ((320 + 26.40) - 26.40) against a total of 346.40: (346.40 - 320) / 346.40 = 7.62 %.
    EXPECT_EQ(Text(Field::TotalGrossMargin), "7.6");
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(ChangeCascades, TheTaxMovesTheExtraProfitOnly) {
    table.SetText(Field::TaxSalePrice, "$10.00");
    // 216.50 - 200 - 10
    EXPECT_EQ(Text(Field::SuperProfit), "$6.50");
    EXPECT_EQ(changed, (std::vector<std::string>{"txtTaxSalePrice", "txtSuperProfit"}));
}

TEST_F(ChangeCascades, TheExtraProfitMovesNothing) {
    table.FieldChanged = false;
    table.SetText(Field::SuperProfit, "$6.50");
    EXPECT_EQ(changed, std::vector<std::string>{"txtSuperProfit"});
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(ChangeCascades, AMovedProfitSetsTheTotalMarginWithTheTaxTakenOffFirst) {
    Enter(Field::TotalSalePrice, "266.50");  // 250 and 16.50 tax
    table.SetText(Field::Profit, "$1.00");
    EXPECT_EQ(Text(Field::TotalGrossMargin), "20.0");  // (250 - 200) / 250
}

TEST_F(ChangeCascades, OverridesAndPricesOnlyNoteThatTheyChanged) {
    for (const Field field : {Field::LaborDealerOverride, Field::LaborSalePrice}) {
        changed.clear();
        table.FieldChanged = false;
        table.SetText(field, "170");
        EXPECT_EQ(changed.size(), 1U);
        EXPECT_TRUE(table.FieldChanged);
        EXPECT_EQ(table.CurrentPriceRow, price_row::Labor);
    }
}

TEST_F(ChangeCascades, TaxPercentageTotalAndQuantityOnlySetTheFlag) {
    for (const Field field :
         {Field::TaxPercentage, Field::TotalSalePrice, Field::CLGModelQty, Field::HTGModelQty}) {
        changed.clear();
        table.FieldChanged = false;
        table.SetText(field, "7");
        EXPECT_EQ(changed.size(), 1U);
        EXPECT_TRUE(table.FieldChanged);
    }
}

TEST_F(ChangeCascades, NavigationSetsTheFlagAndTheRefillClearsIt) {
    table.FieldChanged = false;
    tendos().LaborSalePrice = 200;
    table.NextSystem();
    EXPECT_EQ(State().SystemNumber, 1);
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(ChangeCascades, ATotalOverrideIsCommittedWhateverTheFlagSays) {
    Enter(Field::LaborDealerOverride, "150");
    table.FieldChanged = false;
    table.SetText(Field::Profit, "$0.00");  // out of step on purpose
    table.Commit(Field::TotalDealerOverride);
    EXPECT_EQ(Text(Field::Profit), "$50.00");  // 200 - 150
}

TEST_F(ChangeCascades, ATotalCostThatIsLeftOnlyMarksTheOverrideAsSame) {
    changed.clear();
    table.Commit(Field::TotalDealerCost);
    // The word changes the text, and the Total row's recalculation writes the sum again.
    EXPECT_EQ(changed,
              (std::vector<std::string>{"txtTotalDealerOverride", "txtTotalDealerOverride"}));
    EXPECT_EQ(Text(Field::TotalDealerOverride), "$160.00");
}

TEST_F(ChangeCascades, ADatabaseNameRefreshesTaxAndProfitOnly) {
    tendos().LaborDealerCost = 999;  // shown only when the row is calculated
    Enter(Field::CLGDB, "Somewhere");
    EXPECT_EQ(Text(Field::LaborDealerCost), "$160.00");
    EXPECT_FALSE(table.FieldChanged);
}

}  // namespace
}  // namespace tendo
