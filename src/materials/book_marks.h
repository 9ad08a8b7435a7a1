#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace tendo {

/// The rows of a grid that are marked, by their bookmarks, in the order of marking. While any row
/// may be marked the grid is in row mode, otherwise in cell mode.
class BookMarks {
  public:
    /// More than these can't be marked at a time.
    static constexpr std::size_t Most = 32767;

    bool InRowMode() const { return rowMode_; }
    /// Changes to row mode and marks a row. RuntimeError 28 when there are too many.
    void Add(std::int64_t bookmark);
    bool Has(std::int64_t bookmark) const { return marked_.contains(bookmark); }
    const std::vector<std::int64_t>& InOrder() const { return order_; }
    /// Back to cell mode; nothing is marked then.
    void Leave();
    /// The marked rows are gone; the mode stays.
    void Clear();

  private:
    bool rowMode_ = false;
    std::vector<std::int64_t> order_;
    std::unordered_set<std::int64_t> marked_;
};

}  // namespace tendo
