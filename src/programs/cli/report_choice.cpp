#include "programs/cli/report_choice.h"

#include <string_view>

#include "platform/text/text.h"
#include "programs/cli/arguments.h"
#include "reports/generate_reports.h"
#include "reports/report_settings.h"

namespace tendo::cli {
namespace {

/// A report under its word of the command line, its name, and its mark in the report options.
struct NamedReport {
    std::string_view word;
    std::string_view name;
    const char* option;
    bool ReportSelection::*chosen;
    ReportProcedure ReportProcedures::*procedure;  // null: the report is always there
};
constexpr NamedReport namedReports[] = {
    {"title", "Title Report", "chkPrintTitleReport", &ReportSelection::title, nullptr},
    {"sales", "Sales Report", "chkPrintSalesReport", &ReportSelection::sales, nullptr},
    {"cost", "Detailed Cost Report", "chkPrintDetailedCostReport", &ReportSelection::cost,
     &ReportProcedures::PrintDetailedCostReport},
    {"accessories", "Optional Accessories Report", "chkPrintOptionalAccessoriesRpt",
     &ReportSelection::accessories, &ReportProcedures::PrintOptionalAccessoriesReport},
    {"installer", "Installer's Report", "chkPrintInstallersReport", &ReportSelection::installer,
     &ReportProcedures::PrintInstallersReport},
};

void Append(std::string& list, std::string_view name) {
    if (!list.empty()) list += ", ";
    list += name;
}

const NamedReport& ReportNamed(std::string_view word) {
    std::string known;
    for (const NamedReport& report : namedReports) {
        if (EqualsNoCase(report.word, word)) return report;
        Append(known, report.word);
    }
    throw UsageError("there is no report \"" + std::string(word) + "\", but " + known);
}

}  // namespace

std::optional<ReportSelection> SelectionOf(const std::optional<std::string>& list) {
    if (!list) return std::nullopt;
    ReportSelection selection;
    for (const std::string& word : Split(*list, ','))
        selection.*ReportNamed(Trimmed(word)).chosen = true;
    return selection;
}

std::string UnwrittenReports(const std::optional<ReportSelection>& selection) {
    std::string names;
    for (const NamedReport& report : namedReports) {
        const bool isWanted =
            selection ? (*selection).*report.chosen : ReportOptionIsOn(report.option);
        const bool isWritten = !report.procedure || Reports().*report.procedure;
        if (isWanted && !isWritten) Append(names, report.name);
    }
    if (names.empty()) return {};
    if (selection) throw Failure("this version doesn't write: " + names + ". No file was written");
    return "left out, as this version doesn't write them: " + names;
}

}  // namespace tendo::cli
