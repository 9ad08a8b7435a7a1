#pragma once

#include <string>
#include <unordered_map>

namespace tendo {

/// What the head of a rich text says about its bytes. It holds for the parts of it that stand
/// behind a page break, which have no head of their own.
struct RichHead {
    struct Font {
        std::string name;
        int codePage = 0;  // 0 is the document's
        bool symbol = false;
    };
    int codePage = 1252;
    int defaultFont = -1;
    std::unordered_map<int, Font> fonts;
};

}  // namespace tendo
