#include "pricing/priced_models.h"

#include <cstddef>

#include "platform/files/paths.h"

namespace tendo {

namespace {

constexpr const char* SideTitles[] = {"cooling", "heating", "water heater"};

/// What the three model records have in common.
struct Common {
    std::string number, database;
    int quantity = 0;
};
Common CommonOf(const ProjectRecords& records, ModelSide side, std::size_t slot) {
    const auto common = [](const auto& model) {
        return Common{model.ModelNum.Trimmed(), model.DB.Trimmed(), model.ModelQty};
    };
    if (side == ModelSide::Cooling) return common(records.CLGModelData.at(slot));
    if (side == ModelSide::Heating) return common(records.HTGModelData.at(slot));
    return common(records.WHModelData.at(slot));
}

}  // namespace

PricedModel PricedModelOf(const ProjectRecords& records, ModelSide side, int system) {
    const auto slot = static_cast<std::size_t>(system);
    const Common common = CommonOf(records, side, slot);
    const ModelInfoRecord& info = records.ModelInfo.at(slot);
    PricedModel model;
    model.title =
        "System " + std::to_string(system + 1) + ", " + SideTitles[static_cast<std::size_t>(side)];
    if (!common.number.empty()) model.title += " " + common.number;
    model.database = common.database.empty() ? "no database" : "from " + BaseName(common.database);
    model.quantity = common.quantity;
    model.dealerCost = info.*PricesOf(side).dealerCost;
    model.salePrice = info.*PricesOf(side).salePrice;
    return model;
}

std::vector<PricedModel> PricedModels(const ProjectRecords& records) {
    std::vector<PricedModel> models;
    for (int system = 0; system < SystemCount; ++system) {
        for (const ModelSide side :
             {ModelSide::Cooling, ModelSide::Heating, ModelSide::WaterHeater}) {
            const bool named =
                !CommonOf(records, side, static_cast<std::size_t>(system)).number.empty();
            PricedModel model = PricedModelOf(records, side, system);
            if (named || model.dealerCost != 0 || model.salePrice != 0)
                models.push_back(std::move(model));
        }
    }
    return models;
}

}  // namespace tendo
