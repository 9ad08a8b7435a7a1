#include "project/project_records.h"

#include "project_fixture.h"

namespace tendo {
namespace {

class ProjectData : public ProjectTest {};

TEST_F(ProjectData, AResetGivesEachFieldItsFirstValue) {
    WriteFile(State().WinIniFile, "[Velmo Software]\nDefaultManufacturer=Brindlecove\n");
    Project().GPDProjectFormat.Title = "Old job";
    Project().GPDProjectFormat.TaxLabor = false;
    Project().GPDProjectFormat.SingleProposalType = false;
    Project().GPDProjectFormat.ImportGPD_FName = "C:\\OLD.TDW";
    Project().GPDClientFormat.Fax = "1";
    Project().GPDCompanyFormat.CompanyIDNumber = "2";
    Project().SystemTendos.Profit = 3;
    Project().SystemTendos.TaxPercentage = 5;
    Project().ModelInfo[4].WHListPrice = 6;
    Project().SystemInfo[2].WHSystemSelected = 7;
    Project().CLGModelData[1].Notes = "8";
    Project().HTGModelData[1].ModelQty = 9;
    Project().WHModelData[1].WHIsHydroAirComponent = 1;
    ResetProjectData();
    EXPECT_EQ(Project().GPDProjectFormat.ProgramVersion.Trimmed(), "5.0.0");
    EXPECT_TRUE(Project().GPDProjectFormat.Title.IsBlank());
    EXPECT_EQ(Project().GPDProjectFormat.DefaultDB.Trimmed(), "Brindlecove");
    EXPECT_TRUE(Project().GPDProjectFormat.TaxLabor);
    EXPECT_TRUE(Project().GPDProjectFormat.SingleProposalType);
    EXPECT_TRUE(Project().GPDProjectFormat.ImportGPD_FName.IsBlank());
    EXPECT_TRUE(Project().GPDClientFormat.Fax.IsBlank());
    EXPECT_TRUE(Project().GPDCompanyFormat.CompanyIDNumber.IsBlank());
    EXPECT_EQ(Project().SystemTendos.Profit, 0);
    EXPECT_EQ(Project().SystemTendos.TaxPercentage, 8.25F);
    EXPECT_EQ(Project().ModelInfo[4].WHListPrice, 0);
    EXPECT_EQ(Project().SystemInfo[2].WHSystemSelected, 0);
    EXPECT_TRUE(Project().CLGModelData[1].Notes.IsBlank());
    EXPECT_EQ(Project().HTGModelData[1].ModelQty, 0);
    EXPECT_EQ(Project().WHModelData[1].WHIsHydroAirComponent, 0);
}

TEST_F(ProjectData, AfterAResetTheTaxOverrideKeepsTheValueOfTheProjectBefore) {
    Project().SystemTendos.TaxDealerOverride = 12.5F;
    ResetProjectData();
    EXPECT_EQ(Project().SystemTendos.TaxDealerOverride, 12.5F);
}

TEST_F(ProjectData, AfterAResetTheLaborRateIsZeroWhileEachLineCostsForty) {
    Project().GPDProjectFormat.LaborRate = 55;
    Project().ProjectLabor[3].LaborDescription = "Set condenser";
    Project().ProjectLabor[3].QtyHrs = 2;
    Project().ProjectLabor[15].QtyHrs = 4;
    ResetProjectData();
    EXPECT_EQ(Project().GPDProjectFormat.LaborRate, 0);
    for (int i = 0; i < SavedLaborRowCount; ++i) {
        EXPECT_EQ(Project().ProjectLabor[static_cast<std::size_t>(i)].LaborPerHour, 40);
        EXPECT_EQ(Project().ProjectLabor[static_cast<std::size_t>(i)].QtyHrs, 0);
    }
    EXPECT_EQ(Project().ProjectLabor[3].LaborDescription.Trimmed(), "Set condenser");
    EXPECT_EQ(Project().ProjectLabor[15].QtyHrs, 4);  // the spare
    EXPECT_EQ(Project().ProjectLabor[15].LaborPerHour, 0);
}

TEST_F(ProjectData, AResetClearsMaterialsButNotTheirCategoryNorTheSpareLine) {
    MaterialRow& row = Project().ProjectMaterials[999];
    row.Category = "Duct";
    row.Description = "Elbow";
    row.PartNumber = "P-1";
    row.ItemQty = 3;
    row.SalePrice = 4;
    Project().ProjectMaterials[1000] = row;
    ResetProjectData();
    EXPECT_EQ(row.Category.Trimmed(), "Duct");
    EXPECT_TRUE(row.Description.IsBlank());
    EXPECT_TRUE(row.PartNumber.IsBlank());
    EXPECT_EQ(row.ItemQty, 0);
    EXPECT_EQ(row.SalePrice, 0);
    EXPECT_EQ(Project().ProjectMaterials[1000].ItemQty, 3);
}

TEST_F(ProjectData, ANewProjectAfterOneWithThreeFootnotesStillCountsThreeNowBlank) {
    Project().ProjectFootNotes.assign(4, FootNoteRow{"Terms", "text"});
    Project().gvNumOfFootnotes = 3;
    Project().ProjectAccRptFootNotes.assign(1, FootNoteRow{"Options", "text"});
    Project().NumOfAccRptFootnotes = 1;
    ResetProjectData();
    EXPECT_EQ(Project().gvNumOfFootnotes, 3);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(Project().ProjectFootNotes[i].Name.IsBlank());
        EXPECT_EQ(Project().ProjectFootNotes[i].Description, " ");
    }
    EXPECT_EQ(Project().ProjectFootNotes[3].Name.Trimmed(), "Terms");  // not in use
    EXPECT_EQ(Project().NumOfAccRptFootnotes, 1);
    EXPECT_EQ(Project().ProjectAccRptFootNotes[0].Description, " ");
}

TEST_F(ProjectData, AResetClearsTheCatalogueAndUnloadsTheMaterialDatabase) {
    int calls = 0;
    Hooks().ResetCatalogue = [&] { ++calls; };
    State().MaterialDatabaseLoaded = true;
    ProjectRecords other;
    ResetProjectData(other);
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(State().MaterialDatabaseLoaded);  // only the open project has a catalogue
    ResetProjectData();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(State().MaterialDatabaseLoaded);
}

TEST_F(ProjectData, StartUpGivesTheRecordsTheirStartValues) {
    ProjectRecords records;
    SetStartValues(records, "/common/");
    EXPECT_EQ(records.GPDProjectFormat.LaborRate, 40);
    EXPECT_TRUE(records.GPDProjectFormat.TaxLabor);
    EXPECT_TRUE(records.GPDProjectFormat.SingleProposalType);
    EXPECT_EQ(records.GPDProjectFormat.ImportGPD, 0);
    EXPECT_EQ(records.GPDProjectFormat.ImportGPD_FName.Trimmed(), "C:\\Velmo\\Tendow\\");
    EXPECT_EQ(records.GPDProjectFormat.DefaultDB.Trimmed(), "/common/");
    EXPECT_EQ(records.SystemTendos.TaxPercentage, 8.25F);
    for (const LaborRow& row : records.ProjectLabor)
        EXPECT_EQ(row.LaborPerHour, 40);
}

TEST_F(ProjectData, ADiscountOfExactlyHundredYieldsNoListPrice) {
    EXPECT_EQ(ListPriceFromSalePrice(500, 100), 0);
    // 99.9 in a float is 99.90000153, so the factor is 1000.015
    EXPECT_NEAR(static_cast<double>(ListPriceFromSalePrice(500, 99.9F)), 500000, 10);
    EXPECT_EQ(ListPriceFromSalePrice(500, 0), 500);
    EXPECT_EQ(ListPriceFromSalePrice(500, 150), -1000);
}

TEST_F(ProjectData, ATitleOfFortyOneCharactersIsCutToForty) {
    Project().GPDProjectFormat.Title = std::string(40, 'a') + "b";
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), std::string(40, 'a'));
    Project().GPDProjectFormat.Title = "short";
    EXPECT_EQ(Project().GPDProjectFormat.Title.Padded().size(), 40U);
}

}  // namespace
}  // namespace tendo
