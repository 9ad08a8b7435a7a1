#pragma once

#include "platform/print/print_surface.h"

namespace tendo {

/// Pages of the simplest arithmetic, so that a log holds what a report wrote, whatever the layout
/// of real pages: a paragraph is one line of twenty twips a point, a row of a table takes 270
/// twips, a character is 100 twips wide, and only a report itself breaks a page.
class PlainPage : public PrintSurface {
  public:
    bool Error() const override { return false; }
    void NewPage() override;
    int CurrentPage() const override { return page_; }
    int PageWidth() const override { return 11520; }
    int PageHeight() const override { return 15120; }
    int CurrentX() const override { return 0; }
    int CurrentY() const override { return y_; }
    int MeasuredWidth() const override { return measured_; }
    std::string Footer() const override { return {}; }
    void DrawLine(int, int, int, int) override { OpenFirstPage(); }
    void Set(SurfaceOp op, const SurfaceValue& value) override;
    void WriteTable(std::string_view format, std::string_view header, std::string_view body,
                    std::optional<std::int32_t> headerShade) override;

  private:
    void OpenFirstPage();

    bool open_ = false;
    int page_ = 1, y_ = 0, lineHeight_ = 200, measured_ = 0;
};

}  // namespace tendo
