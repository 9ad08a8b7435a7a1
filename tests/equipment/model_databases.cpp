#include "model_databases.h"

#include <unistd.h>

#include <cmath>

namespace tendo {
namespace {

jet::Column ColumnOf(const std::string& text) {
    static const std::map<char, jet::ColumnType> types = {
        {'b', jet::ColumnType::Boolean}, {'t', jet::ColumnType::Text},
        {'w', jet::ColumnType::Text},    {'c', jet::ColumnType::Currency},
        {'s', jet::ColumnType::Single},  {'f', jet::ColumnType::Double},
        {'i', jet::ColumnType::Integer}, {'d', jet::ColumnType::Date}};
    jet::Column column;
    column.name = text.substr(0, text.find(':'));
    column.type = types.at(text.back());
    if (text.back() == 't') column.size = 35;
    if (text.back() == 'w') column.size = 255;
    return column;
}

jet::Row RowOf(const NamedRow& named, const jet::TableDefinition& table) {
    jet::Row row;
    for (const jet::Column& column : table.columns) {
        const auto value = named.find(column.name);
        if (value != named.end())
            row.push_back(value->second);
        else if (column.type == jet::ColumnType::Boolean)
            row.push_back(false);
        else
            row.push_back(std::monostate());
    }
    return row;
}

std::vector<std::string> Joined(std::vector<std::string> columns,
                                const std::vector<std::string>& more) {
    columns.insert(columns.end(), more.begin(), more.end());
    return columns;
}

}  // namespace

CommonFolder::CommonFolder() : formerCommon_(State().CommonDirectory) {
    static int count = 0;
    folder_ = (std::filesystem::temp_directory_path() /
               ("tendo_models_" + std::to_string(::getpid()) + "_" + std::to_string(++count)))
                  .string() +
              "/";
    std::filesystem::create_directories(folder_);
    State().CommonDirectory = folder_;
}

CommonFolder::~CommonFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
    State().CommonDirectory = formerCommon_;
}

std::vector<SmallTable> EmptyModelTables() {
    const std::vector<std::string> head = {"EPA:b",         "Model:t",      "Tradename:t",
                                           "Description:w", "DealerCost:c", "ListPrice:c",
                                           "Added:d",       "Updated:d"};
    const std::vector<std::string> compressor = {"AirHandler:t",
                                                 "Sound:s",
                                                 "CrankcaseHeater:t",
                                                 "CondensateRemoval:t",
                                                 "SupportForCondenser:t",
                                                 "Electrical:t",
                                                 "RefrigTubingMaxLen:s",
                                                 "Height:s",
                                                 "Length:s",
                                                 "Width:s",
                                                 "Weight:s",
                                                 "CompressorWarranty:t",
                                                 "PartsWarranty:t",
                                                 "CoilWarranty:t",
                                                 "LaborWarranty:t"};
    // As manufacturers order them: what a model is sold by comes first.
    const auto unit = [&](const std::vector<std::string>& own) {
        return Joined(Joined(head, own), compressor);
    };
    return {{"AC File",
             unit({"Capacity:s", "Seer:s", "Eer:s", "COP:s", "CompStartKit:t", "HILOPressure:t"}),
             {}},
            {"HP File",
             unit({"CoolCapacity:s", "Seer:s", "HPCap5:s", "HSPF:s", "Eer:s", "CoolCOP:s",
                   "CompressorStartKit:t", "HILOPressureSwitch:t", "MicroprocWarranty:t"}),
             {}},
            {"GS HP File",
             unit({"CoolingCapacity:s", "CoolingEER:s", "HeatingCapacity:s", "HPCap5:s", "HSPF:s",
                   "HeatingCOP:s", "COP:s", "ARICFM:i", "CompStartKit:t", "HILOPressure:t",
                   "MicroprocWarranty:t"}),
             {}},
            {"GAMA File",
             Joined(head,
                    {"Capacity:s", "AFUE:s", "CFMRate:s", "FuelType:i", "FurnElec:s", "Config:t",
                     "AvailableCooling:t", "HeatExchangerType:t", "IgnitionSystemType:t",
                     "ExhaustVentType:t", "CondensateRemoval:t", "Height:s", "Width:s", "Length:s",
                     "Weight:s", "HeatExchangeWarranty:t", "PartsWarranty:t", "LaborWarranty:t"}),
             {}},
            {"WH File", Joined(head, {"StorVol:s", "EFF:s", "FuelType:i"}), {}},
            {"Header", {"ManufName:w"}, {{{"ManufName", std::string("Frostelm")}}}}};
}

SmallTable& TableNamed(std::vector<SmallTable>& tables, const std::string& name) {
    for (SmallTable& table : tables)
        if (table.name == name) return table;
    throw std::out_of_range(name);
}

void WriteModelDatabase(const std::string& path, const std::vector<SmallTable>& tables) {
    Database::CreateDatabase(path);
    Database database = Database::OpenDatabase(path);
    for (const SmallTable& table : tables) {
        jet::TableDefinition definition;
        definition.name = table.name;
        for (const std::string& column : table.columns)
            definition.columns.push_back(ColumnOf(column));
        database.AppendTable(definition);
        std::vector<jet::Row> rows;
        for (const NamedRow& row : table.rows)
            rows.push_back(RowOf(row, definition));
        database.AppendRows(table.name, rows);
    }
    database.Close();
}

std::int64_t Dollars(double amount) {
    return std::llround(amount * 10000);
}

NamedRow AirConditioner(const std::string& model, double capacity, double seer, double cost,
                        double list) {
    return {{"Model", model},
            {"Capacity", capacity},
            {"Seer", seer},
            {"DealerCost", Dollars(cost)},
            {"ListPrice", Dollars(list)}};
}

}  // namespace tendo
