#include "reports/sales_columns.h"

#include <algorithm>
#include <string>

#include "platform/text/runtime_error.h"
#include "reports/sales_rows.h"

namespace tendo {

namespace {

const ModelInfoRecord& InfoOf(const ProjectRecords& project, int system) {
    return project.ModelInfo[static_cast<std::size_t>(system)];
}

bool IsPriced(const ModelInfoRecord& info) {
    return info.CLGSalePrice != 0 || info.HTGSalePrice != 0 || info.WHSalePrice != 0;
}

/// Cooling and heating count by their cost here, not by the price that the systems are counted by:
/// meant so.
bool IsShownAlone(const ModelInfoRecord& info) {
    return info.CLGModelDealerCost != 0 || info.HTGModelDealerCost != 0 || info.WHSalePrice != 0;
}

bool HasColumn(const ProjectRecords& project, int system) {
    return !ModelNumber(project, Side::Cooling, system).empty() ||
           !ModelNumber(project, Side::Heating, system).empty();
}

template <class IsWanted>
std::vector<int> SystemsThat(IsWanted&& isWanted) {
    std::vector<int> systems;
    for (int system = 0; system < SystemCount; ++system)
        if (isWanted(system)) systems.push_back(system);
    return systems;
}

/// "System 2 has" or "Systems 1, 2 and 4 have".
std::string SystemsHave(const std::vector<int>& systems) {
    std::string numbers;
    for (std::size_t i = 0; i < systems.size(); ++i) {
        if (i > 0) numbers += i + 1 == systems.size() ? " and " : ", ";
        numbers += std::to_string(systems[i] + 1);
    }
    return systems.size() == 1 ? "System " + numbers + " has" : "Systems " + numbers + " have";
}

/// What is left out when the systems with a price and the systems to be shown disagree.
[[noreturn]] void StopAtTable(const std::vector<int>& systems, const char* lack,
                              const char* remedy) {
    throw RuntimeError(error_number::SubscriptOutOfRange,
                       SystemsHave(systems) + " a price but " + lack +
                           ", so the comparison table and the footnotes behind it are left out. " +
                           remedy + ", or set the prices there to 0. Then write the report again.");
}

}  // namespace

int CountPricedSystems(const ProjectRecords& project) {
    return static_cast<int>(
        std::count_if(project.ModelInfo.begin(), project.ModelInfo.end(), IsPriced));
}

int SystemOfSingleTable(const ProjectRecords& project) {
    const std::vector<int> systems =
        SystemsThat([&](int system) { return IsShownAlone(InfoOf(project, system)); });
    if (!systems.empty()) return systems.back();
    StopAtTable(SystemsThat([&](int system) { return IsPriced(InfoOf(project, system)); }),
                "no dealer cost", "Enter the dealer cost of its model");
}

std::vector<int> SystemsOfColumns(const ProjectRecords& project, int count) {
    std::vector<int> systems = SystemsThat([&](int system) { return HasColumn(project, system); });
    if (static_cast<int>(systems.size()) < count)
        StopAtTable(SystemsThat([&](int system) {
                        return IsPriced(InfoOf(project, system)) && !HasColumn(project, system);
                    }),
                    "neither a cooling nor a heating model", "Choose a model there");
    systems.resize(static_cast<std::size_t>(count));
    return systems;
}

}  // namespace tendo
