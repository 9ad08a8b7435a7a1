#include "pricing/price_fields.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tendo {
namespace {

constexpr char32_t Backspace = 8;

TEST(PriceFields, EveryFieldIsFoundByItsOwnName) {
    std::set<std::string> names;
    for (int i = 0; i < TableFieldCount; ++i) {
        const auto field = static_cast<TableField>(i);
        names.insert(Describe(field).name);
        EXPECT_EQ(TableFieldByName(Describe(field).name), field);
    }
    EXPECT_EQ(names.size(), 50U);
    EXPECT_FALSE(TableFieldByName("txtNothing").has_value());
}

TEST(PriceFields, TheLaborSalePriceHasItsOwnSpelling) {
    EXPECT_EQ(TableFieldByName("txtLaborSalesPrice"), TableField::LaborSalePrice);
    EXPECT_FALSE(TableFieldByName("txtLaborSalePrice").has_value());
}

TEST(PriceFields, RowsAndColumnsMeetInTheirField) {
    EXPECT_EQ(RowField(1, FieldKind::DealerCost), TableField::ModelDealerCost);
    EXPECT_EQ(RowField(2, FieldKind::PriceMarkup), TableField::TaxMatPriceMarkup);
    EXPECT_EQ(RowField(4, FieldKind::SalePrice), TableField::LaborSalePrice);
    for (int row = 1; row <= 4; ++row) {
        EXPECT_EQ(Describe(RowField(row, FieldKind::ListDiscount)).row, row);
        EXPECT_EQ(Describe(RowField(row, FieldKind::ListDiscount)).kind, FieldKind::ListDiscount);
    }
}

TEST(PriceFields, EachFieldKnowsItsColumn) {
    EXPECT_EQ(Describe(TableField::NonTaxListDiscount).column,
              &SystemTendosRecord::NonTaxListDiscount);
    EXPECT_EQ(Describe(TableField::LaborSalePrice).column, &SystemTendosRecord::LaborSalePrice);
    EXPECT_EQ(Describe(TableField::TaxDealerCost).column, nullptr);
}

TEST(PriceKeys, PercentagesTakeDigitsOnePointAndOneMinus) {
    for (const TableField field : {TableField::ModelGrossMargin, TableField::TaxMatPriceMarkup,
                                   TableField::LaborListDiscount, TableField::TotalGrossMargin}) {
        EXPECT_TRUE(KeyAllowed(field, U'0', "12"));
        EXPECT_TRUE(KeyAllowed(field, U'9', "12"));
        EXPECT_TRUE(KeyAllowed(field, U'.', "12"));
        EXPECT_TRUE(KeyAllowed(field, U'-', "12"));
        EXPECT_TRUE(KeyAllowed(field, Backspace, "12"));
        EXPECT_FALSE(KeyAllowed(field, U'.', "1.2"));
        EXPECT_FALSE(KeyAllowed(field, U'-', "-12"));
        EXPECT_FALSE(KeyAllowed(field, U'e', "12"));
        EXPECT_FALSE(KeyAllowed(field, U',', "12"));
        EXPECT_FALSE(KeyAllowed(field, U'$', ""));
        EXPECT_FALSE(KeyAllowed(field, U'\u0663', ""));  // a digit of another script
    }
}

TEST(PriceKeys, PricesTakeNoMinusSign) {
    for (const TableField field : {TableField::ModelDealerOverride, TableField::NonTaxSalePrice,
                                   TableField::TotalSalePrice}) {
        EXPECT_TRUE(KeyAllowed(field, U'5', ""));
        EXPECT_TRUE(KeyAllowed(field, U'.', "5"));
        EXPECT_TRUE(KeyAllowed(field, Backspace, "5"));
        EXPECT_FALSE(KeyAllowed(field, U'.', "5.0"));
        EXPECT_FALSE(KeyAllowed(field, U'-', ""));
        EXPECT_FALSE(KeyAllowed(field, U' ', ""));
    }
}

TEST(PriceKeys, QuantitiesTakeDigitsOnly) {
    EXPECT_TRUE(KeyAllowed(TableField::CLGModelQty, U'2', ""));
    EXPECT_TRUE(KeyAllowed(TableField::HTGModelQty, Backspace, "2"));
    EXPECT_FALSE(KeyAllowed(TableField::CLGModelQty, U'.', ""));
    EXPECT_FALSE(KeyAllowed(TableField::CLGModelQty, U'-', ""));
}

TEST(PriceKeys, FieldsFilledByCalculationTakeNoKey) {
    for (const TableField field :
         {TableField::ModelDealerCost, TableField::TotalDealerOverride, TableField::TaxDealerCost,
          TableField::TaxDealerOverride, TableField::Profit, TableField::SuperProfit}) {
        EXPECT_TRUE(TakesNoInput(field));
        EXPECT_FALSE(KeyAllowed(field, U'5', ""));
    }
    EXPECT_FALSE(TakesNoInput(TableField::ModelSalePrice));
}

TEST(PriceKeys, ModelTextsTakeAnyKey) {
    EXPECT_TRUE(KeyAllowed(TableField::CLGModelNum, U'X', "BC"));
    EXPECT_TRUE(KeyAllowed(TableField::HTGDatabase, U'-', "-"));
}

}  // namespace
}  // namespace tendo
