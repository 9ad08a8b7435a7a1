#pragma once

#include <vector>

#include "platform/jet/jet_types.h"
#include "platform/jet/page_file.h"

namespace tendo::jet {

/// A column with its place in rows.
struct StoredColumn {
    Column column;
    std::uint16_t number = 0;    // bit in the mask
    std::uint16_t variable = 0;  // place among the variable columns
    std::uint16_t offset = 0;    // offset in the fixed part
    std::uint16_t bytes = 0;     // declared size in bytes
    std::uint8_t flags = 0;
    std::uint16_t ordinal = 0;
    bool IsFixed() const { return flags & 1; }
};

/// A table as its definition block tells.
struct StoredTable {
    std::uint32_t page = 0;  // of the definition
    std::uint32_t rows = 0;  // a hint
    std::uint16_t maximumColumns = 0;
    std::uint16_t variableColumns = 0;
    std::uint32_t dataMap = 0;
    std::vector<StoredColumn> columns;  // by number
    std::vector<Index> indexes;
    bool hasRelations = false;
};

/// Reads the definition that begins on a page; throws RuntimeError 3343 for damage.
StoredTable ReadDefinition(const PageFile& file, std::uint32_t page);

/// A name or text of the file as UTF-8.
std::string StoredText(const PageFile& file, std::string_view bytes);

}  // namespace tendo::jet
