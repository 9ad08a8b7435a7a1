#pragma once

#include <cstdint>
#include <string>
#include <vector>

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

}  // namespace tendo::jet
