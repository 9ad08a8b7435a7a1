#pragma once

#include <string>
#include <string_view>

#include "equipment/model_tabs.h"
#include "project/project_records.h"

namespace tendo {

enum class OperatingCost { Existing, Proposed, Savings };

/// The operating costs of one side of a system (0 to 4), in dollars a year, as money.
std::string OperatingCostText(const ProjectRecords& records, SelectionMode side, int system,
                              OperatingCost cost);
/// Takes a cost as typed; what is no number counts as 0. A text that stands as it was shown changes
/// nothing. The existing and the proposed cost take the savings along, their difference; savings
/// may be typed over. True when a cost changed.
bool CommitOperatingCost(ProjectRecords& records, SelectionMode side, int system,
                         OperatingCost cost, std::string_view text);

/// The system, counted from 0, whose cost stands as the existing one on reports.
int OperatingCostSystem(const ProjectRecords& records, SelectionMode side, int system);
/// Takes the operating cost of entry `choice` (1 to 5) of the project's list as the existing one.
void ChooseOperatingCost(ProjectRecords& records, SelectionMode side, int system, int choice);

}  // namespace tendo
