#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_types.h"
#include "project/project_records.h"

namespace tendo {

/// The thirteen tables of a project file, in their order.
const std::vector<jet::TableDefinition>& ProjectTables();

/// Makes an empty project file. Appends ".tdw" to the name unless it holds that text in small
/// letters; a work file's name (".tmp") stays as it is. Nothing when the file exists.
void CreateProjectDatabase(std::string& fileName);

/// Rewrites all rows of the file from the records; nothing when the file doesn't exist.
/// RuntimeError 3163 when `ImportGPD_FName` is longer than 40 characters; the file on disk is then
/// as it was.
void SaveProjectData(const std::string& fileName);
void SaveProjectData(const std::string& fileName, ProjectRecords& records);

/// Fills the records from the file. Never reports: columns that older layouts lack are passed over
/// in the general tables, any other failure hands the file to `ProjectHooks::ConvertOldProject`.
void LoadProjectData(const std::string& fileName);
void LoadProjectData(const std::string& fileName, ProjectRecords& records);

}  // namespace tendo
