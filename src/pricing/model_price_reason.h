#pragma once

#include <array>
#include <string>

#include "pricing/price_reason.h"
#include "pricing/price_table.h"
#include "pricing/priced_models.h"

namespace tendo {

/// The price line of a single model as it stands: prices of one unit in dollars, and the six texts
/// shown, DealerCost to SalePrice.
struct ModelPriceFacts {
    PricedModel model;
    float dealerOverride = 0, listPrice = 0;
    std::array<std::string, 6> texts;
    PriceTrace trace;  // how the sale price came about since the line was filled
};

/// Why a column of a single model's price line shows what it shows.
PriceReason WhyModelPrice(const ModelPriceFacts& facts, FieldKind column);

}  // namespace tendo
