#include "platform/database/recordset_state.h"

#include <utility>

#include "platform/database/row_check.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int ObjectInvalid = 3420;
constexpr int RecordDeleted = 3167;
constexpr int FieldNotChangeable = 3164;

/// What SQLite can't take, although our reading found nothing wrong, is too deep or too long for
/// it.
Statement PreparedQuery(sqlite3* database, const std::string& sql, int errorNumber) {
    try {
        return Statement(database, sql);
    } catch (const RuntimeError&) {
        query::ThrowBroken(errorNumber, "the text is too complex");
    }
}

}  // namespace

Recordset::State::State(std::shared_ptr<Database::Engine> databaseEngine, query::Select rowSelect,
                        std::vector<std::shared_ptr<StoredTable>> usedTables)
    : engine(std::move(databaseEngine)),
      tables(std::move(usedTables)),
      select(std::move(rowSelect)) {
    for (const query::OutputColumn& output : select.outputs)
        fields.push_back(output.column);
    ReadKeys();
}

void Recordset::State::ReadKeys() {
    Statement rows =
        PreparedQuery(engine->database, select.KeyQuery(), error_number::SyntaxErrorInQuery);
    rows.BindParameters(select.parameters);
    const int width = static_cast<int>(sources());
    while (rows.Step())
        for (int i = 0; i < width; ++i)
            keys.push_back(rows.Whole(i));
}

void Recordset::State::CheckOpen() const {
    if (released) throw RuntimeError(ObjectInvalid, "The row set is closed.");
    engine->CheckOpen();
    for (const auto& table : tables)
        if (table->deleted)
            throw RuntimeError(ObjectInvalid, "The table \"" + table->definition.name +
                                                  "\" of the row set was deleted.");
}

bool Recordset::State::HasRow() const {
    return !onDeleted && position >= 0 && position < Count();
}

void Recordset::State::NeedRow() const {
    CheckOpen();
    if (!HasRow()) ThrowError(error_number::NoCurrentRecord);
}

void Recordset::State::GoTo(int newPosition) {
    position = newPosition;
    onDeleted = false;
    change_ = Change::None;
}

void Recordset::State::BindKeys(Statement& statement, int row) const {
    const std::size_t first = static_cast<std::size_t>(row) * sources();
    for (std::size_t i = 0; i < sources(); ++i)
        statement.BindKey(static_cast<int>(i) + 1, keys[first + i]);
}

const jet::Row& Recordset::State::Row() {
    NeedRow();
    if (rowPosition_ == position && rowChanges_ == engine->changes) return row_;
    if (!rowStatement_) {
        rowStatement_ =
            PreparedQuery(engine->database, select.RowQuery(), error_number::SyntaxErrorInQuery);
        rowStatement_->BindParameters(select.parameters);
    }
    BindKeys(*rowStatement_, position);
    rowPosition_ = -1;
    if (!rowStatement_->Step()) {
        rowStatement_->Reset();
        throw RuntimeError(RecordDeleted, "Record is deleted.");
    }
    row_.resize(fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i)
        row_[i] = ValueOfView(rowStatement_->View(static_cast<int>(i), fields[i].type));
    rowStatement_->Reset();
    rowPosition_ = position;
    rowChanges_ = engine->changes;
    return row_;
}

int Recordset::State::PlaceOf(std::string_view field) const {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].name == field) return static_cast<int>(i);
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (EqualsNoCase(fields[i].name, field) ||
            EqualsNoCase(select.outputs[i].qualifiedName, field))
            return static_cast<int>(i);
    return -1;
}

int Recordset::State::NeedField(std::string_view field) const {
    const int place = PlaceOf(field);
    if (place >= 0) return place;
    throw RuntimeError(
        error_number::ItemNotFound,
        "Item not found in this collection: there is no column \"" + std::string(field) + "\".");
}

jet::Value Recordset::State::ValueAt(int field) {
    if (change_ == Change::None) return Row()[static_cast<std::size_t>(field)];
    CheckOpen();
    const int place = select.outputs[static_cast<std::size_t>(field)].place;
    if (place < 0) return std::monostate{};
    return changedRow_[static_cast<std::size_t>(place)];
}

void Recordset::State::PrepareCriteria(std::string_view criteria) {
    if (criteriaStatement_ && criteria_ == criteria) return;
    criteriaStatement_.reset();
    criteriaParameters_ = select.parameters;
    const std::string condition =
        query::ReadCriteria(criteria, select.sources, criteriaParameters_);
    criteriaStatement_ = PreparedQuery(engine->database, select.TestQuery(condition),
                                       error_number::SyntaxErrorInCriteria);
    criteriaStatement_->BindParameters(criteriaParameters_);
    criteria_ = criteria;
}

bool Recordset::State::Fulfils(int row) {
    BindKeys(*criteriaStatement_, row);
    const bool fulfils = criteriaStatement_->Step();
    criteriaStatement_->Reset();
    return fulfils;
}

void Recordset::State::Find(std::string_view criteria, int from) {
    CheckOpen();
    PrepareCriteria(criteria);
    noMatch = true;
    for (int row = from < 0 ? 0 : from; row < Count(); ++row) {
        if (!Fulfils(row)) continue;
        noMatch = false;
        GoTo(row);
        return;
    }
}

StoredTable& Recordset::State::ChangedTable() const {
    engine->CheckWritable();
    CheckOpen();
    if (tables.size() != 1 || select.distinct)
        throw RuntimeError(error_number::ReadOnlyDatabase,
                           "Cannot update: the rows of a query over several tables or without "
                           "repetitions are read-only.");
    return *tables.front();
}

/// The current row with all columns of its table, shown or not.
jet::Row Recordset::State::StoredRow() {
    const StoredTable& table = ChangedTable();
    const auto& columns = table.definition.columns;
    const std::string sql = query::SelectAll({&table.definition, table.number, "x"}).RowQuery();
    Statement statement(engine->database, sql);
    BindKeys(statement, position);
    if (!statement.Step()) throw RuntimeError(RecordDeleted, "Record is deleted.");
    jet::Row row;
    for (std::size_t i = 0; i < columns.size(); ++i)
        row.push_back(ValueOfView(statement.View(static_cast<int>(i), columns[i].type)));
    return row;
}

void Recordset::State::BeginAdd() {
    CheckOpen();
    const auto& columns = ChangedTable().definition.columns;
    changedRow_.assign(columns.size(), std::monostate{});
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].type == jet::ColumnType::Boolean) changedRow_[i] = false;
    change_ = Change::Add;
}

void Recordset::State::BeginEdit() {
    NeedRow();
    changedRow_ = StoredRow();
    change_ = Change::Edit;
}

void Recordset::State::SetValue(std::string_view field, const jet::Value& value) {
    CheckOpen();
    if (change_ == Change::None) ThrowError(error_number::EditNotStarted);
    const int place = select.outputs[static_cast<std::size_t>(NeedField(field))].place;
    if (place < 0)
        throw RuntimeError(FieldNotChangeable,
                           "The column \"" + std::string(field) + "\" is calculated.");
    changedRow_[static_cast<std::size_t>(place)] = value;
}

void Recordset::State::Update() {
    CheckOpen();
    if (change_ == Change::None) ThrowError(error_number::EditNotStarted);
    StoredTable& table = ChangedTable();
    jet::Row row = changedRow_;
    row.resize(table.definition.columns.size());  // a column may have been appended meanwhile
    if (change_ == Change::Add) {
        engine->FillAutoNumbers(table, row);
        const bool atEnd = position >= Count();
        keys.push_back(engine->InsertRow(table, CheckedRow(table.definition, row)));
        if (atEnd && !onDeleted) position = Count();
    } else {
        NeedRow();
        engine->UpdateRow(table, keys[static_cast<std::size_t>(position)],
                          CheckedRow(table.definition, row));
    }
    change_ = Change::None;
}

void Recordset::State::CancelUpdate() {
    CheckOpen();
    if (change_ == Change::None) ThrowError(error_number::EditNotStarted);
    change_ = Change::None;
}

void Recordset::State::DeleteCurrent() {
    NeedRow();
    StoredTable& table = ChangedTable();
    engine->DeleteRow(table, keys[static_cast<std::size_t>(position)]);
    keys.erase(keys.begin() + position);
    change_ = Change::None;
    onDeleted = true;
}

}  // namespace tendo
