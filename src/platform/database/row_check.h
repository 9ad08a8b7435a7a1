#pragma once

#include "platform/jet/jet_types.h"

namespace tendo {

/// A row as its table stores it: each value in its column's type, a Boolean never null.
/// RuntimeError 3421 wrong type, 6 out of range, 3163 text too long, 3315 empty text where none is
/// allowed, 3314 missing required value, 3058 null in a primary key; the description names table
/// and column.
jet::Row CheckedRow(const jet::TableDefinition& table, const jet::Row& row);

}  // namespace tendo
