#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tendo {

/// Every property of a print surface that can be set.
enum class SurfaceOp {
    Action,
    Paragraph,
    Text,
    Measure,
    AutoRTF,
    TableBorder,
    PageBorder,
    Columns,
    FontName,
    FontSize,
    FontBold,
    FontItalic,
    TextColor,
    TextAlign,
    LineSpacing,
    Header,
    HdrFont,
    HdrFontName,
    HdrFontSize,
    HdrFontBold,
    HdrFontItalic,
    HdrColor,
    Footer,
    BrushColor,
    BrushStyle,
    PenColor,
    PenWidth,
    PenStyle,
    X1,
    Y1,
    X2,
    Y2,
    Draw,
    Picture,
    CurrentX,
    CurrentY,
    Count
};
/// The property's own name.
const char* SurfaceOpName(SurfaceOp op);

using SurfaceValue = std::variant<bool, std::int32_t, std::string_view>;

/// What reports write on: a paged document that breaks its own lines and pages. Positions and sizes
/// are twips counted from the corner of the page's printable area; colours are 32-bit values in
/// blue-green-red order, or a system colour (0x80000005 is the window colour).
class PrintSurface {
  public:
    PrintSurface() = default;
    virtual ~PrintSurface() = default;
    PrintSurface(const PrintSurface&) = delete;
    PrintSurface& operator=(const PrintSurface&) = delete;

    /// 3 starts a document, 6 ends it, 9 sends the finished document to the printer.
    void Action(int value) { Set(SurfaceOp::Action, value); }
    /// True when no document could be started.
    virtual bool Error() const = 0;
    /// Ends the page and opens a new one.
    virtual void NewPage() = 0;
    /// Raised on every page opened, before anything is written on it. The first page opens when
    /// something is first written, so a document without contents has no page.
    std::function<void()> NewPageEvent;

    /// The page being written, from 1.
    virtual int CurrentPage() const = 0;
    virtual int PageWidth() const = 0;
    virtual int PageHeight() const = 0;
    virtual int CurrentX() const = 0;
    virtual int CurrentY() const = 0;
    void CurrentX(int twips) { Set(SurfaceOp::CurrentX, twips); }
    void CurrentY(int twips) { Set(SurfaceOp::CurrentY, twips); }

    /// One paragraph at `CurrentY`; an empty text writes an empty line.
    void Paragraph(std::string_view text) { Set(SurfaceOp::Paragraph, text); }
    /// Text at the pen; the line goes on behind it.
    void Text(std::string_view text) { Set(SurfaceOp::Text, text); }
    /// Measures a text in the current font; `MeasuredWidth` then holds its width.
    void Measure(std::string_view text) { Set(SurfaceOp::Measure, text); }
    virtual int MeasuredWidth() const = 0;
    void AutoRTF(bool value) { Set(SurfaceOp::AutoRTF, value); }

    /// `format`: "<+2000|>1400|^~600", one field a column (alignment, layout mark, width in twips);
    /// `header`: cells joined by `|`, empty for none; `body`: cells joined by `|`, each row closed
    /// by `;`.
    void AddTable(std::string_view format, std::string_view header, std::string_view body) {
        WriteTable(format, header, body, std::nullopt);
    }
    void AddTable(std::string_view format, std::string_view header, std::string_view body,
                  std::int32_t headerShade) {
        WriteTable(format, header, body, headerShade);
    }
    void TableBorder(int value) { Set(SurfaceOp::TableBorder, value); }
    void PageBorder(int value) { Set(SurfaceOp::PageBorder, value); }
    void Columns(int value) { Set(SurfaceOp::Columns, value); }

    void FontName(std::string_view name) { Set(SurfaceOp::FontName, name); }
    void FontSize(int points) { Set(SurfaceOp::FontSize, points); }
    void FontBold(bool value) { Set(SurfaceOp::FontBold, value); }
    void FontItalic(bool value) { Set(SurfaceOp::FontItalic, value); }
    void TextColor(std::int32_t color) { Set(SurfaceOp::TextColor, color); }
    /// 0 left, 1 centred, 2 right.
    void TextAlign(int value) { Set(SurfaceOp::TextAlign, value); }
    /// Percent of single spacing.
    void LineSpacing(int percent) { Set(SurfaceOp::LineSpacing, percent); }

    /// Running header and footer: left, centre and right field parted by `|`.
    void Header(std::string_view fields) { Set(SurfaceOp::Header, fields); }
    void HdrFont(std::string_view name) { Set(SurfaceOp::HdrFont, name); }
    void HdrFontName(std::string_view name) { Set(SurfaceOp::HdrFontName, name); }
    void HdrFontSize(int points) { Set(SurfaceOp::HdrFontSize, points); }
    void HdrFontBold(bool value) { Set(SurfaceOp::HdrFontBold, value); }
    void HdrFontItalic(bool value) { Set(SurfaceOp::HdrFontItalic, value); }
    void HdrColor(std::int32_t color) { Set(SurfaceOp::HdrColor, color); }
    virtual std::string Footer() const = 0;
    void Footer(std::string_view fields) { Set(SurfaceOp::Footer, fields); }

    void BrushColor(std::int32_t color) { Set(SurfaceOp::BrushColor, color); }
    /// 0 solid, 1 none.
    void BrushStyle(int value) { Set(SurfaceOp::BrushStyle, value); }
    void PenColor(std::int32_t color) { Set(SurfaceOp::PenColor, color); }
    /// Half screen pixels (7.5 twips); 0 draws no outline.
    void PenWidth(int value) { Set(SurfaceOp::PenWidth, value); }
    void PenStyle(int value) { Set(SurfaceOp::PenStyle, value); }
    void X1(int twips) { Set(SurfaceOp::X1, twips); }
    void Y1(int twips) { Set(SurfaceOp::Y1, twips); }
    void X2(int twips) { Set(SurfaceOp::X2, twips); }
    void Y2(int twips) { Set(SurfaceOp::Y2, twips); }
    /// 2 draws a rectangle into `X1` to `Y2`.
    void Draw(int value) { Set(SurfaceOp::Draw, value); }
    /// Stretches a picture file into `X1` to `Y2`.
    void Picture(std::string_view path) { Set(SurfaceOp::Picture, path); }
    virtual void DrawLine(int x1, int y1, int x2, int y2) = 0;

    /// The one way in for all properties, for surfaces that pass them on.
    virtual void Set(SurfaceOp op, const SurfaceValue& value) = 0;
    virtual void WriteTable(std::string_view format, std::string_view header, std::string_view body,
                            std::optional<std::int32_t> headerShade) = 0;
};

}  // namespace tendo
