#pragma once

namespace tendo {

enum class TabAlign { Left, Center, Right, Decimal };

/// A place that a tab goes to, in twips, how the text stands at it, and what fills the way ('\0'
/// for nothing).
struct TabStop {
    int position = 0;
    TabAlign align = TabAlign::Left;
    char leader = '\0';
    friend bool operator==(const TabStop&, const TabStop&) = default;
};

}  // namespace tendo
