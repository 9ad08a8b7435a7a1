#include <gtest/gtest.h>

#include <map>
#include <set>

#include "equipment/model_database.h"
#include "equipment/model_selection.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

std::string SampleDatabase() {
    return std::string(TENDO_BINARY_DIR) + "/share/tendo/Common/Frostelm.mdb";
}

constexpr const char* ModelTables[] = {"AC File", "HP File", "GS HP File", "GAMA File", "WH File"};

TEST(SampleModels, PassTheFormatCheckAndNameTheirMaker) {
    EXPECT_FALSE(CheckModelDatabase(SampleDatabase()).has_value());
    Database database = Database::OpenDatabase(SampleDatabase());
    EXPECT_EQ(ManufacturerName(database), "Frostelm");
}

TEST(SampleModels, EachTableHasAtLeastSixtyModelsOfTheirOwnNumbers) {
    Database database = Database::OpenDatabase(SampleDatabase());
    for (const char* table : ModelTables) {
        std::set<std::string> numbers;
        Recordset rows = database.OpenRecordset(table);
        EXPECT_GE(rows.RecordCount(), 60) << table;
        for (; !rows.EOF_(); rows.MoveNext()) {
            EXPECT_TRUE(numbers.insert(rows.Text("Model")).second) << rows.Text("Model");
            EXPECT_LE(CharacterCount(rows.Text("Description")), 50U) << rows.Text("Model");
            EXPECT_GT(rows.Double("ListPrice"), rows.Double("DealerCost")) << rows.Text("Model");
        }
    }
}

TEST(SampleModels, AllFuelsAreInUse) {
    Database database = Database::OpenDatabase(SampleDatabase());
    const auto fuels = [&](const char* table) {
        std::set<int> codes;
        Recordset rows = database.OpenRecordset(table);
        for (; !rows.EOF_(); rows.MoveNext())
            codes.insert(rows.Integer("FuelType"));
        return codes;
    };
    EXPECT_EQ(fuels("GAMA File"), (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(fuels("WH File"), (std::set<int>{1, 2, 3, 4, 5}));
}

TEST(SampleModels, EveryTabShowsThemAndFillsEveryColumnSomewhere) {
    for (const SelectionMode mode :
         {SelectionMode::Cooling, SelectionMode::Heating, SelectionMode::WaterHeater}) {
        ProjectRecords records;
        ModelSelection selection(mode, records, 0, {});
        ASSERT_TRUE(selection.ChangeDatabase(SampleDatabase()));
        for (const int tab : selection.VisibleTabs()) {
            for (int column = 0; column < selection.ColumnCount(tab); ++column) {
                bool filled = false;
                for (int row = 0; row < selection.RowCount(tab) && !filled; ++row)
                    filled = !selection.CellText(tab, row, column).empty();
                if (tab == TabBoiler &&
                    (selection.ColumnHeading(tab, column) == "CFM" ||
                     selection.ColumnHeading(tab, column) == "AvailableCooling"))
                    continue;  // a boiler moves no air
                EXPECT_TRUE(filled)
                    << ModelTabAt(tab).name << " " << selection.ColumnHeading(tab, column);
            }
        }
    }
}

}  // namespace
}  // namespace tendo
