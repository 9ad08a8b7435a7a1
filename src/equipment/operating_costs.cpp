#include "equipment/operating_costs.h"

#include <array>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

using Info = SystemInfoRecord;

constexpr std::string_view ListPicture = "$###,###,##0.00";

struct CostColumns {
    std::array<float Info::*, 3> costs;  // in the order of OperatingCost
    std::int16_t Info::*selected;
};
constexpr std::array<CostColumns, 3> ColumnsBySide = {
    {{{&Info::CLGOpCostforSystem, &Info::CLGProposedOpCost, &Info::CLGOpCostSavings},
      &Info::CLGSystemSelected},
     {{&Info::HTGOpCostforSystem, &Info::HTGProposedOpCost, &Info::HTGOpCostSavings},
      &Info::HTGSystemSelected},
     {{&Info::WHOpCostforSystem, &Info::WHProposedOpCost, &Info::WHOpCostSavings},
      &Info::WHSystemSelected}}};

const CostColumns& ColumnsOf(SelectionMode side) {
    return ColumnsBySide[static_cast<std::size_t>(side)];
}

template <class Records>
auto& SystemIn(Records& records, int system) {
    return records.SystemInfo.at(static_cast<std::size_t>(system));
}

float Info::*ColumnOf(SelectionMode side, OperatingCost cost) {
    return ColumnsOf(side).costs[static_cast<std::size_t>(cost)];
}

/// Stores a cost with the savings that follow from it; false, and nothing changes, when they lie
/// beyond the range of a float.
bool StoreCost(Info& info, SelectionMode side, OperatingCost cost, float value) {
    Info changed = info;
    changed.*ColumnOf(side, cost) = value;
    const double existing = changed.*ColumnOf(side, OperatingCost::Existing);
    const double proposed = changed.*ColumnOf(side, OperatingCost::Proposed);
    try {
        if (cost != OperatingCost::Savings)
            changed.*ColumnOf(side, OperatingCost::Savings) = StoreSingle(existing - proposed);
    } catch (const RuntimeError&) {
        return false;
    }
    info = changed;
    return true;
}

}  // namespace

std::string OperatingCostText(const ProjectRecords& records, SelectionMode side, int system,
                              OperatingCost cost) {
    return FormatNumber(SystemIn(records, system).*ColumnOf(side, cost), MoneyPicture);
}

bool CommitOperatingCost(ProjectRecords& records, SelectionMode side, int system,
                         OperatingCost cost, std::string_view text) {
    if (text == OperatingCostText(records, side, system, cost)) return false;
    return StoreCost(SystemIn(records, system), side, cost, ValueOfText(text));
}

int OperatingCostSystem(const ProjectRecords& records, SelectionMode side, int system) {
    return SystemIn(records, system).*ColumnsOf(side).selected;
}

void ChooseOperatingCost(ProjectRecords& records, SelectionMode side, int system, int choice) {
    if (choice < 1 || choice > SystemCount) ThrowError(error_number::SubscriptOutOfRange);
    const float chosen = SystemIn(records, choice - 1).*ColumnOf(side, OperatingCost::Existing);
    Info& info = SystemIn(records, system);
    info.*ColumnsOf(side).selected = static_cast<std::int16_t>(choice - 1);
    const float shown = ValueOfText(FormatNumber(chosen, ListPicture));
    StoreCost(info, side, OperatingCost::Existing, shown);
}

}  // namespace tendo
