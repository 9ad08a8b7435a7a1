#include "materials/material_catalogue.h"

#include <array>
#include <limits>

#include "materials/materials_reader.h"
#include "platform/files/paths.h"
#include "platform/files/settings_store.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr std::array<const char*, 3> MaterialTools = {"ToolMaterialDB", "ToolMaterialLists",
                                                      "ToolLaborLists"};

/// `location` follows the steps, for the report of a failure.
void LoadCatalogue(int& location) {
    const std::string name = State().MaterialDatabaseName;
    location = 1;
    MaterialsReader reader(name);
    location = 2;
    reader.Read(location);
    location = 3;
    const std::size_t count = reader.Count();
    // Rows are counted in 16 bits.
    if (count > std::numeric_limits<std::int16_t>::max()) ThrowError(error_number::Overflow);
    location = 4;
    MaterialCatalogue().assign(count, MaterialRow());
    location = 5;
    reader.MoveInto(MaterialCatalogue());
    location = 6;
    reader.Close();
    location = 7;
    State().MaterialDatabaseLoaded = true;
    for (const char* tool : MaterialTools)
        if (CatalogueHooks().EnableTool) CatalogueHooks().EnableTool(tool);
    location = 8;
    Settings().SaveSetting("Settings", "MaterialDatabase", name);
}

}  // namespace

std::vector<MaterialRow>& MaterialCatalogue() {
    static std::vector<MaterialRow> catalogue;
    return catalogue;
}

MaterialHooks& CatalogueHooks() {
    static MaterialHooks hooks;
    return hooks;
}

std::string CatalogueFailureText(int errorNumber, int location) {
    return "This material database is of the wrong format or is corrupted.  If you have the DOS "
           "version of TENDO, please convert the DOS materials database for use with Windows by "
           "clicking on the Database menu item and selecting CONVERT DOS TENDO FOOTNOTE AND "
           "MATERIAL DATABASES.  If you don't have the DOS version of TENDO, please reinstall "
           "TENDO for Windows. Error: " +
           std::to_string(errorNumber) + "\nLocation =" + std::to_string(location);
}

std::string StoredMaterialDatabase() {
    const std::string ownDatabase = State().ProgramDirectory + "tendo.mdb";
    const std::string stored(
        Trimmed(Settings().GetSetting("Settings", "MaterialDatabase", ownDatabase)));
    return FileExists(stored) ? stored : ownDatabase;
}

bool LoadMaterialCatalogue() {
    int location = 0;
    try {
        LoadCatalogue(location);
        return true;
    } catch (const RuntimeError& error) {
        State().MaterialDatabaseLoaded = false;
        if (CatalogueHooks().Message)
            CatalogueHooks().Message(CatalogueFailureText(error.Number(), location));
        return false;
    }
}

void ResetCatalogueSelections() {
    for (MaterialRow& row : MaterialCatalogue()) {
        row.ItemQty = row.Accessory = row.Tax = 0;
        row.GrossMargin = row.PriceMarkup = row.ListDiscount = row.SalePrice = 0;
    }
}

void ClearCatalogueRows() {
    for (MaterialRow& row : MaterialCatalogue()) {
        const auto category = row.Category;
        row = MaterialRow();
        row.Category = category;
    }
    State().MaterialDatabaseLoaded = false;
}

}  // namespace tendo
