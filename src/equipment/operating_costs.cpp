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

void StoreCost(Info& info, SelectionMode side, OperatingCost cost, float value) {
    info.*ColumnOf(side, cost) = value;
    if (cost == OperatingCost::Savings) return;
    info.*ColumnOf(side, OperatingCost::Savings) =
        StoreSingle(static_cast<double>(info.*ColumnOf(side, OperatingCost::Existing)) -
                    info.*ColumnOf(side, OperatingCost::Proposed));
}

}  // namespace

std::string OperatingCostText(const ProjectRecords& records, SelectionMode side, int system,
                              OperatingCost cost) {
    return FormatNumber(SystemIn(records, system).*ColumnOf(side, cost), MoneyPicture);
}

bool CommitOperatingCost(ProjectRecords& records, SelectionMode side, int system,
                         OperatingCost cost, std::string_view text) {
    if (text == OperatingCostText(records, side, system, cost)) return false;
    StoreCost(SystemIn(records, system), side, cost, ValueOfText(text));
    return true;
}

int OperatingCostSystem(const ProjectRecords& records, SelectionMode side, int system) {
    return SystemIn(records, system).*ColumnsOf(side).selected;
}

void ChooseOperatingCost(ProjectRecords& records, SelectionMode side, int system, int choice) {
    if (choice < 1 || choice > SystemCount) ThrowError(error_number::SubscriptOutOfRange);
    const float chosen = SystemIn(records, choice - 1).*ColumnOf(side, OperatingCost::Existing);
    Info& info = SystemIn(records, system);
    info.*ColumnsOf(side).selected = static_cast<std::int16_t>(choice - 1);
    StoreCost(info, side, OperatingCost::Existing, ValueOfText(FormatNumber(chosen, ListPicture)));
}

}  // namespace tendo
