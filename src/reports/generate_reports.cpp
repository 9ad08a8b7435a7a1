#include "reports/generate_reports.h"

#include <string>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "reports/banner.h"
#include "reports/sales_report.h"
#include "reports/title_report.h"

namespace tendo {

namespace {

constexpr int StartDocument = 3, EndDocument = 6;
constexpr const char *TitleName = "Title Report", *SalesName = "Sales Report",
                     *CostName = "Detailed Cost Report",
                     *AccessoriesName = "Optional Accessories Report",
                     *InstallersName = "Installer's Report";

/// The page written until a report's figures give out is of use, so only the rest is lost.
void Run(ReportContext& context, const char* name, ReportProcedure report) {
    try {
        report(context);
    } catch (const RuntimeError& error) {
        std::string text = "The " + std::string(name) + " is not complete. " + error.Description();
        if (!EndsWith(text, ".")) text += ". What follows is left out.";
        context.Problems.push_back(text);
    }
}

ReportProcedure CostReport(const ReportContext& context, const ReportProcedures& procedures) {
    return context.isMarked("chkShowDealersCost") ? procedures.PrintDetailedCostReport
                                                  : procedures.PrintCustomerCostReport;
}

bool PreviewOnly(ReportContext& context, const char* name, ReportProcedure report) {
    context.surface.Action(StartDocument);
    if (context.surface.Error()) return false;
    if (report) Run(context, name, report);
    context.surface.Action(EndDocument);
    return true;
}

}  // namespace

const ReportProcedures& Reports() {
    static const ReportProcedures procedures;
    return procedures;
}

void GenerateReports(ReportContext& context, const ReportProcedures& procedures) {
    const auto marked = [&](const char* key) { return context.isMarked(key); };
    // Only the Title and the Sales Report push what follows to a new page: meant so.
    const auto breakPage = [&] {
        if (marked("chkPrintTitleReport") || marked("chkPrintSalesReport"))
            context.surface.NewPage();
    };
    context.surface.Action(StartDocument);
    if (marked("chkPrintTitleReport")) Run(context, TitleName, PrintTitleReport);
    if (marked("chkPrintSalesReport")) {
        context.SuppressNextPageHeader = true;
        if (marked("chkPrintTitleReport")) context.surface.NewPage();
        Run(context, SalesName, PrintSalesReport);
    }
    if (const ReportProcedure report = CostReport(context, procedures);
        report && marked("chkPrintDetailedCostReport")) {
        context.SuppressNextPageHeader = true;
        breakPage();
        Run(context, CostName, report);
    }
    const auto print = [&](const char* key, const char* name, ReportProcedure report) {
        if (!report || !marked(key)) return;
        breakPage();
        Run(context, name, report);
    };
    print("chkPrintOptionalAccessoriesRpt", AccessoriesName,
          procedures.PrintOptionalAccessoriesReport);
    print("chkPrintInstallersReport", InstallersName, procedures.PrintInstallersReport);
    context.surface.Action(EndDocument);
}

bool PreviewTitleOnly(ReportContext& context) {
    return PreviewOnly(context, TitleName, PrintTitleReport);
}

bool PreviewSalesOnly(ReportContext& context) {
    return PreviewOnly(context, SalesName, PrintSalesReport);
}

bool PreviewCostOnly(ReportContext& context) {
    return PreviewOnly(context, CostName, CostReport(context, Reports()));
}

bool PreviewAccessoriesOnly(ReportContext& context) {
    return PreviewOnly(context, AccessoriesName, Reports().PrintOptionalAccessoriesReport);
}

bool PreviewInstallersOnly(ReportContext& context) {
    return PreviewOnly(context, InstallersName, Reports().PrintInstallersReport);
}

bool PreviewBannerOnly(ReportContext& context) {
    return PreviewOnly(context, "banner",
                       [](ReportContext& banner) { PrintBanner(banner.surface); });
}

}  // namespace tendo
