#pragma once

#include <string_view>

#include "platform/office/workbook.h"

namespace tendo {

/// Reads a workbook of the 97 to 2003 format, a compound file with a stream "Workbook". Errors:
/// 3343, also for one with a password and for the format of 1995 and before.
Workbook ReadXls(std::string_view bytes, std::string_view name);

/// The records of the stream itself, for a file without the streams around them.
Workbook ReadXlsStream(std::string_view stream, std::string_view name);

}  // namespace tendo
