#include "pricing/relations.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr float Largest = std::numeric_limits<float>::max();

int ErrorOf(float (*relation)(float, float), float a, float b) {
    try {
        relation(a, b);
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(LinePricing, CostSaleAndListGiveMarginMarkupAndDiscount) {
    // (1000 - 750) / 1000 = 25 %; 250 / 750 = 33.33 %; (1200 - 1000) / 1200 = 16.67 %
    EXPECT_EQ(FormatNumber(GrossMarginFromSale(750, 1000), PercentPicture), "25.0");
    EXPECT_EQ(FormatNumber(MarkupFromSale(750, 1000), PercentPicture), "33.3");
    EXPECT_EQ(FormatNumber(ListDiscountFromSale(1200, 1000), PercentPicture), "16.7");
}

TEST(LinePricing, AZeroSalePriceGivesOddButSettledPercentages) {
    EXPECT_EQ(GrossMarginFromSale(750, 0), -75000);  // (0 - 750) * 100, no division
    EXPECT_EQ(MarkupFromSale(750, 0), -100);
    EXPECT_EQ(ListDiscountFromSale(1200, 0), 100);
}

TEST(LinePricing, AZeroCostOrListGivesNoPercentageButAFullMargin) {
    EXPECT_EQ(MarkupFromSale(0, 1000), 0);
    EXPECT_EQ(ListDiscountFromSale(0, 1000), 0);
    EXPECT_EQ(GrossMarginFromSale(0, 1000), 100);
}

TEST(LinePricing, BothZeroGiveZero) {
    EXPECT_EQ(GrossMarginFromSale(0, 0), 0);
    EXPECT_EQ(MarkupFromSale(0, 0), 0);
    EXPECT_EQ(ListDiscountFromSale(0, 0), 0);
}

TEST(LinePricing, SaleFromGrossMargin) {
    EXPECT_EQ(SaleFromGrossMargin(750, 25), 1000);   // 750 / 0.75
    EXPECT_EQ(SaleFromGrossMargin(100, -25), 80);    // 100 / 1.25
    EXPECT_EQ(SaleFromGrossMargin(100, 150), -200);  // 100 / -0.5: accepted
}

TEST(LinePricing, AMarginOfExactlyHundredDividesByZero) {
    EXPECT_EQ(ErrorOf(SaleFromGrossMargin, 750, 100), error_number::DivisionByZero);
    EXPECT_EQ(ErrorOf(SaleFromGrossMargin, 0, 100), error_number::DivisionByZero);
}

TEST(LinePricing, AMarginOfExactlyHundredOnASingleModelGivesAHugePrice) {
    // 1 - 100 / 100.000001 is a hundred-millionth, so the price is 10^8 times the cost.
    EXPECT_NEAR(static_cast<double>(SaleFromModelGrossMargin(750, 100)), 750e8, 750e8 * 1e-5);
    EXPECT_EQ(SaleFromModelGrossMargin(750, 25), 1000);
    EXPECT_EQ(SaleFromModelGrossMargin(100, 150), -200);
}

TEST(LinePricing, SaleFromMarkup) {
    EXPECT_EQ(SaleFromMarkup(750, 100), 1500);
    EXPECT_EQ(SaleFromMarkup(200, 12.5F), 225);
    EXPECT_EQ(SaleFromMarkup(200, -50), 100);
}

TEST(LinePricing, SaleFromListDiscount) {
    EXPECT_EQ(SaleFromListDiscount(1200, 25), 900);
    EXPECT_EQ(SaleFromListDiscount(1200, 100), 0);
    EXPECT_EQ(SaleFromListDiscount(1200, 150), -600);
}

TEST(LinePricing, ADiscountOnARowWithoutAListBaseGivesNothing) {
    EXPECT_EQ(SaleFromListDiscount(0, 25), 0);
}

TEST(LinePricing, ListPriceFromSale) {
    EXPECT_EQ(ListPriceFromSale(1000, 100), 0);
    EXPECT_EQ(ListPriceFromSale(1000, 50), 2000);
    EXPECT_EQ(ListPriceFromSale(1000, 200), -1000);  // 100000 / -100
}

TEST(LinePricing, AnOverrideThatSaysNothingNewIsTheSameAsTheCost) {
    EXPECT_TRUE(SameAsCost(750, 750));
    EXPECT_TRUE(SameAsCost(750, 0));
    EXPECT_FALSE(SameAsCost(750, 700));
    EXPECT_FALSE(SameAsCost(0, 700));
}

TEST(LinePricing, TheEffectiveCostIsTheOverrideUnlessItIsZero) {
    EXPECT_EQ(EffectiveCost(750, 700), 700);
    EXPECT_EQ(EffectiveCost(750, 0), 750);
}

TEST(LinePricing, AResultBeyondAFloatOverflows) {
    EXPECT_EQ(ErrorOf(SaleFromMarkup, Largest, 100), error_number::Overflow);
    EXPECT_EQ(ErrorOf(SaleFromGrossMargin, Largest, 50), error_number::Overflow);
    EXPECT_EQ(ErrorOf(GrossMarginFromSale, Largest, 0), error_number::Overflow);
    EXPECT_EQ(ErrorOf(ListPriceFromSale, Largest, 50), error_number::Overflow);
    EXPECT_EQ(ErrorOf(SaleFromListDiscount, Largest, -100), error_number::Overflow);
}

TEST(LinePricing, EachRelationRoundsOnceToAFloat) {
    // In double: (1.1f - 1.0f) / 1.1f * 100 with 1.1f = 1.10000002384...: 9.0909110608...
    const double sale = static_cast<double>(1.1F);
    EXPECT_EQ(GrossMarginFromSale(1.0F, 1.1F), static_cast<float>((sale - 1.0) / sale * 100));
}

TEST(LinePricing, APercentageCountsAsEditedBeyondATenthOnly) {
    // 25.1 as a float lies a little above 25 + 0.1; to the reader of the screen it lies 0.1 apart.
    EXPECT_FALSE(IsPercentEdit(25.1F, 25));
    EXPECT_FALSE(IsPercentEdit(24.9F, 25));
    EXPECT_FALSE(IsPercentEdit(-33.4F, -33.3F));
    EXPECT_FALSE(IsPercentEdit(0.1F, 0));
    EXPECT_FALSE(IsPercentEdit(9999.1F, 9999));
    EXPECT_TRUE(IsPercentEdit(25.11F, 25));
    EXPECT_TRUE(IsPercentEdit(24.89F, 25));
    EXPECT_TRUE(IsPercentEdit(0.11F, 0));
    EXPECT_TRUE(IsPercentEdit(-33.3F, 33.3F));
}

}  // namespace
}  // namespace tendo
