#pragma once

#include "platform/jet/table_definition.h"
#include "platform/jet/usage_map.h"

namespace tendo::jet {

/// Where a row stands: page << 8 | row. A moved row counts at the place of its pointer.
struct RowPlace {
    std::uint32_t row = 0;
    std::uint32_t target = 0;  // of a moved row; 0: it hasn't moved
};

/// The row that a moved one left its pointer to: hidden, on a page of the same table.
inline std::string_view MovedRow(const PageFile& file, const StoredTable& table,
                                 std::uint32_t pointer) {
    const std::string_view page = file.Page(pointer >> 8, 1);
    const PageFile::RowBytes row = file.Row(page, pointer & 0xff);
    if (Dword(page, 4) != table.page || (row.flags & 0xc000) != 0x8000)
        Damaged("a moved row is not where its pointer leads");
    return row.bytes;
}

/// Calls `take` with the bytes and the place of each row of a table in its order; deleted and
/// hidden rows are passed over, a moved one is followed. `take` returns false to stop.
template <class Take>
void ForEachRow(const PageFile& file, const StoredTable& table, Take take) {
    for (const std::uint32_t number : PagesOfMap(file, table.dataMap)) {
        const std::string_view page = file.Page(number, 1);
        if (Dword(page, 4) != table.page)
            Damaged("page " + std::to_string(number) + " belongs to another table");
        const std::size_t count = file.RowCount(page);
        for (std::size_t i = 0; i < count; ++i) {
            PageFile::RowBytes row = file.Row(page, i);
            if (row.flags & 0x8000) continue;
            RowPlace place{number << 8 | static_cast<std::uint32_t>(i), 0};
            if (row.flags & 0x4000) {
                place.target = Dword(row.bytes, 0);
                row.bytes = MovedRow(file, table, place.target);
            }
            if (!take(row.bytes, place)) return;
        }
    }
}

}  // namespace tendo::jet
