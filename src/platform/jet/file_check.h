#pragma once

#include <string>
#include <vector>

#include "platform/jet/catalogue.h"

namespace tendo::jet {

/// Reads everything in a file and checks what belongs together: each page in one place only, free
/// bytes as told, each row and long value whole, each row in its indexes under its key. One line
/// for each fault; after the first hundred the rest is left out.
std::vector<std::string> CheckFile(const PageFile& file, const Catalogue& catalogue);

}  // namespace tendo::jet
