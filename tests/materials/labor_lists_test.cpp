#include "materials/labor_lists.h"

#include <gtest/gtest.h>

#include "list_tables.h"
#include "material_databases.h"
#include "platform/files/safe_file.h"
#include "project/program_state.h"

namespace tendo {
namespace {

using Names = std::vector<std::string>;
constexpr const char* unable = "Unable to Access Labor Lists Table in tendo.mdb. Error: ";

class LaborListsTest : public testing::Test {
  protected:
    void SetUp() override {
        WriteMaterialDatabase(path, {});
        for (LaborRow& row : LaborListEdit())
            row = LaborRow();
    }
    void TearDown() override { Project() = ProjectRecords(); }

    static std::vector<LaborListRow> LinesOf(const std::string& list, int count) {
        std::vector<LaborListRow> rows;
        for (int i = 1; i <= count; ++i)
            rows.push_back({list, double(i), "Line " + std::to_string(i), 40, 20, 25, 50.0 * i});
        return rows;
    }

    BookFolder folder;
    std::string path = folder.Path("tendo.mdb");
    std::vector<LaborRow>& project = Project().ProjectLabor;
};

TEST_F(LaborListsTest, NamesComeOnceEachTrimmedInTheOrderOfTheTable) {
    AddLaborLists(path, {{"Boiler"}, {"Air"}, {" Boiler "}, {"boiler"}, {"Air"}});
    EXPECT_EQ(LaborListNames(), (Names{"Boiler", "Air", "boiler"}));
}

TEST_F(LaborListsTest, ADatabaseWithoutTheTableHasNoLists) {
    EXPECT_EQ(LaborListNames(), Names());
    EXPECT_TRUE(folder.messages.empty());
}

TEST_F(LaborListsTest, ApplyingReadsTheListIntoTheProject) {
    AddLaborLists(path, {{"Other", 9, "Not this", 1, 2, 3, 4},
                         {"Air", 2, "Recover refrigerant", 35, 30, 42.9, 100},
                         {"Air", 4.5, std::string(60, 'x'), 40, 25, 33.3, 240}});
    project[0].LaborCost = 999;  // a list keeps no costs, so this one isn't touched
    project[5] = {8, "Old line", 40, 320, 0, 0, 320};
    EXPECT_TRUE(ApplyLaborList("Air"));
    EXPECT_EQ(project[0].QtyHrs, 2);
    EXPECT_EQ(project[0].LaborDescription.Trimmed(), "Recover refrigerant");
    EXPECT_EQ(project[0].LaborPerHour, 35);
    EXPECT_EQ(project[0].LaborCost, 999);
    EXPECT_EQ(project[0].GrossMargin, 30);
    EXPECT_EQ(project[0].PriceMarkup, 42.9F);
    EXPECT_EQ(project[0].LaborPrice, 100);
    EXPECT_EQ(project[1].QtyHrs, 4.5F);
    EXPECT_EQ(project[1].LaborDescription.Trimmed(), std::string(50, 'x'));
    EXPECT_EQ(project[5].QtyHrs, 0);  // the former entries are overwritten
    EXPECT_EQ(project[5].LaborCost, 0);
}

TEST_F(LaborListsTest, AListWhoseNameDiffersOnlyInBlanksAtTheEndsIsTheSameList) {
    AddLaborLists(path, {{" Air", 1}, {"Air  ", 2}, {"air", 3}});
    EXPECT_TRUE(ApplyLaborList("  Air "));
    EXPECT_EQ(project[0].QtyHrs, 1);
    EXPECT_EQ(project[1].QtyHrs, 2);
    EXPECT_EQ(project[2].QtyHrs, 0);
}

TEST_F(LaborListsTest, AListOfSeventeenLinesFailsAtTheSeventeenth) {
    AddLaborLists(path, LinesOf("Long", 17));
    EXPECT_FALSE(ApplyLaborList("Long"));
    ASSERT_EQ(folder.messages.size(), 1U);
    EXPECT_EQ(folder.messages[0], std::string(unable) + "9 Subscript out of range");
    EXPECT_EQ(project.size(), 16U);
    EXPECT_EQ(project[14].LaborDescription.Trimmed(), "Line 15");
    EXPECT_EQ(project[15].LaborDescription.Trimmed(), "Line 16");  // the spare row
}

TEST_F(LaborListsTest, AListOfSixteenLinesFillsTheFifteenAndTheSpareRow) {
    AddLaborLists(path, LinesOf("Long", 16));
    EXPECT_TRUE(ApplyLaborList("Long"));
    EXPECT_TRUE(folder.messages.empty());
    EXPECT_EQ(project[14].QtyHrs, 15);
    EXPECT_EQ(project[15].QtyHrs, 16);
}

TEST_F(LaborListsTest, AFailureToReadIsToldAndLeavesTheProject) {
    project[0] = {8, "Old line", 40, 320, 0, 0, 320};
    EXPECT_FALSE(ApplyLaborList("Air"));
    ASSERT_EQ(folder.messages.size(), 1U);
    EXPECT_EQ(folder.messages[0].find(std::string(unable) + "3078 "), 0U) << folder.messages[0];
    EXPECT_EQ(project[0].QtyHrs, 8);
    DeleteFileIfThere(path);
    EXPECT_FALSE(ApplyLaborList("Air"));
    EXPECT_EQ(folder.messages.back().find(std::string(unable) + "3024 "), 0U);
}

TEST_F(LaborListsTest, AListForEditReplacesWhatWasThere) {
    AddLaborLists(path, {{"Air", 2, "Start up", 35, 30, 42.9, 100}});
    Project().GPDProjectFormat.LaborRate = 45;
    LaborListEdit()[0].LaborCost = 7;
    LaborListEdit()[1] = {8, "Old line", 40, 320, 1, 2, 320};
    EXPECT_TRUE(LoadLaborListForEdit("Air"));
    EXPECT_EQ(LaborListEdit()[0].QtyHrs, 2);
    EXPECT_EQ(LaborListEdit()[0].LaborPerHour, 35);
    EXPECT_EQ(LaborListEdit()[0].LaborCost, 7);
    EXPECT_EQ(LaborListEdit()[1].QtyHrs, 0);
    EXPECT_TRUE(LaborListEdit()[1].LaborDescription.IsBlank());
    EXPECT_EQ(project[0].QtyHrs, 0);
}

TEST_F(LaborListsTest, ClearingTheListUnderEditGivesTheProjectsRateAndKeepsTheCosts) {
    Project().GPDProjectFormat.LaborRate = 45;
    for (LaborRow& row : LaborListEdit())
        row = {8, "Old line", 40, 320, 20, 25, 400};
    ClearLaborListEdit();
    for (std::size_t i = 0; i < SavedLaborRowCount; ++i) {
        const LaborRow& row = LaborListEdit()[i];
        EXPECT_TRUE(row.LaborDescription.IsBlank()) << i;
        EXPECT_EQ(row.LaborPerHour, 45) << i;
        EXPECT_EQ(row.LaborCost, 320) << i;
        EXPECT_EQ(row.QtyHrs + row.GrossMargin + row.PriceMarkup + row.LaborPrice, 0) << i;
    }
    EXPECT_EQ(LaborListEdit()[15].QtyHrs, 8);
}

TEST_F(LaborListsTest, SavingReplacesTheRowsOfItsNameAndDropsLinesWithoutHours) {
    AddLaborLists(path, {{"Air", 9, "Old"}, {"Boiler", 3, "Stays"}, {" Air ", 8, "Old too"}});
    LaborListEdit()[0] = {2, "Start up", 35, 70, 30, 42.9F, 100};
    LaborListEdit()[1] = {0, "No hours", 35, 0, 0, 0, 50};
    LaborListEdit()[14] = {-1.5F, "Credit", 40, -60, 0, 0, -60};
    LaborListEdit()[15] = {4, "The spare row", 40, 160, 0, 0, 160};
    EXPECT_TRUE(SaveLaborList(" Air "));
    const std::vector<LaborListRow> expected = {{"Boiler", 3, "Stays"},
                                                {"Air", 2, "Start up", 35, 30, 42.9F, 100},
                                                {"Air", -1.5, "Credit", 40, 0, 0, -60}};
    EXPECT_EQ(LaborLists(path), expected);
}

TEST_F(LaborListsTest, SavingUnderANewNameCopies) {
    AddLaborLists(path, {{"Air", 2, "Start up", 35, 30, 42.5, 100}});
    LoadLaborListForEdit("Air");
    EXPECT_TRUE(SaveLaborList("Air, two floors"));
    const std::vector<LaborListRow> expected = {
        {"Air", 2, "Start up", 35, 30, 42.5, 100},
        {"Air, two floors", 2, "Start up", 35, 30, 42.5, 100}};
    EXPECT_EQ(LaborLists(path), expected);
}

TEST_F(LaborListsTest, AListVanishesWithItsLastRow) {
    AddLaborLists(path, {{"Air", 2, "Start up"}, {"Boiler", 3, "Stays"}});
    EXPECT_TRUE(SaveLaborList("Air"));  // nothing with hours is under edit
    EXPECT_EQ(LaborListNames(), Names{"Boiler"});
    EXPECT_TRUE(DeleteLaborList(" Boiler"));
    EXPECT_EQ(LaborListNames(), Names());
}

TEST_F(LaborListsTest, RowsDeletedBeforeAFailureStayDeleted) {
    AddLaborLists(path, {{"Air", 2, "Start up"}, {"Boiler", 3, "Stays"}}, "LaborPrice");
    LaborListEdit()[0] = {2, "Start up", 35, 70, 30, 42.9F, 100};
    EXPECT_FALSE(SaveLaborList("Air"));
    ASSERT_EQ(folder.messages.size(), 1U);
    EXPECT_EQ(folder.messages[0].find(std::string(unable) + "3265 "), 0U) << folder.messages[0];
    EXPECT_EQ(LaborListNames(), Names{"Boiler"});
}

TEST_F(LaborListsTest, LaborListsStandInTheProgramsOwnDatabaseWhicheverIsCurrent) {
    AddLaborLists(path, {{"Air", 2, "Start up"}});
    const std::string other = folder.Path("other.mdb");
    WriteMaterialDatabase(other, {});
    AddLaborLists(other, {{"Elsewhere", 2, "Not this"}});
    State().MaterialDatabaseName = other;
    EXPECT_EQ(LaborListNames(), Names{"Air"});
}

TEST_F(LaborListsTest, TheProjectsLaborIsCopiedWithAllItsFields) {
    project[0] = {10, "Set condenser", 40, 400, 25, 33.3F, 533.33F};
    LaborListEdit()[3].QtyHrs = 5;
    TransferLaborRecords();
    const LaborRow& row = LaborListEdit()[0];
    EXPECT_EQ(row.QtyHrs, 10);
    EXPECT_EQ(row.LaborDescription.Trimmed(), "Set condenser");
    EXPECT_EQ(row.LaborPerHour, 40);
    EXPECT_EQ(row.LaborCost, 400);
    EXPECT_EQ(row.GrossMargin, 25);
    EXPECT_EQ(row.PriceMarkup, 33.3F);
    EXPECT_EQ(row.LaborPrice, 533.33F);
    EXPECT_EQ(LaborListEdit()[3].QtyHrs, 0);
}

}  // namespace
}  // namespace tendo
