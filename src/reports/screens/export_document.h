#pragma once

#include <string>

#include "platform/print/document.h"

namespace tendo {

/// What has been written, to be told to the user; empty when nothing was: the user gave up, or a
/// failure was told.
using ExportNote = std::string;

/// Asks for a file and writes the document as PDF.
ExportNote ExportPdf(const Document& document);

/// Which pages go into pictures, and how fine.
struct PictureExport {
    int page = -1;  // from 0; -1: all pages
    int dpi = 150;
};
/// Asks for a file and writes pages as PNG: one under the name itself, all pages of a document of
/// more than one each with "-1", "-2" ... ahead of the extension.
ExportNote ExportPng(const Document& document, const PictureExport& how);

/// Name for a file of the open project: its own, or "Proposal" while it has none. `extension` with
/// its point.
std::string ExportName(const std::string& extension);

}  // namespace tendo
