#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace tendo {

/// How the points of a list are numbered that give no mark of their own.
struct RtfListStyle {
    enum class Kind { None, Bullet, Decimal, UpperRoman, LowerRoman, UpperLetter, LowerLetter };
    Kind kind = Kind::None;
    int start = 1;
    std::string before, after;
    int list = 0, level = 0;
};

/// Counts the points of the lists of one rich text.
class RtfLists {
  public:
    /// The mark of the next point of a list: "3.", "b)", the bullet. A point starts the lists
    /// within it anew.
    std::string NextMark(const RtfListStyle& style);

  private:
    std::map<std::pair<int, int>, int> counts_;  // by list and level
};

}  // namespace tendo
