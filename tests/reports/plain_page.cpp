#include "plain_page.h"

#include <algorithm>

namespace tendo {

namespace {

constexpr int Top = 720, RowHeight = 270, CharacterWidth = 100, TwipsPerPoint = 20;

}  // namespace

void PlainPage::OpenFirstPage() {
    if (open_) return;
    open_ = true;
    page_ = 1;
    y_ = Top;
    if (NewPageEvent) NewPageEvent();
}

void PlainPage::NewPage() {
    OpenFirstPage();
    ++page_;
    y_ = Top;
    if (NewPageEvent) NewPageEvent();
}

void PlainPage::Set(SurfaceOp op, const SurfaceValue& value) {
    constexpr int StartDocument = 3;
    switch (op) {
        case SurfaceOp::Action:
            if (value == SurfaceValue(StartDocument)) open_ = false;
            break;
        case SurfaceOp::FontSize:
            lineHeight_ = TwipsPerPoint * std::get<std::int32_t>(value);
            break;
        case SurfaceOp::Measure:
            measured_ = CharacterWidth * static_cast<int>(std::get<std::string_view>(value).size());
            break;
        case SurfaceOp::CurrentY:
            y_ = std::get<std::int32_t>(value);
            break;
        case SurfaceOp::Paragraph:
            OpenFirstPage();
            y_ += lineHeight_;
            break;
        case SurfaceOp::Text:
        case SurfaceOp::Draw:
        case SurfaceOp::Picture:
            OpenFirstPage();
            break;
        default:
            break;
    }
}

void PlainPage::WriteTable(std::string_view, std::string_view header, std::string_view body,
                           std::optional<std::int32_t>) {
    OpenFirstPage();
    const auto rows = std::count(body.begin(), body.end(), ';') + (header.empty() ? 0 : 1);
    y_ += RowHeight * static_cast<int>(rows);
}

}  // namespace tendo
