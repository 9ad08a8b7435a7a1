#include "platform/print/print_surface.h"

#include <array>

namespace tendo {

const char* SurfaceOpName(SurfaceOp op) {
    static constexpr std::array names = {
        "Action",      "Paragraph",   "Text",          "Measure",  "AutoRTF",  "TableBorder",
        "PageBorder",  "Columns",     "FontName",      "FontSize", "FontBold", "FontItalic",
        "TextColor",   "TextAlign",   "LineSpacing",   "Header",   "HdrFont",  "HdrFontName",
        "HdrFontSize", "HdrFontBold", "HdrFontItalic", "HdrColor", "Footer",   "BrushColor",
        "BrushStyle",  "PenColor",    "PenWidth",      "PenStyle", "X1",       "Y1",
        "X2",          "Y2",          "Draw",          "Picture",  "CurrentX", "CurrentY"};
    static_assert(names.size() == static_cast<std::size_t>(SurfaceOp::Count));
    return names[static_cast<std::size_t>(op)];
}

}  // namespace tendo
