#include "platform/print/document.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

namespace tendo {

namespace {

using Json = nlohmann::ordered_json;

Json ColorJson(const std::optional<Rgb>& color) {
    return color ? Json(*color) : Json(nullptr);
}

Json ShapeJson(const BoxItem& box) {
    return {{"kind", "box"},
            {"x1", box.left},
            {"y1", box.top},
            {"x2", box.right},
            {"y2", box.bottom},
            {"fill", ColorJson(box.fill)},
            {"penWidth", box.penWidth},
            {"outline", ColorJson(box.outline)}};
}

Json ShapeJson(const LineItem& line) {
    return {{"kind", "line"},
            {"x1", line.x1},
            {"y1", line.y1},
            {"x2", line.x2},
            {"y2", line.y2},
            {"color", line.color},
            {"penWidth", line.penWidth}};
}

Json ShapeJson(const PictureItem& picture) {
    return {{"kind", "picture"},   {"x1", picture.left},   {"y1", picture.top},
            {"x2", picture.right}, {"y2", picture.bottom}, {"path", picture.path}};
}

Json TextJson(const TextItem& text, const std::vector<FontSpec>& fonts) {
    const FontSpec& font = fonts.at(static_cast<std::size_t>(text.font));
    return {{"x", text.x},
            {"y", text.y},
            {"width", text.width},
            {"font", font.family},
            {"size", font.sizeTwips / 20.0},
            {"bold", font.bold},
            {"italic", font.italic},
            {"color", text.color},
            {"text", text.text}};
}

Json PageJson(const Page& page, const std::vector<FontSpec>& fonts) {
    Json shapes = Json::array();
    for (const Shape& shape : page.shapes)
        shapes.push_back(std::visit([](const auto& item) { return ShapeJson(item); }, shape));
    Json texts = Json::array();
    for (const TextItem& text : page.texts)
        texts.push_back(TextJson(text, fonts));
    return {{"texts", std::move(texts)}, {"shapes", std::move(shapes)}};
}

/// True for a raised or lowered sign that stands at the word before it, and for what follows it.
bool IsRaised(const TextItem& before, const TextItem& text) {
    constexpr int Highest = 130, Nearest = 20;
    const int rise = std::abs(text.y - before.y);
    return rise > 0 && rise < Highest && std::abs(text.x - before.x - before.width) < Nearest;
}

}  // namespace

std::string PageText(const Page& page) {
    std::string text;
    for (std::size_t i = 0; i < page.texts.size(); ++i) {
        if (i > 0 && !IsRaised(page.texts[i - 1], page.texts[i]))
            text += page.texts[i].y == page.texts[i - 1].y ? ' ' : '\n';
        text += page.texts[i].text;
    }
    return text;
}

std::string DocumentJson(const Document& document) {
    Json pages = Json::array();
    for (const Page& page : document.pages)
        pages.push_back(PageJson(page, document.fonts));
    Json outline = Json::array();
    for (const OutlineEntry& entry : document.outline)
        outline.push_back({{"title", entry.title}, {"page", entry.page + 1}, {"y", entry.y}});
    const Json json = {{"title", document.title},
                       {"author", document.author},
                       {"outline", std::move(outline)},
                       {"pages", std::move(pages)}};
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tendo
