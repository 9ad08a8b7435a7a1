#include "platform/print/page_flow.h"

#include <cmath>

namespace tendo {

void PageFlow::Begin() {
    document_ = {};
    x = page_geometry::Left;
    y = page_geometry::Top;
}

void PageFlow::End() {
    if (HasPage() && onClose) onClose();
    document_.fonts = fonts_.Specs();
}

void PageFlow::EnsurePage() {
    if (!HasPage()) OpenPage();
}

void PageFlow::NewPage() {
    EnsurePage();
    if (onClose) onClose();
    OpenPage();
}

void PageFlow::OpenPage() {
    if (HasPage()) {  // the pen may be set before the first page opens
        x = page_geometry::Left;
        y = page_geometry::Top;
    }
    document_.pages.emplace_back();
    if (onOpen) onOpen();
}

void PageFlow::AddLine(const TextLine& line, double left, int top) {
    for (const LineFragment& fragment : line.fragments) {
        if (fragment.text.find_first_not_of(' ') == std::string::npos) continue;
        Current().texts.push_back({static_cast<int>(std::lround(left + fragment.x)),
                                   top + line.ascent, static_cast<int>(std::lround(fragment.width)),
                                   fragment.font, fragment.color, fragment.text});
    }
}

}  // namespace tendo
