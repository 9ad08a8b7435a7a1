#include "reports/sales_report.h"

#include "reports/banner.h"
#include "reports/sales_table.h"

namespace tendo {

namespace {

struct Pair {
    std::string label, value;
};

std::string Row(const Pair& left, const Pair& right) {
    return left.label + "|" + left.value + "|" + right.label + "|" + right.value + ";";
}

Pair PairIf(bool shown, const char* label, const std::string& value) {
    return shown ? Pair{label, value} : Pair{};
}

std::string FaxRow(const std::string& client, const std::string& company) {
    const bool clientFax = ReportOptionIsOn("ClientFax");
    const bool companyFax = ReportOptionIsOn("CompanyFax");
    if (!clientFax && !companyFax) return {};
    return Row(PairIf(clientFax, "Fax:", client), PairIf(companyFax, "Fax:", company));
}

/// The row stands when either comment is there, even if neither may be printed.
std::string CommentRow(const GPDClientRecord& client, const GPDCompanyRecord& company) {
    const std::string left = client.Comment.Trimmed(), right = company.Comment.Trimmed();
    if (left.empty() && right.empty()) return {};
    return Row(PairIf(!left.empty() && client.ClientPrintComment == 1, "Comment:", left),
               PairIf(!right.empty() && company.CompanyPrintComment == 1, "Comment:", right));
}

void SetReportStyle(PrintSurface& surface) {
    SetTextStyle(surface, CurrentReportSettings().SecondaryHeader);
    surface.LineSpacing(CurrentReportSettings().txtLineSpacing);
    surface.TextAlign(0);
    surface.TableBorder(0);
    SetPenAndBrush(surface, 0);
    surface.Columns(1);
}

}  // namespace

std::string ProjectSummaryBody(const ProjectRecords& project) {
    const GPDClientRecord& client = project.GPDClientFormat;
    const GPDCompanyRecord& company = project.GPDCompanyFormat;
    const Pair companyName{"Company:", company.Name.Trimmed()};
    const bool representative = ReportOptionIsOn("CompanyRep");
    const std::string number = company.CompanyIDNumber.Trimmed();

    std::string body;
    if (representative) body += Row({}, companyName);
    body +=
        Row({"Client:", client.Name.Trimmed()},
            representative ? Pair{"Company Rep:", company.Representative.Trimmed()} : companyName);
    if (ReportOptionIsOn("CompanyID") && !number.empty()) body += Row({}, {"ID Number:", number});
    body += Row({"Address:", client.Address.Trimmed()}, {"Address:", company.Address.Trimmed()});
    body +=
        Row({"City:", client.CityStateZip.Trimmed()}, {"City:", company.CityStateZip.Trimmed()});
    body += Row({"Phone:", client.Phone.Trimmed()}, {"Phone:", company.Phone.Trimmed()});
    body += FaxRow(client.Fax.Trimmed(), company.Fax.Trimmed());
    return body + CommentRow(client, company);
}

void PrintSalesReport(ReportContext& context) {
    PrintSurface& surface = context.surface;
    const ReportTextStyle& heading = CurrentReportSettings().SecondaryHeader;
    PrintBanner(surface);
    SetReportStyle(surface);
    surface.Paragraph("");
    PrintSectionHeading(surface, "Project Summary");
    surface.AddTable("<1540|<+3600|<1540|<+3600", "", ProjectSummaryBody(context.project));
    surface.Paragraph("");
    SetTextStyle(surface, heading);
    PrintSectionHeading(surface, "Sales Report");
    PrintSalesTable(surface, context.project);
    surface.Paragraph("");
    CheckPageRoom(surface);
    SetTextStyle(surface, heading);
    if (context.project.gvNumOfFootnotes <= 0) return;
    PrintSectionHeading(surface, "Footnotes");
    PrintFootnotes(context);
}

}  // namespace tendo
