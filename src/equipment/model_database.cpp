#include "equipment/model_database.h"

#include <array>
#include <span>

#include "platform/files/paths.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_records.h"

namespace tendo {
namespace {

constexpr std::string_view ModelExtension = ".mdb";

struct CheckedTable {
    const char* table;
    const char* kind;
};
constexpr std::array<CheckedTable, 5> CheckedTables = {{{"AC File", "air conditioners"},
                                                        {"HP File", "air source heat pumps"},
                                                        {"GS HP File", "ground source heat pumps"},
                                                        {"GAMA File", "furnaces and boilers"},
                                                        {"WH File", "water heaters"}}};

constexpr std::array<const char*, 9> FurnaceFuels = {
    "", "Oil", "Gas", "Gas/Propane", "Propane", "Oil", "Gas", "Gas/Propane", "Propane"};
constexpr std::array<const char*, 6> WaterHeaterFuels = {
    "", "Natural Gas", "Propane", "Natural Gas or Propane", "Fuel Oil", "Electric"};

std::string FuelText(std::span<const char* const> texts, std::int32_t code) {
    if (code < 1 || static_cast<std::size_t>(code) >= texts.size()) return "";
    return texts[static_cast<std::size_t>(code)];
}

void CheckTable(Database& database, const char* table) {
    const Recordset rows = database.OpenRecordset(table);
    if (rows.RecordCount() > 0) rows.Get("EPA");
}

}  // namespace

std::string WithModelExtension(std::string_view name) {
    const bool hasIt = LowerCase(LastCharacters(name, ModelExtension.size())) == ModelExtension;
    return std::string(name) + (hasIt ? "" : std::string(ModelExtension));
}

std::string CheckToSeeIfDbaseExists(std::string_view name) {
    return CheckToSeeIfDbaseExists(name, Project().GPDProjectFormat.DefaultDB.Trimmed());
}

std::string CheckToSeeIfDbaseExists(std::string_view name, std::string_view defaultDB) {
    std::string fileName = WithModelExtension(Trimmed(name));
    if (FileExists(fileName)) return fileName;
    const std::string standard = WithModelExtension(Trimmed(defaultDB));
    std::string common = State().CommonDirectory + standard;
    // A default that was browsed for stands with its folder.
    if (!FileExists(common) && standard != BaseName(standard) && FileExists(standard))
        return standard;
    return common;
}

std::string FurnaceFuelText(std::int32_t code) {
    return FuelText(FurnaceFuels, code);
}

std::string WaterHeaterFuelText(std::int32_t code) {
    return FuelText(WaterHeaterFuels, code);
}

std::optional<ModelDatabaseFailure> CheckModelDatabase(Database& database) {
    for (const CheckedTable& checked : CheckedTables) {
        try {
            CheckTable(database, checked.table);
        } catch (const RuntimeError& error) {
            return ModelDatabaseFailure{checked.kind, error.Number()};
        }
    }
    return std::nullopt;
}

std::optional<ModelDatabaseFailure> CheckModelDatabase(std::string_view fileName) {
    try {
        Database database = Database::OpenDatabase(fileName);
        return CheckModelDatabase(database);
    } catch (const RuntimeError& error) {
        return ModelDatabaseFailure{CheckedTables[0].kind, error.Number()};
    }
}

std::string ModelDatabaseMessage(std::string_view name, const ModelDatabaseFailure& failure) {
    return "The database " + std::string(name) +
           " is not a properly formatted manufacturer's model database for " + failure.kind +
           ".  Please choose another database.  Error " + std::to_string(failure.errorNumber);
}

std::string ManufacturerName(Database& database) {
    if (!database.HasTable("Header")) return "";
    const Recordset header = database.OpenRecordset("Header");
    if (header.RecordCount() == 0 || !header.HasField("ManufName")) return "";
    return header.Text("ManufName");
}

std::string ColumnIn(const Recordset& rows, std::string_view names) {
    for (const std::string& name : Split(names, '|'))
        if (rows.HasField(name)) return name;
    return "";
}

}  // namespace tendo
