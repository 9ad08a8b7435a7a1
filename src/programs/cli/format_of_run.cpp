#include "programs/cli/format_of_run.h"

#include "footnotes/project_footnotes.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "programs/cli/arguments.h"
#include "reports/proposal_formats.h"
#include "reports/report_options.h"

namespace tendo::cli {
namespace {

[[noreturn]] void ThrowUnknown(const std::string& name) {
    if (!FileExists(ProposalFormatFile()))
        throw Failure("there are no proposal formats: " + ProposalFormatFile() + " is missing");
    std::string known;
    for (const std::string& format : ProposalFormatNames())
        known += (known.empty() ? ", but \"" : ", \"") + format + "\"";
    throw Failure("there is no proposal format \"" + name + "\" in " + ProposalFormatFile() +
                  known);
}

}  // namespace

FormatOfRun::FormatOfRun(const std::string& name, ProjectRecords& records) {
    if (name == CustomFormat) return;
    ReportOptionValues values = LoadReportOptions(records);
    if (!LoadProposalFormat(name, values, ProposalFootnotes(records))) ThrowUnknown(name);
    std::string& profile = Ini().AppProfileFileName;
    const std::string copy = folder_.File("Tendo.ini");
    if (FileExists(profile)) CopyFileOver(profile, copy);
    profile = copy;
    SaveReportOptions(values, records);
}

}  // namespace tendo::cli
