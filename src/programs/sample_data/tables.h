#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_types.h"
#include "programs/sample_data/csv.h"

namespace tendo {

/// A column by its head in a source file: "Model Text(35)", "EPA Boolean", "Part Number Text(255)".
/// RuntimeError 5 for an unknown type.
jet::Column ColumnOfHead(const std::string& head);

/// A value by its cell: Yes or No, plain numbers, dates as 2026-05-04; an empty cell is null, but
/// for texts. RuntimeError 13 for a cell that doesn't read as its type.
jet::Value ValueOfCell(const std::string& cell, jet::ColumnType type);

/// Makes every database that `sample_data.csv` in the source directory lists, in the output
/// directory. A cell "@NAME" stands for the text of that file.
void BuildDatabases(const std::string& source, const std::string& output);

}  // namespace tendo
