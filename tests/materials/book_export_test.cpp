#include "materials/book_export.h"

#include "materials/workbook_import.h"
#include "platform/office/read_workbook.h"
#include "platform/text/text.h"
#include "price_book_fixture.h"

namespace tendo {
namespace {

class BookExport : public PriceBookTest {
  protected:
    BookExport() {
        Make({{"Whip, 6 ft", "D-4", "Electrical", 17.25, 23},
              {"3/8\" line", "0012", std::nullopt, 9.855, std::nullopt},
              {std::nullopt, "7", "Duct", 123456.5, -2}});
    }
};

TEST_F(BookExport, ATextWithCommasStandsAsTheImportWantsItInTheGridsOrder) {
    book.SortBy(2);
    EXPECT_EQ(ExportOfBook(book.Rows(), "prices.CSV"),
              "Part Number,Description,Unit Cost,List Cost,Category\r\n"
              "0012,\"3/8\"\" line\",9.855\r\n"
              "7,,123456.5,-2,Duct\r\n"
              "D-4,\"Whip, 6 ft\",17.25,23,Electrical\r\n");
}

TEST_F(BookExport, AWorkbookComesBackAsItWent) {
    const std::string bytes = ExportOfBook(book.Rows(), "prices.xlsx");
    const Workbook workbook = ReadWorkbook(bytes, "prices.xlsx");
    EXPECT_EQ(workbook.kind, WorkbookKind::Xlsx);
    EXPECT_EQ(workbook.sheetName, "Materials");
    const auto always = [](const std::string&, int, int) { return true; };
    WorkbookImport import(workbook);
    EXPECT_TRUE(import.Count(always));
    EXPECT_EQ(import.RowCount(), 3);
    Database database = Database::OpenDatabase(File());
    database.DeleteAllRows("Materials");
    EXPECT_TRUE(import.Convert(database, always));
    database.Close();
    EXPECT_EQ(OnDisk("Materials", "Part Number"), "7|0012|D-4");
    EXPECT_EQ(OnDisk("Materials", "Description"), "|3/8\" line|Whip, 6 ft");
    EXPECT_EQ(OnDisk("Materials", "UnitCst"), "123456.5|9.855|17.25");
    EXPECT_EQ(OnDisk("Materials", "ListCst"), "-2|0|23");
}

TEST_F(PriceBookTest, AnEmptyBookExportsItsHeading) {
    Make({});
    EXPECT_EQ(ExportOfBook(book.Rows(), "prices.csv"),
              "Part Number,Description,Unit Cost,List Cost,Category\r\n");
}

}  // namespace
}  // namespace tendo
