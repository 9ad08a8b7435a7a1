#pragma once

#include "platform/jet/table_definition.h"
#include "platform/jet/usage_map.h"

namespace tendo::jet {

/// The row that a moved one left its pointer to: hidden, on a page of the same table.
inline std::string_view MovedRow(const PageFile& file, const StoredTable& table,
                                 std::uint32_t pointer) {
    const std::string_view page = file.Page(pointer >> 8, 1);
    const PageFile::RowBytes row = file.Row(page, pointer & 0xff);
    if (Dword(page, 4) != table.page || (row.flags & 0xc000) != 0x8000)
        Damaged("a moved row is not where its pointer leads");
    return row.bytes;
}

/// Calls `take` with the bytes of each row of a table in its order; deleted and hidden rows are
/// passed over, a moved one is followed. `take` returns false to stop.
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
            if (row.flags & 0x4000) row.bytes = MovedRow(file, table, Dword(row.bytes, 0));
            if (!take(row.bytes)) return;
        }
    }
}

}  // namespace tendo::jet
