#pragma once

#include <string>
#include <utility>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// A job with the report options it is printed under. A row of the proposal is off unless an option
/// turns it on; options and banner settings are keys of the profile.
struct PaperJob {
    using Settings = std::vector<std::pair<std::string, std::string>>;
    std::string name;
    ProjectRecords project;
    Settings options, banner;
};

/// The jobs whose pages are looked at and whose texts are compared: one to five systems, long and
/// missing texts, small and large fonts, wide spacing, footnotes over several pages.
const std::vector<PaperJob>& PaperJobs();

/// The keys of all rows of the proposal that can be turned off.
const std::vector<std::string>& ProposalRowKeys();

}  // namespace tendo
