#pragma once

#include <string>

#include "project/project_records.h"

namespace tendo::cli {

/// Reads a project file without changing it or anything beside it. Throws Failure with file, cause
/// and what to do next.
ProjectRecords ReadProject(const std::string& file);

}  // namespace tendo::cli
