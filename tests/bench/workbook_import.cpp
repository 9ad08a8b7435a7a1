#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "../materials/material_databases.h"
#include "benchmarks.h"
#include "materials/workbook_import.h"
#include "measure.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/office/read_workbook.h"
#include "platform/office/xlsx_writer.h"

namespace tendo::bench {
namespace {

constexpr std::size_t Rows = 10'000;

CellGrid PriceSheet() {
    CellGrid cells;
    const char* heading[] = {"Part Number", "Description", "Unit Cost", "List Cost"};
    for (std::size_t column = 0; column < 4; ++column)
        cells.PutText(0, column, heading[column]);
    for (std::size_t row = 1; row <= Rows; ++row) {
        cells.PutText(row, 0, "PN-" + std::to_string(row));
        cells.PutText(row, 1, "Galvanized duct fitting number " + std::to_string(row));
        cells.Put(row, 2, CellKind::Number, static_cast<double>(row) / 4);
        cells.Put(row, 3, CellKind::Number, static_cast<double>(row) / 2);
    }
    cells.Sort();
    return cells;
}

/// Reads the workbook, imports its rows into an empty price book and writes that.
void Import(const std::string& bookFile, const std::string& databaseFile) {
    const Workbook workbook = ReadWorkbook(ReadWholeFile(bookFile), bookFile);
    WorkbookImport import(workbook);
    const ImportProgress goOn = [](const std::string&, int, int) { return true; };
    Database database = Database::OpenDatabase(databaseFile);
    if (!import.Count(goOn) || !import.Convert(database, goOn))
        throw std::runtime_error("the import stopped");
    database.Close();
}

/// A program that has just been started converts the same workbook to .csv.
void Convert(const std::string& bookFile, const std::string& folder) {
    const std::string command = "soffice --headless --convert-to csv --outdir '" + folder + "' '" +
                                bookFile + "' >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0) throw std::runtime_error("soffice failed");
}

}  // namespace

bool WorkbookImportSpeed(const std::string& folder) {
    if (std::system("command -v soffice >/dev/null") != 0) {
        Skip("import of 10,000 rows (LibreOffice to .csv)", "LibreOffice is not installed");
        return true;
    }
    const std::string bookFile = WithSeparator(folder) + "prices.xlsx",
                      databaseFile = WithSeparator(folder) + "imported.mdb";
    ReplaceFile(bookFile, WriteXlsx(PriceSheet(), "Prices", {}));
    std::filesystem::remove(databaseFile);
    WriteMaterialDatabase(databaseFile, {});
    const std::string emptyBook = ReadWholeFile(databaseFile);
    const auto medians = Medians({[&] {
                                      ReplaceFile(databaseFile, emptyBook);
                                      Import(bookFile, databaseFile);
                                  },
                                  [&] { Convert(bookFile, folder); }},
                                 5);
    return Report("import of 10,000 rows, rows per second (LibreOffice)", Rows / medians[0],
                  Rows / medians[1], "rows/s", 10.0, false);
}

}  // namespace tendo::bench
