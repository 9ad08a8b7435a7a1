#pragma once

#include <string>

#include "platform/print/document.h"
#include "platform/print/font_table.h"

namespace tendo {

/// Stands in a right-aligned text for the number of pages of the document plus `more`, which is not
/// known before its end.
std::string PageCountMark(int more);

/// Puts the number in the place of the marks of a document that is complete. The texts keep their
/// right ends.
void ResolvePageCounts(Document& document, FontTable& fonts);

}  // namespace tendo
