#pragma once

#include <string>

#include "programs/cli/scratch_folder.h"
#include "project/project_records.h"

namespace tendo::cli {

/// Puts the options and footnotes of a saved proposal format in force for this run. The profile of
/// the program directory stays as it is: a copy, which goes with the object, takes them. Throws
/// Failure for an unknown format.
class FormatOfRun {
  public:
    FormatOfRun(const std::string& name, ProjectRecords& records);

  private:
    ScratchFolder folder_;
};

}  // namespace tendo::cli
