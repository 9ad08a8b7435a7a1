#pragma once

#include <deque>
#include <span>

#include "platform/jet/table_definition.h"

namespace tendo::jet {

/// Turns the bytes of rows into values. The values live until the next row. One reader serves one
/// pass over a table: the long values it follows may not come to more bytes than the file has, for
/// each long value row serves one value only.
class RowReader {
  public:
    RowReader(const PageFile& file, const StoredTable& table);
    /// One value per column of the table, in the order of `StoredTable::columns`.
    std::span<const ValueView> Read(std::string_view row);
    /// Pointers of all long value rows followed so far go to `pointers`.
    void NoteLongRows(std::vector<std::uint32_t>& pointers) { longRows_ = &pointers; }

  private:
    struct Parts;
    Parts PartsOf(std::string_view row);
    std::size_t ReadOffsets(std::string_view row, std::size_t tail);
    ValueView ValueOf(const StoredColumn& column, std::string_view bytes);
    std::string_view TextOf(std::string_view bytes);
    std::string_view MemoOf(std::string_view field);
    std::string_view Kept(std::string_view text);
    std::string_view LongValue(std::string_view field);
    std::string_view LongRow(std::uint32_t pointer);
    std::string& LongScratch();

    const PageFile& file_;
    const StoredTable& table_;
    std::vector<ValueView> values_;
    std::vector<std::size_t> starts_;  // of the variable columns, with the end behind the last
    std::vector<char> texts_;          // of the present row, with room for the longest
    std::size_t textsUsed_ = 0;
    std::deque<std::string> longs_;  // long values of the present row
    std::size_t longsUsed_ = 0;
    std::size_t longBytesLeft_;
    std::vector<std::uint32_t>* longRows_ = nullptr;
};

}  // namespace tendo::jet
