#pragma once

#include <string>

#include "platform/print/print_surface.h"

namespace tendo {

/// The banner at the top of the Sales Report's first page: the installation's own company between
/// two pictures, or a picture of the user's own across the whole width.
void PrintBanner(PrintSurface& surface);

/// The picture that the report options put in place of the default banner; empty when the default
/// one prints: the mark is off, the file is missing or is the default banner's own mark.
std::string CustomBannerFile();

}  // namespace tendo
