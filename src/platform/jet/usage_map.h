#pragma once

#include <vector>

#include "platform/jet/page_file.h"

namespace tendo::jet {

/// The page numbers of a usage map, rising. Pointer 0 gives none. A page beyond the end of the file
/// or a map page named twice is damage.
std::vector<std::uint32_t> PagesOfMap(const PageFile& file, std::uint32_t pointer);

}  // namespace tendo::jet
