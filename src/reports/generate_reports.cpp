#include "reports/generate_reports.h"

#include "platform/text/runtime_error.h"
#include "reports/sales_report.h"
#include "reports/title_report.h"

namespace tendo {

namespace {

constexpr int StartDocument = 3, EndDocument = 6;

void RunQuietly(ReportProcedure report, ReportContext& context) {
    try {
        report(context);
    } catch (const RuntimeError&) {
        // The report stops where its figures gave out; the page written so far is of use.
    }
}

ReportProcedure CostReport(const ReportContext& context) {
    return context.isMarked("chkShowDealersCost") ? Reports().PrintDetailedCostReport
                                                  : Reports().PrintCustomerCostReport;
}

bool PreviewOnly(ReportContext& context, ReportProcedure report) {
    context.surface.Action(StartDocument);
    if (context.surface.Error()) return false;
    if (report) RunQuietly(report, context);
    context.surface.Action(EndDocument);
    return true;
}

}  // namespace

const ReportProcedures& Reports() {
    static const ReportProcedures procedures;
    return procedures;
}

void GenerateReports(ReportContext& context) {
    const auto marked = [&](const char* key) { return context.isMarked(key); };
    // Only the Title and the Sales Report push what follows to a new page: meant so.
    const auto breakPage = [&] {
        if (marked("chkPrintTitleReport") || marked("chkPrintSalesReport"))
            context.surface.NewPage();
    };
    context.surface.Action(StartDocument);
    if (marked("chkPrintTitleReport")) RunQuietly(PrintTitleReport, context);
    if (marked("chkPrintSalesReport")) {
        context.SuppressNextPageHeader = true;
        if (marked("chkPrintTitleReport")) context.surface.NewPage();
        RunQuietly(PrintSalesReport, context);
    }
    if (const ReportProcedure report = CostReport(context);
        report && marked("chkPrintDetailedCostReport")) {
        context.SuppressNextPageHeader = true;
        breakPage();
        RunQuietly(report, context);
    }
    const auto print = [&](const char* key, ReportProcedure report) {
        if (!report || !marked(key)) return;
        breakPage();
        RunQuietly(report, context);
    };
    print("chkPrintOptionalAccessoriesRpt", Reports().PrintOptionalAccessoriesReport);
    print("chkPrintInstallersReport", Reports().PrintInstallersReport);
    context.surface.Action(EndDocument);
}

bool PreviewTitleOnly(ReportContext& context) {
    return PreviewOnly(context, PrintTitleReport);
}

bool PreviewSalesOnly(ReportContext& context) {
    return PreviewOnly(context, PrintSalesReport);
}

bool PreviewCostOnly(ReportContext& context) {
    return PreviewOnly(context, CostReport(context));
}

bool PreviewAccessoriesOnly(ReportContext& context) {
    return PreviewOnly(context, Reports().PrintOptionalAccessoriesReport);
}

bool PreviewInstallersOnly(ReportContext& context) {
    return PreviewOnly(context, Reports().PrintInstallersReport);
}

}  // namespace tendo
