#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/jet_types.h"
#include "platform/jet/row_source.h"

namespace tendo::jet {

struct TableToWrite {
    TableDefinition definition;
    RowSource rows;  // may be empty: no rows
};

/// The bytes of a fresh Jet 4 file (code page 1252, General order, no password) with these tables.
/// Throws RuntimeError 3163 for a text too long for its column, 3047 for a row too long for a page,
/// 3022 for a duplicate in a unique index. `made` is the time of making as a serial date.
std::string WriteFile(const std::vector<TableToWrite>& tables, double made);

}  // namespace tendo::jet
