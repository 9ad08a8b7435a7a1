#pragma once

#include "reports/preview_code.h"

namespace tendo {

using ReportProcedure = void (*)(ReportContext&);

/// The reports that are written behind the Title and the Sales Report. One that isn't there is
/// skipped together with its page break.
struct ReportProcedures {
    ReportProcedure PrintDetailedCostReport = nullptr;
    ReportProcedure PrintCustomerCostReport = nullptr;
    ReportProcedure PrintOptionalAccessoriesReport = nullptr;
    ReportProcedure PrintInstallersReport = nullptr;
};
const ReportProcedures& Reports();

/// Writes all marked reports as one document. A report that meets an error ends there and is told
/// of in `context.Problems`; what it wrote stays, and the reports behind it follow.
void GenerateReports(ReportContext& context, const ReportProcedures& procedures = Reports());

/// One report alone. False, with nothing written, when the surface can't start a document: the
/// caller beeps.
bool PreviewTitleOnly(ReportContext& context);
bool PreviewSalesOnly(ReportContext& context);
bool PreviewCostOnly(ReportContext& context);
bool PreviewAccessoriesOnly(ReportContext& context);
bool PreviewInstallersOnly(ReportContext& context);
/// The banner of the Sales Report, without what stands below it.
bool PreviewBannerOnly(ReportContext& context);

}  // namespace tendo
