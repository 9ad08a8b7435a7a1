#include "materials/takeoff_sums.h"

#include <gtest/gtest.h>

#include "material_databases.h"
#include "materials/material_catalogue.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

class MaterialSums : public testing::Test {
  protected:
    MaterialSums() { Project() = ProjectRecords(); }
    ~MaterialSums() override { Project() = ProjectRecords(); }

    static MaterialRow& Add(const std::string& description, int quantity, float unitCost,
                            float salePrice, std::int16_t tax = 0, std::int16_t accessory = 0) {
        MaterialRow row;
        row.Category = "Duct";
        row.Description = description;
        row.PartNumber = "P";
        row.ItemQty = static_cast<std::int16_t>(quantity);
        row.UnitCst = unitCost;
        row.SalePrice = salePrice;
        row.Tax = tax;
        row.Accessory = accessory;
        MaterialCatalogue().push_back(row);
        return MaterialCatalogue().back();
    }
    static SystemTendosRecord& Prices() { return Project().SystemTendos; }

    BookFolder folder_;
};

TEST_F(MaterialSums, TaxableAndOtherRowsAreSummedApart) {
    Add("Boot", 4, 9.85F, 60, 1);       // cost 39.40
    Add("Flex", 2, 41.2F, 110.5F, 1);   // cost 82.40
    Add("Permit", 1, 75, 90);           // not taxable
    Add("Strap", 10, 0.45F, 7.25F);     // cost 4.50, not taxable
    Add("Not chosen", 0, 500, 700, 0);  // no quantity: nothing
    SumMaterials();
    EXPECT_FLOAT_EQ(Prices().TaxMatDealerCost, 121.8F);      // 39.40 + 82.40
    EXPECT_FLOAT_EQ(Prices().TaxMatDealerOverride, 121.8F);  // the override goes with the cost
    EXPECT_FLOAT_EQ(Prices().TaxMatSalePrice, 170.5F);       // 60.00 + 110.50
    EXPECT_FLOAT_EQ(Prices().NonTaxDealerCost, 79.5F);       // 75.00 + 4.50
    EXPECT_FLOAT_EQ(Prices().NonTaxDealerOverride, 79.5F);
    EXPECT_FLOAT_EQ(Prices().NonTaxSalePrice, 97.25F);  // 90.00 + 7.25
}

TEST_F(MaterialSums, ATaxableRowWithoutQuantityAddsItsSalePriceButNoCost) {
    // A load sets the sale price to the list cost, here 13.13.
    Add("Boot", 0, 9.85F, 13.13F, 1);
    SumMaterials();
    EXPECT_EQ(Prices().TaxMatDealerCost, 0.0F);
    EXPECT_FLOAT_EQ(Prices().TaxMatSalePrice, 13.13F);
    ResetCatalogueSelections();
    SumMaterials();
    EXPECT_EQ(Prices().TaxMatSalePrice, 0.0F);
}

TEST_F(MaterialSums, AnAccessoryWithASalePriceChangesNoProjectTotal) {
    Add("Humidifier", 1, 200, 350, 1, 1);
    Add("Thermostat", 2, 80, 250, 0, 1);
    SumMaterials();
    EXPECT_EQ(Prices().TaxMatDealerCost, 0.0F);
    EXPECT_EQ(Prices().TaxMatSalePrice, 0.0F);
    EXPECT_EQ(Prices().NonTaxDealerCost, 0.0F);
    EXPECT_EQ(Prices().NonTaxSalePrice, 0.0F);
}

TEST_F(MaterialSums, AThousandSmallLinesAreExactToTheCent) {
    for (int i = 0; i < 1000; ++i)
        Add("Line", 7, 0.1F, 1.15F, 1);
    SumMaterials();
    EXPECT_FLOAT_EQ(Prices().TaxMatDealerCost, 700);  // 1000 * 7 * 0.10
    EXPECT_FLOAT_EQ(Prices().TaxMatSalePrice, 1150);  // 1000 * 1.15
}

TEST_F(MaterialSums, ASumBeyondTheRangeOverflows) {
    Add("Gold", 32767, 3e38F, 0, 1);
    EXPECT_THROW(SumMaterials(), RuntimeError);
}

TEST_F(MaterialSums, TheListBasesFollowTheSalePricesAndTheirTotal) {
    Prices().ModelLDPrice = 3000;
    Prices().LaborLDPrice = 400;
    Prices().TaxSalePrice = 250.25F;
    Prices().TaxMatSalePrice = 170.5F;
    Prices().NonTaxSalePrice = 97.25F;
    TakeMaterialListBases();
    EXPECT_EQ(Prices().TaxMatLDPrice, 170.5F);
    EXPECT_EQ(Prices().NonTaxLDPrice, 97.25F);
    EXPECT_EQ(Prices().TotalLDPrice, 3918.0F);  // 3000 + 170.50 + 97.25 + 400 + 250.25
}

TEST_F(MaterialSums, OnlyRowsWithAQuantityAreCommittedInOrderAndWithoutTheirCategory) {
    Add("Boot", 0, 9.85F, 60);
    Add("Flex", 2, 41.2F, 110.5F, 1);
    Add("Returned", -3, 5, 6);
    MaterialRow grille = Add("Grille", 1, 18, 24, 0, 1);
    Project().ProjectMaterials[0].Category = "kept";
    Project().ProjectMaterials[2].Description = "left over";
    Project().ProjectMaterials[2].PartNumber = "left over";
    Project().ProjectMaterials[2].UnitCst = 3;
    CatalogueToProjectMaterials();
    const auto& rows = Project().ProjectMaterials;
    EXPECT_EQ(rows[0].Description.Trimmed(), "Flex");
    EXPECT_EQ(rows[0].Category.Trimmed(), "kept");
    grille.Category = "";
    EXPECT_EQ(rows[1], grille);
    EXPECT_EQ(rows[2], MaterialRow());
}

TEST_F(MaterialSums, Of1001SelectedRowsTheFirst1000AreKeptAndTheLastIsDropped) {
    for (int i = 1; i <= 1001; ++i)
        Add("Line " + std::to_string(i), 1, 1, 2);
    CatalogueToProjectMaterials();
    EXPECT_EQ(Project().ProjectMaterials[999].Description.Trimmed(), "Line 1000");
    EXPECT_TRUE(Project().ProjectMaterials[1000].Description.IsBlank());
    EXPECT_EQ(Project().ProjectMaterials.size(), 1001U);
}

TEST_F(MaterialSums, AChangedTakeoffChangesTheProjectAndAnEqualOneDoesNot) {
    Add("Flex", 2, 41.2F, 110.5F, 1);
    CommitTakeoff();
    EXPECT_TRUE(State().ProjectChanged);
    EXPECT_EQ(Prices().TaxMatLDPrice, 110.5F);
    State().ProjectChanged = false;
    CommitTakeoff();
    EXPECT_FALSE(State().ProjectChanged);
    MaterialCatalogue()[0].ListDiscount = 5;
    CommitTakeoff();
    EXPECT_TRUE(State().ProjectChanged);
}

TEST_F(MaterialSums, ASaveWhileTheTakeoffIsOpenKeepsATypedOverrideUntilTheTakeoffChanges) {
    Add("Flex", 2, 41.2F, 110.5F, 1);
    EXPECT_TRUE(CommitOpenTakeoff());
    EXPECT_EQ(Prices().TaxMatDealerOverride, 82.4F);  // 2 * 41.20
    Prices().TaxMatDealerOverride = 80;
    EXPECT_FALSE(CommitOpenTakeoff());
    EXPECT_EQ(Prices().TaxMatDealerOverride, 80.0F);
    MaterialCatalogue()[0].ItemQty = 3;
    EXPECT_TRUE(CommitOpenTakeoff());
    EXPECT_EQ(Project().ProjectMaterials[0].ItemQty, 3);
    EXPECT_FLOAT_EQ(Prices().TaxMatDealerOverride, 123.6F);  // 3 * 41.20
}

TEST_F(MaterialSums, AccessoriesAreSummedByThemselves) {
    Add("Humidifier", 1, 200, 350, 1, 1);
    Add("Thermostat", 2, 80, 250, 0, 1);
    Add("Not chosen", 0, 80, 99, 0, 1);
    const TakeoffSums sums = SumTakeoff(MaterialCatalogue());
    EXPECT_EQ(sums.accessories.cost, 360);  // 200 + 2 * 80
    EXPECT_EQ(sums.accessories.sale, 600);  // 350 + 250
    EXPECT_EQ(sums.taxable.sale, 0);
    EXPECT_EQ(sums.nonTaxable.sale, 0);
}

}  // namespace
}  // namespace tendo
