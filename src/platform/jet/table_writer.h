#pragma once

#include <functional>
#include <optional>

#include "platform/jet/file_builder.h"
#include "platform/jet/jet_writer.h"
#include "platform/jet/row_writer.h"

namespace tendo::jet {

/// An index in the making.
struct PlannedIndex {
    std::string name;
    std::vector<std::size_t> columns;  // places in `TablePlan::columns`
    std::vector<bool> descending;
    std::uint8_t flags = 0x80;
    std::uint8_t type = 0;   // 1 for a primary key
    std::uint32_t root = 0;  // page
};

/// All that a table's pages are made from.
struct TablePlan {
    std::string name;
    std::vector<PlannedColumn> columns;  // by number
    std::vector<PlannedIndex> indexes;   // real indexes in their order
    bool system = false;
    std::uint32_t definitionPage = 0;
    std::uint32_t firstDataPage = 0;  // made already; 0: made when the first row comes
    std::vector<std::uint32_t> mapPages;
    std::size_t firstMap = 0;  // place of its first map on the map pages

    /// The row pointer of one of the table's maps.
    std::uint32_t MapPointer(std::size_t map) const;
};

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
