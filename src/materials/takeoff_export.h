#pragma once

#include <span>
#include <string>

#include "platform/office/cell_grid.h"
#include "project/project_records.h"

namespace tendo {

/// A takeoff as a sheet: a heading, then one row a line.
CellGrid TakeoffSheet(std::span<const MaterialRow> lines);

/// Writes a takeoff to a file: a workbook for a name that ends in ".xlsx", separated values for any
/// other. Throws as ReplaceFile.
void ExportTakeoff(std::span<const MaterialRow> lines, const std::string& fileName);

}  // namespace tendo
