#pragma once

#include "platform/print/print_surface.h"

namespace tendo {

/// A page without an end, so that a log holds what a report wrote and no page break of the layout.
class BlankSurface : public PrintSurface {
  public:
    bool Error() const override { return false; }
    void NewPage() override { ++page_; }
    int CurrentPage() const override { return page_; }
    int PageWidth() const override { return 11520; }
    int PageHeight() const override { return 15120; }
    int CurrentX() const override { return 0; }
    int CurrentY() const override { return 0; }
    int MeasuredWidth() const override { return 0; }
    std::string Footer() const override { return {}; }
    void DrawLine(int, int, int, int) override {}
    void Set(SurfaceOp, const SurfaceValue&) override {}
    void WriteTable(std::string_view, std::string_view, std::string_view,
                    std::optional<std::int32_t>) override {}

  private:
    int page_ = 1;
};

}  // namespace tendo
