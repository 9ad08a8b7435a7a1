#include "platform/print/fixed_measurer.h"

#include "platform/text/text.h"

namespace tendo {

double FixedMeasurer::Width(const FontSpec& font, std::string_view text) {
    return static_cast<double>(CharacterCount(text)) * font.sizeTwips / 2.0;
}

FontMetrics FixedMeasurer::Metrics(const FontSpec& font) {
    const int descent = font.sizeTwips / 5;
    return {font.sizeTwips - descent, descent, font.sizeTwips, font.sizeTwips * 7 / 10};
}

}  // namespace tendo
