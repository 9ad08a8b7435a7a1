#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "equipment/model_tabs.h"
#include "platform/database/database.h"

namespace tendo {

/// The rows that a tab shows, as texts of its grid, and the current one. Rows and columns count
/// from 0. Without a database it is empty.
class ModelRows {
  public:
    ModelRows() = default;
    ModelRows(Recordset rows, int tab);

    int Count() const;
    /// -1 without rows.
    int CurrentRow() const;
    bool HasRow(int row) const { return row >= 0 && row < Count(); }
    void MoveTo(int row);
    /// Empty for null and outside of the grid. The current row stays.
    std::string CellText(int row, int column) const;

    std::int64_t Bookmark() const { return rows_->Bookmark(); }
    /// Goes to the row of a bookmark; false when it isn't among these rows.
    bool MoveToBookmark(std::int64_t bookmark);
    /// Both give false, and the current row stays, when no row matches. RuntimeError 3077 for a
    /// text that breaks the criterion.
    bool FindFirst(const std::string& criteria);
    bool FindNext(const std::string& criteria);

    /// Only with rows.
    const Recordset& Current() const { return *rows_; }

  private:
    void ReadCells(int row) const;

    mutable std::optional<Recordset> rows_;
    int tab_ = 0;
    std::vector<std::string> fields_;  // by grid column, as this database names them
    mutable int cachedRow_ = -1;
    mutable std::vector<std::string> cachedCells_;
};

}  // namespace tendo
