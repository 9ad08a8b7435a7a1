#include "pricing/why_price.h"
#include "price_table_fixture.h"

namespace tendo {
namespace {

using Part = PriceReason::Part;

class WhyThisPrice : public PriceTableTest {
  protected:
    PriceReason Why(Field field) const { return WhyPrice(table, records, field); }

    /// Two units of a cooling model at 750, sold at 1000, and a furnace without a number.
    void GiveTwoModels() {
        GiveModel(750);
        records.CLGModelData[0].ModelQty = 2;
        records.CLGModelData[0].DB = "/data/Frostelm.mdb";
        records.ModelInfo[0].CLGSalePrice = 1000;
        records.ModelInfo[2].HTGModelDealerCost = 400;
        records.ModelInfo[2].HTGSalePrice = 500;
        records.HTGModelData[2].ModelQty = 1;
        tendos().ModelDealerCost = tendos().ModelDealerOverride = 1900;
        tendos().ModelSalePrice = 1500;
    }

    /// Labor of 750, sold at 1000, with a list price of 1200.
    void GiveLabor() {
        tendos().LaborDealerCost = 750;
        tendos().LaborSalePrice = 1000;
        tendos().LaborLDPrice = 1200;
    }

    static const Part& PartOf(const PriceReason& reason, const std::string& name) {
        for (const Part& part : reason.parts)
            if (part.name == name) return part;
        static const Part none{"", "no such part", ""};
        return none;
    }
};

TEST_F(WhyThisPrice, TheModelsCostNamesEveryModelWithItsQuantity) {
    GiveTwoModels();
    table.Open();
    const PriceReason reason = Why(Field::ModelDealerCost);
    EXPECT_EQ(reason.title, "Dealer cost of models");
    EXPECT_EQ(reason.figure, "$1,900.00");
    EXPECT_EQ(reason.worked, "2 × $750.00 + 1 × $400.00 = $1,900.00");
    EXPECT_EQ(reason.note, "");
    ASSERT_EQ(reason.parts.size(), 2U);
    EXPECT_EQ(reason.parts[0],
              (Part{"System 1, cooling BC12-036", "2 × $750.00", "from Frostelm.mdb"}));
    EXPECT_EQ(reason.parts[1], (Part{"System 3, heating", "1 × $400.00", "no database"}));
}

TEST_F(WhyThisPrice, ACostThatIsBehindItsModelsSaysWhatItBecomes) {
    GiveTwoModels();
    table.Open();
    Enter(Field::CLGModelQty, "3");
    // 3 * 750 + 400 = 2650, once the row is calculated
    EXPECT_EQ(
        Why(Field::ModelDealerCost).note,
        "The figure stands from before; it becomes $2,650.00 when a price of this row is next "
        "edited.");
    Enter(Field::ModelSalePrice, "1600");
    EXPECT_EQ(Why(Field::ModelDealerCost).note, "");
}

TEST_F(WhyThisPrice, TheModelsPriceAddsUpTheChosenModels) {
    GiveTwoModels();
    table.Open();
    const PriceReason reason = Why(Field::ModelSalePrice);
    EXPECT_EQ(reason.rule, "The prices of the chosen models, added up");
    EXPECT_EQ(reason.worked, "$1,000.00 + $500.00 = $1,500.00");
}

TEST_F(WhyThisPrice, ASavedPriceThatTheModelsDoNotMakeIsSaidToBeSaved) {
    GiveTwoModels();
    tendos().ModelSalePrice = 1700;
    table.Open();
    const PriceReason reason = Why(Field::ModelSalePrice);
    EXPECT_EQ(reason.rule, "From the project: saved, or the list prices of the chosen models");
    EXPECT_EQ(reason.worked, "");
}

TEST_F(WhyThisPrice, APriceNamesCostOverrideMarginMarkupListAndDiscountEachWithItsSource) {
    GiveLabor();
    table.Open();
    const std::vector<Part> parts = Why(Field::LaborSalePrice).parts;
    const std::vector<Part> expected = {
        {"Dealer cost", "$750.00", "the labor lines"},
        {"Override", "same", "none, so the dealer cost counts"},
        {"Gross margin", "25.0", "follows from cost and sale price"},
        {"Price markup", "33.3", "follows from cost and sale price"},
        {"List discount", "16.7", "follows from list price and sale price"},
        {"Sale price", "$1,000.00", "saved, or the labor lines' prices added up"},
        {"List price", "$1,200.00", "the labor cost when its screen was closed"}};
    EXPECT_EQ(parts, expected);
}

TEST_F(WhyThisPrice, APercentageThatFollowsIsWorkedOutFromItsPrices) {
    GiveLabor();
    table.Open();
    EXPECT_EQ(Why(Field::LaborGrossMargin).worked,
              "($1,000.00 − $750.00) ÷ $1,000.00 × 100 = 25.0");
    EXPECT_EQ(Why(Field::LaborPriceMarkup).worked, "($1,000.00 − $750.00) ÷ $750.00 × 100 = 33.3");
    EXPECT_EQ(Why(Field::LaborListDiscount).worked,
              "($1,200.00 − $1,000.00) ÷ $1,200.00 × 100 = 16.7");
}

TEST_F(WhyThisPrice, APriceFromAMarginTellsTheMarginAndTheMarginThatItWasEntered) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborGrossMargin, "40");
    const PriceReason price = Why(Field::LaborSalePrice);
    EXPECT_EQ(price.figure, "$1,250.00");
    EXPECT_EQ(price.rule, "cost ÷ (1 − margin ÷ 100)");
    EXPECT_EQ(price.worked, "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    EXPECT_EQ(PartOf(price, "Gross margin"), (Part{"Gross margin", "40", "entered"}));
    EXPECT_EQ(PartOf(price, "Sale price").source, "follows from the gross margin");
    const PriceReason margin = Why(Field::LaborGrossMargin);
    EXPECT_EQ(margin.rule, "Entered; the sale price follows from it: cost ÷ (1 − margin ÷ 100)");
    EXPECT_EQ(margin.worked, price.worked);
}

TEST_F(WhyThisPrice, APriceFromAMarkupTellsTheMarkup) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborPriceMarkup, "60");
    // 750 * 1.6
    EXPECT_EQ(Why(Field::LaborSalePrice).worked, "$750.00 + 60 × $750.00 ÷ 100 = $1,200.00");
    EXPECT_EQ(PartOf(Why(Field::LaborSalePrice), "Price markup").source, "entered");
    EXPECT_EQ(Why(Field::LaborPriceMarkup).worked, Why(Field::LaborSalePrice).worked);
}

TEST_F(WhyThisPrice, APriceFromADiscountTellsTheListPrice) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborListDiscount, "10");
    EXPECT_EQ(Why(Field::LaborSalePrice).worked, "$1,200.00 − 10 ÷ 100 × $1,200.00 = $1,080.00");
    EXPECT_EQ(PartOf(Why(Field::LaborListDiscount), "List discount").source, "entered");
}

TEST_F(WhyThisPrice, AnEnteredPriceIsSaidToBeEntered) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborSalePrice, "900");
    const PriceReason reason = Why(Field::LaborSalePrice);
    EXPECT_EQ(reason.rule, "Entered; margin, markup and discount follow from it");
    EXPECT_EQ(PartOf(reason, "Sale price").source, "entered");
    EXPECT_EQ(Why(Field::LaborGrossMargin).worked, "($900.00 − $750.00) ÷ $900.00 × 100 = 16.7");
}

TEST_F(WhyThisPrice, ANewLineNamesTheDefaultMargin) {
    tendos().LaborDealerCost = 100;
    table.Open();
    const PriceReason margin = Why(Field::LaborGrossMargin);
    EXPECT_EQ(margin.rule,
              "Your default margin; the sale price follows from it: cost ÷ (1 − margin ÷ 100)");
    EXPECT_EQ(margin.worked, "$100.00 ÷ (1 − 20 ÷ 100) = $125.00");
    EXPECT_EQ(PartOf(margin, "Gross margin").source, "your default, from the options");
    EXPECT_EQ(PartOf(margin, "Sale price").source, "follows from your default margin");
}

TEST_F(WhyThisPrice, AMarginWithinATenthIsToldWithTheExactOneInForce) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborGrossMargin, "33.333");
    Enter(Field::LaborGrossMargin, "33.4");
    // 750 / 0.66667 = 1124.994
    EXPECT_EQ(Why(Field::LaborSalePrice).worked, "$750.00 ÷ (1 − 33.333 ÷ 100) = $1,124.99");
    EXPECT_EQ(PartOf(Why(Field::LaborSalePrice), "Gross margin").source, "entered");
}

TEST_F(WhyThisPrice, AnOverrideTellsWhosePlaceItTakesAndHowLongItLasts) {
    GiveLabor();
    table.Open();
    EXPECT_EQ(Why(Field::LaborDealerOverride).rule,
              "No override: the row is calculated with its dealer cost, $750.00");
    Enter(Field::LaborDealerOverride, "800");
    const PriceReason reason = Why(Field::LaborDealerOverride);
    EXPECT_EQ(reason.rule, "It takes the place of the dealer cost, $750.00");
    EXPECT_EQ(reason.note, "It lasts until the Labor Costs screen is next closed.");
    EXPECT_EQ(PartOf(reason, "Override").source, "entered for this row");
    // The margin counts with it: (1000 - 800) / 1000
    EXPECT_EQ(Why(Field::LaborGrossMargin).worked,
              "($1,000.00 − $800.00) ÷ $1,000.00 × 100 = 20.0");
}

TEST_F(WhyThisPrice, ACostThatMovedAfterThePriceWasCalculatedIsTold) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborGrossMargin, "40");
    Enter(Field::LaborDealerOverride, "800");
    const PriceReason reason = Why(Field::LaborSalePrice);
    EXPECT_EQ(reason.worked, "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    EXPECT_EQ(reason.note, "The cost has changed to $800.00 since; the sale price stayed.");
}

TEST_F(WhyThisPrice, TheMarkupOfTaxableMaterialsOwnsUpToTheModelsMargin) {
    tendos().ModelSalePrice = 400;
    tendos().TaxMatDealerCost = 100;
    tendos().TaxMatSalePrice = 150;
    table.Open();
    Enter(Field::TaxMatPriceMarkup, "60");
    const PriceReason model = Why(Field::ModelGrossMargin);
    EXPECT_EQ(model.figure, "75.0");
    EXPECT_EQ(model.worked, "($400.00 − $100.00) ÷ $400.00 × 100 = 75.0");
    EXPECT_EQ(PartOf(model, "Gross margin").source, "set by the markup of taxable materials");
    const PriceReason own = Why(Field::TaxMatGrossMargin);
    EXPECT_EQ(own.figure, "33.3");  // (150 - 100) / 150, though the price is 160 by now
    EXPECT_EQ(own.note, "Stands as it was: the markup of this row sets the margin of the models.");
}

TEST_F(WhyThisPrice, ADiscountShownAsMoneySaysSo) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    table.Open();
    tendos().ModelListDiscount = 16.67F;
    table.FieldChanged = true;
    table.SetSystemTendos();
    const PriceReason reason = Why(Field::ModelListDiscount);
    EXPECT_EQ(reason.figure, "$16.67");
    EXPECT_EQ(reason.note, "As saved, and shown as money until the next calculation.");
}

TEST_F(WhyThisPrice, AMarginOfHundredTellsWhyThePriceIsZero) {
    GiveLabor();
    table.Open();
    Enter(Field::LaborGrossMargin, "100");
    EXPECT_EQ(Why(Field::LaborSalePrice).worked,
              "$750.00 ÷ (1 − 100 ÷ 100) has no result (Division by zero), so $0.00 stands");
}

TEST_F(WhyThisPrice, TheTaxNamesItsPercentageAndItsAmount) {
    tendos().ModelSalePrice = 1000;
    tendos().TaxMatSalePrice = 100;
    tendos().NonTaxSalePrice = 50;
    tendos().LaborSalePrice = 200;
    table.Open();
    EXPECT_EQ(Why(Field::TaxSalePrice).worked, "8.25 ÷ 100 × $1,300.00 = $107.25");
    const PriceReason amount = Why(Field::TaxableAmount);
    EXPECT_EQ(amount.worked, "$1,000.00 + $100.00 + $200.00 = $1,300.00");
    EXPECT_EQ(PartOf(amount, "Sale price of non-taxable materials").source, "never taxed");
    EXPECT_NE(Why(Field::TaxDealerCost).note.find("Kept unrounded as 107.25"), std::string::npos);
    records.GPDProjectFormat.TaxLabor = false;
    EXPECT_EQ(PartOf(Why(Field::TaxableAmount), "Sale price of labor").source,
              "not taxed, by the general project data");
}

TEST_F(WhyThisPrice, TheTotalsAddUpTheirRows) {
    tendos().ModelSalePrice = 1000;
    tendos().TaxMatDealerCost = 80;
    tendos().TaxMatSalePrice = 100;
    tendos().LaborDealerCost = 160;
    tendos().LaborSalePrice = 200;
    table.Open();
    Enter(Field::LaborDealerOverride, "150");
    EXPECT_EQ(Why(Field::SubTotalSalePrice).worked,
              "$1,000.00 + $100.00 + $0.00 + $200.00 = $1,300.00");
    EXPECT_EQ(Why(Field::TotalDealerCost).worked, "$0.00 + $80.00 + $0.00 + $160.00 = $240.00");
    EXPECT_EQ(Why(Field::TotalDealerOverride).worked, "$0.00 + $80.00 + $0.00 + $150.00 = $230.00");
    EXPECT_EQ(Why(Field::Profit).worked, "$1,300.00 − $230.00 = $1,070.00");
}

TEST_F(WhyThisPrice, TheTotalTellsWhetherItWasAddedUpEnteredSavedOrFollowsFromItsMargin) {
    tendos().ModelSalePrice = 800;
    tendos().TaxPercentage = 12.5F;
    tendos().TotalSalePrice = 5000;
    table.Open();
    EXPECT_EQ(Why(Field::TotalSalePrice).rule,
              "As saved with the project; it stands until a price of a row is edited");
    EXPECT_EQ(Why(Field::TotalSalePrice).note, "Sub-total and tax make $900.00.");
    Enter(Field::NonTaxSalePrice, "100");
    EXPECT_EQ(Why(Field::TotalSalePrice).rule, "Sub-total + tax");
    EXPECT_EQ(Why(Field::TotalSalePrice).worked, "$900.00 + $100.00 = $1,000.00");
    Enter(Field::TotalSalePrice, "1200");
    EXPECT_EQ(Why(Field::TotalSalePrice).rule,
              "Entered; it stands until a price of a row is edited");
    EXPECT_EQ(Why(Field::SuperProfit).worked, "$1,200.00 − $900.00 − $100.00 = $200.00");
    Enter(Field::TotalGrossMargin, "20");
    EXPECT_EQ(Why(Field::TotalSalePrice).worked, "$1,000.00 ÷ (1 − 20 ÷ 100) = $1,250.00");
    EXPECT_EQ(Why(Field::TotalGrossMargin).rule,
              "Entered; the total follows from it: (sub-total + tax) ÷ (1 − margin ÷ 100)");
}

TEST_F(WhyThisPrice, TheTotalMarginTellsWhichOfItsTwoRulesRanLast) {
    table.Open();
    Enter(Field::ModelSalePrice, "1000");  // tax 82.50
    Enter(Field::TotalSalePrice, "1200");
    EXPECT_EQ(Why(Field::TotalGrossMargin).worked,
              "($1,200.00 − $1,000.00) ÷ $1,200.00 × 100 = 16.7");
    Enter(Field::ModelDealerOverride, "50");
    EXPECT_EQ(Why(Field::TotalGrossMargin).worked,
              "($1,117.50 − $1,000.00) ÷ $1,117.50 × 100 = 10.5");
}

TEST_F(WhyThisPrice, EveryPriceFieldHasAReason) {
    GiveTwoModels();
    GiveLabor();
    table.Open();
    for (int i = 0; i < static_cast<int>(Field::CLGDB); ++i) {
        const auto field = static_cast<Field>(i);
        const PriceReason reason = Why(field);
        EXPECT_EQ(reason.title, FieldTitle(field));
        EXPECT_EQ(reason.figure, Text(field));
        EXPECT_FALSE(reason.rule.empty()) << reason.title;
    }
}

TEST_F(WhyThisPrice, FiguresBeyondTheRangeAreToldAndNotThrown) {
    GiveLabor();
    table.Open();
    table.SetText(Field::LaborDealerCost, "3" + std::string(38, '0'));
    table.SetText(Field::LaborSalePrice, "0.01");  // (0.01 - 3E38) / 0.01 is beyond a float
    for (const Field field : {Field::LaborGrossMargin, Field::LaborSalePrice})
        EXPECT_EQ(Why(field).rule, "Its calculation has no result: Overflow");
}

TEST_F(WhyThisPrice, TheCustomersViewTellsNoCostAndNoMargin) {
    GiveTwoModels();
    GiveLabor();
    table.Open();
    Enter(Field::LaborGrossMargin, "40");
    Enter(Field::TotalGrossMargin, "10");
    for (const Field field : {Field::ModelSalePrice, Field::LaborSalePrice, Field::TaxSalePrice,
                              Field::TaxPercentage, Field::TotalSalePrice}) {
        const std::string told = PlainText(WhyCustomerPrice(table, records, field));
        for (const char* secret : {"ost", "argin", "arkup", "verride", "rofit", "$750.00"})
            EXPECT_EQ(told.find(secret), std::string::npos) << told;
    }
    EXPECT_EQ(WhyCustomerPrice(table, records, Field::LaborSalePrice).note,
              "Taxed at 8.25 percent.");
    EXPECT_EQ(WhyCustomerPrice(table, records, Field::NonTaxSalePrice).note, "Not taxed.");
}

TEST_F(WhyThisPrice, PlainTextHoldsAllOfIt) {
    GiveLabor();
    table.Open();
    const std::string text = PlainText(Why(Field::LaborSalePrice));
    EXPECT_EQ(text.find("Sale price of labor: $1,000.00\nFrom the project: "), 0U) << text;
    EXPECT_NE(text.find("\nOverride: same, none, so the dealer cost counts\n"), std::string::npos)
        << text;
}

}  // namespace
}  // namespace tendo
