#pragma once

#include <vector>

#include "project/project_records.h"

namespace tendo {

/// Systems with a sale price of any of their three models.
int CountPricedSystems(const ProjectRecords& project);

/// The system of the one-system table, from 0: the last with a dealer cost of a cooling or heating
/// model or a price of a water heater. Throws RuntimeError 9, which tells the user why, when there
/// is none.
int SystemOfSingleTable(const ProjectRecords& project);

/// The systems of the columns of the other tables, from 0: the first ones with a cooling or heating
/// model, whether priced or not. Throws RuntimeError 9, which tells the user why, when they are
/// fewer than `count`.
std::vector<int> SystemsOfColumns(const ProjectRecords& project, int count);

}  // namespace tendo
