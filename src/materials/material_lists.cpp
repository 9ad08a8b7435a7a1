#include "materials/material_lists.h"

#include <cstdint>

#include "materials/catalogue_merge.h"
#include "materials/list_table.h"
#include "materials/material_catalogue.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* tableName = "Material Lists";

struct NumberColumn {
    const char* name;
    std::int16_t MaterialRow::*value;
};
constexpr NumberColumn numberColumns[] = {{"Accessory", &MaterialRow::Accessory},
                                          {"Tax", &MaterialRow::Tax},
                                          {"ItemQty", &MaterialRow::ItemQty}};

/// A list brings prices and no percentages.
struct PriceColumn {
    const char* name;
    float MaterialRow::*value;
};
constexpr PriceColumn priceColumns[] = {{"UnitCst", &MaterialRow::UnitCst},
                                        {"ListCst", &MaterialRow::ListCst},
                                        {"SalePrice", &MaterialRow::SalePrice}};

ListTable CurrentLists() {
    return {State().MaterialDatabaseName, tableName};
}

jet::Column Column(const char* name, jet::ColumnType type) {
    jet::Column column;
    column.name = name;
    column.type = type;
    return column;
}

jet::TableDefinition ListDefinition() {
    jet::TableDefinition table;
    table.name = tableName;
    for (const char* text : {"List Name", "Description"})
        table.columns.push_back(Column(text, jet::ColumnType::Text));
    for (const NumberColumn& number : numberColumns)
        table.columns.push_back(Column(number.name, jet::ColumnType::Integer));
    for (const PriceColumn& price : priceColumns)
        table.columns.push_back(Column(price.name, jet::ColumnType::Single));
    for (const char* text : {"Part Number", "Category"})
        table.columns.push_back(Column(text, jet::ColumnType::Text));
    return table;
}

/// Older price books keep no categories in their lists, and a new one has no lists.
void AddWhatIsMissing(Database& database) {
    if (!database.HasTable(tableName)) return database.AppendTable(ListDefinition());
    if (!database.OpenRecordset(tableName).HasField("Category"))
        database.AppendField(tableName, Column("Category", jet::ColumnType::Text));
}

MaterialRow ReadLine(const Recordset& line) {
    MaterialRow row;
    row.Description = line.Text("Description");
    row.PartNumber = line.Text("Part Number");
    for (const NumberColumn& number : numberColumns)
        row.*number.value = line.Integer(number.name);
    for (const PriceColumn& price : priceColumns)
        row.*price.value = line.Single(price.name);
    return row;
}

void AddLine(Recordset& lines, std::string_view name, const MaterialRow& row) {
    lines.AddNew();
    lines.Set("List Name", std::string(Trimmed(name)));
    lines.Set("Description", row.Description.Trimmed());
    lines.Set("Category", row.Category.Trimmed());
    lines.Set("Part Number", row.PartNumber.Trimmed());
    for (const NumberColumn& number : numberColumns)
        lines.Set(number.name, std::int64_t{row.*number.value});
    for (const PriceColumn& price : priceColumns)
        lines.Set(price.name, double{row.*price.value});
    lines.Update();
}

}  // namespace

std::vector<std::string> MaterialListNames() {
    return ListNames(CurrentLists());
}

bool ApplyMaterialList(std::string& name) {
    return ApplyMaterialList(name, MaterialCatalogue());
}

bool ApplyMaterialList(std::string& name, std::vector<MaterialRow>& catalogue) {
    name = std::string(Trimmed(name));
    std::vector<MaterialRow> lines;
    return WithListTable(CurrentLists(), [&](Database& database) {
        ForEachListRow(database, tableName, name,
                       [&](const Recordset& line) { lines.push_back(ReadLine(line)); });
        database.Close();
        MergeIntoCatalogue(catalogue, lines, TakeListFields);
    });
}

bool SaveMaterialList(std::string_view name, std::span<const MaterialRow> catalogue) {
    return WithListTable(CurrentLists(), [&](Database& database) {
        AddWhatIsMissing(database);
        DeleteListRows(database, tableName, name);
        Recordset lines = database.OpenRecordset(tableName);
        for (const MaterialRow& row : catalogue)
            if (row.ItemQty > 0) AddLine(lines, name, row);
    });
}

bool DeleteMaterialList(std::string_view name) {
    return DeleteList({State().ProgramDirectory + "tendo.mdb", tableName}, name);
}

}  // namespace tendo
