#include "app/screens/database_commands.h"

#include "app/database_repair.h"
#include "app/screens/pointer.h"
#include "materials/material_catalogue.h"
#include "materials/screens/frm_mat_costs.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* title = "TENDO";
constexpr const char* backupFilter = "TENDO Backup Database (*.bkt)|*.bkt";
constexpr const char* floppy = "a:\\";

std::string WithNumber(const char* text, int number) {
    return std::string(text) + "  Error number " + std::to_string(number) + ".";
}

void ExportTo(const std::string& target) {
    if (Trimmed(target).empty()) return ShowMessage(title, "Export failed.  Try another disk.");
    HourglassPointer();
    CopyFileOver(State().MaterialDatabaseName, target);
    NormalPointer();
    ShowMessage(title, "Export complete.");
}

/// An open takeoff goes over into the book.
void LoadPriceBookAnew() {
    Form::StoreAllFields();
    LoadMaterialCatalogue();
    ReloadMaterialTakeoff();
}

void ImportFrom(const std::string& source) {
    if (!FileExists(source)) return ShowMessage(title, "Import failed.");
    const std::string& database = State().MaterialDatabaseName;
    HourglassPointer();
    if (FileExists(database)) {
        const std::string stem(FirstCharacters(database, CharacterCount(database) - 3));
        CopyFileOver(database, stem + "mdb.old");
    }
    CopyFileOver(source, database);
    LoadPriceBookAnew();
    NormalPointer();
    ShowMessage(title, "Import complete.");
}

}  // namespace

void mnuRepairTendoDatabase_Click() {
    HourglassPointer();
    try {
        RepairDatabase(State().MaterialDatabaseName);
        LoadPriceBookAnew();
        NormalPointer();
        ShowMessage(title, "Database repaired.");
    } catch (const RuntimeError& error) {
        NormalPointer();
        ShowMessage(title, "Repair unsuccessful!\nError number: " + std::to_string(error.Number()));
    }
}

void mnuExportTendoDatabaseToDisk_Click() {
    ShowMessage(title,
                "Please insert a blank, formatted 1.44 MB floppy disk into your floppy drive.");
    if (!FileExists(State().MaterialDatabaseName)) return;
    try {
        const auto target = Dialogs().File({.kind = FileDialog::Kind::Save,
                                            .title = "Export Material/Footnote Database to Disk",
                                            .filter = backupFilter,
                                            .fileName = std::string(floppy) + "tendo.bkt",
                                            .folder = floppy,
                                            .defaultExtension = ""});
        if (target) ExportTo(*target);
    } catch (const RuntimeError& error) {
        NormalPointer();
        ShowMessage(title, WithNumber("Export failed.  Try another disk.", error.Number()));
    }
}

void mnuImportTendoDatabaseFromDisk_Click() {
    ShowMessage(title,
                "Please insert the 1.44 MB floppy disk that contains the exported TENDO "
                "materials/footnotes database into your floppy drive.");
    if (!FileExists(State().MaterialDatabaseName)) return;
    try {
        const auto source = Dialogs().File({.kind = FileDialog::Kind::Open,
                                            .title = "Import Material/Footnote Database from Disk",
                                            .filter = backupFilter,
                                            .fileName = "",
                                            .folder = floppy,
                                            .defaultExtension = ""});
        if (source) ImportFrom(*source);
    } catch (const RuntimeError& error) {
        NormalPointer();
        ShowMessage(title, WithNumber("Import failed.", error.Number()));
    }
}

}  // namespace tendo
