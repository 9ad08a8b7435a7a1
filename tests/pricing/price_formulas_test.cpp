#include "pricing/price_formulas.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

TEST(PriceFormulas, PercentagesFromPricesShowTheirSum) {
    const WorkedFormula margin = GrossMarginFormula(750, 1000);
    EXPECT_EQ(margin.words, "(sale price − cost) ÷ sale price × 100");
    EXPECT_EQ(margin.figures, "($1,000.00 − $750.00) ÷ $1,000.00 × 100 = 25.0");
    EXPECT_EQ(MarkupFormula(750, 1000).figures, "($1,000.00 − $750.00) ÷ $750.00 × 100 = 33.3");
    // 200 / 1200
    EXPECT_EQ(ListDiscountFormula(1200, 1000).figures,
              "($1,200.00 − $1,000.00) ÷ $1,200.00 × 100 = 16.7");
}

TEST(PriceFormulas, PricesFromPercentagesShowTheirSum) {
    EXPECT_EQ(SaleFromMarginFormula(750, 40).figures, "$750.00 ÷ (1 − 40 ÷ 100) = $1,250.00");
    // 750 / 0.66667 = 1124.994
    EXPECT_EQ(SaleFromMarginFormula(750, 33.333F).figures,
              "$750.00 ÷ (1 − 33.333 ÷ 100) = $1,124.99");
    EXPECT_EQ(SaleFromMarkupFormula(100, 60).figures, "$100.00 + 60 × $100.00 ÷ 100 = $160.00");
    EXPECT_EQ(SaleFromDiscountFormula(200, 10).figures, "$200.00 − 10 ÷ 100 × $200.00 = $180.00");
}

TEST(PriceFormulas, ANegativeFigureStandsInParentheses) {
    EXPECT_EQ(SaleFromDiscountFormula(160, -50).figures,
              "$160.00 − (-50) ÷ 100 × $160.00 = $240.00");
    // 100 / -0.5
    EXPECT_EQ(SaleFromMarginFormula(100, 150).figures, "$100.00 ÷ (1 − 150 ÷ 100) = -$200.00");
    EXPECT_EQ(GrossMarginFormula(100, -200).figures,
              "((-$200.00) − $100.00) ÷ (-$200.00) × 100 = 150.0");
}

TEST(PriceFormulas, WhatIsNotDividedSaysSo) {
    EXPECT_EQ(GrossMarginFormula(750, 0).figures, "(0 − $750.00) × 100 = -75000.0");
    EXPECT_EQ(GrossMarginFormula(0, 0).words, "Without cost and sale price: 0");
    EXPECT_EQ(MarkupFormula(0, 1000).words, "Without a cost there is no markup: 0");
    EXPECT_EQ(MarkupFormula(750, 0).words, "Without a sale price: -100");
    EXPECT_EQ(ListDiscountFormula(0, 1000).words, "Without a list price there is no discount: 0");
    EXPECT_EQ(ListDiscountFormula(1200, 0).words, "Without a sale price: 100");
    for (const WorkedFormula& formula :
         {GrossMarginFormula(0, 0), MarkupFormula(0, 1000), ListDiscountFormula(1200, 0)})
        EXPECT_EQ(formula.figures, "");
}

TEST(PriceFormulas, AMarginOfHundredIsToldAsTheFailureItIs) {
    EXPECT_EQ(SaleFromMarginFormula(100, 100).figures,
              "$100.00 ÷ (1 − 100 ÷ 100) has no result (Division by zero), so $0.00 stands");
}

TEST(PriceFormulas, ASingleModelTakesAMarginOfHundred) {
    // 1 / (1 - 100 / 100.000001) is 100,000,001, nearly; the quotient has cents of its own.
    const std::string figures = SaleFromModelMarginFormula(1, 100).figures;
    EXPECT_EQ(figures.find("$1.00 ÷ (1 − 100 ÷ 100.000001) = $100,000,0"), 0U) << figures;
    EXPECT_EQ(SaleFromModelMarginFormula(750, 40).figures, SaleFromMarginFormula(750, 40).figures);
}

}  // namespace
}  // namespace tendo
