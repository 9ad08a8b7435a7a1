#pragma once

#include <string>
#include <vector>

#include "platform/jet/table_definition.h"

namespace tendo::jet {

/// Checks one index: its tree is sound and consists of `pages`, entries ascend, a unique key stands
/// once, each row is found under its own key. Keys that this program can't compute (texts in
/// another order or of Jet 3, characters outside Windows-1252, cut keys) are checked for order and
/// row alone. `rowsWhole`: the rows could all be read; else only the tree is checked. Gives the
/// faults.
std::vector<std::string> CheckIndex(const PageFile& file, const StoredTable& table,
                                    const RealIndex& index, const std::vector<std::uint32_t>& pages,
                                    bool rowsWhole);

}  // namespace tendo::jet
