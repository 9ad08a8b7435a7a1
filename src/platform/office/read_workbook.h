#pragma once

#include <string_view>

#include "platform/office/workbook.h"

namespace tendo {

/// Reads the first visible sheet from the bytes of a file. `name` is the file's name: it stands in
/// messages, and its ending in the remark. Throws RuntimeError 3343 for a damaged, protected or
/// unknown file and 7 when it passes the limits.
Workbook ReadWorkbook(std::string_view bytes, std::string_view name);

}  // namespace tendo
