#pragma once

#include "project/project_records.h"

namespace tendo {

/// Fills the price table of a job from its models, materials and labor, as closing the material,
/// the labor and the price table's screen leaves it.
void PriceJob(ProjectRecords& records);

}  // namespace tendo
