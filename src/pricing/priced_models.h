#pragma once

#include <string>
#include <vector>

#include "pricing/model_price_columns.h"
#include "project/project_records.h"

namespace tendo {

/// A model of the project with what it adds to the price table.
struct PricedModel {
    std::string title;     // "System 1, cooling FA-3614"
    std::string database;  // "from Frostelm.mdb", "no database"
    int quantity = 0;
    float dealerCost = 0, salePrice = 0;  // of one unit, in dollars
};

/// The model of one side of a system (0 to 4), whether there is one or not.
PricedModel PricedModelOf(const ProjectRecords& records, ModelSide side, int system);

/// All models of the five systems that have a number or a price, system by system: cooling,
/// heating, water heater.
std::vector<PricedModel> PricedModels(const ProjectRecords& records);

}  // namespace tendo
