#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/database/database.h"

namespace tendo {

/// One column of the price book's grid.
struct BookColumn {
    const char* field;
    const char* heading;
    bool money;
};

inline constexpr std::array<BookColumn, 5> BookColumns = {{{"Category", "Category", false},
                                                           {"Description", "Description", false},
                                                           {"Part Number", "Part Number", false},
                                                           {"UnitCst", "Unit Cost", true},
                                                           {"ListCst", "List Cost", true}}};
inline constexpr int BookColumnCount = static_cast<int>(BookColumns.size());
inline constexpr int CategoryColumn = 0;

/// The materials of a price book as texts of a grid, and the current one with what was typed into
/// it but not written yet. Rows and columns count from 0. Without a database it is empty.
class BookRows {
  public:
    BookRows() = default;
    /// RuntimeError 3265 when a column of the grid is missing.
    explicit BookRows(Recordset rows);

    int Count() const;
    /// -1 without rows.
    int CurrentRow() const;
    bool HasRow(int row) const { return row >= 0 && row < Count(); }
    /// Goes to a row; what was typed into the one before must have been written or given up.
    void MoveTo(int row);

    /// As the grid shows it; empty for null and outside of the grid.
    std::string CellText(int row, int column) const;
    /// What a cell opens with for editing: as shown, but with all decimals of a cost.
    std::string EditText(int row, int column) const;
    std::int64_t BookmarkOf(int row) const;

    /// Takes a text for a cell of the current row. An empty cost stands for "$0.00". RuntimeError
    /// 13 for a cost that is no number, with a description for the user.
    void SetCell(int column, const std::string& text);
    /// Something was typed into the current row and is not written.
    bool IsEdited() const { return !typed_.empty(); }
    void CancelEdits() { typed_.clear(); }
    /// Writes what was typed into the current row; on a failure it throws and keeps it.
    void WriteEdits();

    /// The row set itself, for finding, adding and deleting; only with a database. Cells are read
    /// anew after this.
    Recordset& Rows();

  private:
    const Recordset& At(int row) const;
    std::string StoredText(int row, int column) const;

    mutable std::optional<Recordset> rows_;
    std::map<int, std::string> typed_;  // by column
    mutable int cachedRow_ = -1;
    mutable std::array<std::string, BookColumns.size()> cachedCells_;
};

/// A cost that was typed, "$1,250.00"; RuntimeError 13, with a description for the user, for what
/// is no number or too large.
float CostOfText(std::string_view text);

}  // namespace tendo
