#include "reports/screens/preview_search.h"

#include <algorithm>

namespace tendo {

void PreviewSearch::Find(const Document& document, const std::string& text, int page) {
    matches_ = FindText(document, text);
    const auto onOrBehind = [&](const DocumentMatch& match) { return match.page >= page; };
    const auto first = std::find_if(matches_.begin(), matches_.end(), onOrBehind);
    current_ = first == matches_.end() ? 0 : static_cast<int>(first - matches_.begin());
}

void PreviewSearch::Step(int direction) {
    if (!matches_.empty()) current_ = (current_ + direction + Count()) % Count();
}

std::vector<PageView::Mark> PreviewSearch::MarksOn(const Document& document, int page) {
    std::vector<PageView::Mark> marks;
    for (int i = 0; i < Count(); ++i) {
        const DocumentMatch& match = matches_[static_cast<std::size_t>(i)];
        if (match.page != page) continue;
        for (const TextBox& box : BoxesOf(document, match, measurer_))
            marks.push_back({QRectF(QPointF(box.left, box.top), QPointF(box.right, box.bottom)),
                             i == current_});
    }
    return marks;
}

}  // namespace tendo
