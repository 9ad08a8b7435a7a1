#include "platform/jet/jet_writer.h"

#include "platform/jet/definition_writer.h"
#include "platform/jet/system_tables.h"
#include "platform/jet/table_writer.h"

namespace tendo::jet {

std::string WriteFile(const std::vector<TableToWrite>& tables, double made) {
    FileBuilder file;
    AddSystemPages(file);
    std::vector<CatalogueRow> catalogue;
    for (const TableToWrite& table : tables) {
        const TablePlan plan = PlanTable(file, table.definition);
        WriteMapPages(file, plan.mapPages, {WriteTable(file, plan, table.rows)});
        catalogue.push_back({plan.name, plan.definitionPage, PropertyBlock(plan)});
    }
    WriteSystemTables(file, catalogue, made);
    WriteHeaderPages(file);
    return file.Take();
}

}  // namespace tendo::jet
