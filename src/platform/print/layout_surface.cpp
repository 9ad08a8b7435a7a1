#include "platform/print/layout_surface.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/print/contrast.h"
#include "platform/print/page_count.h"
#include "platform/print/rich_row.h"
#include "platform/print/running_fields.h"
#include "platform/print/table_layout.h"

namespace tendo {

namespace {

using namespace page_geometry;

constexpr int TextLeft = Left + TextInset;
constexpr int TextRight = Right - TextInset;
constexpr int NarrowestText = 720;
constexpr int FarthestPlace = 100 * PaperHeight;
constexpr int BorderPen = 15;
constexpr int LinesWithHeading = 4;       // a heading and what must follow it on its page
constexpr int SpaceBehindRichText = 100;  // parts one footnote from the next
constexpr int BarTolerance = 15;
constexpr int SpaceAboveRule = 60;
constexpr int BoxBorder = 4;
constexpr int Centred = 1;  // of TextAlign
constexpr int Rectangle = 2;
constexpr int SolidBrush = 0;

/// A place that arithmetic can't overflow on.
int HeldNear(int twips) {
    return std::clamp(twips, -FarthestPlace, FarthestPlace);
}

bool IsBlank(const TextLine& line) {
    return line.width <= 0;
}

}  // namespace

Rgb RgbOfColor(std::int32_t color) {
    const auto value = static_cast<std::uint32_t>(color);
    if (value & 0x80000000U) return (value & 0xFF) == 5 ? 0xFFFFFF : 0x000000;
    return ((value & 0xFF) << 16) | (value & 0xFF00) | ((value >> 16) & 0xFF);
}

LayoutSurface::LayoutSurface(TextMeasurer& measurer) : fonts_(measurer), flow_(fonts_) {
    flow_.onClose = [this] { ClosePage(); };
    flow_.onOpen = [this] {
        if (NewPageEvent) NewPageEvent();
    };
    SetDefaults();
}

void LayoutSurface::SetDefaults() {
    for (const SurfaceOp op : {SurfaceOp::FontName, SurfaceOp::HdrFontName})
        Keep(op, "Arial");
    for (const SurfaceOp op : {SurfaceOp::Header, SurfaceOp::Footer})
        Keep(op, "");
    Keep(SurfaceOp::FontSize, 10);
    Keep(SurfaceOp::HdrFontSize, 8);
    Keep(SurfaceOp::LineSpacing, 100);
    Keep(SurfaceOp::AutoRTF, false);
}

int LayoutSurface::CurrentPage() const {
    return std::max(flow_.PageNumber(), 1);
}

void LayoutSurface::Keep(SurfaceOp op, const SurfaceValue& value) {
    const auto index = static_cast<std::size_t>(op);
    if (const auto* text = std::get_if<std::string_view>(&value))
        texts_[index] = std::string(*text);
    if (const auto* flag = std::get_if<bool>(&value)) numbers_[index] = *flag ? 1 : 0;
    if (const auto* number = std::get_if<std::int32_t>(&value)) numbers_[index] = *number;
}

void LayoutSurface::Set(SurfaceOp op, const SurfaceValue& value) {
    const auto number = [&] { return std::get<std::int32_t>(value); };
    const auto text = [&] { return std::get<std::string_view>(value); };
    switch (op) {
        case SurfaceOp::Action:
            return DoAction(number());
        case SurfaceOp::Paragraph:
            return WriteParagraph(text());
        case SurfaceOp::Text:
            return WriteText(text());
        case SurfaceOp::Measure:
            measuredWidth_ =
                static_cast<int>(std::lround(fonts_.TextWidth(FontId(TextFormat().font), text())));
            return;
        case SurfaceOp::Draw:
            if (number() == Rectangle) DrawShape();
            return;
        case SurfaceOp::Picture:
            return AddPicture(text());
        case SurfaceOp::CurrentX:
            flow_.x = HeldNear(number());
            return;
        case SurfaceOp::CurrentY:
            flow_.y = HeldNear(number());
            return;
        case SurfaceOp::HdrFont:
            return Keep(SurfaceOp::HdrFontName, value);
        default:
            Keep(op, value);
    }
}

/// A new document keeps no running header and no rich text of the one before.
void LayoutSurface::DoAction(int action) {
    constexpr int Start = 3, End = 6, Print = 9;
    if (action == Start) {
        flow_.Begin();
        SetDefaults();
        closingRule_.reset();
        documentOpen_ = true;
    } else if (action == End && documentOpen_) {
        flow_.End();
        ResolvePageCounts(flow_.Doc(), fonts_);
        documentOpen_ = false;
    } else if (action == Print && onPrint) {
        onPrint(flow_.Doc());
    }
}

RichRun LayoutSurface::TextFormat() const {
    RichRun format;
    format.font = {Held(SurfaceOp::FontName), std::clamp(Number(SurfaceOp::FontSize), 1, 200) * 20,
                   Number(SurfaceOp::FontBold) != 0, Number(SurfaceOp::FontItalic) != 0};
    format.color = RgbOfColor(Number(SurfaceOp::TextColor));
    return format;
}

RichRun LayoutSurface::HeaderFormat() const {
    RichRun format;
    format.font = {Held(SurfaceOp::HdrFontName),
                   std::clamp(Number(SurfaceOp::HdrFontSize), 1, 72) * 20,
                   Number(SurfaceOp::HdrFontBold) != 0, Number(SurfaceOp::HdrFontItalic) != 0};
    format.color = RgbOfColor(Number(SurfaceOp::HdrColor));
    return format;
}

int LayoutSurface::LineSpacingPercent() const {
    const int percent = Number(SurfaceOp::LineSpacing);
    return percent <= 0 ? 100 : std::clamp(percent, 50, 400);
}

int LayoutSurface::PlaceOf(SurfaceOp op) const {
    return HeldNear(Number(op));
}

int LayoutSurface::PenTwips() const {
    return std::clamp(Number(SurfaceOp::PenWidth), 0, 100) * 15 / 2;
}

void LayoutSurface::WriteParagraph(std::string_view text) {
    flow_.EnsurePage();
    const RichRun format = TextFormat();
    const bool autoRich = Number(SurfaceOp::AutoRTF) != 0;
    const RichText rich =
        autoRich ? ReadRichOrPlainText(text, format, &richHead_) : PlainAsRich(text, format);
    for (const RichParagraph& paragraph : rich.paragraphs)
        WriteRich(paragraph);
    if (autoRich && IsRichText(text)) flow_.y += SpaceBehindRichText;
    flow_.x = Left;
}

void LayoutSurface::WriteRich(const RichParagraph& paragraph) {
    if (paragraph.pageBefore && flow_.y > Top) flow_.NewPage();
    if (!paragraph.cells.empty())
        return WriteRichRow(flow_, paragraph,
                            {TextLeft, TextRight - TextLeft, LineSpacingPercent()});
    const int indent = std::clamp(paragraph.leftIndent, 0, TextRight - TextLeft - NarrowestText);
    const int left = TextLeft + indent;
    const int right =
        std::max(TextRight - std::max(paragraph.rightIndent, 0), left + NarrowestText);
    LineShape shape{
        right - left, std::clamp(paragraph.firstIndent, -indent, (right - left) / 2), 0, {}};
    for (TabStop tab : paragraph.tabs) {
        tab.position -= indent;
        shape.tabs.push_back(tab);
    }
    if (flow_.y > Top) flow_.y += std::clamp(paragraph.spaceBefore, 0, Bottom);
    const std::vector<StyledRun> runs = StyledRuns(fonts_, paragraph);
    WriteLines(BreakLines(fonts_, runs, shape), paragraph, left, right);
    flow_.y += std::clamp(paragraph.spaceAfter, 0, Bottom);
}

void LayoutSurface::WriteLines(const std::vector<TextLine>& lines, const RichParagraph& paragraph,
                               int left, int right) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (LeavesLoneLine(lines, i, paragraph)) flow_.BreakPage();
        WriteLine(lines[i], LineStart(paragraph.align, left, right, lines[i].width),
                  LineHeight(lines[i], paragraph));
    }
}

/// No line of a paragraph stands alone at the foot of a page or at the head of the next.
bool LayoutSurface::LeavesLoneLine(const std::vector<TextLine>& lines, std::size_t from,
                                   const RichParagraph& paragraph) const {
    const std::size_t rest = lines.size() - from;
    const int height = LineHeight(lines[from], paragraph);
    if (rest < 2 || height > (Bottom - Top) / 8 || !flow_.Fits(height)) return false;
    if (from == 0 && !flow_.Fits(2 * height)) return true;
    if (from == 0 && rest == 3) return !flow_.Fits(3 * height);
    return from > 0 && rest == 2 && !flow_.Fits(2 * height);
}

/// Line spacing is for running text. Centred lines stand in title and banner, among boxes and
/// rules that have their fixed places. Lines of an exact height may overlap a little, but never so
/// that they can't be read.
int LayoutSurface::LineHeight(const TextLine& line, const RichParagraph& paragraph) const {
    const bool display = Number(SurfaceOp::TextAlign) == Centred;
    const int height = display ? line.height : SpacedHeight(line.height, LineSpacingPercent());
    if (paragraph.exactLine > 0) return std::max(paragraph.exactLine, height * 3 / 4);
    return std::max(SpacedHeight(height, paragraph.lineSpacing), paragraph.leastLine);
}

void LayoutSurface::WriteLine(const TextLine& line, double left, int height) {
    const bool heading = IsOnBar(line);
    const int withSection = std::min(height * LinesWithHeading, (Bottom - Top) / 2);
    if (!flow_.Fits(heading ? withSection : height)) flow_.BreakPage();
    if (heading) {
        WriteHeading(line, left);
    } else {
        flow_.AddLine(line, left, flow_.y);
        if (!IsBlank(line)) KeepRuleBelow(flow_.y + height);
    }
    flow_.y += height;
}

bool LayoutSurface::IsOnBar(const TextLine& line) const {
    const BoxItem* bar = flow_.OpenBar();
    return bar && !IsBlank(line) && flow_.y >= bar->top && flow_.y < bar->bottom;
}

/// Capitals stand in the middle of the bar, whatever the size of the heading's font; the bar of a
/// large one grows with it.
void LayoutSurface::WriteHeading(const TextLine& line, double left) {
    const FontMetrics& metrics = fonts_.Metrics(line.fragments.front().font);
    const int needed = metrics.capHeight + 2 * metrics.descent;
    if (needed > flow_.OpenBar()->bottom - flow_.OpenBar()->top + BarTolerance)
        flow_.GrowBar(needed);
    const BoxItem& bar = *flow_.OpenBar();
    const int top = (bar.top + bar.bottom + metrics.capHeight) / 2 - line.ascent;
    std::string title;
    for (const LineFragment& fragment : line.fragments)
        title += fragment.text;
    flow_.AddLine(line, left, top);
    flow_.EnterHeading(title);
    closingRule_.reset();
}

/// A rule drawn ahead of the pen closes the lines that are written above it. It gives way to lines
/// that need more room.
void LayoutSurface::KeepRuleBelow(int bottom) {
    if (closingRulePage_ != flow_.PageNumber()) closingRule_.reset();
    if (!closingRule_) return;
    LineItem& rule = std::get<LineItem>(flow_.Current().shapes[*closingRule_]);
    if (flow_.y >= rule.y1)
        closingRule_.reset();
    else if (bottom > rule.y1)
        rule.y1 = rule.y2 = bottom + SpaceAboveRule;
}

double LayoutSurface::LineStart(RichAlign align, double left, double right, double width) const {
    constexpr int ToTheRight = 2;
    const int textAlign = Number(SurfaceOp::TextAlign);
    const bool inherit = align == RichAlign::Inherit;
    if (align == RichAlign::Center || (inherit && textAlign == Centred))
        return left + (right - left - width) / 2;
    if (align == RichAlign::Right || (inherit && textAlign == ToTheRight)) return right - width;
    return left;
}

void LayoutSurface::WriteText(std::string_view text) {
    flow_.EnsurePage();
    const RichRun format = TextFormat();
    const StyledRun run{text, FontId(format.font), format.color};
    const TextLine line = BreakLines(fonts_, {&run, 1}, {2 * PaperWidth, 0, 0, {}}).front();
    flow_.AddLine(line, flow_.x, flow_.y);
    flow_.x += static_cast<int>(std::lround(line.width));
}

void LayoutSurface::DrawShape() {
    flow_.EnsurePage();
    BoxItem box{PlaceOf(SurfaceOp::X1),
                PlaceOf(SurfaceOp::Y1),
                PlaceOf(SurfaceOp::X2),
                PlaceOf(SurfaceOp::Y2),
                {},
                {},
                PenTwips()};
    if (Number(SurfaceOp::BrushStyle) == SolidBrush)
        box.fill = RgbOfColor(Number(SurfaceOp::BrushColor));
    if (box.penWidth > 0) box.outline = RgbOfColor(Number(SurfaceOp::PenColor));
    if (box.fill)
        flow_.PlaceBar(box);
    else
        flow_.Current().shapes.push_back(box);
}

void LayoutSurface::AddPicture(std::string_view path) {
    flow_.EnsurePage();
    flow_.Current().shapes.push_back(PictureItem{PlaceOf(SurfaceOp::X1), PlaceOf(SurfaceOp::Y1),
                                                 PlaceOf(SurfaceOp::X2), PlaceOf(SurfaceOp::Y2),
                                                 std::string(path)});
}

void LayoutSurface::DrawLine(int x1, int y1, int x2, int y2) {
    flow_.EnsurePage();
    const LineItem line{HeldNear(x1),
                        HeldNear(y1),
                        HeldNear(x2),
                        HeldNear(y2),
                        RgbOfColor(Number(SurfaceOp::PenColor)),
                        PenTwips()};
    if (y1 == y2 && y1 > flow_.y && std::abs(line.x2 - line.x1) >= Right - Left) {
        closingRule_ = flow_.Current().shapes.size();
        closingRulePage_ = flow_.PageNumber();
    }
    flow_.Current().shapes.push_back(line);
}

void LayoutSurface::WriteTable(std::string_view format, std::string_view header,
                               std::string_view body, std::optional<std::int32_t> headerShade) {
    const RichRun text = TextFormat();
    FontSpec boldFont = text.font;
    boldFont.bold = true;
    TableStyle style{FontId(text.font),
                     FontId(boldFont),
                     text.color,
                     text.color,
                     Number(SurfaceOp::TableBorder),
                     {},
                     LineSpacingPercent()};
    if (headerShade) {
        style.headerShade = RgbOfColor(*headerShade);
        style.headerColor = LegibleOn(*style.headerShade, text.color);
    }
    tendo::WriteTable(flow_, style, format, header, body);
}

/// Header and footer are written as they stand when the page is left, the header first in reading
/// order.
void LayoutSurface::ClosePage() {
    Page& page = flow_.Current();
    std::vector<TextItem> body = std::move(page.texts);
    page.texts.clear();
    WriteRunningHeader(flow_, HeaderFormat(), Held(SurfaceOp::Header));
    page.texts.insert(page.texts.end(), body.begin(), body.end());
    WriteRunningFooter(flow_, HeaderFormat(), Held(SurfaceOp::Footer));
    if (Number(SurfaceOp::PageBorder) == BoxBorder)
        page.shapes.push_back(BoxItem{Left, Top, Right, Bottom, {}, Rgb{0}, BorderPen});
}

}  // namespace tendo
