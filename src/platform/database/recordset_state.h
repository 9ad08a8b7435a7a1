#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/database.h"
#include "platform/database/engine.h"
#include "platform/database/select.h"

namespace tendo {

/// A row set: the keys of its rows, where it stands, and a row being changed.
struct Recordset::State {
    State(std::shared_ptr<Database::Engine> databaseEngine, query::Select rowSelect,
          std::vector<std::shared_ptr<StoredTable>> usedTables);

    void CheckOpen() const;
    int Count() const { return static_cast<int>(keys.size() / sources()); }
    std::size_t sources() const { return select.sources.size(); }
    bool HasRow() const;
    /// 3021 without a current row.
    void NeedRow() const;
    /// Goes to a position; -1 is before the first row, Count() behind the last. A change not yet
    /// written is given up.
    void GoTo(int newPosition);
    /// The values of the current row as they are now. RuntimeError 3167 when it was deleted.
    const jet::Row& Row();
    /// The place of a field by its name; -1 without one.
    int PlaceOf(std::string_view field) const;
    int NeedField(std::string_view field) const;
    jet::Value ValueAt(int field);

    /// Goes on from a position to the next row that fulfils the criterion.
    void Find(std::string_view criteria, int from);

    /// The one table whose rows can be changed; 3027 for a join or DISTINCT.
    StoredTable& ChangedTable() const;
    void BeginAdd();
    void BeginEdit();
    void SetValue(std::string_view field, const jet::Value& value);
    void Update();
    void CancelUpdate();
    void DeleteCurrent();

    std::shared_ptr<Database::Engine> engine;
    std::vector<std::shared_ptr<StoredTable>> tables;
    query::Select select;
    std::vector<jet::Column> fields;
    std::deque<std::int64_t>
        keys;  // one for each source of a row; 0 where an outer join found none
    int position = 0;
    bool onDeleted = false;  // the row at `position` is the one behind the deleted one
    bool noMatch = false;
    bool released = false;

  private:
    enum class Change { None, Add, Edit };

    void ReadKeys();
    void BindKeys(Statement& statement, int row) const;
    bool Fulfils(int row);
    void PrepareCriteria(std::string_view criteria);
    jet::Row StoredRow();

    std::optional<Statement> rowStatement_;
    jet::Row row_;  // values of the row below
    int rowPosition_ = -1;
    std::uint64_t rowChanges_ = 0;

    std::string criteria_;  // the one that the statement below tests
    std::vector<query::Parameter> criteriaParameters_;
    std::optional<Statement> criteriaStatement_;

    Change change_ = Change::None;
    jet::Row changedRow_;  // all columns of the table
};

}  // namespace tendo
