#include "platform/print/contrast.h"

#include <algorithm>
#include <cmath>

namespace tendo {

namespace {

constexpr double LeastForBoldText = 3;

double Linear(Rgb channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Rgb color) {
    return 0.2126 * Linear((color >> 16) & 0xFF) + 0.7152 * Linear((color >> 8) & 0xFF) +
           0.0722 * Linear(color & 0xFF);
}

}  // namespace

double Contrast(Rgb a, Rgb b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

Rgb LegibleOn(Rgb ground, Rgb text) {
    constexpr Rgb Black = 0x000000, White = 0xFFFFFF;
    if (Contrast(ground, text) >= LeastForBoldText) return text;
    return Contrast(ground, Black) > Contrast(ground, White) ? Black : White;
}

}  // namespace tendo
