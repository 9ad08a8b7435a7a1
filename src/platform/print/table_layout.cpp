#include "platform/print/table_layout.h"

#include <algorithm>
#include <cstdint>

#include "platform/print/table_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr int RowPadding = 35;  // above and below the lines of a cell
constexpr int SizeStep = 10;    // half a point
constexpr int WidestTable =
    page_geometry::Right - page_geometry::Left - 2 * page_geometry::TableInset;
constexpr int ComparisonBorder = 3, RuledBorder = 2, GridBorder = 7;
constexpr Rgb RuleColor = 0xC8CDD2;
constexpr int RuleWidth = 8;

struct RowLayout {
    std::vector<std::vector<TextLine>> cells;
    std::size_t lines = 0;  // of its highest cell
    bool blank = false;     // a spacer
    bool header = false;
};

class TableWriter {
  public:
    TableWriter(PageFlow& flow, const TableStyle& style, std::string_view format)
        : flow_(flow), style_(style), columns_(ParseTableFormat(format)) {
        const int single = flow.Fonts().Metrics(style.font).lineHeight;
        lineHeight_ = std::max(SpacedHeight(single, style.lineSpacing), 1);
        NarrowToPage();
    }

    void Write(std::string_view header, std::string_view body) {
        flow_.EnsurePage();
        if (!header.empty()) {
            header_ = LayOut(header, style_.boldFont, style_.headerColor, true);
            header_->header = true;
        }
        const std::vector<std::string_view> rows = SplitRows(body);
        if (rows.empty()) WriteFirstHeader({});
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const RowLayout row = LayOutRow(rows[i]);
            if (i == 0) WriteFirstHeader(row);
            const bool total = i + 1 < rows.size() && IsTotal(rows[i + 1]);
            WriteRow(row, total ? Height(LayOutRow(rows[i + 1])) : 0);
        }
        EndSection(flow_.y);
        flow_.x = page_geometry::Left;
    }

  private:
    void NarrowToPage() {
        std::int64_t wanted = 0;
        for (const TableColumn& column : columns_)
            wanted += column.width;
        for (TableColumn& column : columns_) {
            if (wanted > WidestTable)
                column.width = static_cast<int>(column.width * WidestTable / wanted);
            tableWidth_ += column.width;
        }
    }

    /// The line of totals of a comparison stands out.
    bool IsTotal(std::string_view row) const {
        return style_.border == ComparisonBorder && StartsWith(row, "Total");
    }

    RowLayout LayOutRow(std::string_view text) {
        return LayOut(text, IsTotal(text) ? style_.boldFont : style_.font, style_.color);
    }

    /// A row with a word or a figure too wide for its cell is set a little smaller, and so is a
    /// header that would need more lines; but only where that is of use.
    RowLayout LayOut(std::string_view text, int font, Rgb color, bool header = false) {
        const RowLayout row = Break(text, font, color);
        const auto isCrowded = [&](const RowLayout& tried) {
            return IsTorn(tried) || (header && tried.lines > LinesMeant(text));
        };
        if (!isCrowded(row)) return row;
        FontSpec spec = flow_.Fonts().Spec(font);
        const int smallest = spec.sizeTwips * 3 / 4;
        const auto smaller = [&](int twips) {
            spec.sizeTwips = twips;
            return Break(text, flow_.Fonts().Id(spec), color);
        };
        if (isCrowded(smaller(smallest))) return row;
        for (int size = flow_.Fonts().Spec(font).sizeTwips - SizeStep; size > smallest;
             size -= SizeStep)
            if (RowLayout tried = smaller(size); !isCrowded(tried)) return tried;
        return smaller(smallest);
    }

    static bool IsTorn(const RowLayout& row) {
        for (const std::vector<TextLine>& cell : row.cells)
            for (const TextLine& line : cell)
                if (line.torn) return true;
        return false;
    }

    /// The lines of a header's highest cell as it was written.
    std::size_t LinesMeant(std::string_view header) const {
        std::size_t most = 1;
        for (const std::string_view cell : SplitCells(header, columns_.size()))
            most = std::max<std::size_t>(
                most, 1 + static_cast<std::size_t>(std::count(cell.begin(), cell.end(), '\n')));
        return most;
    }

    RowLayout Break(std::string_view text, int font, Rgb color) {
        RowLayout row;
        row.blank = text.find_first_not_of("| \r\n") == std::string_view::npos;
        const std::vector<std::string_view> cells = SplitCells(text, columns_.size());
        row.cells.reserve(cells.size());
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const StyledRun run{cells[i], font, color};
            const int width = std::max(columns_[i].width - 2 * page_geometry::CellPadding, 1);
            row.cells.push_back(BreakLines(flow_.Fonts(), {&run, 1}, {width, 0, 0, {}}));
            row.lines = std::max(row.lines, row.cells.back().size());
        }
        return row;
    }

    int Height(const RowLayout& row) const { return Height(row, row.lines); }
    int Height(const RowLayout& row, std::size_t lines) const {
        if (row.blank) return lineHeight_ / 2;
        return static_cast<int>(lines) * lineHeight_ + 2 * RowPadding;
    }

    /// The header doesn't stand alone at the foot of a page.
    void WriteFirstHeader(const RowLayout& firstRow) {
        if (!header_) return;
        if (firstRow.blank) spaceBelowHeader_ = Height(firstRow);
        const int needed = Height(*header_) + Height(firstRow) + lineHeight_;
        if (!flow_.Fits(needed) && needed + 2 * lineHeight_ < flow_.RoomBehindBreak())
            flow_.BreakPage();
        Place(*header_, 0, header_->lines);
    }

    /// The next page begins as the table did: with its header and the space below it.
    void BreakPage() {
        flow_.BreakPage();
        if (!IsHeaderRepeated()) return;
        Place(*header_, 0, header_->lines);
        flow_.y += spaceBelowHeader_;
    }

    bool IsHeaderRepeated() const {
        return header_ && Height(*header_) < (page_geometry::Bottom - page_geometry::Top) / 2;
    }

    /// `total` is the height of a line of totals that must not stand on the next page alone.
    void WriteRow(const RowLayout& row, int total) {
        const int height = Height(row);
        if (row.blank && style_.border != GridBorder) return WriteSpacer(height);
        if (!flow_.Fits(height + total) && height + total <= RoomForRows()) BreakPage();
        if (flow_.Fits(height))
            Place(row, 0, row.lines);
        else
            WriteByLines(row);
        sectionOpen_ = true;
    }

    /// A spacer parts nothing at the foot of a page.
    void WriteSpacer(int height) {
        EndSection(flow_.y + height / 2);
        if (flow_.Fits(height)) flow_.y += height;
    }

    /// A section of a comparison ends with a rule.
    void EndSection(int y) {
        if (style_.border == ComparisonBorder && sectionOpen_ && y <= page_geometry::Bottom)
            PlaceRule(y);
        sectionOpen_ = false;
    }

    int RoomForRows() const {
        const int page = page_geometry::Bottom - page_geometry::Top;
        return IsHeaderRepeated() ? page - Height(*header_) - spaceBelowHeader_ : page;
    }

    /// A row higher than a page: as many lines as each page takes, at least one.
    void WriteByLines(const RowLayout& row) {
        std::size_t from = 0;
        while (from < row.lines) {
            if (from > 0 || LinesThatFit() == 0) BreakPage();
            const std::size_t count =
                std::min(row.lines - from, std::max<std::size_t>(LinesThatFit(), 1));
            Place(row, from, count);
            from += count;
        }
    }

    std::size_t LinesThatFit() const {
        const int room = (page_geometry::Bottom - flow_.y - 2 * RowPadding) / lineHeight_;
        return static_cast<std::size_t>(std::max(room, 0));
    }

    void Place(const RowLayout& row, std::size_t from, std::size_t count) {
        const int height = Height(row, count);
        if (row.header && style_.headerShade) PlaceShade(height);
        int left = page_geometry::Left + page_geometry::TableInset;
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            PlaceCell(row, i, from, count, left);
            if (style_.border == GridBorder) PlaceFrame(left, columns_[i].width, height);
            left += columns_[i].width;
        }
        flow_.y += height;
        if (style_.border == RuledBorder) PlaceRule(flow_.y);
    }

    void PlaceCell(const RowLayout& row, std::size_t column, std::size_t from, std::size_t count,
                   int left) {
        const std::vector<TextLine>& lines = row.cells[column];
        int top = flow_.y + RowPadding;
        // Headings of several lines stand on one base line.
        if (row.header) top += static_cast<int>(row.lines - lines.size()) * lineHeight_;
        for (std::size_t i = from; i < std::min(from + count, lines.size()); ++i) {
            const int leading = (lineHeight_ - lines[i].height) / 2;
            flow_.AddLine(lines[i], LineLeft(lines[i], columns_[column], left), top + leading);
            top += lineHeight_;
        }
    }

    static double LineLeft(const TextLine& line, const TableColumn& column, int left) {
        const double room = column.width - 2 * page_geometry::CellPadding - line.width;
        const double start = left + page_geometry::CellPadding;
        if (column.align == CellAlign::Right) return start + room;
        return column.align == CellAlign::Center ? start + room / 2 : start;
    }

    void PlaceShade(int height) {
        const int left = page_geometry::Left + page_geometry::TableInset;
        flow_.Current().shapes.push_back(BoxItem{
            left, flow_.y, left + tableWidth_, flow_.y + height, style_.headerShade, {}, 0});
    }

    void PlaceFrame(int left, int width, int height) {
        flow_.Current().shapes.push_back(
            BoxItem{left, flow_.y, left + width, flow_.y + height, {}, Rgb{0}, RuleWidth});
    }

    void PlaceRule(int y) {
        const int left = page_geometry::Left + page_geometry::TableInset;
        flow_.Current().shapes.push_back(
            LineItem{left, y, left + tableWidth_, y, RuleColor, RuleWidth});
    }

    PageFlow& flow_;
    const TableStyle& style_;
    std::vector<TableColumn> columns_;
    std::optional<RowLayout> header_;
    int lineHeight_ = 0;
    int tableWidth_ = 0;
    int spaceBelowHeader_ = 0;
    bool sectionOpen_ = false;
};

}  // namespace

void WriteTable(PageFlow& flow, const TableStyle& style, std::string_view format,
                std::string_view header, std::string_view body) {
    TableWriter(flow, style, format).Write(header, body);
}

}  // namespace tendo
