#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_records.h"
#include "reports/report_settings.h"

namespace tendo {

/// The frames in which the marks stand on the options screen.
enum class OptionFrame { Reports, ProjectSummary, BothModels, Cooling, Heating, General, Pictures };

/// One mark: where it stands, under which key of section "ReportOptions" it is kept and in which
/// column of a proposal format.
struct ReportOption {
    OptionFrame frame;
    const char* control;
    const char* caption;
    const char* key;     // null: a field of the project's general data
    const char* column;  // null: no part of a proposal format
    std::int16_t standard = 1;
};
std::span<const ReportOption> ReportOptionTable();

/// Everything the options screen holds but the footnotes.
struct ReportOptionValues {
    std::vector<std::int16_t> marks;  // in the order of the table; 1 is marked
    std::string logoFile, bannerFile;
    std::int16_t startingPage = 1;
    std::int16_t lineSpacing = 100;  // percent
    ReportTextStyle mainHeader, secondaryHeader, body;

    ReportOptionValues();
    /// The mark of a control; RuntimeError 3265 for an unknown one.
    std::int16_t& Mark(std::string_view control);
};

/// Reads the options from the profile and the comment marks from the project.
ReportOptionValues LoadReportOptions(const ProjectRecords& project);

/// Writes the options to the profile in one step, the comment marks to the project, and puts the
/// cached styles and page options in force. RuntimeError when the profile can't be written.
void SaveReportOptions(ReportOptionValues& values, ProjectRecords& project);

}  // namespace tendo
