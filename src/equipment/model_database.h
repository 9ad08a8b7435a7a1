#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/database/database.h"

namespace tendo {

/// The name with ".mdb" behind it where it isn't there already, in letters of any case.
std::string WithModelExtension(std::string_view name);

/// The full file name that a model database is to be opened with: the trimmed name with its
/// extension when a file by that name exists, else the project's `DefaultDB` in the
/// `CommonDirectory`, or, when that isn't there and `DefaultDB` names a file with its folder, that
/// file. The result need not exist.
std::string CheckToSeeIfDbaseExists(std::string_view name);
/// The same for another project's default database.
std::string CheckToSeeIfDbaseExists(std::string_view name, std::string_view defaultDB);

/// Fuel codes of [GAMA File]: 1 to 4 are furnaces, 5 to 8 boilers. Empty for any other code.
std::string FurnaceFuelText(std::int32_t code);
/// Fuel codes of [WH File], 1 to 5. Empty for any other code.
std::string WaterHeaterFuelText(std::int32_t code);

/// Why a file is no model database.
struct ModelDatabaseFailure {
    std::string kind;  // "air conditioners" ...: the equipment whose table failed
    int errorNumber = 0;
};

/// The format check: each of the five model tables opens, and the column `EPA` of its first row, if
/// it has one, can be read. Nothing when the database passes.
std::optional<ModelDatabaseFailure> CheckModelDatabase(Database& database);
/// The same for a file. One that doesn't open fails for the first table's kind.
std::optional<ModelDatabaseFailure> CheckModelDatabase(std::string_view fileName);

/// "The database NAME is not a properly formatted manufacturer's model database for KIND. ..."
std::string ModelDatabaseMessage(std::string_view name, const ModelDatabaseFailure& failure);

/// `Header.ManufName` of the first row; empty when there is none.
std::string ManufacturerName(Database& database);

/// The first of several column names, separated by '|', that a row set has: databases differ in the
/// names of two columns. Empty when it has none of them.
std::string ColumnIn(const Recordset& rows, std::string_view names);

}  // namespace tendo
