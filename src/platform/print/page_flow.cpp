#include "platform/print/page_flow.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tendo {

int SpacedHeight(int single, int percent) {
    constexpr int Most = (page_geometry::Bottom - page_geometry::Top) / 4;
    return std::min(single * percent / 100, std::max(single, Most));
}

void PageFlow::Begin() {
    document_ = {};
    heading_ = {};
    opening_ = false;
    x = page_geometry::Left;
    y = page_geometry::Top;
}

void PageFlow::End() {
    if (HasPage() && onClose) onClose();
    EnterTitlePage();
    document_.fonts = fonts_.Specs();
}

void PageFlow::EnterTitlePage() {
    std::vector<OutlineEntry>& outline = document_.outline;
    if (outline.empty() || outline.front().page == 0 || document_.pages[0].texts.empty()) return;
    outline.insert(outline.begin(), {document_.pages[0].texts.front().text, 0, 0});
}

void PageFlow::EnsurePage() {
    if (!HasPage()) OpenPage();
}

void PageFlow::NewPage() {
    EnsurePage();
    if (onClose) onClose();
    OpenPage();
}

void PageFlow::BreakPage() {
    if (opening_) return;
    EnsurePage();
    if (!HeadingStandsAlone()) return NewPage();
    const Heading heading = heading_;  // the new page's header has a bar of its own
    const int penBehind = y - heading.pen;
    std::vector<TextItem> texts = LiftHeading();
    NewPage();
    PutDown(heading, std::move(texts), penBehind);
}

int PageFlow::RoomBehindBreak() const {
    const int page = page_geometry::Bottom - page_geometry::Top;
    return HeadingStandsAlone() ? page - (y - heading_.pen) : page;
}

void PageFlow::PlaceBar(const BoxItem& bar) {
    constexpr int Narrowest = (page_geometry::Right - page_geometry::Left) * 3 / 4;
    if (bar.right - bar.left > Narrowest && y >= bar.top && y < bar.bottom)
        heading_ = {bar, PageNumber(), Current().shapes.size(), Current().texts.size(), 0, y};
    Current().shapes.push_back(bar);
}

const BoxItem* PageFlow::OpenBar() const {
    return HeadingStandsAlone() && heading_.ownTexts == 0 ? &heading_.bar : nullptr;
}

void PageFlow::GrowBar(int height) {
    heading_.bar.bottom = std::max(heading_.bar.bottom, heading_.bar.top + height);
    Current().shapes[heading_.shape] = heading_.bar;
}

void PageFlow::EnterHeading(const std::string& title) {
    heading_.ownTexts = Current().texts.size() - heading_.texts;
    document_.outline.push_back({title, PageNumber() - 1, heading_.bar.top});
}

bool PageFlow::HeadingStandsAlone() const {
    if (heading_.page == 0 || heading_.page != PageNumber()) return false;
    const Page& page = document_.pages.back();
    return page.shapes.size() == heading_.shape + 1 &&
           page.texts.size() == heading_.texts + heading_.ownTexts;
}

std::vector<TextItem> PageFlow::LiftHeading() {
    Page& page = Current();
    const auto first = page.texts.begin() + static_cast<std::ptrdiff_t>(heading_.texts);
    std::vector<TextItem> texts(first, page.texts.end());
    page.texts.erase(first, page.texts.end());
    page.shapes.pop_back();
    return texts;
}

void PageFlow::PutDown(const Heading& heading, std::vector<TextItem> texts, int penBehind) {
    const int shift = y - heading.pen;
    BoxItem bar = heading.bar;
    bar.top += shift;
    bar.bottom += shift;
    PlaceBar(bar);
    for (TextItem& text : texts) {
        text.y += shift;
        Current().texts.push_back(std::move(text));
    }
    heading_.ownTexts = heading.ownTexts;
    y += penBehind;
    if (heading.ownTexts == 0) return;
    document_.outline.back().page = PageNumber() - 1;
    document_.outline.back().y = bar.top;
}

void PageFlow::OpenPage() {
    if (HasPage()) {  // the pen may be set before the first page opens
        x = page_geometry::Left;
        y = page_geometry::Top;
    }
    document_.pages.emplace_back();
    opening_ = true;
    if (onOpen) onOpen();
    opening_ = false;
}

void PageFlow::AddLine(const TextLine& line, double left, int top) {
    for (const LineFragment& fragment : line.fragments) {
        if (fragment.text.find_first_not_of(' ') == std::string::npos) continue;
        Current().texts.push_back({static_cast<int>(std::lround(left + fragment.x)),
                                   top + line.ascent - fragment.rise,
                                   static_cast<int>(std::lround(fragment.width)), fragment.font,
                                   fragment.color, fragment.text});
    }
}

}  // namespace tendo
