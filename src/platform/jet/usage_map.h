#pragma once

#include <vector>

#include "platform/jet/page_file.h"

namespace tendo::jet {

/// The page numbers of a usage map, rising. Pointer 0 gives none. A page beyond the end of the file
/// or a map page named twice is damage. The pages that only hold the map's bits go to `mapPages`.
std::vector<std::uint32_t> PagesOfMap(const PageFile& file, std::uint32_t pointer,
                                      std::vector<std::uint32_t>* mapPages = nullptr);

/// The free pages of the file. Bits beyond its end are allowed here and left out.
std::vector<std::uint32_t> FreePages(const PageFile& file, std::vector<std::uint32_t>& mapPages);

}  // namespace tendo::jet
