#pragma once

#include <string>
#include <vector>

#include "platform/jet/file_builder.h"

namespace tendo::jet {

/// One entry of an index: the key of its columns, and the row as page << 8 | number.
struct IndexEntry {
    std::string key;
    std::uint32_t row = 0;
    bool holdsNull = false;  // of any of its columns; such an entry is no duplicate of another
};

/// What stands in the definition and the maps of an index.
struct WrittenIndex {
    std::uint32_t differentKeys = 0;
    std::vector<std::uint32_t> pages;
};

/// Writes the pages of an index: sorted leaves, linked, and nodes above them up to the root page,
/// which exists already. `owner`: the definition page of the table. Sorts the entries.
WrittenIndex WriteIndexPages(FileBuilder& file, std::uint32_t owner, std::uint32_t root,
                             std::vector<IndexEntry>& entries);

}  // namespace tendo::jet
