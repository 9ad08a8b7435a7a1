#include "platform/database/engine.h"

#include <algorithm>
#include <utility>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int ObjectInvalid = 3420;

std::string SqlName(const StoredTable& table) {
    return "t" + std::to_string(table.number);
}

std::string ColumnList(const StoredTable& table) {
    std::string list;
    for (std::size_t i = 0; i < table.definition.columns.size(); ++i)
        list += (i ? ",c" : "c") + std::to_string(i);
    return list;
}

std::string Marks(std::size_t count) {
    std::string marks;
    for (std::size_t i = 0; i < count; ++i)
        marks += i ? ",?" : "?";
    return marks;
}

void BindRow(Statement& statement, int first, const jet::TableDefinition& table,
             std::span<const jet::ValueView> row) {
    for (std::size_t i = 0; i < row.size(); ++i)
        statement.BindValue(first + static_cast<int>(i), row[i], table.columns[i].type);
}

/// Views of a row's values; the row must outlive them.
std::vector<jet::ValueView> Views(const jet::Row& row) {
    std::vector<jet::ValueView> views;
    views.reserve(row.size());
    for (const jet::Value& value : row)
        views.push_back(ViewOf(value));
    return views;
}

/// The columns of an index as SQLite compares them; empty when one is missing.
std::string IndexColumns(const jet::TableDefinition& table, const jet::Index& index) {
    std::string list;
    for (const std::string& name : index.columns) {
        const int place = query::PlaceOfColumn(table, name);
        if (place < 0) return "";
        const jet::ColumnType type = table.columns[static_cast<std::size_t>(place)].type;
        const std::string column = "c" + std::to_string(place);
        const bool isText = type == jet::ColumnType::Text || type == jet::ColumnType::Memo;
        list += (list.empty() ? "" : ",") + (isText ? "jet_key(" + column + ")" : column);
    }
    return list;
}

}  // namespace

Database::Engine::Engine(std::string_view databaseName)
    : name(databaseName), database(OpenMemoryDatabase()) {}

Database::Engine::~Engine() {
    Shut();
}

void Database::Engine::CheckOpen() const {
    if (closed) throw RuntimeError(ObjectInvalid, "The database \"" + name + "\" is closed.");
}

void Database::Engine::CheckWritable() const {
    CheckOpen();
    if (file) file->CheckWritable();
}

void Database::Engine::MarkChanged() {
    changed = true;
    ++changes;
}

void Database::Engine::Shut() {
    closed = true;
    file.reset();
    for (const auto& table : tables)
        table->insert.reset();
    // Row sets may hold statements still; the memory goes with the last of them.
    sqlite3_close_v2(std::exchange(database, nullptr));
}

std::shared_ptr<StoredTable> Database::Engine::Find(std::string_view table) const {
    CheckOpen();
    const auto found = std::find_if(tables.begin(), tables.end(), [table](const auto& stored) {
        return EqualsNoCase(stored->definition.name, table);
    });
    return found == tables.end() ? nullptr : *found;
}

std::shared_ptr<StoredTable> Database::Engine::Need(std::string_view table, int errorNumber) const {
    auto found = Find(table);
    if (found) return found;
    throw RuntimeError(
        errorNumber, "The database \"" + name + "\" has no table \"" + std::string(table) + "\".");
}

std::shared_ptr<StoredTable> Database::Engine::Loaded(std::string_view table, int errorNumber) {
    auto found = Need(table, errorNumber);
    if (found->onlyInFile) LoadRows(*found);
    return found;
}

std::shared_ptr<StoredTable> Database::Engine::AddTable(const jet::TableDefinition& definition) {
    auto table = std::make_shared<StoredTable>();
    table->definition = definition;
    table->number = ++lastNumber_;
    Execute("CREATE TABLE " + SqlName(*table) + " (" + ColumnList(*table) + ")");
    tables.push_back(table);
    return table;
}

void Database::Engine::Execute(const std::string& sql) {
    Statement(database, sql).Run();
}

/// One transaction, one statement, no copies: this is where a large model database spends its time.
void Database::Engine::LoadRows(StoredTable& table) {
    Execute("BEGIN");
    try {
        Statement insert(database, "INSERT INTO " + SqlName(table) + " VALUES (" +
                                       Marks(table.definition.columns.size()) + ")");
        file->ReadRows(table.definition.name, [&](std::span<const jet::ValueView> row) {
            BindRow(insert, 1, table.definition, row);
            insert.Run();
        });
        Execute("COMMIT");
    } catch (...) {
        // Without a journal there is no way back but to take out what came in.
        Execute("COMMIT");
        Execute("DELETE FROM " + SqlName(table));
        throw;
    }
    table.lastRow = sqlite3_last_insert_rowid(database);
    MarkRead(table);
}

void Database::Engine::MarkRead(StoredTable& table) {
    table.onlyInFile = false;
    if (std::none_of(tables.begin(), tables.end(), [](const auto& t) { return t->onlyInFile; }))
        file->AllTablesRead();
}

void Database::Engine::PrepareToWrite(StoredTable& table) {
    if (table.readyToWrite) return;
    for (const jet::Index& index : table.definition.indexes) {
        const std::string columns = IndexColumns(table.definition, index);
        if (!(index.unique || index.primary) || columns.empty()) continue;
        const auto place = &index - table.definition.indexes.data();
        Execute("CREATE UNIQUE INDEX IF NOT EXISTS i" + std::to_string(table.number) + "_" +
                std::to_string(place) + " ON " + SqlName(table) + " (" + columns + ")");
    }
    table.readyToWrite = true;
}

std::int64_t Database::Engine::InsertRow(StoredTable& table, const jet::Row& checkedRow) {
    PrepareToWrite(table);
    if (!table.insert)
        table.insert.emplace(database, "INSERT INTO " + SqlName(table) + " (rowid," +
                                           ColumnList(table) + ") VALUES (" +
                                           Marks(table.definition.columns.size() + 1) + ")");
    const std::int64_t key = table.lastRow + 1;
    table.insert->BindKey(1, key);
    BindRow(*table.insert, 2, table.definition, Views(checkedRow));
    table.insert->Run();
    table.lastRow = key;
    MarkChanged();
    return key;
}

void Database::Engine::UpdateRow(StoredTable& table, std::int64_t key, const jet::Row& checkedRow) {
    PrepareToWrite(table);
    std::string list;
    for (std::size_t i = 0; i < checkedRow.size(); ++i)
        list += (i ? ",c" : "c") + std::to_string(i) + "=?";
    Statement update(database, "UPDATE " + SqlName(table) + " SET " + list + " WHERE rowid=?");
    const std::vector<jet::ValueView> views = Views(checkedRow);
    BindRow(update, 1, table.definition, views);
    update.BindKey(static_cast<int>(checkedRow.size()) + 1, key);
    update.Run();
    MarkChanged();
}

void Database::Engine::DeleteRow(StoredTable& table, std::int64_t key) {
    Statement remove(database, "DELETE FROM " + SqlName(table) + " WHERE rowid=?");
    remove.BindKey(1, key);
    remove.Run();
    MarkChanged();
}

/// Rows that are still in the file needn't be read for that.
void Database::Engine::DeleteAllRows(StoredTable& table) {
    if (table.onlyInFile)
        MarkRead(table);
    else
        Execute("DELETE FROM " + SqlName(table));
    MarkChanged();
}

void Database::Engine::FillAutoNumbers(const StoredTable& table, jet::Row& row) {
    const auto& columns = table.definition.columns;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const bool isNumber = columns[i].type == jet::ColumnType::Long;
        if (!columns[i].autoNumber || !isNumber || row[i].index() != 0) continue;
        Statement highest(database,
                          "SELECT max(c" + std::to_string(i) + ") FROM " + SqlName(table));
        row[i] = highest.Step() ? highest.Whole(0) + 1 : 1;
    }
}

void Database::Engine::VisitRows(const StoredTable& table, const RowVisitor& visitor) {
    if (table.onlyInFile) {
        file->ReadRows(table.definition.name, visitor);
        return;
    }
    const auto& columns = table.definition.columns;
    Statement rows(database,
                   "SELECT " + ColumnList(table) + " FROM " + SqlName(table) + " ORDER BY rowid");
    std::vector<jet::ValueView> row(columns.size());
    while (rows.Step()) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            row[i] = rows.View(static_cast<int>(i), columns[i].type);
        visitor(row);
    }
}

}  // namespace tendo
