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
    std::uint32_t order = 0;  // of texts: locale and version, 0x409 is the General order
    bool IsFixed() const { return flags & 1; }
    /// Bytes in the fixed part: by the type, for text and binary as declared.
    std::size_t FixedBytes() const;
};

/// The key columns of an index by number, with their directions, and where its pages are.
struct RealIndex {
    std::vector<std::pair<std::uint16_t, bool>> columns;  // number, descending
    std::uint8_t flags = 0;                               // 1 unique, 2 ignores nulls, 8 required
    std::uint32_t map = 0;
    std::uint32_t root = 0;
};

/// The maps of the long value pages of a column.
struct LongColumn {
    std::uint16_t number = 0;
    std::uint32_t map = 0;
    std::uint32_t roomMap = 0;
};

/// A table as its definition block tells.
struct StoredTable {
    std::uint32_t page = 0;  // of the definition
    std::uint32_t rows = 0;  // a hint
    std::uint16_t maximumColumns = 0;
    std::uint16_t variableColumns = 0;
    std::uint32_t dataMap = 0;
    std::uint32_t roomMap = 0;          // of the pages with room for more rows
    std::vector<std::uint32_t> pages;   // of the definition itself
    std::uint32_t length = 0;           // of the definition in bytes, as told
    std::size_t end = 0;                // and as read
    std::vector<StoredColumn> columns;  // by number
    std::vector<Index> indexes;
    std::vector<RealIndex> realIndexes;
    std::vector<LongColumn> longColumns;
    bool hasRelations = false;
};

/// Reads the definition that begins on a page; throws RuntimeError 3343 for damage.
StoredTable ReadDefinition(const PageFile& file, std::uint32_t page);

/// A name or text of the file as UTF-8.
std::string StoredText(const PageFile& file, std::string_view bytes);

}  // namespace tendo::jet
