#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_types.h"

namespace tendo::jet3 {

struct Table {
    jet::TableDefinition definition;  // indexes aren't made
    std::vector<jet::Row> rows;
};

/// The bytes of a small Jet 3 file with these tables, for tests of what reads such files: code page
/// 1252, no password, no indexes, and of the system tables the catalogue alone, in the columns that
/// readers look for. std::invalid_argument for what doesn't fit: 1024 pages, a definition or a row
/// longer than a page.
std::string FileBytes(const std::vector<Table>& tables);

}  // namespace tendo::jet3
