#include "price_table_fixture.h"

namespace tendo {
namespace {

constexpr const char* NoNumbers[] = {"abc", "12abc", "same", ".",        "$", "1.2.3",
                                     "--5", "n/a",   "1e99", "\xC3\xA9", " ", "%"};

/// Texts that are no number, in every numeric field of the price table: they count as 0.
class TextInNumbers : public PriceTableTest {
  protected:
    void SetUp() override {
        PriceTableTest::SetUp();
        GiveModel(750);
        tendos().ModelSalePrice = 1000;
        tendos().LaborDealerCost = 160;
        tendos().LaborSalePrice = 200;
        tendos().LaborLDPrice = 180;
        table.Open();
    }

    void TearDown() override {
        EXPECT_TRUE(messages.empty());
        PriceTableTest::TearDown();
    }

    /// Restores the labor row between two texts.
    void SellLaborAt200() { Enter(Field::LaborSalePrice, "200"); }
};

TEST_F(TextInNumbers, AnOverrideOfNoNumberIsNone) {
    for (const char* text : NoNumbers) {
        Enter(Field::LaborDealerOverride, "150");
        Enter(Field::LaborDealerOverride, text);
        EXPECT_EQ(Text(Field::LaborDealerOverride), "same") << text;
        EXPECT_EQ(tendos().LaborDealerOverride, 160) << text;
        EXPECT_EQ(Text(Field::LaborGrossMargin), "20.0") << text;  // 40 / 200
    }
}

TEST_F(TextInNumbers, AMarginOrMarkupOfNoNumberSellsAtCost) {
    for (const char* text : NoNumbers) {
        for (const Field field : {Field::LaborGrossMargin, Field::LaborPriceMarkup}) {
            SellLaborAt200();
            Enter(field, text);
            EXPECT_EQ(Text(Field::LaborSalePrice), "$160.00") << text;
        }
    }
}

TEST_F(TextInNumbers, ADiscountOfNoNumberSellsAtTheListPrice) {
    for (const char* text : NoNumbers) {
        SellLaborAt200();
        Enter(Field::LaborListDiscount, text);
        EXPECT_EQ(Text(Field::LaborSalePrice), "$180.00") << text;
    }
}

TEST_F(TextInNumbers, AnEmptyPercentageKeepsTheExactOne) {
    SellLaborAt200();
    for (const char* text : {"", "-"}) {
        Enter(Field::LaborGrossMargin, "50");  // 160 / 0.5
        Enter(Field::LaborGrossMargin, text);
        EXPECT_EQ(Text(Field::LaborSalePrice), "$320.00") << text;
    }
}

TEST_F(TextInNumbers, APriceOfNoNumberIsZeroDollars) {
    for (const char* text : NoNumbers) {
        for (const Field field : {Field::ModelSalePrice, Field::TaxMatSalePrice,
                                  Field::NonTaxSalePrice, Field::LaborSalePrice}) {
            Enter(field, "10");
            Enter(field, text);
            EXPECT_EQ(Text(field), "$0.00") << text;
        }
        EXPECT_EQ(Text(Field::SubTotalSalePrice), "$0.00") << text;
    }
}

TEST_F(TextInNumbers, ATotalOfNoNumberBecomesSubTotalAndTax) {
    for (const char* text : NoNumbers) {
        Enter(Field::TotalSalePrice, "5000");
        Enter(Field::TotalSalePrice, text);
        EXPECT_EQ(Text(Field::TotalSalePrice), "$1,299.00") << text;  // 1200 and 8.25 % of it
        Enter(Field::TotalGrossMargin, "10");
        Enter(Field::TotalGrossMargin, text);
        EXPECT_EQ(Text(Field::TotalSalePrice), "$1,299.00") << text;
    }
}

TEST_F(TextInNumbers, ATaxPercentageOfNoNumberIsNoTax) {
    for (const char* text : NoNumbers) {
        Enter(Field::TaxPercentage, "8.25");
        Enter(Field::TaxPercentage, text);
        EXPECT_EQ(Text(Field::TaxSalePrice), "$0.00") << text;
        EXPECT_EQ(tendos().TaxPercentage, 0) << text;
        EXPECT_EQ(Text(Field::TotalSalePrice), "$1,200.00") << text;
    }
}

TEST_F(TextInNumbers, AQuantityOfNoNumberIsNone) {
    for (const char* text : NoNumbers) {
        for (const Field field : {Field::CLGModelQty, Field::HTGModelQty}) {
            Enter(field, "3");
            Enter(field, text);
        }
        EXPECT_EQ(records.CLGModelData[0].ModelQty, 0) << text;
        EXPECT_EQ(records.HTGModelData[0].ModelQty, 0) << text;
    }
}

TEST_F(TextInNumbers, ACapacityOrEfficiencyTakesTheNumberThatLeads) {
    Enter(Field::CLGCap, "tall");
    Enter(Field::HTGEFF, "good");
    EXPECT_EQ(records.CLGModelData[0].Cap, 0);
    EXPECT_EQ(records.HTGModelData[0].EFF, 0);
    Enter(Field::CLGCap, "36 tons");
    Enter(Field::HTGEFF, "92.5 AFUE");
    EXPECT_EQ(records.CLGModelData[0].Cap, 36);
    EXPECT_EQ(records.HTGModelData[0].EFF, 92.5F);
}

}  // namespace
}  // namespace tendo
