#include "materials/screens/import_materials.h"

#include <optional>

#include "materials/screens/frm_edit_materials.h"
#include "materials/workbook_import.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/office/read_workbook.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/progress_window.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* messageTitle = "TENDO";

std::optional<std::string> AskForWorkbook() {
    const auto file = Dialogs().File({.kind = FileDialog::Kind::Open,
                                      .title = "Find Microsoft Excel Spreadsheet to Convert From",
                                      .filter = "Microsoft Excel Workbook (*.xls)|*.xls",
                                      .fileName = "",
                                      .folder = DirectoryOf(State().MaterialDatabaseName),
                                      .defaultExtension = "xls"});
    if (!file || Trimmed(*file).empty()) return std::nullopt;
    return file;
}

/// Yes replaces the materials, No adds to them. What the import would do stands below the question.
Answer AskToOverwrite(const std::string& preview) {
    return Ask(messageTitle,
               "Do you wish to overwrite the materials in the current material database?  If you "
               "select yes, all curent materials in the database will be deleted.  If you select "
               "no, the materials being imported from Excel will be added to your current material "
               "database.\n\n" +
                   preview,
               Buttons::YesNoCancel);
}

/// False when it was stopped on the way.
bool Convert(Database& database, WorkbookImport& import, bool overwrite) {
    const WindowWhileWorking window("Converting...");
    if (overwrite) database.DeleteAllRows("Materials");
    if (!import.Convert(database, ShowStep)) return false;
    database.Close();
    return true;
}

bool Count(WorkbookImport& import) {
    const WindowWhileWorking window("Converting...");
    return import.Count(ShowStep);
}

void RunImport() {
    const Hourglass hourglass;
    Database database = Database::OpenDatabase(State().MaterialDatabaseName);
    CheckPriceBook(database);
    const int materialsNow = database.OpenRecordset("Materials").RecordCount();
    const auto file = AskForWorkbook();
    if (!file) return;
    const Workbook workbook = ReadWorkbook(ReadWholeFile(*file), BaseName(*file));
    WorkbookImport import(workbook);
    if (!Count(import)) return;
    const Answer answer = AskToOverwrite(import.Preview(materialsNow));
    if (answer == Answer::Cancel) return;
    if (!Convert(database, import, answer == Answer::Yes)) return;
    const std::string summary = import.Summary();
    ShowMessage(messageTitle,
                "Import from Excel complete." + (summary.empty() ? "" : "\n\n" + summary),
                MessageIcon::Information);
}

}  // namespace

void ImportMaterialsFromExcel() {
    try {
        RunImport();
    } catch (const RuntimeError& error) {
        ShowMessage(messageTitle,
                    "TENDO encountered an error while in Sub ImportMaterialsFromExcel\n" +
                        error.Description() + "\nThe price book was not changed.",
                    MessageIcon::Warning);
    }
    if (auto* screen = qobject_cast<frmEditMaterials*>(Form::Find("frmEditMaterials")))
        screen->ReadAgainIfChanged();
}

}  // namespace tendo
