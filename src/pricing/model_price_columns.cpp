#include "pricing/model_price_columns.h"

#include <cstddef>

namespace tendo {
namespace {

using Info = ModelInfoRecord;

constexpr std::array<ModelPriceColumns, 3> columnsBySide = {
    {{&Info::CLGModelDealerCost, &Info::CLGModelDealerOverride, &Info::CLGModelGrossMargin,
      &Info::CLGModelPriceMarkup, &Info::CLGModelListDiscount, &Info::CLGSalePrice,
      &Info::CLGListPrice},
     {&Info::HTGModelDealerCost, &Info::HTGModelDealerOverride, &Info::HTGModelGrossMargin,
      &Info::HTGModelPriceMarkup, &Info::HTGModelListDiscount, &Info::HTGSalePrice,
      &Info::HTGListPrice},
     {&Info::WHModelDealerCost, &Info::WHModelDealerOverride, &Info::WHModelGrossMargin,
      &Info::WHModelPriceMarkup, &Info::WHModelListDiscount, &Info::WHSalePrice,
      &Info::WHListPrice}}};

}  // namespace

const ModelPriceColumns& PricesOf(ModelSide side) {
    return columnsBySide[static_cast<std::size_t>(side)];
}

void ClearModelPrices(ModelInfoRecord& info, ModelSide side) {
    for (const ModelPriceColumn price : PricesOf(side).All())
        info.*price = 0;
}

void DropModel(ProjectRecords& records, ModelSide side, int system) {
    const auto slot = static_cast<std::size_t>(system);
    ClearModelPrices(records.ModelInfo.at(slot), side);
    switch (side) {
        case ModelSide::Cooling:
            records.CLGModelData.at(slot) = CLGModelRecord{};
            break;
        case ModelSide::Heating:
            records.HTGModelData.at(slot) = HTGModelRecord{};
            break;
        case ModelSide::WaterHeater:
            records.WHModelData.at(slot) = WHModelRecord{};
            break;
    }
}

}  // namespace tendo
