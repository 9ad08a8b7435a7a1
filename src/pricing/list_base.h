#pragma once

#include "project/project_records.h"

namespace tendo {

/// Adds up the list bases of all rows and the tax: what the Total row's discount is measured
/// against, in dollars. RuntimeError 6 beyond the range of a float.
void RebuildTotalListBase(SystemTendosRecord& tendos);

}  // namespace tendo
