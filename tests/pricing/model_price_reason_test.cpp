#include "pricing/model_price_reason.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

/// Two units at 750, sold at 1000 each, listed at 1200.
ModelPriceFacts TwoUnits() {
    ModelPriceFacts facts;
    facts.model = {"System 1, cooling FA-1", "from Frostelm.mdb", 2, 750, 1000};
    facts.dealerOverride = 750;
    facts.listPrice = 1200;
    facts.texts = {"$1,500.00", "$1,500.00", "25.0", "33.3", "16.7", "$1,000.00"};
    return facts;
}

std::string SourceOf(const PriceReason& reason, const std::string& name) {
    for (const PriceReason::Part& part : reason.parts)
        if (part.name == name) return part.source;
    return "no such part";
}

TEST(WhyAModelsPrice, CostsStandForAllUnits) {
    const PriceReason cost = WhyModelPrice(TwoUnits(), FieldKind::DealerCost);
    EXPECT_EQ(cost.title, "Dealer cost · System 1, cooling FA-1");
    EXPECT_EQ(cost.figure, "$1,500.00");
    EXPECT_EQ(cost.worked, "2 × $750.00 = $1,500.00");
    ModelPriceFacts facts = TwoUnits();
    facts.dealerOverride = 600;
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::DealerOverride).worked, "2 × $600.00 = $1,200.00");
    EXPECT_EQ(SourceOf(WhyModelPrice(facts, FieldKind::DealerOverride), "Override"),
              "entered, times the quantity");
}

TEST(WhyAModelsPrice, PercentagesFollowFromThePricesOfOneUnit) {
    ModelPriceFacts facts = TwoUnits();
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::GrossMargin).worked,
              "($1,000.00 − $750.00) ÷ $1,000.00 × 100 = 25.0");
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::PriceMarkup).worked,
              "($1,000.00 − $750.00) ÷ $750.00 × 100 = 33.3");
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::ListDiscount).worked,
              "($1,200.00 − $1,000.00) ÷ $1,200.00 × 100 = 16.7");
    facts.dealerOverride = 600;  // it is the cost of the line
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::GrossMargin).worked,
              "($1,000.00 − $600.00) ÷ $1,000.00 × 100 = 40.0");
}

TEST(WhyAModelsPrice, ThePriceTellsWhatItFollowsFrom) {
    ModelPriceFacts facts = TwoUnits();
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::SalePrice).rule,
              "Saved with the project, or the list price of the chosen model");
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::SalePrice).note,
              "The price of one unit, whatever the quantity.");
    facts.trace = {PriceOrigin::FromMargin, 750, 40};
    facts.texts[2] = "40.0";
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::SalePrice).worked,
              "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::GrossMargin).worked,
              "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    EXPECT_EQ(SourceOf(WhyModelPrice(facts, FieldKind::SalePrice), "Gross margin"), "entered");
    facts.trace = {PriceOrigin::FromMarkup, 750, 20};
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::SalePrice).worked,
              "$750.00 + 20 × $750.00 ÷ 100 = $900.00");
    facts.trace = {PriceOrigin::FromDiscount, 1200, 50};
    EXPECT_EQ(WhyModelPrice(facts, FieldKind::SalePrice).worked,
              "$1,200.00 − 50 ÷ 100 × $1,200.00 = $600.00");
    facts.trace = {.origin = PriceOrigin::Entered};
    EXPECT_EQ(SourceOf(WhyModelPrice(facts, FieldKind::SalePrice), "Sale price"), "entered");
}

TEST(WhyAModelsPrice, AMarginOfHundredTellsTheDivisorThatItGets) {
    ModelPriceFacts facts = TwoUnits();
    facts.trace = {PriceOrigin::FromMargin, 750, 100};
    const std::string worked = WhyModelPrice(facts, FieldKind::SalePrice).worked;
    EXPECT_EQ(worked.find("$750.00 ÷ (1 − 100 ÷ 100.000001) = $75,000,"), 0U) << worked;
}

TEST(WhyAModelsPrice, AModelWithoutDatabaseAndListPriceSaysSo) {
    ModelPriceFacts facts = TwoUnits();
    facts.model.database = "no database";
    facts.listPrice = 0;
    const PriceReason reason = WhyModelPrice(facts, FieldKind::ListDiscount);
    EXPECT_EQ(reason.rule, "Without a list price there is no discount: 0");
    EXPECT_EQ(SourceOf(reason, "List price"), "none");
    EXPECT_EQ(SourceOf(reason, "Dealer cost"), "no database, times the quantity");
}

}  // namespace
}  // namespace tendo
