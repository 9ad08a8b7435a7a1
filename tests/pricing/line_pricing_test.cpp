#include "price_table_fixture.h"

namespace tendo {
namespace {

class LinePricingTable : public PriceTableTest {};

TEST_F(LinePricingTable, ANewLineGetsTheDefaultMarginWhenItsOverrideIsCommitted) {
    table.Open();
    table.SetText(Field::LaborDealerCost, "$100.00");
    Enter(Field::LaborDealerOverride, "100");
    EXPECT_EQ(Text(Field::LaborDealerOverride), "same");
    EXPECT_EQ(Text(Field::LaborGrossMargin), "20.0");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$125.00");  // 100 / 0.8
}

TEST_F(LinePricingTable, TheDefaultMarginComesFromTheOptionsWithOneDecimalOnly) {
    Ini().MyWriteAppProfileString("Options", "DefaultNonTaxGrossMargin", "37.54");
    tendos().NonTaxDealerCost = 100;
    table.Open();
    EXPECT_EQ(Text(Field::NonTaxGrossMargin), "37.5");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "$160.00");  // 100 / 0.625
    EXPECT_EQ(Text(Field::NonTaxPriceMarkup), "60.0");
    EXPECT_EQ(tendos().NonTaxLDPrice, 0);  // the list base stays
    EXPECT_EQ(Text(Field::NonTaxListDiscount), "0.0");
}

TEST_F(LinePricingTable, TheDefaultMarginOfTheModelRowSetsItsListBase) {
    GiveModel(100);
    table.Open();
    EXPECT_EQ(Text(Field::ModelSalePrice), "$125.00");
    EXPECT_EQ(tendos().ModelLDPrice, 125);
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$125.00");
}

TEST_F(LinePricingTable, CommittingAnOverrideKeepsThePriceAndMovesThePercentages) {
    tendos().LaborDealerCost = 750;
    tendos().LaborSalePrice = 1000;
    tendos().LaborLDPrice = 1250;
    table.Open();
    EXPECT_EQ(Text(Field::LaborGrossMargin), "25.0");
    Enter(Field::LaborDealerOverride, "800");
    EXPECT_EQ(Text(Field::LaborDealerOverride), "$800.00");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$1,000.00");
    EXPECT_EQ(Text(Field::LaborGrossMargin), "20.0");   // 200 / 1000
    EXPECT_EQ(Text(Field::LaborPriceMarkup), "25.0");   // 200 / 800
    EXPECT_EQ(Text(Field::LaborListDiscount), "20.0");  // 250 / 1250
    EXPECT_EQ(Text(Field::TotalDealerOverride), "$800.00");
    EXPECT_EQ(tendos().LaborDealerOverride, 800);
}

TEST_F(LinePricingTable, AnOverrideEqualToTheCostOrZeroTurnsIntoSame) {
    tendos().LaborDealerCost = 750;
    tendos().LaborSalePrice = 1000;
    table.Open();
    for (const char* typed : {"750", "0", ""}) {
        Enter(Field::LaborDealerOverride, "800");
        Enter(Field::LaborDealerOverride, typed);
        EXPECT_EQ(Text(Field::LaborDealerOverride), "same") << typed;
        EXPECT_EQ(Text(Field::LaborGrossMargin), "25.0") << typed;  // "same" selects the cost
        EXPECT_EQ(tendos().LaborDealerOverride, 750) << typed;  // the cost is stored, not the word
    }
}

TEST_F(LinePricingTable, AMarginSetsThePriceThenMarkupAndDiscount) {
    tendos().NonTaxDealerCost = 300;
    tendos().NonTaxSalePrice = 400;
    tendos().NonTaxLDPrice = 1000;
    table.Open();
    Enter(Field::NonTaxGrossMargin, "50");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "$600.00");  // 300 / 0.5
    EXPECT_EQ(Text(Field::NonTaxPriceMarkup), "100.0");  // 300 / 300
    EXPECT_EQ(Text(Field::NonTaxListDiscount), "40.0");  // 400 / 1000
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$600.00");
    EXPECT_EQ(Text(Field::NonTaxGrossMargin), "50");  // as typed, no rewrite
}

TEST_F(LinePricingTable, AMarkupSetsThePriceThenMarginAndDiscount) {
    tendos().NonTaxDealerCost = 100;
    tendos().NonTaxSalePrice = 150;
    tendos().NonTaxLDPrice = 200;
    table.Open();
    Enter(Field::NonTaxPriceMarkup, "60");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "$160.00");
    EXPECT_EQ(Text(Field::NonTaxGrossMargin), "37.5");   // 60 / 160
    EXPECT_EQ(Text(Field::NonTaxListDiscount), "20.0");  // 40 / 200
}

TEST_F(LinePricingTable, ADiscountSetsThePriceThenMarginAndMarkup) {
    tendos().LaborDealerCost = 100;
    tendos().LaborSalePrice = 150;
    tendos().LaborLDPrice = 200;
    table.Open();
    Enter(Field::LaborListDiscount, "10");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$180.00");  // 200 - 20
    EXPECT_EQ(Text(Field::LaborGrossMargin), "44.4");   // 80 / 180
    EXPECT_EQ(Text(Field::LaborPriceMarkup), "80.0");
}

TEST_F(LinePricingTable, ADiscountOnARowWithoutAListBaseGivesAPriceOfZero) {
    tendos().NonTaxDealerCost = 100;
    tendos().NonTaxSalePrice = 150;
    table.Open();
    Enter(Field::NonTaxListDiscount, "10");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "$0.00");
    EXPECT_EQ(Text(Field::NonTaxGrossMargin), "-10000.0");  // (0 - 100) * 100
    EXPECT_EQ(Text(Field::NonTaxPriceMarkup), "-100.0");
}

TEST_F(LinePricingTable, ASalePriceMovesAllThreePercentages) {
    tendos().LaborDealerCost = 750;
    tendos().LaborSalePrice = 800;
    tendos().LaborLDPrice = 1200;
    table.Open();
    Enter(Field::LaborSalePrice, "1000");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$1,000.00");
    EXPECT_EQ(Text(Field::LaborGrossMargin), "25.0");
    EXPECT_EQ(Text(Field::LaborPriceMarkup), "33.3");
    EXPECT_EQ(Text(Field::LaborListDiscount), "16.7");
    EXPECT_FALSE(table.FieldChanged);  // the row's recalculation comes last here
}

TEST_F(LinePricingTable, TheMarkupOfTaxableMaterialsSetsTheModelRowsMargin) {
    tendos().ModelSalePrice = 400;
    tendos().TaxMatDealerCost = 100;
    tendos().TaxMatSalePrice = 150;
    tendos().TaxMatLDPrice = 200;
    table.Open();
    EXPECT_EQ(Text(Field::TaxMatGrossMargin), "33.3");  // 50 / 150
    EXPECT_EQ(Text(Field::ModelGrossMargin), "100.0");  // no model cost
    Enter(Field::TaxMatPriceMarkup, "60");
    EXPECT_EQ(Text(Field::TaxMatSalePrice), "$160.00");
    EXPECT_EQ(Text(Field::TaxMatGrossMargin), "33.3");   // its own stays
    EXPECT_EQ(Text(Field::ModelGrossMargin), "75.0");    // (400 - 100) / 400
    EXPECT_EQ(Text(Field::TaxMatListDiscount), "20.0");  // (200 - 160) / 200, the row's own
}

TEST_F(LinePricingTable, AMarginOfExactlyHundredShowsTheMessageAndAZeroPrice) {
    tendos().NonTaxDealerCost = 100;
    tendos().NonTaxSalePrice = 150;
    tendos().NonTaxLDPrice = 200;
    table.Open();
    Enter(Field::NonTaxGrossMargin, "100");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], "In TendoCalculations, Error #11 = Division by zero");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "$0.00");
    EXPECT_EQ(Text(Field::NonTaxPriceMarkup), "-100.0");  // the later steps still ran
    EXPECT_EQ(Text(Field::NonTaxListDiscount), "100.0");
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$0.00");
}

TEST_F(LinePricingTable, AMarginAboveHundredGivesANegativePriceAndNoMessage) {
    tendos().NonTaxDealerCost = 100;
    tendos().NonTaxSalePrice = 150;
    table.Open();
    Enter(Field::NonTaxGrossMargin, "150");
    EXPECT_EQ(Text(Field::NonTaxSalePrice), "-$200.00");  // 100 / -0.5
    EXPECT_TRUE(messages.empty());
}

TEST_F(LinePricingTable, APriceBeyondAFloatShowsTheOverflowMessage) {
    table.Open();
    Enter(Field::LaborDealerOverride, "1" + std::string(38, '0'));
    EXPECT_TRUE(messages.empty());
    Enter(Field::LaborGrossMargin, "99.9");  // 10^38 / 0.001
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], "In TendoCalculations, Error #6 = Overflow");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$0.00");
}

TEST_F(LinePricingTable, ASmallEditOfTheModelMarginGoesOnWithTheExactValue) {
    GiveModel(750);
    table.Open();
    Enter(Field::ModelGrossMargin, "33.333");
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,124.99");  // 750 / 0.66667 = 1124.994
    Enter(Field::ModelGrossMargin, "33.4");
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,124.99");  // not 750 / 0.666 = 1126.13
    Enter(Field::ModelGrossMargin, "33.5");               // exactly 0.1 from the stored 33.4
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,124.99");
    EXPECT_EQ(table.EditedGrossMargin[0], 33.333F);
    Enter(Field::ModelGrossMargin, "33.61");
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,129.69");  // 750 / 0.6639 = 1129.688
}

TEST_F(LinePricingTable, ASmallEditInASavedProjectGoesOnWithTheStoredMargin) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    tendos().ModelGrossMargin = 25;
    table.Open();
    Enter(Field::ModelGrossMargin, "25.1");  // exactly 0.1 from the stored one
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,000.00");
    Enter(Field::ModelGrossMargin, "24.9");             // 0.2 from the 25.1 stored by now
    EXPECT_EQ(Text(Field::ModelSalePrice), "$998.67");  // 750 / 0.751 = 998.668
}

TEST_F(LinePricingTable, TabbingThroughTheModelRowOfASavedProjectKeepsItsPrice) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    tendos().ModelGrossMargin = 25;
    tendos().ModelPriceMarkup = 33.333333F;
    table.Open();
    table.FieldChanged = true;  // as an edit of another row leaves it
    table.Commit(Field::ModelGrossMargin);
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,000.00");
    table.FieldChanged = true;
    table.Commit(Field::ModelPriceMarkup);
    EXPECT_EQ(Text(Field::ModelSalePrice), "$1,000.00");  // from the exact third, not from 33.3
}

TEST_F(LinePricingTable, OtherRowsMeasureAnEditAgainstTheExactValueItself) {
    tendos().LaborDealerCost = 100;
    tendos().LaborSalePrice = 150;
    table.Open();
    Enter(Field::LaborGrossMargin, "50.04");
    EXPECT_EQ(table.EditedGrossMargin[3], 50.04F);
    Enter(Field::LaborGrossMargin, "50.1");
    EXPECT_EQ(table.EditedGrossMargin[3], 50.04F);
    Enter(Field::LaborGrossMargin, "50.15");  // 0.11 from 50.04, though 0.05 from what stood there
    EXPECT_EQ(table.EditedGrossMargin[3], 50.15F);
}

TEST_F(LinePricingTable, ALoneMinusSignOrAnEmptyFieldLeavesTheExactValue) {
    tendos().LaborDealerCost = 100;
    tendos().LaborSalePrice = 200;
    table.Open();
    EXPECT_EQ(table.EditedGrossMargin[3], 50);
    for (const char* typed : {"-", ""}) {
        table.FieldChanged = false;
        table.SetText(Field::LaborGrossMargin, typed);
        EXPECT_EQ(table.EditedGrossMargin[3], 50) << typed;
        EXPECT_TRUE(table.FieldChanged) << typed;
    }
}

TEST_F(LinePricingTable, AChangedFieldNotesItsRow) {
    table.Open();
    const std::pair<Field, int> fields[] = {{Field::ModelSalePrice, 1},
                                            {Field::TaxMatPriceMarkup, 2},
                                            {Field::NonTaxListDiscount, 3},
                                            {Field::LaborDealerOverride, 4},
                                            {Field::TotalGrossMargin, 5}};
    for (const auto& [field, row] : fields) {
        table.FieldChanged = false;
        table.SetText(field, "77");
        EXPECT_TRUE(table.FieldChanged);
        EXPECT_EQ(table.CurrentPriceRow, row);
    }
}

TEST_F(LinePricingTable, LeavingAFieldThatWasNotChangedRecalculatesNothing) {
    tendos().LaborDealerCost = 300;
    tendos().LaborSalePrice = 400.01F;
    table.Open();
    std::vector<TableField> changed;
    table.TextChanged = [&](TableField field) { changed.push_back(field); };
    table.Commit(Field::LaborGrossMargin);
    table.Commit(Field::LaborPriceMarkup);
    table.Commit(Field::LaborListDiscount);
    table.Commit(Field::LaborDealerOverride);
    table.Commit(Field::LaborSalePrice);
    EXPECT_TRUE(changed.empty());
    EXPECT_EQ(Text(Field::LaborSalePrice), "$400.01");
}

TEST_F(LinePricingTable, TheModelCostIsTheSumOverAllFiveSystemsByQuantity) {
    for (std::size_t system = 0; system < SystemCount; ++system) {
        records.ModelInfo[system].CLGModelDealerCost = 100;
        records.ModelInfo[system].HTGModelDealerCost = 10;
        records.ModelInfo[system].WHModelDealerCost = 1;
        records.CLGModelData[system].ModelQty = 2;
        records.HTGModelData[system].ModelQty = 3;
        records.WHModelData[system].ModelQty = 4;
    }
    table.Open();
    // 5 * (2 * 100 + 3 * 10 + 4 * 1) = 1170
    EXPECT_EQ(Text(Field::ModelDealerCost), "$1,170.00");
    EXPECT_EQ(tendos().ModelDealerCost, 1170);
}

TEST_F(LinePricingTable, WhileLoadingNothingIsRecalculatedAndTheFlagStays) {
    table.Open();
    table.LoadInProgress = true;
    table.FieldChanged = true;
    tendos().LaborDealerCost = 55;
    table.TendoCalculations(price_field::DealerOverride, price_row::Labor);
    EXPECT_EQ(Text(Field::LaborDealerCost), "$0.00");
    EXPECT_TRUE(table.FieldChanged);
}

TEST_F(LinePricingTable, ACostFieldThatIsLeftOnlyMarksTheOverrideAsSame) {
    tendos().LaborDealerCost = 100;
    tendos().LaborDealerOverride = 90;
    tendos().LaborSalePrice = 200;
    table.Open();
    table.Commit(Field::LaborDealerCost);
    EXPECT_EQ(Text(Field::LaborDealerOverride), "$90.00");
    table.SetText(Field::LaborDealerOverride, "0");
    table.Commit(Field::LaborDealerCost);
    EXPECT_EQ(Text(Field::LaborDealerOverride), "same");
    EXPECT_EQ(tendos().LaborDealerOverride, 90);  // nothing is stored yet
}

}  // namespace
}  // namespace tendo
