#include <cstdint>
#include <string_view>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

/// Reads any bytes as a footnote and lays them out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 1 << 16) return 0;
    tendo::FixedMeasurer measurer;
    tendo::LayoutSurface surface(measurer);
    surface.Action(3);
    surface.AutoRTF(true);
    surface.Paragraph({reinterpret_cast<const char*>(data), size});
    surface.Action(6);
    return 0;
}
