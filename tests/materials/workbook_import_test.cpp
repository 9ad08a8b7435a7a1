#include "materials/workbook_import.h"

#include <cerrno>

#include "materials/material_catalogue.h"
#include "platform/files/safe_file.h"
#include "platform/files/system_calls.h"
#include "platform/office/read_workbook.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "price_book_fixture.h"

namespace tendo {
namespace {

/// A sheet of cells; a row is what is put into it.
Workbook Sheet(const std::vector<std::vector<const char*>>& rows) {
    Workbook workbook;
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
            if (rows[row][column]) workbook.cells.PutReadText(row, column, rows[row][column]);
    workbook.cells.Sort();
    return workbook;
}

const std::vector<const char*> heading = {"Part", "Description", "Unit", "List"};

class WorkbookImportTest : public PriceBookTest {
  protected:
    WorkbookImportTest() { WriteMaterialDatabase(File(), {{"Old", "O-1", "Duct", 1, 2}}); }

    ImportProgress Steps() {
        return [this](const std::string& text, int done, int whole) {
            steps.push_back(text + " " + std::to_string(done) + "/" + std::to_string(whole));
            return stopAt.empty() || text != stopAt;
        };
    }

    /// Imports as the program does; nothing of it is on disk when it is stopped.
    bool Import(const Workbook& workbook, bool replace) {
        Database database = Database::OpenDatabase(File());
        WorkbookImport import(workbook);
        if (!import.Count(Steps())) return false;
        preview = import.Preview(database.OpenRecordset("Materials").RecordCount());
        if (replace) database.DeleteAllRows("Materials");
        if (!import.Convert(database, Steps())) return false;
        database.Close();
        summary = import.Summary();
        return true;
    }

    std::vector<std::string> steps;
    std::string stopAt, preview, summary;
};

TEST_F(WorkbookImportTest, EachColumnGoesToItsPlace) {
    EXPECT_TRUE(Import(
        Sheet({heading, {"D-4", "Whip", "17.25", "23"}, {"0012", "Boot", "9.85", ""}}), false));
    EXPECT_EQ(OnDisk("Materials", "Description"), "Old|Whip|Boot");
    EXPECT_EQ(OnDisk("Materials", "Part Number"), "O-1|D-4|0012");
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "1|17.25|9.85");
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "2|23|0");
    Database database = Database::OpenDatabase(File());
    Recordset rows = database.OpenRecordset("Materials");
    rows.MoveLast();
    EXPECT_TRUE(rows.IsNull("Category"));
    EXPECT_EQ(summary, "");
}

TEST_F(WorkbookImportTest, OverwritingTakesTheFormerMaterialsOutAndLeavesTheCategories) {
    Database database = Database::OpenDatabase(File());
    database.AppendRows("Categories", {{std::string("Duct")}});
    database.Close();
    EXPECT_TRUE(Import(Sheet({heading, {"D-4", "Whip", "17.25", "23"}}), true));
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip");
    EXPECT_EQ(OnDisk("Categories", "Category"), "Duct");
}

TEST_F(WorkbookImportTest, ARowWithOnlyItsFourthCellFilledIsImported) {
    EXPECT_TRUE(Import(Sheet({heading, {nullptr, nullptr, nullptr, "5.50"}}), true));
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "5.5");
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "0");
    EXPECT_EQ(OnDisk("Materials", "Description"), "");
}

TEST_F(WorkbookImportTest, AFullyEmptyRowEndsTheImportEvenIfRowsFollowIt) {
    EXPECT_TRUE(Import(Sheet({heading,
                              {"A", "One", "1", "2"},
                              {nullptr, nullptr, nullptr, nullptr, "a remark in the fifth cell"},
                              {"B", "Two", "1", "2"},
                              {"C", "Three", "1", "2"}}),
                       true));
    EXPECT_EQ(OnDisk("Materials", "Description"), "One");
    EXPECT_TRUE(
        EndsWith(preview, "\nNot imported, because they stand behind the empty row 3: 2 rows"))
        << preview;
}

TEST_F(WorkbookImportTest, TheHeadingIsSkippedWhateverItHolds) {
    EXPECT_TRUE(
        Import(Sheet({{"X", "A material in row 1", "1", "2"}, {"A", "One", "1", "2"}}), true));
    EXPECT_EQ(OnDisk("Materials", "Description"), "One");
    EXPECT_TRUE(Import(Sheet({{}, {"A", "Two", "1", "2"}}), true));
    EXPECT_EQ(OnDisk("Materials", "Description"), "Two");
}

TEST_F(WorkbookImportTest, ACostThatDoesNotConvertIsZeroAndTold) {
    EXPECT_TRUE(
        Import(Sheet({heading, {"A", "One", "call", "2"}, {"B", "Two", "3", "12abc"}}), true));
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "0|3");
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "2|0");
    EXPECT_EQ(
        preview,
        "In the price book now: 1 material\nTo be imported: 2 rows\nCosts that are no number "
        "and become $0.00: 2\nRow 2: unit cost \"call\" is no number: $0.00\nRow 3: list cost "
        "\"12abc\" is no number: $0.00");
    EXPECT_EQ(summary,
              "2 costs are no numbers:\nRow 2: unit cost \"call\" is no number: $0.00\nRow 3: list "
              "cost \"12abc\" is no number: $0.00");
}

TEST_F(WorkbookImportTest, NumbersWrittenAsTextInAnyCountryConvert) {
    EXPECT_TRUE(Import(
        Sheet({heading, {"A", "One", "$1,234.50", "1.234,50"}, {"B", "Two", " 12,5 ", "(3.00)"}}),
        true));
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "1234.5|12.5");
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "1234.5|-3");
}

TEST_F(WorkbookImportTest, OtherKindsOfCellsConvertAsTheirValues) {
    Workbook workbook = Sheet({heading, {"A", "One"}});
    workbook.cells.Put(1, 2, CellKind::Boolean, 1);
    workbook.cells.Put(1, 3, CellKind::Date, 35924);  // 9 May 1998
    workbook.cells.Put(2, 0, CellKind::Number, 12345678901.0);
    workbook.cells.Put(2, 1, CellKind::Date, 35924);
    workbook.cells.Put(2, 2, CellKind::Number, 1E39);
    workbook.cells.Put(2, 3, CellKind::Error, 0, workbook.cells.AddText("#DIV/0!"));
    workbook.cells.Sort();
    EXPECT_TRUE(Import(workbook, true));
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "-1|0");
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "35924|0");
    EXPECT_EQ(OnDisk("Materials", "Part Number"), "A|12345678901");
    EXPECT_EQ(OnDisk("Materials", "Description"), "One|5/9/1998");
    EXPECT_TRUE(Contains(summary, "Row 3: unit cost \"1E+39\" is no number"));
    EXPECT_TRUE(Contains(summary, "Row 3: list cost \"#DIV/0!\" is no number"));
}

TEST_F(WorkbookImportTest, ATextTooLongIsCutAndTold) {
    const std::string text(300, 'x');
    EXPECT_TRUE(Import(Sheet({heading, {"A", text.c_str(), "1", "2"}}), true));
    EXPECT_EQ(OnDisk("Materials", "Description"), std::string(255, 'x'));
    EXPECT_EQ(summary, "1 text was too long:\nRow 2: description cut to 255 letters");
}

TEST_F(WorkbookImportTest, TheStatusLineTellsTheRowAndThePercentage) {
    std::vector<std::vector<const char*>> rows(501, {"A", "One", "1", "2"});
    EXPECT_TRUE(Import(Sheet(rows), true));
    EXPECT_EQ(steps, (std::vector<std::string>{
                         "Processing records...2 0/0", "Processing records...252 0/0",
                         "Converting Material Database from Excel to Tendo...0% 0/500",
                         "Converting Material Database from Excel to Tendo...50% 250/500",
                         "Converting Material Database from Excel to Tendo...100% 500/500"}));
}

TEST_F(WorkbookImportTest, ACancelledImportChangesNothingOnDisk) {
    const std::vector<std::vector<const char*>> rows(501, {"A", "One", "1", "2"});
    for (const char* stop :
         {"Processing records...252", "Converting Material Database from Excel to Tendo...50%",
          "Converting Material Database from Excel to Tendo...100%"}) {
        stopAt = stop;
        EXPECT_FALSE(Import(Sheet(rows), true));
        EXPECT_EQ(OnDisk("Materials", "Description"), "Old") << stop;
    }
}

TEST_F(WorkbookImportTest, AnImportThatCannotBeWrittenChangesNothingOnDisk) {
    const std::string before = ReadWholeFile(File());
    SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    EXPECT_THROW(Import(Sheet({heading, {"A", "One", "1", "2"}}), true), RuntimeError);
    SystemCalls() = SystemCallTable();
    EXPECT_EQ(ReadWholeFile(File()), before);
}

TEST_F(WorkbookImportTest, MoreMaterialsThanATakeoffCanLoadAreToldBefore) {
    const std::vector<std::vector<const char*>> rows(32768, {"A", "One", "1", "2"});
    EXPECT_TRUE(Import(Sheet(rows), false));
    EXPECT_EQ(preview,
              "In the price book now: 1 material\nTo be imported: 32,767 rows\nA takeoff can load "
              "32,767 materials at most.");
    EXPECT_FALSE(LoadMaterialCatalogue());
    EXPECT_TRUE(Import(Sheet(rows), true));
    EXPECT_TRUE(LoadMaterialCatalogue());
    EXPECT_EQ(MaterialCatalogue().size(), 32767U);
}

TEST_F(WorkbookImportTest, ASheetWithoutRowsImportsNothing) {
    EXPECT_TRUE(Import(Sheet({heading}), false));
    EXPECT_EQ(preview, "In the price book now: 1 material\nTo be imported: 0 rows");
    EXPECT_EQ(OnDisk("Materials", "Description"), "Old");
    EXPECT_TRUE(Import(Workbook(), false));
}

TEST_F(WorkbookImportTest, ADatabaseThatIsNoPriceBookIsRefused) {
    const auto refusal = [](Database& database) -> std::string {
        try {
            CheckPriceBook(database);
        } catch (const RuntimeError& error) {
            return error.Description();
        }
        return "";
    };
    Database database = Database::OpenDatabase(File());
    EXPECT_EQ(refusal(database), "");
    jet::TableDefinition materials = database.Table("Materials");
    materials.columns.erase(materials.columns.begin() + 1);
    database.DeleteTable("Materials");
    database.AppendTable(materials);
    EXPECT_TRUE(
        EndsWith(refusal(database), "is no price book: its materials have no column UnitCst."));
    database.DeleteTable("Categories");
    EXPECT_TRUE(EndsWith(refusal(database), "is no price book: it has no table Categories."));
}

TEST_F(WorkbookImportTest, ATextOfCommasIsReadByItsContentAndSaysSo) {
    const Workbook workbook =
        ReadWorkbook("Part,Description,Unit,List\nW-1,\"Whip, 6 ft\",$17.25,23\n", "Prices.xls");
    EXPECT_TRUE(Import(workbook, true));
    EXPECT_EQ(OnDisk("Materials", "Description"), "Whip, 6 ft");
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "17.25");
    EXPECT_TRUE(StartsWith(preview, workbook.remark + "\nIn the price book now"));
    EXPECT_FALSE(workbook.remark.empty());
}

}  // namespace
}  // namespace tendo
