#pragma once

#include <string_view>

#include "platform/office/workbook.h"

namespace tendo {

/// Reads a workbook of the format since 2007, a zip archive of XML parts. Errors: 3343.
Workbook ReadXlsx(std::string_view bytes, std::string_view name);

}  // namespace tendo
