#include <cstdio>

#include "materials/workbook_import.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/office/read_workbook.h"
#include "programs/cli/arguments.h"

namespace tendo::cli {
namespace {

bool GoOn(const std::string&, int, int) {
    return true;
}

}  // namespace

void RunPrices(const Arguments& arguments) {
    if (!arguments.Has("--into")) throw UsageError("--into names the price book");
    const std::string& file = arguments.plain[0];
    const Workbook workbook = ReadWorkbook(ReadWholeFile(file), BaseName(file));
    Database database = Database::OpenDatabase(arguments.Value("--into"));
    CheckPriceBook(database);
    WorkbookImport import(workbook);
    import.Count(GoOn);
    if (arguments.Has("--replace")) database.DeleteAllRows("Materials");
    import.Convert(database, GoOn);
    const int materials = database.OpenRecordset("Materials").RecordCount();
    database.Close();
    std::printf("%d rows imported; %s holds %d materials\n", import.RowCount(),
                arguments.Value("--into").c_str(), materials);
    if (!workbook.remark.empty()) std::printf("%s\n", workbook.remark.c_str());
    const std::string summary = import.Summary(import.Unconverted().size());
    if (!summary.empty()) std::printf("%s\n", summary.c_str());
    if (materials > WorkbookImport::MostForTakeoff)
        std::printf("a takeoff can load %d materials at most\n", WorkbookImport::MostForTakeoff);
}

}  // namespace tendo::cli
