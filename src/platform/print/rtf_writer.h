#pragma once

#include <string>

#include "platform/print/rich_model.h"

namespace tendo {

/// Writes rich text that `ReadRichText` and the usual word processors read back the same: fonts,
/// sizes to half a point, bold, italic, underline, strike, colours, alignment, indents, spaces,
/// tabs and bullets. The result is plain ASCII.
std::string WriteRichText(const RichText& text);

}  // namespace tendo
