#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <memory>
#include <vector>

#include "platform/print/text_measurer.h"

namespace tendo {

/// The font of a document at 1440 dots an inch, where one pixel is one twip. "Arial" and its kin
/// are set in Liberation Sans, which has the same widths on every machine.
QFont DocumentFont(const FontSpec& spec);

/// True when the fonts are there that documents are set in; without them every page breaks
/// elsewhere.
bool DocumentFontsInstalled();
inline constexpr const char* MissingFontsText =
    "The Liberation fonts, in which reports are set, are not installed on this computer. Please "
    "install the "
    "package fonts-liberation.";

/// Measures with the fonts that the painters use. Needs a QGuiApplication.
class QtTextMeasurer : public TextMeasurer {
  public:
    double Width(const FontSpec& font, std::string_view text) override;
    FontMetrics Metrics(const FontSpec& font) override;

  private:
    const QFontMetricsF& For(const FontSpec& font);

    std::vector<std::pair<FontSpec, std::unique_ptr<QFontMetricsF>>> fonts_;
};

}  // namespace tendo
