#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace tendo {

struct ProjectRecords;

/// Any record by a path in text, for scripts and for people who automate:
/// `SystemTendos.ModelSalePrice`, `CLGModelData[0].ModelNum`, `ProjectMaterials[3].ItemQty`,
/// `gvNumOfFootnotes`, `ProjectLabor`. Texts are given without their trailing blanks, floats as the
/// shortest decimal that means them.

/// Every record. Material lines are given up to the last one in use, footnotes up to their count.
nlohmann::json RecordsAsJson(const ProjectRecords& records);

/// One record, one row or one field. RuntimeError 3265 with the path when there is none.
nlohmann::json RecordAt(const ProjectRecords& records, std::string_view path);
nlohmann::json RecordAt(std::string_view path);

/// Sets one field from text; a Boolean takes "true", "false" or a number. A footnote beyond the end
/// makes its list and its count grow. RuntimeError 3265 with the path when there is no such field,
/// 13 for a text that is no number where one is wanted, 6 for a number out of range.
void SetRecord(ProjectRecords& records, std::string_view path, std::string_view text);
void SetRecord(std::string_view path, std::string_view text);

}  // namespace tendo
