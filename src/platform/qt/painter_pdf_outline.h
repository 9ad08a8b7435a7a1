#pragma once

#include <string>

#include "platform/print/document.h"

namespace tendo {

/// Adds what the PDF writer can't: the author, and an outline of the document's sections. Written
/// behind the file as the format's own incremental update. A file of another make is returned as it
/// is.
std::string WithPdfOutline(std::string pdf, const Document& document);

}  // namespace tendo
