#pragma once

#include <vector>

#include "platform/jet/table_writer.h"

namespace tendo::jet {

/// A user table in the catalogue.
struct CatalogueRow {
    std::string name;
    std::uint32_t definitionPage = 0;
    std::string properties;
};

/// Allocates the pages 0 to 15 of a fresh file.
void AddSystemPages(FileBuilder& file);
/// Writes the catalogue, the permissions and the other system tables, with their maps.
void WriteSystemTables(FileBuilder& file, const std::vector<CatalogueRow>& tables, double made);
/// Writes page 1 (the map of free pages) and page 0, when the number of pages is known.
void WriteHeaderPages(FileBuilder& file);

}  // namespace tendo::jet
