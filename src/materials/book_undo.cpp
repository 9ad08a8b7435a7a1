#include "materials/book_undo.h"

#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr int RowGone = 3159;

std::int64_t Append(Database& tables, const char* table, const std::vector<jet::Row>& rows) {
    if (rows.empty()) return 0;
    tables.AppendRows(table, rows);
    Recordset all = tables.OpenRecordset(table);
    all.MoveTo(all.RecordCount() - static_cast<int>(rows.size()));
    return all.Bookmark();
}

/// A material that was deleted since stays so.
void GiveCategory(Recordset& materials, std::int64_t bookmark, const std::string& category) {
    try {
        materials.SetBookmark(bookmark);
    } catch (const RuntimeError& error) {
        if (error.Number() == RowGone) return;
        throw;
    }
    materials.Edit();
    materials.Set("Category", category);
    materials.Update();
}

}  // namespace

jet::Row WholeRow(const Recordset& rows) {
    jet::Row row;
    for (int field = 0; field < static_cast<int>(rows.Fields().size()); ++field)
        row.push_back(rows.Get(field));
    return row;
}

void BookUndo::Remember(DeletedThings deleted) {
    if (deleted.materials.empty() && deleted.categories.empty() && deleted.cleared.empty()) return;
    steps_.push_back(std::move(deleted));
}

std::int64_t BookUndo::PutBack(Database& tables) {
    const DeletedThings& deleted = steps_.back();
    std::int64_t first = Append(tables, "Materials", deleted.materials);
    Append(tables, "Categories", deleted.categories);
    Recordset materials = tables.OpenRecordset("Materials");
    for (const auto& [bookmark, category] : deleted.cleared)
        GiveCategory(materials, bookmark, category);
    if (first == 0 && !deleted.cleared.empty()) first = deleted.cleared.front().first;
    steps_.pop_back();
    return first;
}

}  // namespace tendo
