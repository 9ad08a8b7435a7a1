#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/recording_surface.h"

namespace tendo {

/// One run of reports on a surface that lays out and logs. The last run of the program stays at
/// hand, so that what was shown can be printed, exported and examined.
struct ReportRun {
    Document document;
    std::vector<SurfaceCall> calls;
    int number = 0;  // counts the runs of the program
};

/// Runs reports and keeps the result as the last run.
const ReportRun& RunReports(const std::function<void(PrintSurface&)>& reports);
/// Empty before the first run.
const ReportRun& LastReportRun();

/// Asks for a file and writes the document as PDF; a failure is told. False when nothing was
/// written.
bool ExportDocument(const Document& document);

}  // namespace tendo
