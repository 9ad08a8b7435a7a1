#pragma once

#include <optional>

#include "platform/print/document.h"

namespace tendo {

/// Sends a document to a printer through the printer dialog. `shownPage`, from 0: what "current
/// page" means there. Without a printer a PDF file is offered in its place. False when nothing was
/// printed; a failure is told.
bool PrintDocument(const Document& document, std::optional<int> shownPage = {});

/// The printer dialog without a job: what is chosen there holds for the documents printed after it.
void SetUpPrinter();

}  // namespace tendo
