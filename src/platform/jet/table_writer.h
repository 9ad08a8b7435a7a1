#pragma once

#include <functional>
#include <optional>

#include "platform/jet/file_builder.h"
#include "platform/jet/row_source.h"
#include "platform/jet/table_plan.h"

namespace tendo::jet {

/// The plan of a user table, its pages allocated.
TablePlan PlanTable(FileBuilder& file, const TableDefinition& definition);

/// The maps of a table in their order: data pages, pages with room, two for each long column, one
/// for each index.
using TableMaps = std::vector<std::vector<std::uint32_t>>;

/// Writes rows, long values, index pages and the definition; gives the maps, which stand on a page
/// that tables may share. RuntimeError 3022 for a duplicate in a unique index.
TableMaps WriteTable(FileBuilder& file, const TablePlan& plan, const RowSource& rows);

/// Writes the maps of the tables, one after the other, on these pages.
void WriteMapPages(FileBuilder& file, const std::vector<std::uint32_t>& pages,
                   const std::vector<TableMaps>& tables);

}  // namespace tendo::jet
