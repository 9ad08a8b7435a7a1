#include "pricing/system_models.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "platform/files/paths.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr std::string_view EfficiencyPicture = "##0.00";
constexpr std::string_view DatabaseExtension = ".mdb";

/// Unit of the efficiency of a heating model.
std::string EfficiencyText(const std::string& modelType, float efficiency) {
    if (modelType == "Water Heater") return "0.00";
    const char* unit = " SEER";
    if (modelType == "Heat Pump" || modelType == "Ground Source Heat Pump") unit = " HSPF";
    if (modelType == "Furnace" || modelType == "Boiler") unit = " AFUE";
    return FormatNumber(efficiency, EfficiencyPicture) + unit;
}

template <class Model>
bool IsEmpty(const Model& model) {
    return model.ModelNum.IsBlank() && model.ModelType.IsBlank() && model.ModelDesc.IsBlank() &&
           model.Cap == 0 && model.EFF == 0;
}

template <class Model>
SystemModelTexts TextsOf(const Model& model, std::string_view efficiencyUnitOf) {
    SystemModelTexts texts;
    texts.DB = ModelDatabaseFile(model.DB.Trimmed());
    texts.ModelNum = model.ModelNum.Trimmed();
    texts.ModelQty = std::to_string(model.ModelQty);
    texts.ModelDesc = model.ModelDesc.Trimmed();
    texts.ModelType = model.ModelType.Trimmed();
    if (IsEmpty(model)) return texts;
    texts.Cap = FormatNumber(model.Cap, PercentPicture) + " MBH";
    texts.EFF = EfficiencyText(std::string(efficiencyUnitOf), model.EFF);
    return texts;
}

std::string WithDatabaseExtension(std::string_view name) {
    const bool hasIt =
        EqualsNoCase(LastCharacters(name, DatabaseExtension.size()), DatabaseExtension);
    return std::string(name) + (hasIt ? "" : std::string(DatabaseExtension));
}

std::int16_t Quantity(const std::string& text) {
    const float value = ValueOfText(text);
    if (value > std::numeric_limits<std::int16_t>::max()) ThrowError(error_number::Overflow);
    return static_cast<std::int16_t>(std::max(value, 0.0F));
}

template <class Model>
void StoreDatabase(Model& model, const std::string& text) {
    const std::string file = ModelDatabaseFile(Trimmed(text));
    if (!file.empty()) model.DB = ModelDatabaseName(file);
}

template <class Model>
void StoreText(Model& model, int place, const std::string& text) {
    const auto kind = ModelTextOrder[place];
    if (kind == &SystemModelTexts::DB) StoreDatabase(model, text);
    if (kind == &SystemModelTexts::ModelNum) model.ModelNum = Trimmed(text);
    if (kind == &SystemModelTexts::ModelQty) model.ModelQty = Quantity(text);
    if (kind == &SystemModelTexts::ModelDesc) model.ModelDesc = text;
    if (kind == &SystemModelTexts::ModelType) model.ModelType = text;
    // The unit behind the number doesn't count.
    if (kind == &SystemModelTexts::Cap) model.Cap = LeadingSingle(text);
    if (kind == &SystemModelTexts::EFF) model.EFF = LeadingSingle(text);
}

std::size_t Index(int system) {
    return static_cast<std::size_t>(system);
}

}  // namespace

SystemModelTexts CoolingTexts(const ProjectRecords& records, int system) {
    // Any cooling model is rated in SEER, whatever its type.
    return TextsOf(records.CLGModelData.at(Index(system)), "");
}

SystemModelTexts HeatingTexts(const ProjectRecords& records, int system) {
    const HTGModelRecord& model = records.HTGModelData.at(Index(system));
    return TextsOf(model, model.ModelType.Trimmed());
}

void StoreCoolingText(ProjectRecords& records, int system, int place, const std::string& text) {
    StoreText(records.CLGModelData.at(Index(system)), place, text);
}

void StoreHeatingText(ProjectRecords& records, int system, int place, const std::string& text) {
    StoreText(records.HTGModelData.at(Index(system)), place, text);
}

std::string ModelDatabaseFile(std::string_view name) {
    if (name.empty()) return {};
    if (FileExists(name)) return std::string(name);
    const std::string common = State().CommonDirectory + WithDatabaseExtension(name);
    return FileExists(common) ? common : std::string();
}

std::string ModelDatabaseName(const std::string& fileName) {
    using Field = decltype(CLGModelRecord::DB);
    const bool fits = CharacterCount(fileName) <= Field::width();
    const std::string bareName = BaseName(fileName);
    return !fits && fileName == State().CommonDirectory + bareName ? bareName : fileName;
}

std::string SystemCaption(int system) {
    return "Model Information for System " + std::to_string(system + 1);
}

std::string LaborLabel(const ProjectRecords& records) {
    return records.GPDProjectFormat.TaxLabor ? "Labor (taxable):" : "Labor (no tax):";
}

}  // namespace tendo
