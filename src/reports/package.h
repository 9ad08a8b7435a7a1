#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/text_measurer.h"
#include "project/project_records.h"

namespace tendo {

/// Which reports a package holds.
struct ReportSelection {
    bool title = false, sales = false, cost = false, accessories = false, installer = false;
};

/// The whole report package of a project, laid out. Without a selection the report options decide.
/// `problems`, when given, gets what the user is to know of reports that aren't complete.
Document BuildReportPackage(ProjectRecords& project, TextMeasurer& measurer,
                            const std::optional<ReportSelection>& selection = {},
                            std::vector<std::string>* problems = nullptr);

/// Whether the report options have any report printed.
bool AnyReportIsMarked();

/// Title and author of a project's document.
void SetDocumentNames(Document& document, const ProjectRecords& project);

}  // namespace tendo
