#pragma once

#include <string>

#include "programs/sample_data/csv.h"
#include "project/project_records.h"

namespace tendo {

/// Writes the finished sample job: carries out the commands of the script `jobs/NAME.csv` of the
/// source directory on a new project, with the databases that stand in the output directory, and
/// saves it there as `Projects/TITLE.tdw`. RuntimeError 5 for a command that can't be carried out.
void BuildJob(const std::string& source, const std::string& output);

}  // namespace tendo
