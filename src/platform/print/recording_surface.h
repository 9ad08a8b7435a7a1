#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/print/print_surface.h"

namespace tendo {

/// One field of a logged call; texts are owned.
using CallValue = std::variant<bool, std::int32_t, std::string>;

/// One call on a print surface. A property has the one field "value"; `AddTable` has "format",
/// "header", "body" and, when given, "shade"; `DrawLine` has "x1" to "y2".
struct SurfaceCall {
    std::string op;
    std::vector<std::pair<std::string, CallValue>> fields;
    friend bool operator==(const SurfaceCall&, const SurfaceCall&) = default;
};

/// The call as one line of JSON: {"op":"FontSize","value":16}.
std::string CallJson(const SurfaceCall& call);

/// Logs every call in order and passes it on to the surface behind it. A new document starts a new
/// log.
class RecordingSurface : public PrintSurface {
  public:
    /// `inner` outlives this surface; its event is taken over.
    explicit RecordingSurface(PrintSurface& inner);

    const std::vector<SurfaceCall>& Calls() const { return calls_; }
    /// All calls as lines of JSON.
    std::string Log() const;

    using PrintSurface::CurrentX;
    using PrintSurface::CurrentY;
    using PrintSurface::Footer;
    bool Error() const override { return inner_.Error(); }
    void NewPage() override;
    int CurrentPage() const override { return inner_.CurrentPage(); }
    int PageWidth() const override { return inner_.PageWidth(); }
    int PageHeight() const override { return inner_.PageHeight(); }
    int CurrentX() const override { return inner_.CurrentX(); }
    int CurrentY() const override { return inner_.CurrentY(); }
    int MeasuredWidth() const override { return inner_.MeasuredWidth(); }
    std::string Footer() const override { return inner_.Footer(); }
    void DrawLine(int x1, int y1, int x2, int y2) override;
    void Set(SurfaceOp op, const SurfaceValue& value) override;
    void WriteTable(std::string_view format, std::string_view header, std::string_view body,
                    std::optional<std::int32_t> headerShade) override;

  private:
    PrintSurface& inner_;
    std::vector<SurfaceCall> calls_;
};

}  // namespace tendo
