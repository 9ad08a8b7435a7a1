#include <cstdio>
#include <nlohmann/json.hpp>

#include "platform/jet/jet_reader.h"
#include "programs/cli/arguments.h"
#include "programs/cli/value_json.h"

namespace tendo::cli {
namespace {

using Json = nlohmann::ordered_json;

Json ColumnJson(const jet::Column& column) {
    Json json = {{"name", column.name}, {"type", TypeName(column.type)}};
    if (column.size > 0) json["size"] = column.size;
    if (column.type == jet::ColumnType::Text || column.type == jet::ColumnType::Memo)
        json["allowZeroLength"] = column.allowZeroLength;
    if (column.required) json["required"] = true;
    if (column.autoNumber) json["autoNumber"] = true;
    if (column.type == jet::ColumnType::Numeric) {
        json["precision"] = column.precision;
        json["scale"] = column.scale;
    }
    return json;
}

Json IndexJson(const jet::Index& index) {
    Json json = {{"name", index.name}, {"columns", index.columns}};
    if (index.primary) json["primary"] = true;
    if (index.unique) json["unique"] = true;
    return json;
}

std::size_t RowCount(const jet::Reader& reader, const std::string& table) {
    return reader.ReadRows(table, [](std::span<const jet::ValueView>) { return true; });
}

void PrintTables(const jet::Reader& reader, bool schema) {
    Json tables = Json::array();
    for (const std::string& name : reader.TableNames()) {
        Json table = {{"name", name}, {"rows", RowCount(reader, name)}};
        if (schema) {
            for (const jet::Column& column : reader.Table(name).columns)
                table["columns"].push_back(ColumnJson(column));
            for (const jet::Index& index : reader.Table(name).indexes)
                table["indexes"].push_back(IndexJson(index));
        }
        tables.push_back(table);
    }
    const Json all = {{"generation", reader.Generation()}, {"tables", tables}};
    std::printf("%s\n", all.dump(2, ' ', false, Json::error_handler_t::replace).c_str());
}

void PrintRows(const jet::Reader& reader, const std::string& file, const std::string& table) {
    if (!reader.HasTable(table)) throw Failure(file + " has no table " + table);
    const auto& columns = reader.Table(table).columns;
    std::vector<std::string> names;
    for (const jet::Column& column : columns)
        names.push_back(TextJson(column.name));
    reader.ReadRows(table, [&](std::span<const jet::ValueView> row) {
        std::string line = "{";
        for (std::size_t i = 0; i < row.size(); ++i)
            line += (i ? ", " : "") + names[i] + ": " + ValueJson(row[i], columns[i].type);
        std::printf("%s}\n", line.c_str());
        return true;
    });
}

}  // namespace

void RunDatabase(const Arguments& arguments) {
    const std::string& file = arguments.plain[0];
    const jet::Reader reader = jet::Reader::OpenFile(file);
    if (arguments.Has("--table"))
        PrintRows(reader, file, arguments.Value("--table"));
    else
        PrintTables(reader, arguments.Has("--schema"));
}

}  // namespace tendo::cli
