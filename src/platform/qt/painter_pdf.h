#pragma once

#include <string>

#include "platform/print/document.h"

namespace tendo {

/// The document as PDF: Letter, fonts embedded, text selectable in reading order, with title,
/// author and an outline of its sections. A document without pages gives one blank page.
std::string PdfBytes(const Document& document);

/// Writes the PDF through the safe replace; errors as of `ReplaceFile`.
void WritePdf(const Document& document, const std::string& path);

}  // namespace tendo
