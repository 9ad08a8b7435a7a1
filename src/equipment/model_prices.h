#pragma once

#include <cstdint>
#include <string_view>

#include "equipment/model_tabs.h"
#include "pricing/model_price_columns.h"
#include "project/project_records.h"

namespace tendo {

/// How many of the side's model the system (0 to 4) has.
std::int16_t ModelQuantity(const ProjectRecords& records, SelectionMode side, int system);
/// Takes a quantity as typed and rebuilds the list bases; more than 32,767 counts as that.
void SetModelQuantity(ProjectRecords& records, SelectionMode side, int system,
                      std::string_view text);

/// What follows changes nothing where a figure lies beyond the range of a float.

/// The list base of the models: list price times quantity over all five systems; then the total's.
void RebuildListBases(ProjectRecords& records);

/// Rebuilds the four columns of the Model row from the models of all five systems. Costs and
/// overrides count with their quantities. The sale price becomes the sum of the list prices,
/// without quantity: meant so, prices typed for single models don't reach the project's table.
void RebuildModelRow(ProjectRecords& records);

/// The tax as a cost: the project's percentage of two amounts and, where labor is taxed, a third
/// one, kept with all its decimals.
void RecalcTax(ProjectRecords& records, float first, float second, float labor);

}  // namespace tendo
