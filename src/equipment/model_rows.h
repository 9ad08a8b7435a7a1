#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "equipment/model_tabs.h"
#include "platform/database/database.h"

namespace tendo {

/// A column of the grid that its rows are shown by.
struct ModelSort {
    int column = 0;
    bool descending = false;
};

/// The rows of a tab's query, as texts of its grid, and the current one. Rows and columns count
/// from 0; rows stand in the order of the query. The grid may show them in another order: a place
/// is where it shows a row. Without a database there are none.
class ModelRows {
  public:
    ModelRows() = default;
    /// Runs a query: a table's name or a text that begins with "Select *".
    ModelRows(Database& database, const std::string& source, int tab);

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

    /// Shows the rows by a column, empty cells as the smallest; rows of one value stay in the order
    /// of the query, and so do all without a sort. The current row stays the same.
    void SortBy(Database& database, const std::optional<ModelSort>& sort);
    /// -1 outside of the grid.
    int RowAt(int place) const;
    int PlaceOf(int row) const;
    /// The next row, from a place on and round to it again, whose model number begins with a text,
    /// else one that holds it; letters of either case. -1 when there is none.
    int FindTyped(Database& database, std::string_view text, int fromPlace);

    /// Only with rows.
    const Recordset& Current() const { return *rows_; }

  private:
    void ReadCells(int row) const;
    std::string QueryOf(std::string_view columns) const;
    void ReadModelNumbers(Database& database);

    mutable std::optional<Recordset> rows_;
    std::string source_;
    int tab_ = 0;
    std::vector<std::string> fields_;  // by grid column, as this database names them
    mutable int cachedRow_ = -1;
    mutable std::vector<std::string> cachedCells_;
    std::vector<int> order_, places_;        // row by place and place by row; empty: unsorted
    std::vector<std::string> modelNumbers_;  // in small letters, by row; empty until needed
};

}  // namespace tendo
