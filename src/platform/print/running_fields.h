#pragma once

#include <string_view>

#include "platform/print/page_flow.h"
#include "platform/print/rich_model.h"

namespace tendo {

/// Writes a running header into the band above the text of the page in work: left, centre and
/// right field, parted by the `|` that stand outside of braces. A field with more lines than the
/// band takes is set smaller.
void WriteRunningHeader(PageFlow& flow, const RichRun& format, std::string_view fields);
/// The same below the text.
void WriteRunningFooter(PageFlow& flow, const RichRun& format, std::string_view fields);

}  // namespace tendo
