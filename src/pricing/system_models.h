#pragma once

#include <string>
#include <string_view>

#include "project/project_records.h"

namespace tendo {

/// How one model of a system stands on the screens: every figure as its text.
struct SystemModelTexts {
    std::string DB, ModelNum, ModelQty, ModelDesc, ModelType, Cap, EFF;
    friend bool operator==(const SystemModelTexts&, const SystemModelTexts&) = default;
};

/// The cooling and the heating model of a system (0 to 4). A system without a model shows blanks
/// and quantity 0. `DB` is the file that the model's database name leads to, blank when there is
/// none.
SystemModelTexts CoolingTexts(const ProjectRecords& records, int system);
SystemModelTexts HeatingTexts(const ProjectRecords& records, int system);

/// The texts in their order on the screen.
inline constexpr std::string SystemModelTexts::*ModelTextOrder[] = {
    &SystemModelTexts::DB,        &SystemModelTexts::ModelNum,  &SystemModelTexts::ModelQty,
    &SystemModelTexts::ModelDesc, &SystemModelTexts::ModelType, &SystemModelTexts::Cap,
    &SystemModelTexts::EFF};

/// Takes one text of a model, by its place in that order, back into the record. A database name
/// counts only when it leads to a file. RuntimeError 6 for a quantity beyond 16 bits.
void StoreCoolingText(ProjectRecords& records, int system, int place, const std::string& text);
void StoreHeatingText(ProjectRecords& records, int system, int place, const std::string& text);

/// Where a model database name leads: the name itself when such a file exists, else the file of
/// that name in the common directory, ".mdb" added where it isn't there; empty when neither exists.
std::string ModelDatabaseFile(std::string_view name);

/// The name under which a model keeps its database: as it stands, or, too long for the field and in
/// the common directory, by its bare name, which leads to the same file.
std::string ModelDatabaseName(const std::string& fileName);

/// "Model Information for System 1" for system 0.
std::string SystemCaption(int system);

/// "Labor (taxable):" or "Labor (no tax):".
std::string LaborLabel(const ProjectRecords& records);

}  // namespace tendo
