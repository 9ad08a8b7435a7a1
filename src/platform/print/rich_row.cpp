#include "platform/print/rich_row.h"

#include <algorithm>
#include <vector>

#include "platform/print/line_breaker.h"

namespace tendo {

namespace {

constexpr int CellMargin = 108;  // 0.075 inches on each side, as word processors have it
constexpr int NarrowestCell = 360;
constexpr int CellPen = 10;
constexpr Rgb LineColor = 0;

struct Cell {
    int left = 0, right = 0;
    std::vector<TextLine> text;
    RichAlign align = RichAlign::Left;
    unsigned sides = 0;
};

/// The right edges of the cells within `width`: as they were given, else of equal widths.
std::vector<int> Edges(const std::vector<RichCell>& cells, int width) {
    std::vector<int> edges;
    int last = 0;
    for (const RichCell& cell : cells) {
        last = std::max(cell.right, last + NarrowestCell);
        edges.push_back(last);
    }
    const bool known = std::all_of(cells.begin(), cells.end(),
                                   [](const RichCell& cell) { return cell.right > 0; });
    const auto count = static_cast<int>(cells.size());
    for (int i = 0; i < count; ++i) {
        int& edge = edges[static_cast<std::size_t>(i)];
        if (!known)
            edge = width * (i + 1) / count;
        else if (last > width)
            edge = edge * width / last;
    }
    return edges;
}

/// The runs of each cell; tabs part them.
std::vector<std::vector<StyledRun>> CellRuns(FontTable& fonts, const RichParagraph& row) {
    std::vector<std::vector<StyledRun>> cells(1);
    for (const StyledRun& run : StyledRuns(fonts, row)) {
        StyledRun part = run;
        for (std::size_t tab = part.text.find('\t'); tab != std::string_view::npos;
             tab = part.text.find('\t')) {
            StyledRun before = part;
            before.text = part.text.substr(0, tab);
            cells.back().push_back(before);
            cells.emplace_back();
            part.text.remove_prefix(tab + 1);
        }
        cells.back().push_back(part);
    }
    cells.resize(row.cells.size());
    return cells;
}

std::vector<Cell> LaidOut(FontTable& fonts, const RichParagraph& row, const RichRowPlace& place) {
    const int indent = std::min(row.leftIndent, place.width / 2);
    const std::vector<int> edges = Edges(row.cells, place.width - indent);
    const std::vector<std::vector<StyledRun>> runs = CellRuns(fonts, row);
    std::vector<Cell> cells;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        Cell cell;
        cell.left = place.left + indent + (i == 0 ? 0 : edges[i - 1]);
        cell.right = place.left + indent + edges[i];
        cell.align = row.cells[i].align;
        cell.sides = row.cells[i].lines;
        const int width = std::max(cell.right - cell.left - 2 * CellMargin, NarrowestCell / 2);
        cell.text = BreakLines(fonts, runs[i], {width, 0, 0, {}});
        cells.push_back(std::move(cell));
    }
    return cells;
}

int LineHeight(const TextLine& line, const RichRowPlace& place) {
    return SpacedHeight(line.height, place.lineSpacing);
}

int Height(const Cell& cell, const RichRowPlace& place) {
    int height = 0;
    for (const TextLine& line : cell.text)
        height += LineHeight(line, place);
    return height;
}

void WriteCellLine(PageFlow& flow, const Cell& cell, const TextLine& line, int top) {
    const double room = cell.right - cell.left - 2 * CellMargin - line.width;
    double left = cell.left + CellMargin;
    if (cell.align == RichAlign::Center) left += room / 2;
    if (cell.align == RichAlign::Right) left += room;
    flow.AddLine(line, std::max<double>(left, cell.left), top);
}

void DrawSides(Page& page, const Cell& cell, int top, int bottom) {
    if (cell.sides == cell_side::All) {
        page.shapes.push_back(BoxItem{cell.left, top, cell.right, bottom, {}, LineColor, CellPen});
        return;
    }
    const auto draw = [&](unsigned side, int x1, int y1, int x2, int y2) {
        if (cell.sides & side) page.shapes.push_back(LineItem{x1, y1, x2, y2, LineColor, CellPen});
    };
    draw(cell_side::Left, cell.left, top, cell.left, bottom);
    draw(cell_side::Top, cell.left, top, cell.right, top);
    draw(cell_side::Right, cell.right, top, cell.right, bottom);
    draw(cell_side::Bottom, cell.left, bottom, cell.right, bottom);
}

void WriteTogether(PageFlow& flow, const std::vector<Cell>& cells, const RichRowPlace& place,
                   int height) {
    for (const Cell& cell : cells) {
        int top = flow.y;
        for (const TextLine& line : cell.text) {
            WriteCellLine(flow, cell, line, top);
            top += LineHeight(line, place);
        }
        DrawSides(flow.Current(), cell, flow.y, flow.y + height);
    }
    flow.y += height;
}

/// Cell beneath cell, line by line: a row higher than a page is no table that a reader can follow.
void WriteApart(PageFlow& flow, const std::vector<Cell>& cells, const RichRowPlace& place) {
    for (const Cell& cell : cells)
        for (const TextLine& line : cell.text) {
            const int height = LineHeight(line, place);
            if (!flow.Fits(height)) flow.BreakPage();
            WriteCellLine(flow, cell, line, flow.y);
            flow.y += height;
        }
}

}  // namespace

void WriteRichRow(PageFlow& flow, const RichParagraph& row, const RichRowPlace& place) {
    const std::vector<Cell> cells = LaidOut(flow.Fonts(), row, place);
    int height = 0;
    for (const Cell& cell : cells)
        height = std::max(height, Height(cell, place));
    if (height > page_geometry::Bottom - page_geometry::Top) return WriteApart(flow, cells, place);
    if (!flow.Fits(height)) flow.BreakPage();
    WriteTogether(flow, cells, place, height);
}

}  // namespace tendo
