#include "pricing/priced_models.h"

#include <cstddef>

#include "platform/files/paths.h"

namespace tendo {

namespace {

template <class Model>
PricedModel Priced(const char* side, const Model& model, float cost, float sale) {
    std::string title = side;
    if (!model.ModelNum.IsBlank()) title += " " + model.ModelNum.Trimmed();
    return {title, DatabaseSource(model.DB.Trimmed()), model.ModelQty, cost, sale};
}

bool Counts(const std::string& number, const PricedModel& model) {
    return !number.empty() || model.dealerCost != 0 || model.salePrice != 0;
}

}  // namespace

std::string DatabaseSource(const std::string& name) {
    return name.empty() ? "no database" : "from " + BaseName(name);
}

std::vector<PricedModel> PricedModels(const ProjectRecords& records) {
    std::vector<PricedModel> models;
    for (std::size_t i = 0; i < records.ModelInfo.size(); ++i) {
        const ModelInfoRecord& info = records.ModelInfo[i];
        const auto add = [&](const char* side, const auto& model, float cost, float sale) {
            PricedModel priced = Priced(side, model, cost, sale);
            priced.title.insert(0, "System " + std::to_string(i + 1) + ", ");
            if (Counts(model.ModelNum.Trimmed(), priced)) models.push_back(priced);
        };
        add("cooling", records.CLGModelData[i], info.CLGModelDealerCost, info.CLGSalePrice);
        add("heating", records.HTGModelData[i], info.HTGModelDealerCost, info.HTGSalePrice);
        add("water heater", records.WHModelData[i], info.WHModelDealerCost, info.WHSalePrice);
    }
    return models;
}

}  // namespace tendo
