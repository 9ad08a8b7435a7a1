#pragma once

#include <string>

class QTableView;

namespace tendo {

/// Gives a grid's columns the widths that are kept under a name; false, and nothing changes, when
/// none are kept or they make no sense for this grid.
bool ApplyStoredWidths(QTableView& grid, const std::string& name);

/// Keeps a grid's widths in the settings store.
void StoreWidths(const QTableView& grid, const std::string& name);

}  // namespace tendo
