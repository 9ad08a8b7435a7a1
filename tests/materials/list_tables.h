#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tendo {

/// One row of "Labor Lists".
struct LaborListRow {
    std::string list;
    double hours = 0;
    std::string description = {};
    double rate = 0, margin = 0, markup = 0, price = 0;

    friend bool operator==(const LaborListRow&, const LaborListRow&) = default;
};

/// One row of "Material Lists".
struct MaterialListRow {
    std::string list, description;
    std::int64_t quantity = 0;
    double unitCost = 0, listCost = 0, price = 0;
    std::string partNumber = {}, category = {};
    std::int64_t accessory = 0, tax = 0;

    friend bool operator==(const MaterialListRow&, const MaterialListRow&) = default;
};

/// Adds the table with rows to a database that is there.
void AddLaborLists(const std::string& path, const std::vector<LaborListRow>& rows,
                   const std::string& withoutColumn = "");
void AddMaterialLists(const std::string& path, const std::vector<MaterialListRow>& rows,
                      const std::string& withoutColumn = "");

/// All rows as the file holds them.
std::vector<LaborListRow> LaborLists(const std::string& path);
std::vector<MaterialListRow> MaterialLists(const std::string& path);

}  // namespace tendo
