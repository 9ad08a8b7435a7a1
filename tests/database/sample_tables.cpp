#include "sample_tables.h"

#include <utility>

namespace tendo {
namespace {

constexpr std::monostate Null;

const std::vector<jet::Row> materials = {
    {"copper pipe 1/2", 1.5, 3.0, "CP-12", "Pipe"},
    {"Elbow", 0.25, Null, "EL-1", "pipe"},
    {"Apron", 12.0, 20.0, Null, Null},
    {"O'Brien valve", 7.0, 9.5, "OB[1]", "Valve"},
    {Null, 0.0, 1.0, "N-0", "Valve"},
    {"Zone board #4", 99.9, 150.0, "ZB-4*", "Controls"},
    {"copper pipe 3/4", 2.0, 4.0, "CP-34", "Pipe"},
};

}  // namespace

jet::Column ColumnOf(std::string name, jet::ColumnType type, int size) {
    jet::Column column;
    column.name = std::move(name);
    column.type = type;
    column.size = size;
    return column;
}

jet::TableDefinition TableOf(std::string name, std::vector<jet::Column> columns) {
    jet::TableDefinition table;
    table.name = std::move(name);
    table.columns = std::move(columns);
    return table;
}

Database PriceBook() {
    using jet::ColumnType;
    Database database = Database::InMemory();
    database.AppendTable(TableOf(
        "Materials",
        {ColumnOf("Description", ColumnType::Text, 255), ColumnOf("UnitCst", ColumnType::Single),
         ColumnOf("ListCst", ColumnType::Single), ColumnOf("Part Number", ColumnType::Text, 255),
         ColumnOf("Category", ColumnType::Text, 255)}));
    database.AppendTable(TableOf("Categories", {ColumnOf("Category", ColumnType::Text, 255)}));
    database.AppendRows("Materials", materials);
    database.AppendRows("Categories", {{"Pipe"}, {"Valve"}, {"Controls"}});
    return database;
}

std::string Column(Recordset& rows, std::string_view field) {
    std::string text;
    const int count = rows.RecordCount();
    for (int i = 0; i < count; ++i) {
        rows.MoveTo(i);
        text += (i ? "|" : "") + (rows.IsNull(field) ? "null" : rows.Text(field));
    }
    return text;
}

std::string Column(Database& database, std::string_view source, std::string_view field) {
    Recordset rows = database.OpenRecordset(source);
    return Column(rows, field);
}

}  // namespace tendo
