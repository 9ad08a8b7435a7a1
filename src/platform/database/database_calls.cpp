#include "platform/database/database.h"

#include <utility>

#include "platform/database/engine.h"
#include "platform/database/recordset_state.h"
#include "platform/database/row_check.h"
#include "platform/database/select.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int TableExists = 3010;
constexpr int NoColumns = 3264;
constexpr int ColumnExists = 3191;
constexpr int MostColumns = 255;
constexpr int UnsizedText = 255;  // the size that a text column gets when none is told

std::string_view WithoutBrackets(std::string_view name) {
    if (name.size() > 2 && name.front() == '[' && name.find(']') == name.size() - 1)
        return name.substr(1, name.size() - 2);
    return name;
}

/// Texts that would change something, or ask for more than rows.
bool IsAction(std::string_view source) {
    for (const std::string_view word :
         {"insert ", "update ", "delete ", "drop ", "create ", "alter ", "pragma ", "attach "})
        if (EqualsNoCase(source.substr(0, word.size()), word)) return true;
    return false;
}

jet::Column Sized(jet::Column column) {
    if (column.type == jet::ColumnType::Text && column.size <= 0) column.size = UnsizedText;
    return column;
}

void CheckColumns(const jet::TableDefinition& table) {
    if (table.columns.empty())
        throw RuntimeError(NoColumns, "The table \"" + table.name + "\" has no columns.");
    if (table.columns.size() > MostColumns)
        throw RuntimeError(NoColumns, "The table \"" + table.name + "\" has too many columns.");
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (query::PlaceOfColumn(table, table.columns[i].name) != static_cast<int>(i))
            throw RuntimeError(ColumnExists, "The table \"" + table.name + "\" has two columns \"" +
                                                 table.columns[i].name + "\".");
}

}  // namespace

Database::Database(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}
Database::Database(Database&&) noexcept = default;

Database& Database::operator=(Database&& other) noexcept {
    std::swap(engine_, other.engine_);
    if (other.engine_) other.engine_->Shut();
    other.engine_.reset();
    return *this;
}

Database::~Database() {
    if (engine_) engine_->Shut();
}

Database Database::InMemory() {
    return Database(std::make_shared<Engine>("in memory"));
}

const std::string& Database::Name() const {
    return engine_->name;
}

std::vector<std::string> Database::TableNames() const {
    engine_->CheckOpen();
    std::vector<std::string> names;
    for (const auto& table : engine_->tables)
        names.push_back(table->definition.name);
    return names;
}

bool Database::HasTable(std::string_view table) const {
    return engine_->Find(table) != nullptr;
}

const jet::TableDefinition& Database::Table(std::string_view table) const {
    return engine_->Need(table, error_number::ItemNotFound)->definition;
}

void Database::AppendTable(const jet::TableDefinition& table) {
    engine_->CheckWritable();
    if (HasTable(table.name))
        throw RuntimeError(TableExists, "The table \"" + table.name + "\" exists already.");
    CheckColumns(table);
    jet::TableDefinition sized = table;
    for (jet::Column& column : sized.columns)
        column = Sized(column);
    engine_->AddTable(sized);
    engine_->MarkChanged();
}

void Database::AppendField(std::string_view table, const jet::Column& column) {
    engine_->CheckWritable();
    StoredTable& stored = *engine_->Loaded(table, error_number::ItemNotFound);
    jet::TableDefinition widened = stored.definition;
    widened.columns.push_back(Sized(column));
    CheckColumns(widened);
    stored.insert.reset();
    engine_->Execute("ALTER TABLE t" + std::to_string(stored.number) + " ADD COLUMN c" +
                     std::to_string(stored.definition.columns.size()) +
                     (column.type == jet::ColumnType::Boolean ? " DEFAULT 0" : ""));
    stored.definition = std::move(widened);
    engine_->MarkChanged();
}

void Database::DeleteTable(std::string_view table) {
    engine_->CheckWritable();
    const auto stored = engine_->Need(table, error_number::ItemNotFound);
    stored->insert.reset();
    stored->deleted = true;
    engine_->Execute("DROP TABLE t" + std::to_string(stored->number));
    std::erase(engine_->tables, stored);
    engine_->MarkChanged();
}

void Database::AppendRows(std::string_view table, const std::vector<jet::Row>& rows) {
    engine_->CheckWritable();
    StoredTable& stored = *engine_->Loaded(table, error_number::TableNotFound);
    const std::int64_t before = stored.lastRow;
    const bool wasChanged = engine_->changed;
    try {
        for (jet::Row row : rows) {
            engine_->FillAutoNumbers(stored, row);
            engine_->InsertRow(stored, CheckedRow(stored.definition, row));
        }
    } catch (...) {
        engine_->Execute("DELETE FROM t" + std::to_string(stored.number) + " WHERE rowid>" +
                         std::to_string(before));
        engine_->changed = wasChanged;
        throw;
    }
}

int Database::RecordCount(std::string_view table) {
    engine_->CheckOpen();
    const auto stored = engine_->Loaded(table, error_number::TableNotFound);
    Statement count(engine_->database, "SELECT count(*) FROM t" + std::to_string(stored->number));
    count.Step();
    return static_cast<int>(count.Whole(0));
}

void Database::DeleteAllRows(std::string_view table) {
    engine_->CheckWritable();
    engine_->DeleteAllRows(*engine_->Need(table, error_number::TableNotFound));
}

Recordset Database::OpenRecordset(std::string_view source) {
    engine_->CheckOpen();
    const std::string_view text = Trimmed(source);
    std::vector<std::shared_ptr<StoredTable>> used;
    const query::FindTable find = [&](std::string_view name) {
        used.push_back(engine_->Loaded(name, error_number::TableNotFound));
        return query::Source{&used.back()->definition, used.back()->number,
                             used.back()->definition.name};
    };
    query::Select select;
    if (!HasTable(text) && query::IsSelect(text)) {
        select = query::ReadSelect(text, find);
    } else if (IsAction(text)) {
        query::ThrowBroken(error_number::SyntaxErrorInQuery, "only SELECT gives rows");
    } else {
        select = query::SelectAll(find(WithoutBrackets(text)));
    }
    return Recordset(
        std::make_unique<Recordset::State>(engine_, std::move(select), std::move(used)));
}

void Database::Save() {
    if (!Changed()) return;
    engine_->file->Write(*engine_);
    engine_->changed = false;
}

void Database::Close() {
    if (engine_->closed) return;
    Save();
    engine_->Shut();
}

bool Database::Changed() const {
    return !engine_->closed && engine_->file && engine_->changed;
}

}  // namespace tendo
