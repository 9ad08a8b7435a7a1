#pragma once

#include "platform/print/document.h"

namespace tendo {

/// How far two colours stand apart for the eye, 1 (equal) to 21 (black and white), by the relative
/// luminance of the web's accessibility rules.
double Contrast(Rgb a, Rgb b);

/// The text's own colour where it can be read on the ground, else black or white.
Rgb LegibleOn(Rgb ground, Rgb text);

}  // namespace tendo
