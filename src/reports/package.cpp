#include "reports/package.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/print/layout_surface.h"
#include "reports/generate_reports.h"

namespace tendo {

namespace {

struct SelectionKey {
    std::string_view option;
    bool ReportSelection::*chosen;
};
constexpr std::array SelectionKeys = {
    SelectionKey{"chkPrintTitleReport", &ReportSelection::title},
    SelectionKey{"chkPrintSalesReport", &ReportSelection::sales},
    SelectionKey{"chkPrintDetailedCostReport", &ReportSelection::cost},
    SelectionKey{"chkPrintOptionalAccessoriesRpt", &ReportSelection::accessories},
    SelectionKey{"chkPrintInstallersReport", &ReportSelection::installer}};

bool IsChosen(const ReportSelection& selection, const char* option) {
    for (const SelectionKey& entry : SelectionKeys)
        if (entry.option == option) return selection.*entry.chosen;
    return ReportOptionIsOn(option);
}

}  // namespace

bool AnyReportIsMarked() {
    return std::any_of(SelectionKeys.begin(), SelectionKeys.end(), [](const SelectionKey& entry) {
        return ReportOptionIsOn(entry.option.data());
    });
}

void SetDocumentNames(Document& document, const ProjectRecords& project) {
    document.title = project.GPDProjectFormat.Title.Trimmed();
    document.author = Owner().OwnerName;
}

Document BuildReportPackage(ProjectRecords& project, TextMeasurer& measurer,
                            const std::optional<ReportSelection>& selection,
                            std::vector<std::string>* problems) {
    LayoutSurface surface(measurer);
    ReportContext context(surface, project);
    if (selection)
        context.isMarked = [&](const char* option) { return IsChosen(*selection, option); };
    GenerateReports(context);
    if (problems) *problems = context.Problems;
    Document document = surface.TakeResult();
    SetDocumentNames(document, project);
    return document;
}

}  // namespace tendo
