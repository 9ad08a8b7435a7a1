#include "equipment/model_prices.h"

#include <algorithm>
#include <array>
#include <limits>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/list_base.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

constexpr SelectionMode Sides[] = {SelectionMode::Cooling, SelectionMode::Heating,
                                   SelectionMode::WaterHeater};

/// The quantity's place in either records or constant ones.
template <class Records>
auto& QuantityIn(Records& records, SelectionMode side, int system) {
    const auto slot = static_cast<std::size_t>(system);
    if (side == SelectionMode::Cooling) return records.CLGModelData.at(slot).ModelQty;
    if (side == SelectionMode::Heating) return records.HTGModelData.at(slot).ModelQty;
    return records.WHModelData.at(slot).ModelQty;
}

/// A price times its quantity, added up over all models of the project.
float SumWithQuantities(const ProjectRecords& records,
                        ModelPriceColumn ModelPriceColumns::*column) {
    double sum = 0;
    for (int system = 0; system < SystemCount; ++system) {
        const ModelInfoRecord& info = records.ModelInfo[static_cast<std::size_t>(system)];
        for (const SelectionMode side : Sides)
            sum += static_cast<double>(info.*(PricesOf(side).*column)) *
                   ModelQuantity(records, side, system);
    }
    return StoreSingle(sum);
}

/// Rebuilds figures of the price table; one beyond the range of a float leaves all of them as they
/// were.
template <class Step>
void Rebuild(SystemTendosRecord& table, Step step) {
    SystemTendosRecord rebuilt = table;
    try {
        step(rebuilt);
    } catch (const RuntimeError&) {
        return;
    }
    table = rebuilt;
}

}  // namespace

std::int16_t ModelQuantity(const ProjectRecords& records, SelectionMode side, int system) {
    return QuantityIn(records, side, system);
}

void SetModelQuantity(ProjectRecords& records, SelectionMode side, int system,
                      std::string_view text) {
    constexpr float most = std::numeric_limits<std::int16_t>::max();
    QuantityIn(records, side, system) =
        static_cast<std::int16_t>(std::clamp(ValueOfText(text), 0.0F, most));
    RebuildListBases(records);
}

void RebuildListBases(ProjectRecords& records) {
    Rebuild(records.SystemTendos, [&](SystemTendosRecord& table) {
        table.ModelLDPrice = SumWithQuantities(records, &ModelPriceColumns::listPrice);
        RebuildTotalListBase(table);
    });
}

void RebuildModelRow(ProjectRecords& records) {
    double lists = 0;
    for (const ModelInfoRecord& info : records.ModelInfo)
        for (const SelectionMode side : Sides)
            lists += static_cast<double>(info.*PricesOf(side).listPrice);
    Rebuild(records.SystemTendos, [&](SystemTendosRecord& table) {
        table.ModelDealerCost = SumWithQuantities(records, &ModelPriceColumns::dealerCost);
        table.ModelDealerOverride = SumWithQuantities(records, &ModelPriceColumns::dealerOverride);
        table.ModelSalePrice = table.ModelLDPrice = StoreSingle(lists);
    });
}

void RecalcTax(ProjectRecords& records, float first, float second, float labor) {
    double taxable = static_cast<double>(first) + second;
    if (records.GPDProjectFormat.TaxLabor) taxable += labor;
    Rebuild(records.SystemTendos, [&](SystemTendosRecord& table) {
        const double percentage = table.TaxPercentage;
        table.TaxDealerCost = StoreSingle(taxable * percentage / 100);
    });
}

}  // namespace tendo
