#include "materials/list_table.h"

#include <algorithm>

#include "materials/material_catalogue.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr const char* listName = "List Name";

/// The text names tendo.mdb whichever database is meant.
void TellFailure(const char* table, const RuntimeError& error) {
    if (!CatalogueHooks().Message) return;
    CatalogueHooks().Message("Unable to Access " + std::string(table) +
                             " Table in tendo.mdb. Error: " + std::to_string(error.Number()) + " " +
                             error.Description());
}

/// What the step changed is written before its failure goes on.
void RunAndWrite(Database& database, const std::function<void(Database&)>& step) {
    try {
        step(database);
    } catch (const RuntimeError&) {
        database.Close();
        throw;
    }
    database.Close();
}

}  // namespace

bool WithListTable(const ListTable& lists, const std::function<void(Database&)>& step) {
    try {
        Database database = Database::OpenDatabase(lists.database);
        RunAndWrite(database, step);
        return true;
    } catch (const RuntimeError& error) {
        TellFailure(lists.table, error);
        return false;
    }
}

std::vector<std::string> ListNames(const ListTable& lists) {
    std::vector<std::string> names;
    WithListTable(lists, [&](Database& database) {
        if (!database.HasTable(lists.table)) return;
        for (Recordset rows = database.OpenRecordset(lists.table); !rows.EOF_(); rows.MoveNext()) {
            std::string name(Trimmed(rows.Text(listName)));
            if (std::ranges::find(names, name) == names.end()) names.push_back(std::move(name));
        }
    });
    return names;
}

void ForEachListRow(Database& database, const char* table, std::string_view name,
                    const std::function<void(Recordset&)>& visit) {
    for (Recordset rows = database.OpenRecordset(table); !rows.EOF_(); rows.MoveNext())
        if (Trimmed(rows.Text(listName)) == Trimmed(name)) visit(rows);
}

void DeleteListRows(Database& database, const char* table, std::string_view name) {
    ForEachListRow(database, table, name, [](Recordset& rows) { rows.Delete(); });
}

bool DeleteList(const ListTable& lists, std::string_view name) {
    return WithListTable(lists,
                         [&](Database& database) { DeleteListRows(database, lists.table, name); });
}

}  // namespace tendo
