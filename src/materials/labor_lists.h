#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// Named sets of labor lines, in table "Labor Lists" of `tendo.mdb` in the program directory. A
/// failure shows a message and leaves what was done before; the result is false then.

/// The names of all labor lists, in the order of the table.
std::vector<std::string> LaborListNames();

/// The list under edit, as many lines as a project has.
std::vector<LaborRow>& LaborListEdit();

/// Reads a list into the project's labor; lines behind its end become empty. The costs of its own
/// lines stay as they were, for a list keeps none. A list of more than 16 lines fails at the
/// seventeenth; the sixteenth goes to the spare row.
bool ApplyLaborList(std::string_view name);
/// The same into the list under edit, which is cleared first.
bool LoadLaborListForEdit(std::string_view name);

/// Empties the 15 lines of the list under edit: the rate of the project, the rest 0 or blank. The
/// costs stay.
void ClearLaborListEdit();
/// Copies the project's labor into the list under edit.
void TransferLaborRecords();

/// Writes the lines with hours of the list under edit under a name, in the place of the rows that
/// had it.
bool SaveLaborList(std::string_view name);
bool DeleteLaborList(std::string_view name);

}  // namespace tendo
