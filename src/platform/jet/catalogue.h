#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/jet/not_kept.h"
#include "platform/jet/table_definition.h"

namespace tendo::jet {

/// What the catalogue of a file names.
struct CatalogueTable {
    std::string name;
    std::uint32_t page = 0;
    std::string properties;  // LvProp
    std::string fault;       // why it can't be read; empty when nothing is known against it
};
struct Catalogue {
    std::vector<CatalogueTable> tables;   // user tables in stored order
    std::vector<CatalogueTable> systems;  // the engine's own, for the check of a file
    NotKept notKept;
};
Catalogue ReadCatalogue(const PageFile& file);

/// Properties of one column that are set: AllowZeroLength and Required.
struct ColumnProperties {
    bool allowZeroLength = false;
    bool required = false;
};
/// By column name; any fault in the block gives what was read before it.
std::map<std::string, ColumnProperties> ReadProperties(const PageFile& file,
                                                       std::string_view block);

}  // namespace tendo::jet
