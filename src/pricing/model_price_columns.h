#pragma once

#include <array>

#include "project/project_records.h"

namespace tendo {

/// The three models that a system may have.
enum class ModelSide { Cooling, Heating, WaterHeater };

using ModelPriceColumn = float ModelInfoRecord::*;

/// The seven prices of one side of a system, in dollars and percent.
struct ModelPriceColumns {
    ModelPriceColumn dealerCost;
    ModelPriceColumn dealerOverride;
    ModelPriceColumn grossMargin;
    ModelPriceColumn priceMarkup;
    ModelPriceColumn listDiscount;
    ModelPriceColumn salePrice;
    ModelPriceColumn listPrice;

    std::array<ModelPriceColumn, 7> All() const {
        return {dealerCost,   dealerOverride, grossMargin, priceMarkup,
                listDiscount, salePrice,      listPrice};
    }
};
const ModelPriceColumns& PricesOf(ModelSide side);

/// Sets a side's seven prices to 0.
void ClearModelPrices(ModelInfoRecord& info, ModelSide side);

/// Drops a system's model (0 to 4): its seven prices go to 0, all its fields go blank or 0.
void DropModel(ProjectRecords& records, ModelSide side, int system);

}  // namespace tendo
