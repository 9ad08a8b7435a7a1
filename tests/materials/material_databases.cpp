#include "material_databases.h"

#include <unistd.h>

#include <filesystem>

#include "materials/material_catalogue.h"
#include "platform/database/database.h"
#include "platform/files/settings_store.h"
#include "project/program_state.h"

namespace tendo {
namespace {

jet::Column Column(const std::string& name, jet::ColumnType type) {
    jet::Column column;
    column.name = name;
    column.type = type;
    if (type == jet::ColumnType::Text) column.size = 255;
    return column;
}

template <class T>
jet::Value ValueOf(const std::optional<T>& value) {
    if (value) return *value;
    return std::monostate();
}

}  // namespace

void WriteMaterialDatabase(const std::string& path, const std::vector<BookRow>& rows) {
    Database::CreateDatabase(path);
    Database database = Database::OpenDatabase(path);
    jet::TableDefinition materials;
    materials.name = "Materials";
    materials.columns = {
        Column("Description", jet::ColumnType::Text), Column("UnitCst", jet::ColumnType::Single),
        Column("ListCst", jet::ColumnType::Single), Column("Part Number", jet::ColumnType::Text),
        Column("Category", jet::ColumnType::Text)};
    database.AppendTable(materials);
    jet::TableDefinition categories;
    categories.name = "Categories";
    categories.columns = {Column("Category", jet::ColumnType::Text)};
    database.AppendTable(categories);
    std::vector<jet::Row> values;
    for (const BookRow& row : rows)
        values.push_back({ValueOf(row.description), ValueOf(row.unitCst), ValueOf(row.listCst),
                          ValueOf(row.partNumber), ValueOf(row.category)});
    database.AppendRows("Materials", values);
    database.Close();
}

void WriteTextMaterials(const std::string& path, const std::vector<std::string>& columns,
                        const std::vector<jet::Row>& rows) {
    Database::CreateDatabase(path);
    Database database = Database::OpenDatabase(path);
    jet::TableDefinition materials;
    materials.name = "Materials";
    for (const std::string& name : columns)
        materials.columns.push_back(Column(name, jet::ColumnType::Text));
    database.AppendTable(materials);
    database.AppendRows("Materials", rows);
    database.Close();
}

BookFolder::BookFolder() {
    static int count = 0;
    folder_ = (std::filesystem::temp_directory_path() /
               ("tendo_book_" + std::to_string(::getpid()) + "_" + std::to_string(++count)))
                  .string() +
              "/";
    std::filesystem::create_directories(folder_);
    State().ProgramDirectory = folder_;
    State().MaterialDatabaseName = folder_ + "tendo.mdb";
    State().MaterialDatabaseLoaded = false;
    Settings().FileName = folder_ + "settings.ini";
    MaterialCatalogue().clear();
    CatalogueHooks().Message = [this](const std::string& text) { messages.push_back(text); };
    CatalogueHooks().EnableTool = [this](const std::string& tool) { tools.push_back(tool); };
}

BookFolder::~BookFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
    MaterialCatalogue().clear();
    CatalogueHooks() = {};
    Settings().FileName.clear();
    State() = {};
}

}  // namespace tendo
