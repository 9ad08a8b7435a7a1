#pragma once

#include <deque>
#include <span>

#include "platform/jet/table_definition.h"

namespace tendo::jet {

/// Turns the bytes of rows into values. The values live until the next row.
class RowReader {
  public:
    RowReader(const PageFile& file, const StoredTable& table);
    /// One value per column of the table, in the order of `StoredTable::columns`.
    std::span<const ValueView> Read(std::string_view row);

  private:
    struct Parts;
    Parts PartsOf(std::string_view row);
    ValueView ValueOf(const StoredColumn& column, std::string_view bytes);
    std::string_view TextOf(std::string_view bytes);
    std::string_view LongValue(std::string_view field);
    std::string& Scratch();

    const PageFile& file_;
    const StoredTable& table_;
    std::vector<ValueView> values_;
    std::vector<std::size_t> starts_;  // of the variable columns, with the end behind the last
    std::deque<std::string> scratch_;  // texts of the present row
    std::size_t used_ = 0;
};

}  // namespace tendo::jet
