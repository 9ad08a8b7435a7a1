#include "materials/takeoff_line.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

using Field = TakeoffField;

/// A boot of $9.85 a piece, listed at $13.13.
MaterialRow Boot(std::int16_t quantity = 0) {
    MaterialRow row;
    row.Category = "Duct";
    row.Description = "Boot 4x10x6";
    row.PartNumber = "BT-46";
    row.ItemQty = quantity;
    row.UnitCst = 9.85F;
    row.ListCst = 13.13F;
    return row;
}

TakeoffLine Shown(const MaterialRow& row) {
    TakeoffLine line;
    line.Show(row);
    return line;
}

bool Enter(TakeoffLine& line, Field field, const std::string& text) {
    line.SetText(field, text);
    return line.Leave(field);
}

std::string PricesOf(const TakeoffLine& line) {
    std::string all;
    for (const Field field : {Field::QtyCost, Field::GrossMargin, Field::PriceMarkup,
                              Field::ListDiscount, Field::SalePrice})
        all += line.Text(field) + " ";
    return all;
}

TEST(TakeoffLine, ShowsAMaterialInItsFormats) {
    MaterialRow row = Boot(120);
    row.Accessory = row.Tax = 1;
    row.GrossMargin = 25.04F;
    row.PriceMarkup = 33.35F;
    row.ListDiscount = -2;
    row.SalePrice = 1576.5F;
    const TakeoffLine line = Shown(row);
    EXPECT_EQ(line.Text(Field::ItemQty), "120");
    EXPECT_EQ(line.Text(Field::ItemDesc), "Boot 4x10x6");
    EXPECT_EQ(line.Text(Field::PartNum), "BT-46");
    EXPECT_EQ(line.Text(Field::Category), "Duct");
    EXPECT_EQ(line.Text(Field::UnitCost), "$9.85");
    // 120 * 9.85 = 1182.00
    EXPECT_EQ(PricesOf(line), "$1,182.00 25.0 33.4 -2.0 $1,576.50 ");
    EXPECT_TRUE(line.Accessory());
    EXPECT_TRUE(line.Tax());
}

TEST(TakeoffLine, WithoutAQuantityTheSalePriceReadsZeroWhateverItHolds) {
    MaterialRow row = Boot();
    row.SalePrice = 13.13F;
    EXPECT_EQ(Shown(row).Text(Field::SalePrice), "$0.00");
    row.ItemQty = -2;
    EXPECT_EQ(Shown(row).Text(Field::SalePrice), "$0.00");
    row.ItemQty = 1;
    EXPECT_EQ(Shown(row).Text(Field::SalePrice), "$13.13");
}

TEST(TakeoffLine, ABlankPlaceTakesNothing) {
    TakeoffLine line;
    EXPECT_TRUE(line.IsBlank());
    EXPECT_FALSE(Enter(line, Field::ItemQty, "4"));
    line.SetTax(true);
    line.SetAccessory(true);
    EXPECT_EQ(line.Text(Field::ItemQty), "");
    EXPECT_FALSE(line.Tax());
    EXPECT_FALSE(line.IsEdited());
}

TEST(TakeoffLine, AFirstQuantityMakesTheLineTaxableWhileItIsTyped) {
    TakeoffLine line = Shown(Boot());
    EXPECT_FALSE(line.Tax());
    line.SetText(Field::ItemQty, "");
    line.SetText(Field::ItemQty, "0");
    EXPECT_FALSE(line.Tax());
    line.SetText(Field::ItemQty, "4");
    EXPECT_TRUE(line.Tax());
}

TEST(TakeoffLine, AQuantityOnAPricedLineLeavesTheTaxMarkAlone) {
    MaterialRow row = Boot(2);
    row.SalePrice = 26;
    TakeoffLine line = Shown(row);
    Enter(line, Field::ItemQty, "4");
    EXPECT_FALSE(line.Tax());
}

TEST(TakeoffLine, AQuantityGivesItsCostAndLeavesThePrices) {
    TakeoffLine line = Shown(Boot());
    EXPECT_TRUE(Enter(line, Field::ItemQty, "4"));
    EXPECT_EQ(PricesOf(line), "$39.40 0.0 0.0 0.0 $0.00 ");  // 4 * 9.85
}

TEST(TakeoffLine, AQuantityOfZeroRemovesAllEntriesOfTheRow) {
    MaterialRow row = Boot(4);
    row.Accessory = row.Tax = 1;
    row.GrossMargin = 25;
    row.SalePrice = 60;
    TakeoffLine line = Shown(row);
    EXPECT_TRUE(Enter(line, Field::ItemQty, "0"));
    EXPECT_EQ(PricesOf(line), "$0.00    $0.00 ");
    EXPECT_FALSE(line.Accessory());
    EXPECT_FALSE(line.Tax());
    line.Store(row);
    EXPECT_EQ(row, Boot());
}

TEST(TakeoffLine, WhatIsNoNumberIsAQuantityOfZero) {
    MaterialRow row = Boot(4);
    for (const char* text : {"", "abc", "3*", "-"}) {
        TakeoffLine line = Shown(row);
        EXPECT_TRUE(Enter(line, Field::ItemQty, text));
        EXPECT_EQ(line.Text(Field::ItemQty), "0") << text;
        EXPECT_EQ(line.Text(Field::SalePrice), "$0.00") << text;
    }
}

TEST(TakeoffLine, AQuantityMayBeASimpleExpression) {
    TakeoffLine line = Shown(Boot());
    EXPECT_TRUE(Enter(line, Field::ItemQty, "3*12+4"));
    EXPECT_EQ(line.Text(Field::ItemQty), "40");
    EXPECT_EQ(line.Text(Field::QtyCost), "$394.00");  // 40 * 9.85
    EXPECT_TRUE(line.Tax());
    Enter(line, Field::ItemQty, "2.5");
    EXPECT_EQ(line.Text(Field::ItemQty), "3");
    Enter(line, Field::ItemQty, "1,200");
    EXPECT_EQ(line.Text(Field::ItemQty), "1200");
}

TEST(TakeoffLine, AnOverflowChangesNothingInTheRow) {
    for (const char* text : {"32768", "40000", "200*200", "5/0", "99999999999999999999999999"}) {
        TakeoffLine line = Shown(Boot());
        EXPECT_FALSE(Enter(line, Field::ItemQty, text)) << text;
        EXPECT_EQ(line.Text(Field::ItemQty), "0") << text;
        EXPECT_FALSE(line.Tax()) << text;
        MaterialRow row = Boot();
        line.Store(row);
        EXPECT_EQ(row, Boot()) << text;
    }
    MaterialRow cheap = Boot();
    cheap.UnitCst = 0.5F;
    TakeoffLine line = Shown(cheap);
    EXPECT_TRUE(Enter(line, Field::ItemQty, "32767"));
    EXPECT_EQ(line.Text(Field::QtyCost), "$16,383.50");  // 32767 * 0.50
}

TEST(TakeoffLine, AnOverflowingQuantityUnderWayIsNotStored) {
    MaterialRow row = Boot(7);
    TakeoffLine line = Shown(row);
    line.SetText(Field::ItemQty, "70000");
    line.Store(row);
    EXPECT_EQ(row.ItemQty, 7);
}

TEST(TakeoffLine, AMarginGivesThePriceAndThePriceTheOtherTwo) {
    TakeoffLine line = Shown(Boot(4));
    EXPECT_TRUE(Enter(line, Field::GrossMargin, "25"));
    // 39.40 / 0.75 = 52.53; 13.13 / 39.40 = 33.3 %; list 4 * 13.13 = 52.52, discount -0.02 %
    EXPECT_EQ(PricesOf(line), "$39.40 25.0 33.3 0.0 $52.53 ");
}

TEST(TakeoffLine, AMarkupGivesThePriceAndThePriceTheOtherTwo) {
    TakeoffLine line = Shown(Boot(4));
    EXPECT_TRUE(Enter(line, Field::PriceMarkup, "50"));
    // 39.40 * 1.5 = 59.10; 19.70 / 59.10 = 33.3 %; (52.52 - 59.10) / 52.52 = -12.5 %
    EXPECT_EQ(PricesOf(line), "$39.40 33.3 50.0 -12.5 $59.10 ");
}

TEST(TakeoffLine, ADiscountIsTakenFromTheListPriceOfTheWholeLine) {
    TakeoffLine line = Shown(Boot(4));
    EXPECT_TRUE(Enter(line, Field::ListDiscount, "10"));
    // 52.52 * 0.9 = 47.27; 7.87 / 47.27 = 16.6 %; 7.87 / 39.40 = 20.0 %
    EXPECT_EQ(PricesOf(line), "$39.40 16.6 20.0 10.0 $47.27 ");
}

TEST(TakeoffLine, APriceGivesAllThreePercentages) {
    TakeoffLine line = Shown(Boot(4));
    EXPECT_TRUE(Enter(line, Field::SalePrice, "45"));
    // 5.60 / 45.00 = 12.4 %; 5.60 / 39.40 = 14.2 %; 7.52 / 52.52 = 14.3 %
    EXPECT_EQ(PricesOf(line), "$39.40 12.4 14.2 14.3 $45.00 ");
}

TEST(TakeoffLine, APriceOfZeroHasItsOddMargin) {
    MaterialRow row = Boot(4);
    row.SalePrice = 45;
    TakeoffLine line = Shown(row);
    Enter(line, Field::SalePrice, "0");
    // -39.40 * 100; no sale at all is -100 % on the cost and 100 % off the list
    EXPECT_EQ(PricesOf(line), "$39.40 -3940.0 -100.0 100.0 $0.00 ");
}

TEST(TakeoffLine, AMarginOfExactly100ChangesNothing) {
    MaterialRow row = Boot(4);
    row.SalePrice = 45;
    TakeoffLine line = Shown(row);
    EXPECT_FALSE(Enter(line, Field::GrossMargin, "100"));
    EXPECT_EQ(PricesOf(line), "$39.40 0.0 0.0 0.0 $45.00 ");
}

TEST(TakeoffLine, AnEmptiedPercentageOrALoneMinusChangesNothing) {
    MaterialRow row = Boot(4);
    row.SalePrice = 45;
    for (const char* text : {"", "-"}) {
        TakeoffLine line = Shown(row);
        EXPECT_FALSE(Enter(line, Field::PriceMarkup, text));
        EXPECT_EQ(line.Text(Field::SalePrice), "$45.00");
        EXPECT_EQ(line.Text(Field::PriceMarkup), "0.0");
    }
}

TEST(TakeoffLine, TabbingThroughAFieldRecalculatesNothing) {
    MaterialRow row = Boot(4);
    row.GrossMargin = 12.44F;
    row.SalePrice = 45;
    TakeoffLine line = Shown(row);
    for (const Field field : {Field::ItemQty, Field::GrossMargin, Field::SalePrice})
        EXPECT_FALSE(line.Leave(field));
    const MaterialRow before = row;
    line.Store(row);
    EXPECT_EQ(row, before);  // the percentage behind its one decimal too
}

TEST(TakeoffLine, AnAccessoryNeedsAQuantity) {
    TakeoffLine line = Shown(Boot());
    line.SetAccessory(true);
    EXPECT_FALSE(line.Accessory());
    line.SetText(Field::ItemQty, "");
    line.SetAccessory(true);
    EXPECT_FALSE(line.Accessory());
    Enter(line, Field::ItemQty, "1");
    line.SetAccessory(true);
    EXPECT_TRUE(line.Accessory());
}

TEST(TakeoffLine, AnEditedLineStoresWhatItsTextsRead) {
    MaterialRow row = Boot();
    TakeoffLine line = Shown(row);
    Enter(line, Field::ItemQty, "4");
    Enter(line, Field::GrossMargin, "25");
    line.SetTax(false);
    line.SetAccessory(true);
    line.Store(row);
    EXPECT_EQ(row.ItemQty, 4);
    EXPECT_EQ(row.Tax, 0);
    EXPECT_EQ(row.Accessory, 1);
    EXPECT_EQ(row.GrossMargin, 25.0F);
    EXPECT_EQ(row.PriceMarkup, 33.3F);
    EXPECT_EQ(row.SalePrice, 52.53F);
    EXPECT_EQ(row.UnitCst, 9.85F);
    EXPECT_FALSE(line.IsEdited());
}

TEST(TakeoffLine, LargeAndNegativeMoneyIsShownWhole) {
    MaterialRow row = Boot(30000);
    row.UnitCst = 12345.5F;
    row.SalePrice = -8765.25F;
    const TakeoffLine line = Shown(row);
    EXPECT_EQ(line.Text(Field::QtyCost), "$370,365,000.00");  // 30000 * 12345.50
    EXPECT_EQ(line.Text(Field::SalePrice), "-$8,765.25");
}

TEST(TakeoffLine, ABookValueThatNoFieldHoldsLeavesItEmpty) {
    MaterialRow row = Boot(30000);
    row.UnitCst = 3e38F;
    row.ListDiscount = std::numeric_limits<float>::quiet_NaN();
    TakeoffLine line = Shown(row);
    EXPECT_EQ(line.Text(Field::QtyCost), "");
    EXPECT_EQ(line.Text(Field::ListDiscount), "");
    EXPECT_FALSE(Enter(line, Field::ItemQty, "29999"));
    EXPECT_EQ(line.Text(Field::ItemQty), "30000");
}

}  // namespace
}  // namespace tendo
