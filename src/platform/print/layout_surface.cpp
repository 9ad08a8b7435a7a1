#include "platform/print/layout_surface.h"

#include <algorithm>
#include <cmath>

#include "platform/print/table_layout.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

using namespace page_geometry;

constexpr int TextLeft = Left + TextInset;
constexpr int TextRight = Right - TextInset;
constexpr int NarrowestText = 720;
constexpr int BorderPen = 15;
constexpr int HeaderCentre = 374;  // of the grey band above the text, 2 to 50 hundredths
constexpr int FooterTop = Bottom + 60;
constexpr int RunningFieldWidth = 5000;
constexpr int LinesWithHeading = 4;       // a heading and what must follow it on its page
constexpr int SpaceBehindRichText = 100;  // parts one footnote from the next
constexpr int BoxBorder = 4;
constexpr int Rectangle = 2;
constexpr int SolidBrush = 0;

bool IsBlank(const TextLine& line) {
    return line.width <= 0;
}

std::vector<StyledRun> StyledRuns(FontTable& fonts, const RichParagraph& paragraph) {
    std::vector<StyledRun> runs;
    for (const RichRun& run : paragraph.runs)
        runs.push_back({run.text, fonts.Id(run.font), run.color});
    return runs;
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
            flow_.x = number();
            return;
        case SurfaceOp::CurrentY:
            flow_.y = number();
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
        barPage_ = 0;
        documentOpen_ = true;
    } else if (action == End && documentOpen_) {
        flow_.End();
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
    return std::clamp(Number(SurfaceOp::LineSpacing), 50, 400);
}

int LayoutSurface::PenTwips() const {
    return std::clamp(Number(SurfaceOp::PenWidth), 0, 100) * 15 / 2;
}

void LayoutSurface::WriteParagraph(std::string_view text) {
    flow_.EnsurePage();
    const RichRun format = TextFormat();
    const bool autoRich = Number(SurfaceOp::AutoRTF) != 0;
    const RichText rich = autoRich ? ReadRichOrPlainText(text, format) : PlainAsRich(text, format);
    for (const RichParagraph& paragraph : rich.paragraphs)
        WriteRich(paragraph);
    if (autoRich && IsRichText(text)) flow_.y += SpaceBehindRichText;
    flow_.x = Left;
}

void LayoutSurface::WriteRich(const RichParagraph& paragraph) {
    const int left = TextLeft + paragraph.leftIndent;
    const int right = std::max(TextRight - paragraph.rightIndent, left + NarrowestText);
    LineShape shape{right - left, std::max(paragraph.firstIndent, -paragraph.leftIndent), 0, {}};
    for (const int tab : paragraph.tabs)
        shape.tabs.push_back(tab - paragraph.leftIndent);
    if (flow_.y > Top) flow_.y += paragraph.spaceBefore;
    const std::vector<StyledRun> runs = StyledRuns(fonts_, paragraph);
    for (const TextLine& line : BreakLines(fonts_, runs, shape))
        WriteLine(line, LineStart(paragraph.align, left, right, line.width));
    flow_.y += paragraph.spaceAfter;
}

void LayoutSurface::WriteLine(const TextLine& line, double left) {
    const int height = line.height * LineSpacingPercent() / 100;
    if (IsOnBar(line))
        KeepHeadingTogether(height);
    else if (!flow_.Fits(height))
        flow_.NewPage();
    if (IsOnBar(line)) {
        flow_.AddLine(line, left, TopOnBar(line));
        AddHeading(line);
    } else {
        flow_.AddLine(line, left, flow_.y);
    }
    flow_.y += height;
}

/// A heading with no room for some lines of its section goes to the next page and takes its bar
/// along.
void LayoutSurface::KeepHeadingTogether(int height) {
    if (flow_.Fits(height * LinesWithHeading)) return;
    const int rise = flow_.y - bar_.top;
    BoxItem bar = bar_;
    std::vector<Shape>& shapes = flow_.Current().shapes;
    if (const BoxItem* last = std::get_if<BoxItem>(&shapes.back()); last && last->top == bar.top)
        shapes.pop_back();
    flow_.NewPage();
    bar.bottom += flow_.y - rise - bar.top;
    bar.top = flow_.y - rise;
    PlaceBar(bar);
}

void LayoutSurface::PlaceBar(const BoxItem& bar) {
    flow_.Current().shapes.push_back(bar);
    bar_ = bar;
    barPage_ = flow_.PageNumber();
}

double LayoutSurface::LineStart(RichAlign align, double left, double right, double width) const {
    constexpr int Centred = 1, ToTheRight = 2;
    const int textAlign = Number(SurfaceOp::TextAlign);
    const bool inherit = align == RichAlign::Inherit;
    if (align == RichAlign::Center || (inherit && textAlign == Centred))
        return left + (right - left - width) / 2;
    if (align == RichAlign::Right || (inherit && textAlign == ToTheRight)) return right - width;
    return left;
}

bool LayoutSurface::IsOnBar(const TextLine& line) const {
    const bool wide = bar_.right - bar_.left > (Right - Left) * 3 / 4;
    return barPage_ == flow_.PageNumber() && wide && !IsBlank(line) && flow_.y >= bar_.top &&
           flow_.y < bar_.bottom;
}

/// Capitals stand in the middle of the bar, whatever the size of the heading's font.
int LayoutSurface::TopOnBar(const TextLine& line) const {
    const int capHeight = fonts_.Metrics(line.fragments.front().font).capHeight;
    return (bar_.top + bar_.bottom + capHeight) / 2 - line.ascent;
}

void LayoutSurface::AddHeading(const TextLine& line) {
    std::string title;
    for (const LineFragment& fragment : line.fragments)
        title += fragment.text;
    flow_.Doc().outline.push_back({title, flow_.PageNumber() - 1, bar_.top});
    barPage_ = 0;
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
    BoxItem box{Number(SurfaceOp::X1),
                Number(SurfaceOp::Y1),
                Number(SurfaceOp::X2),
                Number(SurfaceOp::Y2),
                {},
                {},
                PenTwips()};
    if (Number(SurfaceOp::BrushStyle) == SolidBrush)
        box.fill = RgbOfColor(Number(SurfaceOp::BrushColor));
    if (box.penWidth > 0) box.outline = RgbOfColor(Number(SurfaceOp::PenColor));
    if (box.fill)
        PlaceBar(box);
    else
        flow_.Current().shapes.push_back(box);
}

void LayoutSurface::AddPicture(std::string_view path) {
    flow_.EnsurePage();
    flow_.Current().shapes.push_back(PictureItem{Number(SurfaceOp::X1), Number(SurfaceOp::Y1),
                                                 Number(SurfaceOp::X2), Number(SurfaceOp::Y2),
                                                 std::string(path)});
}

void LayoutSurface::DrawLine(int x1, int y1, int x2, int y2) {
    flow_.EnsurePage();
    flow_.Current().shapes.push_back(
        LineItem{x1, y1, x2, y2, RgbOfColor(Number(SurfaceOp::PenColor)), PenTwips()});
}

void LayoutSurface::WriteTable(std::string_view format, std::string_view header,
                               std::string_view body, std::optional<std::int32_t> headerShade) {
    const RichRun text = TextFormat();
    FontSpec boldFont = text.font;
    boldFont.bold = true;
    TableStyle style{
        FontId(text.font),   FontId(boldFont), text.color, Number(SurfaceOp::TableBorder), {},
        LineSpacingPercent()};
    if (headerShade) style.headerShade = RgbOfColor(*headerShade);
    tendo::WriteTable(flow_, style, format, header, body);
}

/// Header and footer are written as they stand when the page is left, the header first in reading
/// order.
void LayoutSurface::ClosePage() {
    Page& page = flow_.Current();
    std::vector<TextItem> body = std::move(page.texts);
    page.texts.clear();
    AddRunningFields(Held(SurfaceOp::Header), true);
    page.texts.insert(page.texts.end(), body.begin(), body.end());
    AddRunningFields(Held(SurfaceOp::Footer), false);
    if (Number(SurfaceOp::PageBorder) == BoxBorder)
        page.shapes.push_back(BoxItem{Left, Top, Right, Bottom, {}, Rgb{0}, BorderPen});
}

void LayoutSurface::AddRunningFields(std::string_view fields, bool header) {
    std::vector<std::string> parts = Split(fields, '|');
    parts.resize(3);
    AddRunningField(parts[0], RichAlign::Left, header);
    AddRunningField(parts[1], RichAlign::Center, header);
    AddRunningField(parts[2], RichAlign::Right, header);
}

void LayoutSurface::AddRunningField(std::string_view field, RichAlign align, bool header) {
    if (field.empty()) return;
    std::vector<TextLine> lines;
    int height = 0;
    for (const RichParagraph& paragraph : ReadRichOrPlainText(field, HeaderFormat()).paragraphs) {
        const std::vector<StyledRun> runs = StyledRuns(fonts_, paragraph);
        for (TextLine& line : BreakLines(fonts_, runs, {RunningFieldWidth, 0, 0, {}})) {
            height += line.height;
            lines.push_back(std::move(line));
        }
    }
    int top = header ? HeaderCentre - height / 2 : FooterTop;
    for (const TextLine& line : lines) {
        flow_.AddLine(line, LineStart(align, TextLeft, TextRight, line.width), top);
        top += line.height;
    }
}

}  // namespace tendo
