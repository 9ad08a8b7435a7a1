#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/jet/file_builder.h"
#include "platform/jet/jet_types.h"

namespace tendo::jet {

/// A column of a table in the making, with its place in rows.
struct PlannedColumn {
    Column column;
    std::uint16_t number = 0;
    std::uint16_t variable =
        0;  // place among the variable columns; for a fixed one how many come before it
    std::uint16_t offset = 0;  // in the fixed part
    std::uint16_t bytes = 0;   // declared size
    std::uint8_t flags = 0;
    bool IsFixed() const { return flags & 1; }
    bool IsLong() const {
        return column.type == ColumnType::Memo || column.type == ColumnType::Ole;
    }
};

/// Gives each column its declared size and its place among the fixed or the variable ones; the
/// columns stand by number and have their types and flags.
void PlaceColumns(std::vector<PlannedColumn>& columns);

/// The long values of one column: packed rows and chains on pages of their own.
class LongValueWriter {
  public:
    explicit LongValueWriter(FileBuilder& file) : file_(&file), page_(Owner) {}
    /// The field that stands in the row: inline, or a pointer to where the bytes went.
    std::string Write(std::string_view bytes);
    /// Writes the last page.
    void Finish();
    const std::vector<std::uint32_t>& Pages() const { return pages_; }

  private:
    static constexpr std::uint32_t Owner = 0x4c41564c;  // "LVAL"
    std::uint32_t WriteRow(std::string_view row);

    FileBuilder* file_;
    DataPage page_;
    std::uint32_t number_ = 0;  // of the page being filled; 0 for none
    std::vector<std::uint32_t> pages_;
};

/// The bytes of one row; `values` stand in the order of `columns`, which are by number. Long values
/// go to the writer of their column. Throws RuntimeError 3163 for a text too long, 3047 for a row
/// too long for a page.
std::string RowBytes(const std::vector<PlannedColumn>& columns, std::span<const ValueView> values,
                     std::vector<LongValueWriter>& longValues, const std::string& table);

}  // namespace tendo::jet
