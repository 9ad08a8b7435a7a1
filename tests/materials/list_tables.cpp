#include "list_tables.h"

#include <utility>

#include "platform/database/database.h"

namespace tendo {
namespace {

using Cell = std::pair<jet::Column, jet::Value>;

Cell Text(const std::string& name, const std::string& value) {
    jet::Column column;
    column.name = name;
    column.type = jet::ColumnType::Text;
    return {column, value};
}

Cell Integer(const std::string& name, std::int64_t value) {
    jet::Column column;
    column.name = name;
    column.type = jet::ColumnType::Integer;
    return {column, value};
}

Cell Single(const std::string& name, double value) {
    jet::Column column;
    column.name = name;
    column.type = jet::ColumnType::Single;
    return {column, value};
}

std::vector<Cell> Cells(const LaborListRow& row) {
    return {Text("List Name", row.list),          Single("Qtyhrs", row.hours),
            Text("Description", row.description), Single("LaborPerHour", row.rate),
            Single("GrossMargin", row.margin),    Single("PriceMarkup", row.markup),
            Single("LaborPrice", row.price)};
}

std::vector<Cell> Cells(const MaterialListRow& row) {
    return {Text("List Name", row.list),         Text("Description", row.description),
            Integer("Accessory", row.accessory), Integer("Tax", row.tax),
            Single("UnitCst", row.unitCost),     Single("ListCst", row.listCost),
            Integer("ItemQty", row.quantity),    Single("SalePrice", row.price),
            Text("Part Number", row.partNumber), Text("Category", row.category)};
}

template <class Row>
void AddTable(const std::string& path, const std::string& name, const std::vector<Row>& rows,
              const std::string& withoutColumn) {
    Database database = Database::OpenDatabase(path);
    jet::TableDefinition table;
    table.name = name;
    for (const Cell& cell : Cells(Row{}))
        if (cell.first.name != withoutColumn) table.columns.push_back(cell.first);
    database.AppendTable(table);
    std::vector<jet::Row> values;
    for (const Row& row : rows) {
        jet::Row line;
        for (const Cell& cell : Cells(row))
            if (cell.first.name != withoutColumn) line.push_back(cell.second);
        values.push_back(line);
    }
    database.AppendRows(name, values);
    database.Close();
}

}  // namespace

void AddLaborLists(const std::string& path, const std::vector<LaborListRow>& rows,
                   const std::string& withoutColumn) {
    AddTable(path, "Labor Lists", rows, withoutColumn);
}

void AddMaterialLists(const std::string& path, const std::vector<MaterialListRow>& rows,
                      const std::string& withoutColumn) {
    AddTable(path, "Material Lists", rows, withoutColumn);
}

std::vector<LaborListRow> LaborLists(const std::string& path) {
    std::vector<LaborListRow> result;
    Database database = Database::OpenDatabase(path);
    for (Recordset rows = database.OpenRecordset("Labor Lists"); !rows.EOF_(); rows.MoveNext())
        result.push_back({rows.Text("List Name"), rows.Single("Qtyhrs"), rows.Text("Description"),
                          rows.Single("LaborPerHour"), rows.Single("GrossMargin"),
                          rows.Single("PriceMarkup"), rows.Single("LaborPrice")});
    return result;
}

std::vector<MaterialListRow> MaterialLists(const std::string& path) {
    std::vector<MaterialListRow> result;
    Database database = Database::OpenDatabase(path);
    for (Recordset rows = database.OpenRecordset("Material Lists"); !rows.EOF_(); rows.MoveNext())
        result.push_back({rows.Text("List Name"), rows.Text("Description"), rows.Integer("ItemQty"),
                          rows.Single("UnitCst"), rows.Single("ListCst"), rows.Single("SalePrice"),
                          rows.Text("Part Number"), rows.Text("Category"),
                          rows.Integer("Accessory"), rows.Integer("Tax")});
    return result;
}

}  // namespace tendo
