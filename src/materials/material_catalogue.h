#pragma once

#include <functional>
#include <string>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// The price book in memory, as the takeoff screens work on it; replaced whole at each load.
std::vector<MaterialRow>& MaterialCatalogue();

/// What a load asks of the main window; set in one place, app/wiring.cpp.
struct MaterialHooks {
    std::function<void(const std::string& text)> Message;
    /// A loaded price book makes its commands available ("ToolMaterialDB" ...).
    std::function<void(const std::string& tool)> EnableTool;
};
MaterialHooks& CatalogueHooks();

/// The text of a load's failure: the error's number and the step that failed, 1 to 8.
std::string CatalogueFailureText(int errorNumber, int location);

/// `MaterialDatabaseName` from the settings store, trimmed; `tendo.mdb` in the program directory
/// when there is none or the file doesn't exist.
std::string StoredMaterialDatabase();

/// Reads the current material database into the catalogue, by category and description, and
/// remembers it in the settings store. At most 32767 rows (RuntimeError 6 behind the message).
/// False after a failure, which the message hook was told; the catalogue then is as far as the load
/// came and `MaterialDatabaseLoaded` is false.
bool LoadMaterialCatalogue();

/// Clears what a project chose: quantity, accessory and tax marks, percentages and the sale price
/// of every row. The book's own columns stay.
void ResetCatalogueSelections();

/// The catalogue's part of a project reset: description, part number and all numbers of every row
/// go, so that no line stays selected between projects. The category stays.
void ClearCatalogueRows();

}  // namespace tendo
