#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// Named sets of takeoff lines, in table "Material Lists" of the current material database, so that
/// they travel with its prices. A failure shows a message and leaves what was done before; the
/// result is false then.

/// The names of the current database's lists, in the order of the table.
std::vector<std::string> MaterialListNames();

/// Reads a list into the catalogue: a row of the same trimmed description and an equal unit cost
/// takes its marks, quantity and price. Of the lines without a row only the first is carried over.
/// The name comes back trimmed.
bool ApplyMaterialList(std::string& name);
/// The same into another copy of the catalogue.
bool ApplyMaterialList(std::string& name, std::vector<MaterialRow>& catalogue);

/// Writes the rows with a quantity under a name, in the place of the rows that had it. A price book
/// without the table, or without its column "Category", gets it.
bool SaveMaterialList(std::string_view name, std::span<const MaterialRow> catalogue);

/// Deletes a list of `tendo.mdb` in the program directory, whichever database is current: a list
/// of another price book stays.
bool DeleteMaterialList(std::string_view name);

}  // namespace tendo
