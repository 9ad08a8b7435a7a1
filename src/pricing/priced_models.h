#pragma once

#include <string>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// A model of the project with what it adds to the price table.
struct PricedModel {
    std::string title;     // "System 1, cooling FA-3614"
    std::string database;  // "from Frostelm.mdb", "no database"
    int quantity = 0;
    float dealerCost = 0, salePrice = 0;  // of one unit, in dollars
};

/// All models of the five systems that have a number or a price, system by system: cooling,
/// heating, water heater.
std::vector<PricedModel> PricedModels(const ProjectRecords& records);

/// "from Frostelm.mdb" for a model's database name, "no database" for none.
std::string DatabaseSource(const std::string& name);

}  // namespace tendo
