#pragma once

#include <string>
#include <string_view>

namespace tendo {

/// A font as the program names it. One point is twenty twips.
struct FontSpec {
    std::string family = "Arial";
    int sizeTwips = 200;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// Vertical measures of a font in twips.
struct FontMetrics {
    int ascent = 0;
    int descent = 0;
    int lineHeight = 0;
    int capHeight = 0;
};

/// Measures text in twips. The layout asks each word of a font once.
class TextMeasurer {
  public:
    virtual ~TextMeasurer() = default;
    /// The advance of a text set on one line, with fractions of a twip.
    virtual double Width(const FontSpec& font, std::string_view text) = 0;
    virtual FontMetrics Metrics(const FontSpec& font) = 0;
};

}  // namespace tendo
