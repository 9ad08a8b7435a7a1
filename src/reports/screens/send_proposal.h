#pragma once

#include "reports/screens/export_document.h"

namespace tendo {

/// Writes the document as PDF into the folder "Mail" of the program directory and hands it to the
/// desktop's mail program, addressed to the project's client. What is told to the user, as of
/// `ExportPdf`.
ExportNote SendProposal(const Document& document);

}  // namespace tendo
