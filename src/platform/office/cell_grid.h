#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

enum class CellKind : std::uint8_t { Empty, Text, Number, Boolean, Date, Error };

/// What a cell shows. The text lives as long as its grid is left unchanged.
struct CellValue {
    CellKind kind = CellKind::Empty;
    /// Of a number; 0 or 1 of a boolean; of a date the days since 30 December 1899.
    double number = 0;
    /// Of a text or an error ("#DIV/0!"); of a number that was read from a text file its source.
    std::string_view text;
};

/// The most a sheet can hold.
inline constexpr std::size_t MaximumRows = 1'048'576;
inline constexpr std::size_t MaximumColumns = 16'384;

/// Where a text stands in a grid's store; any number of cells may share it.
struct TextPlace {
    std::uint32_t at = 0;
    std::uint32_t length = 0;
};

/// A sheet's cells, kept sparse: only what is there takes memory, about 24 bytes a cell. Rows and
/// columns count from 0.
class CellGrid {
  public:
    /// Throws RuntimeError 7 when all texts together pass 1 GB.
    TextPlace AddText(std::string_view text);
    std::string_view TextAt(TextPlace place) const;

    /// A cell outside the limits of a sheet is dropped and gives false; the last of several values
    /// of one cell counts. After the last `Put` call `Sort`.
    bool Put(std::size_t row, std::size_t column, CellKind kind, double number,
             TextPlace text = {});
    bool PutText(std::size_t row, std::size_t column, std::string_view text);
    /// A text that is a plain number ("12.5", not "0012" and not "1,200") becomes one and keeps its
    /// source.
    bool PutReadText(std::size_t row, std::size_t column, std::string_view text);
    void Sort();

    /// One behind the last row and column with anything in it.
    std::size_t RowCount() const { return rows_; }
    std::size_t ColumnCount() const { return columns_; }
    /// One behind the last used column of a row: keeps loops short where a far cell makes the
    /// sheet wide.
    std::size_t ColumnCountOf(std::size_t row) const;
    CellValue Cell(std::size_t row, std::size_t column) const;
    /// The rows that hold anything, in order.
    std::vector<std::size_t> UsedRows() const;

  private:
    struct Entry {
        std::uint32_t row;
        std::uint16_t column;
        CellKind kind;
        TextPlace text;
        double number;
    };

    /// The first entry at or behind a cell.
    std::vector<Entry>::const_iterator From(std::size_t row, std::size_t column) const;

    std::vector<Entry> entries_;
    std::string text_;
    std::size_t rows_ = 0;
    std::size_t columns_ = 0;
};

}  // namespace tendo
