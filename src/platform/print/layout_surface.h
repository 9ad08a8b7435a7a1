#pragma once

#include <array>

#include "platform/print/font_table.h"
#include "platform/print/page_flow.h"
#include "platform/print/print_surface.h"
#include "platform/print/rich_text.h"

namespace tendo {

/// Lays the calls of reports out into a `Document`. Painters draw its pages; nothing is laid out
/// twice.
class LayoutSurface : public PrintSurface {
  public:
    /// `measurer` outlives this surface.
    explicit LayoutSurface(TextMeasurer& measurer);

    /// The document as far as it was written; whole after `Action` 6.
    const Document& Result() { return flow_.Doc(); }
    Document TakeResult() { return std::move(flow_.Doc()); }
    /// Called with the finished document on `Action` 9.
    std::function<void(const Document&)> onPrint;

    using PrintSurface::CurrentX;
    using PrintSurface::CurrentY;
    using PrintSurface::Footer;
    bool Error() const override { return false; }
    void NewPage() override { flow_.NewPage(); }
    int CurrentPage() const override;
    int PageWidth() const override { return page_geometry::Width; }
    int PageHeight() const override { return page_geometry::Height; }
    int CurrentX() const override { return flow_.x; }
    int CurrentY() const override { return flow_.y; }
    int MeasuredWidth() const override { return measuredWidth_; }
    std::string Footer() const override { return Held(SurfaceOp::Footer); }
    void DrawLine(int x1, int y1, int x2, int y2) override;
    void Set(SurfaceOp op, const SurfaceValue& value) override;
    void WriteTable(std::string_view format, std::string_view header, std::string_view body,
                    std::optional<std::int32_t> headerShade) override;

  private:
    void SetDefaults();
    void Keep(SurfaceOp op, const SurfaceValue& value);
    int Number(SurfaceOp op) const { return numbers_[static_cast<std::size_t>(op)]; }
    const std::string& Held(SurfaceOp op) const { return texts_[static_cast<std::size_t>(op)]; }

    void DoAction(int action);
    void WriteParagraph(std::string_view text);
    void WriteRich(const RichParagraph& paragraph);
    void WriteLines(const std::vector<TextLine>& lines, const RichParagraph& paragraph, int left,
                    int right);
    bool LeavesLoneLine(const std::vector<TextLine>& lines, std::size_t from,
                        const RichParagraph& paragraph) const;
    int LineHeight(const TextLine& line, const RichParagraph& paragraph) const;
    void WriteLine(const TextLine& line, double left, int height);
    bool IsOnBar(const TextLine& line) const;
    void WriteHeading(const TextLine& line, double left);
    void KeepRuleBelow(int bottom);
    void WriteText(std::string_view text);
    void DrawShape();
    void AddPicture(std::string_view path);
    double LineStart(RichAlign align, double left, double right, double width) const;

    void ClosePage();

    RichRun TextFormat() const;
    RichRun HeaderFormat() const;
    int FontId(const FontSpec& font) { return fonts_.Id(font); }
    int LineSpacingPercent() const;
    int PlaceOf(SurfaceOp op) const;
    int PenTwips() const;

    FontTable fonts_;
    PageFlow flow_;
    std::array<int, static_cast<std::size_t>(SurfaceOp::Count)> numbers_{};
    std::array<std::string, static_cast<std::size_t>(SurfaceOp::Count)> texts_;
    RichHead richHead_;  // of the rich text written last
    int measuredWidth_ = 0;
    bool documentOpen_ = false;
    std::optional<std::size_t> closingRule_;  // a shape of its page
    int closingRulePage_ = 0;
};

/// A colour of the program (blue-green-red, or a system colour) as 0xRRGGBB.
Rgb RgbOfColor(std::int32_t color);

}  // namespace tendo
