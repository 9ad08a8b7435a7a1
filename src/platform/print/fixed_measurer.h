#pragma once

#include "platform/print/text_measurer.h"

namespace tendo {

/// A font in which every character is half its size wide and a line as high as its size. Serves
/// where only the calls count and no font may be needed, and in tests worked out by hand.
class FixedMeasurer : public TextMeasurer {
  public:
    double Width(const FontSpec& font, std::string_view text) override;
    FontMetrics Metrics(const FontSpec& font) override;
};

}  // namespace tendo
