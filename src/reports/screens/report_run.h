#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/recording_surface.h"
#include "reports/preview_code.h"

namespace tendo {

/// One run of reports on a surface that lays out and logs. The last run of the program stays at
/// hand, so that what was shown can be printed, exported and examined.
struct ReportRun {
    Document document;
    std::vector<SurfaceCall> calls;
    std::vector<std::string> problems;  // what the user is to know of reports that aren't complete
    int number = 0;                     // counts the runs of the program
};

/// Runs reports on the open project and keeps the result as the last run.
const ReportRun& RunReports(const std::function<void(ReportContext&)>& reports);
/// Empty before the first run.
const ReportRun& LastReportRun();

}  // namespace tendo
