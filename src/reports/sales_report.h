#pragma once

#include <string>

#include "reports/preview_code.h"

namespace tendo {

/// Banner, Project Summary, comparison table and footnotes. A project whose priced systems and
/// models don't match ends the report ahead of its table with RuntimeError 9.
void PrintSalesReport(ReportContext& context);

/// The body of the Project Summary table.
std::string ProjectSummaryBody(const ProjectRecords& project);

}  // namespace tendo
