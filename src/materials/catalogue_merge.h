#pragma once

#include <span>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// What a catalogue row takes from the line that matches it.
using TakeFields = void (*)(const MaterialRow& line, MaterialRow& row);

/// Marks, quantity, percentages and price: what a project keeps of a line.
void TakeTakeoffFields(const MaterialRow& line, MaterialRow& row);
/// Marks, quantity and price: what a material list keeps of a line.
void TakeListFields(const MaterialRow& line, MaterialRow& row);

/// What became of the lines. A dropped one has no row, or stands behind the second without a row.
struct MergeCounts {
    int matched = 0;
    int appended = 0;  // 0 or 1
    int dropped = 0;
};

/// Enters lines into a price book: each goes to the first row of the same trimmed description and
/// an equal unit cost; row 0 serves the first line only. The first line without a row is appended
/// whole, and the second one ends the merge, as does a blank line without a row. What is looked at
/// loses its leading blanks, lines and rows. An empty book takes nothing. One step a line and one a
/// row. RuntimeError 6 when a line would be the book's 32,768th row; what was merged stands.
MergeCounts MergeIntoCatalogue(std::vector<MaterialRow>& catalogue, std::span<MaterialRow> lines,
                               TakeFields take);

/// Enters the project's takeoff into a freshly loaded catalogue.
MergeCounts ProjectMaterialsToCatalogue();

}  // namespace tendo
