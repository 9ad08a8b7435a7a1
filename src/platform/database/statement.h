#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/expression.h"
#include "platform/jet/jet_types.h"

namespace tendo {

/// A prepared statement. Failures throw a RuntimeError: 3022 for a duplicate key, 7 out of memory,
/// 3000 with the engine's own words for anything else.
class Statement {
  public:
    Statement(sqlite3* database, const std::string& sql);
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    ~Statement();

    void BindKey(int at, std::int64_t key);
    /// The values of a query; they must outlive the statement (patterns are bound by address).
    void BindParameters(const std::vector<query::Parameter>& parameters);
    /// A value as its column stores it. Its text must live until the next Step.
    void BindValue(int at, const jet::ValueView& value, jet::ColumnType type);

    /// True when there is a row.
    bool Step();
    /// Runs a statement that gives no rows, and makes it ready for the next time.
    void Run();
    void Reset() { sqlite3_reset(handle_); }

    std::int64_t Whole(int column) const { return sqlite3_column_int64(handle_, column); }
    /// A value of the row as the column's type has it; the text lives until the next Step or Reset.
    jet::ValueView View(int column, jet::ColumnType type) const;

  private:
    [[noreturn]] void Throw() const;

    sqlite3_stmt* handle_ = nullptr;
};

/// A view of a value, which must outlive it; and a copy of a view.
jet::ValueView ViewOf(const jet::Value& value);
jet::Value ValueOfView(const jet::ValueView& view);

/// Opens a database in memory that knows the collation GENERAL and the functions jet_key and
/// jet_like.
sqlite3* OpenMemoryDatabase();

}  // namespace tendo
