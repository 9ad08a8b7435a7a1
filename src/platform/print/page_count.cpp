#include "platform/print/page_count.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace tendo {
namespace {

/// A character of Unicode's private use, so that no text of a user is taken for a mark.
constexpr std::string_view Edge = "\uE0F1";

/// False when no whole mark is left in the text.
bool ResolveOne(std::string& text, int pages) {
    const std::size_t begin = text.find(Edge);
    if (begin == std::string::npos) return false;
    const std::size_t number = begin + Edge.size();
    const std::size_t end = text.find(Edge, number);
    if (end == std::string::npos) return false;
    int more = 0;
    std::from_chars(text.data() + number, text.data() + end, more);
    text.replace(begin, end + Edge.size() - begin, std::to_string(pages + more));
    return true;
}

}  // namespace

std::string PageCountMark(int more) {
    return std::string(Edge) + std::to_string(more) + std::string(Edge);
}

void ResolvePageCounts(Document& document, FontTable& fonts) {
    const int pages = static_cast<int>(document.pages.size());
    for (Page& page : document.pages) {
        for (TextItem& text : page.texts) {
            if (!ResolveOne(text.text, pages)) continue;
            while (ResolveOne(text.text, pages)) {
            }
            const int width = static_cast<int>(std::lround(fonts.TextWidth(text.font, text.text)));
            text.x += text.width - width;
            text.width = width;
        }
    }
}

}  // namespace tendo
