#pragma once

#include "platform/jet/table_definition.h"
#include "platform/jet/usage_map.h"

namespace tendo::jet {

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
            if (row.flags & 0x4000) row.bytes = file.RowAt(Dword(row.bytes, 0));
            if (!take(row.bytes)) return;
        }
    }
}

}  // namespace tendo::jet
