#include "project/record_access.h"

#include "project_fixture.h"

namespace tendo {
namespace {

class RecordAccess : public ProjectTest {
  protected:
    ProjectRecords records;
};

TEST_F(RecordAccess, APathReachesEveryKindOfRecord) {
    SetRecord(records, "SystemTendos.ModelSalePrice", "1000");
    SetRecord(records, "CLGModelData[0].ModelNum", "BC12  ");
    SetRecord(records, "ProjectMaterials[3].ItemQty", "7");
    SetRecord(records, "ProjectLabor[15].QtyHrs", "2.5");
    SetRecord(records, "gvNumOfFootnotes", "2");
    SetRecord(records, "GPDProjectFormat.TaxLabor", "False");
    EXPECT_EQ(records.SystemTendos.ModelSalePrice, 1000);
    EXPECT_EQ(RecordAt(records, "SystemTendos.ModelSalePrice"), 1000);
    EXPECT_EQ(RecordAt(records, "CLGModelData[0].ModelNum"), "BC12");
    EXPECT_EQ(RecordAt(records, "ProjectMaterials[3].ItemQty"), 7);
    EXPECT_EQ(RecordAt(records, "ProjectLabor[15].QtyHrs"), 2.5);
    EXPECT_EQ(RecordAt(records, "gvNumOfFootnotes"), 2);
    EXPECT_EQ(RecordAt(records, "GPDProjectFormat.TaxLabor"), false);
}

TEST_F(RecordAccess, WholeRecordsAndListsAreObjectsAndArrays) {
    EXPECT_EQ(RecordAt(records, "SystemTendos").size(), 40U);
    EXPECT_EQ(RecordAt(records, "ModelInfo").size(), 5U);
    EXPECT_EQ(RecordAt(records, "ModelInfo[4]").size(), 21U);
    EXPECT_EQ(RecordAt(records, "ProjectLabor").size(), 16U);
    records.ProjectMaterials[2].ItemQty = 1;
    EXPECT_EQ(RecordAt(records, "ProjectMaterials").size(), 3U);  // up to the last line in use
    EXPECT_EQ(RecordsAsJson(records).size(), 15U);
    EXPECT_EQ(RecordsAsJson(records)["SystemTendos"]["TaxPercentage"], 8.25);
}

TEST_F(RecordAccess, FloatsAreWrittenAsTheShortestDecimal) {
    records.SystemTendos.Profit = 0.1F;
    records.SystemTendos.TaxDealerCost = 27.499725F;
    EXPECT_EQ(RecordAt(records, "SystemTendos.Profit").dump(), "0.1");
    EXPECT_EQ(RecordAt(records, "SystemTendos.TaxDealerCost").dump(), "27.499725");
}

TEST_F(RecordAccess, TextsLoseTheirTrailingBlanksOnly) {
    SetRecord(records, "GPDClientFormat.Name", "  Quellhaven & Co  ");
    EXPECT_EQ(RecordAt(records, "GPDClientFormat.Name"), "  Quellhaven & Co");
}

TEST_F(RecordAccess, AFootnoteBeyondTheEndMakesItsListGrow) {
    SetRecord(records, "ProjectFootNotes[2].Name", "Terms");
    EXPECT_EQ(records.ProjectFootNotes.size(), 3U);
    EXPECT_EQ(records.gvNumOfFootnotes, 3);
    EXPECT_EQ(RecordAt(records, "ProjectFootNotes").size(), 3U);
    SetRecord(records, "ProjectAccRptFootNotes[0].Description", "{\\rtf1 x}");
    EXPECT_EQ(records.NumOfAccRptFootnotes, 1);
    EXPECT_EQ(RecordAt(records, "ProjectAccRptFootNotes[0].Description"), "{\\rtf1 x}");
}

TEST_F(RecordAccess, AnUnknownPathIsToldWithItsName) {
    for (const char* path :
         {"Nothing", "SystemTendos.Nothing", "ModelInfo[5]", "ModelInfo[-1]", "ModelInfo[",
          "ModelInfo[1", "ModelInfo[x]", "SystemTendos[0]", "gvNumOfFootnotes[0]",
          "gvNumOfFootnotes.X", "ProjectMaterials[1001].ItemQty", "", ".", "ModelInfo.X",
          "ProjectFootNotes[99999999999999999999].Name"}) {
        try {
            RecordAt(records, path);
            ADD_FAILURE() << path;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), error_number::ItemNotFound);
            EXPECT_NE(error.Description().find(path), std::string::npos);
        }
        EXPECT_EQ(ErrorOf([&] { SetRecord(records, path, "1"); }), error_number::ItemNotFound)
            << path;
    }
    EXPECT_EQ(ErrorOf([&] { SetRecord(records, "ProjectFootNotes[40000].Name", "x"); }),
              error_number::ItemNotFound);
}

TEST_F(RecordAccess, AWrongValueIsRefused) {
    EXPECT_EQ(ErrorOf([&] { SetRecord(records, "SystemTendos.Profit", "much"); }),
              error_number::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { SetRecord(records, "gvNumOfFootnotes", "40000"); }),
              error_number::Overflow);
    EXPECT_EQ(ErrorOf([&] { SetRecord(records, "SystemTendos.Profit", "1e300"); }),
              error_number::Overflow);
    EXPECT_EQ(ErrorOf([&] { SetRecord(records, "GPDProjectFormat.TaxLabor", "maybe"); }),
              error_number::TypeMismatch);
}

TEST_F(RecordAccess, WithoutRecordsTheOpenProjectIsMeant) {
    SetRecord("GPDProjectFormat.Title", "Thornquist");
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Thornquist");
    EXPECT_EQ(RecordAt("GPDProjectFormat.Title"), "Thornquist");
}

}  // namespace
}  // namespace tendo
