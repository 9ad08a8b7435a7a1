#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/print/text_measurer.h"

namespace tendo {

/// The geometry of a Letter page as the program sees it, in twips: its printable area, a quarter
/// inch inside the paper on each side. All positions count from that area's corner.
namespace page_geometry {
inline constexpr int PaperWidth = 12240, PaperHeight = 15840;  // 8.5 by 11 inches
inline constexpr int PaperMargin = 360;
inline constexpr int Width = 11520, Height = 15120;
inline constexpr int Left = 360, Right = 11160, Top = 720, Bottom = 14400;
/// Tables stand this far inside the text box, and so a table of 10750 twips is centred in it.
inline constexpr int TableInset = 25;
inline constexpr int CellPadding = 65;
/// Running text keeps off the page border, flush with the text of tables.
inline constexpr int TextInset = TableInset + CellPadding;
}  // namespace page_geometry

/// A colour as 0xRRGGBB.
using Rgb = std::uint32_t;

/// Text on one line in one font; `y` is its base line. `font` counts into `Document::fonts`.
struct TextItem {
    int x = 0, y = 0, width = 0;
    int font = 0;
    Rgb color = 0;
    std::string text;
};
struct BoxItem {
    int left = 0, top = 0, right = 0, bottom = 0;
    std::optional<Rgb> fill, outline;
    int penWidth = 0;
};
struct LineItem {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Rgb color = 0;
    int penWidth = 0;
};
/// An image stretched into its box. `path` is a file, or `ProgramIconPicture`.
struct PictureItem {
    int left = 0, top = 0, right = 0, bottom = 0;
    std::string path;
};
/// Stands for the main window's icon.
inline constexpr const char* ProgramIconPicture = "icon";

using Shape = std::variant<BoxItem, LineItem, PictureItem>;

/// One page. Shapes lie under all texts; texts stand in reading order.
struct Page {
    std::vector<Shape> shapes;
    std::vector<TextItem> texts;
};

/// A section heading; `page` counts from 0, `y` in twips.
struct OutlineEntry {
    std::string title;
    int page = 0, y = 0;
};

/// A laid-out document, the same for every painter.
struct Document {
    std::string title, author;
    std::vector<FontSpec> fonts;
    std::vector<Page> pages;
    std::vector<OutlineEntry> outline;
};

/// The texts of a page, one line for each base line, runs of a line parted by a blank.
std::string PageText(const Page& page);

/// The document as JSON text: pages with their texts, boxes, lines, pictures and positions.
std::string DocumentJson(const Document& document);

}  // namespace tendo
