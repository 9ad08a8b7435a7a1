#pragma once

#include "platform/print/document.h"

namespace tendo {

/// Sends a document to a printer through the printer dialog. False when the user gave up; a failure
/// is told.
bool PrintDocument(const Document& document);

}  // namespace tendo
