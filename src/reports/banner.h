#pragma once

#include "platform/print/print_surface.h"

namespace tendo {

/// The banner at the top of the Sales Report's first page: the installation's own company between
/// two pictures, or a picture of the user's own across the whole width.
void PrintBanner(PrintSurface& surface);

}  // namespace tendo
