#include "price_table_fixture.h"

namespace tendo {
namespace {

class SystemScreen : public PriceTableTest {
  protected:
    std::vector<std::string> AllTexts() const {
        std::vector<std::string> texts;
        for (int i = 0; i < static_cast<int>(TableField::CLGDB); ++i) {
            // The discount of the Model row is shown as money after each refill.
            const auto field = static_cast<TableField>(i);
            if (field != Field::ModelListDiscount) texts.push_back(Text(field));
        }
        return texts;
    }
};

TEST_F(SystemScreen, AnOverrideEqualToTheCostShowsAsSameAndIsStoredAsTheCost) {
    tendos().LaborDealerCost = tendos().LaborDealerOverride = 120;
    tendos().LaborSalePrice = 200;
    table.Open();
    EXPECT_EQ(Text(Field::LaborDealerOverride), "same");
    tendos().LaborDealerOverride = 0;
    table.GetSystemTendos();
    EXPECT_EQ(tendos().LaborDealerOverride, 120);
}

TEST_F(SystemScreen, OpeningKeepsTheSavedTotalUntilARowIsEdited) {
    tendos().ModelSalePrice = 1000;
    tendos().TotalSalePrice = 2000;
    table.Open();
    EXPECT_EQ(Text(Field::TotalSalePrice), "$2,000.00");
    EXPECT_EQ(tendos().TotalSalePrice, 2000);
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$1,000.00");
    EXPECT_EQ(Text(Field::SuperProfit), "$917.50");  // 2000 - 1000 - 82.50
    Enter(Field::NonTaxSalePrice, "10");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,092.50");
}

TEST_F(SystemScreen, OpeningShowsTheSavedProfit) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    tendos().TotalSalePrice = 1082.5F;
    tendos().Profit = 250;
    table.Open();
    EXPECT_EQ(Text(Field::Profit), "$250.00");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,082.50");
    EXPECT_EQ(Text(Field::SuperProfit), "$0.00");
}

TEST_F(SystemScreen, OpeningKeepsPricesAndRebuildsPercentages) {
    tendos().TaxMatDealerCost = 60;
    tendos().TaxMatSalePrice = 100;
    tendos().TaxMatLDPrice = 125;
    tendos().TaxMatGrossMargin = 99;  // stale figures of the file
    tendos().TaxMatPriceMarkup = 99;
    tendos().TaxMatListDiscount = 99;
    table.Open();
    EXPECT_EQ(Text(Field::TaxMatSalePrice), "$100.00");
    EXPECT_EQ(Text(Field::TaxMatGrossMargin), "40.0");
    EXPECT_EQ(Text(Field::TaxMatPriceMarkup), "66.7");
    EXPECT_EQ(Text(Field::TaxMatListDiscount), "20.0");
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(SystemScreen, ARefillShowsTheModelDiscountAsMoneyAndSeedsItsExactValue) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    tendos().ModelListDiscount = 16.67F;
    table.Open();
    // The recalculation at opening: list base 1000, sale 1000.
    EXPECT_EQ(Text(Field::ModelListDiscount), "0.0");
    tendos().ModelListDiscount = 16.67F;
    table.FieldChanged = true;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::ModelListDiscount), "$16.67");
    EXPECT_EQ(table.EditedListDiscount[0], 16.67F);
}

TEST_F(SystemScreen, ARefillSetsTheListBaseToTheModelPriceInCents) {
    tendos().ModelSalePrice = 1000.006F;
    tendos().ModelLDPrice = 5;
    table.Open();
    EXPECT_EQ(tendos().ModelLDPrice, 1000.01F);
}

TEST_F(SystemScreen, ARefillNeedsTheFlagAndAnOpenScreen) {
    table.FieldChanged = true;
    tendos().LaborSalePrice = 10;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::LaborSalePrice), "");
    table.Open();
    tendos().LaborSalePrice = 20;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::LaborSalePrice), "$10.00");
    table.FieldChanged = true;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::LaborSalePrice), "$20.00");
    EXPECT_FALSE(table.FieldChanged);
}

TEST_F(SystemScreen, ARefillBringsTheSubTotalUpToDate) {
    tendos().ModelSalePrice = 1000;
    table.Open();
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$1,000.00");
    tendos().LaborSalePrice = 200;
    table.FieldChanged = true;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::SubTotalSalePrice), "$1,200.00");
    EXPECT_EQ(Text(Field::TotalSalePrice), "$1,299.00");  // with 8.25 % of 1200
    EXPECT_EQ(Text(Field::Profit), "$1,200.00");
    EXPECT_EQ(Text(Field::SuperProfit), "$0.00");
}

TEST_F(SystemScreen, ARefillThatChangesNoPriceKeepsATypedTotal) {
    tendos().ModelSalePrice = 1000;
    table.Open();
    Enter(Field::TotalSalePrice, "5000");
    table.NextSystem();
    EXPECT_EQ(Text(Field::TotalSalePrice), "$5,000.00");
    EXPECT_EQ(Text(Field::SuperProfit), "$3,917.50");  // 5000 - 1000 - 82.50
}

TEST_F(SystemScreen, TheTaxAsACostIsShownFromOpeningOn) {
    tendos().ModelSalePrice = 1000;
    table.Open();
    EXPECT_EQ(Text(Field::TaxDealerCost), "$82.50");
    EXPECT_EQ(Text(Field::TaxDealerOverride), "$0.00");
    EXPECT_EQ(Text(Field::TotalDealerCost), "$0.00");  // no part of the costs
}

TEST_F(SystemScreen, TheTaxPercentageShowsOneOrTwoDecimals) {
    table.Open();
    EXPECT_EQ(Text(Field::TaxPercentage), "8.25");
    tendos().TaxPercentage = 7;
    table.FieldChanged = true;
    table.SetSystemTendos();
    EXPECT_EQ(Text(Field::TaxPercentage), "7.0");
}

TEST_F(SystemScreen, ClosingStoresTheTexts) {
    table.Open();
    table.SetText(Field::LaborSalePrice, "321.5");
    table.Close();
    EXPECT_EQ(tendos().LaborSalePrice, 321.5F);
    EXPECT_FALSE(table.IsOpen());
}

TEST_F(SystemScreen, AClosedScreenStoresNothing) {
    tendos().LaborSalePrice = 10;
    table.GetSystemTendos();
    EXPECT_EQ(tendos().LaborSalePrice, 10);
}

TEST_F(SystemScreen, OnlyAChangedRecordMarksTheProjectAsChanged) {
    table.Open();
    table.GetSystemTendos();
    State().ProjectChanged = false;
    table.GetSystemTendos();
    EXPECT_FALSE(State().ProjectChanged);
    Enter(Field::LaborSalePrice, "5");
    EXPECT_TRUE(State().ProjectChanged);
}

TEST_F(SystemScreen, NextOnSystemFiveGivesSystemOne) {
    State().SystemNumber = 4;
    table.Open();
    EXPECT_EQ(SystemCaption(State().SystemNumber), "Model Information for System 5");
    table.NextSystem();
    EXPECT_EQ(State().SystemNumber, 0);
    EXPECT_EQ(SystemCaption(State().SystemNumber), "Model Information for System 1");
    table.PreviousSystem();
    EXPECT_EQ(State().SystemNumber, 4);
    table.PreviousSystem();
    EXPECT_EQ(State().SystemNumber, 3);
}

TEST_F(SystemScreen, ASystemWithoutAModelShowsBlanksAndLeavesThePriceTable) {
    GiveModel(750);
    tendos().ModelSalePrice = 1000;
    tendos().TotalSalePrice = 1500;
    table.Open();
    const std::vector<std::string> before = AllTexts();
    EXPECT_EQ(Text(Field::CLGModelNum), "BC12-036");
    table.NextSystem();
    for (const Field field :
         {Field::CLGDB, Field::CLGModelNum, Field::CLGModelDesc, Field::CLGModelType, Field::CLGCap,
          Field::CLGEFF, Field::HTGDatabase, Field::HTGModelNum, Field::HTGModelDesc,
          Field::HTGModelType, Field::HTGCap, Field::HTGEFF}) {
        EXPECT_EQ(Text(field), "") << Describe(field).name;
    }
    EXPECT_EQ(Text(Field::CLGModelQty), "0");
    EXPECT_EQ(Text(Field::HTGModelQty), "0");
    EXPECT_EQ(AllTexts(), before);
}

TEST_F(SystemScreen, CapacityAndEfficiencyCarryTheirUnits) {
    CLGModelRecord& cooling = records.CLGModelData[0];
    cooling.ModelNum = "BC12";
    cooling.ModelType = "Heat Pump";
    cooling.Cap = 35.25F;
    cooling.EFF = 12.4F;
    table.Open();
    EXPECT_EQ(Text(Field::CLGCap), "35.3 MBH");
    EXPECT_EQ(Text(Field::CLGEFF), "12.40 SEER");  // any cooling model

    HTGModelRecord& heating = records.HTGModelData[0];
    heating.EFF = 80;
    const std::pair<const char*, const char*> types[] = {
        {"Heat Pump", "80.00 HSPF"}, {"Ground Source Heat Pump", "80.00 HSPF"},
        {"Furnace", "80.00 AFUE"},   {"Boiler", "80.00 AFUE"},
        {"Water Heater", "0.00"},    {"Wood Stove", "80.00 SEER"}};
    for (const auto& [type, text] : types) {
        heating.ModelType = type;
        EXPECT_EQ(HeatingTexts(records, 0).EFF, text);
    }
}

TEST_F(SystemScreen, LookingAtAModelDoesNotRoundIt) {
    CLGModelRecord& cooling = records.CLGModelData[0];
    cooling.ModelNum = "BC12";
    cooling.Cap = 35.25F;
    cooling.DB = "No such database";
    records.HTGModelData[0].ModelType = "Water Heater";
    records.HTGModelData[0].EFF = 0.62F;
    table.Open();
    table.Close();
    EXPECT_EQ(cooling.Cap, 35.25F);
    EXPECT_EQ(cooling.DB.Trimmed(), "No such database");
    EXPECT_EQ(records.HTGModelData[0].EFF, 0.62F);
}

TEST_F(SystemScreen, TypedModelTextsGoBackToTheRecord) {
    records.CLGModelData[0].ModelNum = "BC12";
    table.Open();
    Enter(Field::CLGModelDesc, "Split system");
    Enter(Field::CLGCap, "36.5 MBH");
    Enter(Field::CLGEFF, "13");
    Enter(Field::CLGModelQty, "3");
    Enter(Field::HTGModelType, "Furnace");
    EXPECT_EQ(records.CLGModelData[0].ModelDesc.Trimmed(), "Split system");
    EXPECT_EQ(records.CLGModelData[0].Cap, 36.5F);
    EXPECT_EQ(records.CLGModelData[0].EFF, 13);
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 3);
    EXPECT_EQ(records.HTGModelData[0].ModelType.Trimmed(), "Furnace");
}

TEST_F(SystemScreen, AQuantityBeyondSixteenBitsIsToldAndNotStored) {
    records.CLGModelData[0].ModelNum = "BC12";
    records.CLGModelData[0].ModelQty = 2;
    table.Open();
    Enter(Field::CLGModelQty, "40000");
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 2);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], "TENDO encountered an error while in Sub GetSystemTendos");
}

TEST_F(SystemScreen, ACommittedQuantityRefreshesTaxAndProfitOnly) {
    GiveModel(100);
    tendos().ModelSalePrice = 200;
    table.Open();
    Enter(Field::CLGModelQty, "2");
    EXPECT_EQ(Text(Field::ModelDealerCost),
              "$100.00");  // weighed with the row's next recalculation
    EXPECT_FALSE(table.FieldChanged);
    Enter(Field::ModelSalePrice, "300");
    EXPECT_EQ(Text(Field::ModelDealerCost), "$200.00");
}

TEST_F(SystemScreen, ADatabaseThatExistsAsItStandsIsShown) {
    const std::string path = MakeFile("A.mdb");
    ASSERT_EQ(ModelDatabaseFile(path), path);
    EXPECT_EQ(ModelDatabaseFile(""), "");
}

TEST_F(SystemScreen, ADatabaseNameIsSoughtInTheCommonDirectory) {
    const std::string path = MakeFile("Common/Brindlecove.mdb");
    EXPECT_EQ(ModelDatabaseFile("Brindlecove"), path);
    EXPECT_EQ(ModelDatabaseFile("Brindlecove.mdb"), path);  // the extension is added once only
    EXPECT_EQ(ModelDatabaseFile("Elsewhere"), "");
    records.HTGModelData[0].DB = "Brindlecove";
    table.Open();
    EXPECT_EQ(Text(Field::HTGDatabase), path);
    table.Close();
    EXPECT_EQ(records.HTGModelData[0].DB.Trimmed(), "Brindlecove");
}

TEST_F(SystemScreen, ATypedDatabaseIsStoredWhenItLeadsToAFile) {
    MakeFile("Common/B.mdb");
    State().CommonDirectory = (directory / "Common").string() + "/";
    table.Open();
    Enter(Field::CLGDB, "B");
    EXPECT_EQ(ModelDatabaseFile(records.CLGModelData[0].DB.Trimmed()),
              State().CommonDirectory + "B.mdb");
    const std::string held = records.CLGModelData[0].DB.Trimmed();
    Enter(Field::CLGDB, "Nowhere");
    EXPECT_EQ(records.CLGModelData[0].DB.Trimmed(), held);
}

TEST_F(SystemScreen, ADatabaseNameTooLongForItsFieldIsKeptByItsBareName) {
    State().CommonDirectory = "/" + std::string(60, 'd') + "/";
    EXPECT_EQ(ModelDatabaseName(State().CommonDirectory + "B.mdb"), "B.mdb");
    EXPECT_EQ(ModelDatabaseName("/short/B.mdb"), "/short/B.mdb");
}

TEST_F(SystemScreen, AnEmptiedModelNumberDropsTheModel) {
    GiveModel(750);
    records.ModelInfo[0].CLGSalePrice = records.ModelInfo[0].CLGListPrice = 1000;
    records.ModelInfo[0].HTGModelDealerCost = 33;
    records.CLGModelData[0].Notes = "on the roof";
    tendos().ModelSalePrice = 1000;
    table.Open();
    Enter(Field::CLGModelNum, "");
    EXPECT_TRUE(records.CLGModelData[0].Notes.IsBlank());
    EXPECT_EQ(records.CLGModelData[0].ModelQty, 0);
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 0);
    EXPECT_EQ(records.ModelInfo[0].CLGSalePrice, 0);
    EXPECT_EQ(records.ModelInfo[0].CLGListPrice, 0);
    EXPECT_EQ(records.ModelInfo[0].HTGModelDealerCost, 33);
    EXPECT_EQ(Text(Field::CLGModelQty), "0");
    EXPECT_TRUE(State().ProjectChanged);
}

TEST_F(SystemScreen, AnEmptiedHeatingNumberDropsTheHeatingModelOnly) {
    GiveModel(750);
    records.HTGModelData[0].ModelNum = "F-80";
    records.HTGModelData[0].ModelQty = 2;
    records.ModelInfo[0].HTGModelGrossMargin = 30;
    table.Open();
    Enter(Field::HTGModelNum, " ");
    EXPECT_EQ(records.HTGModelData[0].ModelQty, 0);
    EXPECT_EQ(records.ModelInfo[0].HTGModelGrossMargin, 0);
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "BC12-036");
}

TEST_F(SystemScreen, AChangedModelNumberRefillsAndStays) {
    GiveModel(750);
    table.Open();
    Enter(Field::CLGModelNum, "BC12-048");
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "BC12-048");
    table.FieldChanged = true;  // with a refill on the way, too
    Enter(Field::CLGModelNum, "BC12-060");
    EXPECT_EQ(records.CLGModelData[0].ModelNum.Trimmed(), "BC12-060");
    EXPECT_EQ(Text(Field::CLGModelNum), "BC12-060");
    EXPECT_EQ(records.ModelInfo[0].CLGModelDealerCost, 750);
}

TEST_F(SystemScreen, TheLaborLabelTellsWhetherLaborIsTaxed) {
    EXPECT_EQ(LaborLabel(records), "Labor (taxable):");
    records.GPDProjectFormat.TaxLabor = false;
    EXPECT_EQ(LaborLabel(records), "Labor (no tax):");
}

TEST_F(SystemScreen, AFailureInARefillIsToldAndTheRefillGoesOn) {
    table.Open();
    tendos().ModelDealerOverride = std::numeric_limits<float>::infinity();
    tendos().ModelSalePrice = std::numeric_limits<float>::infinity();
    tendos().LaborSalePrice = 70;
    table.FieldChanged = true;
    table.SetSystemTendos();
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages[0], "In SetSystemTendo, Error #6 = Overflow");
    EXPECT_EQ(Text(Field::LaborSalePrice), "$70.00");
}

TEST_F(SystemScreen, EveryChangedTextIsTold) {
    table.Open();
    std::vector<std::string> told;
    table.TextChanged = [&](TableField field) { told.push_back(Describe(field).name); };
    Enter(Field::NonTaxSalePrice, "50");
    for (const char* name : {"txtNonTaxSalePrice", "txtSubTotalSalePrice", "txtTotalSalePrice",
                             "txtProfit", "txtNonTaxGrossMargin"}) {
        EXPECT_NE(std::find(told.begin(), told.end(), name), told.end()) << name;
    }
}

TEST_F(SystemScreen, ModelsThatAnotherScreenChangedShowWithoutAnEdit) {
    table.Open();
    table.FieldChanged = false;
    records.CLGModelData[0].ModelDesc = "Told elsewhere";
    records.CLGModelData[0].ModelQty = 3;
    table.FollowModels();
    EXPECT_EQ(Text(Field::CLGModelDesc), "Told elsewhere");
    EXPECT_EQ(Text(Field::CLGModelQty), "3");
    EXPECT_FALSE(table.FieldChanged);
}

}  // namespace
}  // namespace tendo
