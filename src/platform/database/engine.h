#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/database.h"
#include "platform/database/expression.h"
#include "platform/database/statement.h"

namespace tendo {

using RowVisitor = std::function<void(std::span<const jet::ValueView>)>;

/// A table of an open database: columns c0, c1 ... of table t1, t2 ... in SQLite, without types, so
/// that a value stays what it is. Rows keep their number for life.
struct StoredTable {
    jet::TableDefinition definition;
    int number = 0;
    bool onlyInFile = false;    // not read yet
    bool readyToWrite = false;  // its unique indexes stand
    bool deleted = false;
    std::int64_t lastRow = 0;  // a number once given is not given again
    std::optional<Statement> insert;
};

/// The file behind a database.
class DatabaseFile {
  public:
    virtual ~DatabaseFile() = default;
    /// Gives all rows of a table that stands in the file.
    virtual void ReadRows(const std::string& table, const RowVisitor& visitor) = 0;
    /// Throws 3027 when the file holds what would be lost by writing it.
    virtual void CheckWritable() const = 0;
    /// Writes all tables of the database.
    virtual void Write(Database::Engine& engine) = 0;
    /// No table is left to be read; the file's bytes can go.
    virtual void AllTablesRead() = 0;
};

struct Database::Engine {
    explicit Engine(std::string_view databaseName);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Throws 3420 when the database is closed.
    void CheckOpen() const;
    /// What every change begins with: 3420, or 3027 for a file that must not be written.
    void CheckWritable() const;
    void MarkChanged();
    /// Ends the use of the database; row sets that are still there throw 3420 from now on.
    void Shut();

    /// Nothing when there is no such table.
    std::shared_ptr<StoredTable> Find(std::string_view table) const;
    /// RuntimeError with this number when there is no such table.
    std::shared_ptr<StoredTable> Need(std::string_view table, int errorNumber) const;
    /// The table with its rows at hand.
    std::shared_ptr<StoredTable> Loaded(std::string_view table, int errorNumber);

    std::shared_ptr<StoredTable> AddTable(const jet::TableDefinition& definition);
    /// Takes the rows of a checked or foreign source; returns the number of the new row.
    std::int64_t InsertRow(StoredTable& table, const jet::Row& checkedRow);
    void UpdateRow(StoredTable& table, std::int64_t key, const jet::Row& checkedRow);
    void DeleteRow(StoredTable& table, std::int64_t key);
    void DeleteAllRows(StoredTable& table);
    /// Gives automatic numbers to a new row that lacks them.
    void FillAutoNumbers(const StoredTable& table, jet::Row& row);
    /// Gives all rows in table order, from the file while the table wasn't needed yet.
    void VisitRows(const StoredTable& table, const RowVisitor& visitor);
    void Execute(const std::string& sql);
    /// Makes the unique indexes, which only changes need.
    void PrepareToWrite(StoredTable& table);

    std::string name;
    sqlite3* database = nullptr;
    std::vector<std::shared_ptr<StoredTable>> tables;  // in the order of making
    std::unique_ptr<DatabaseFile> file;                // none for a database in memory only
    bool changed = false;
    bool closed = false;
    std::uint64_t changes = 0;  // counts up with each change, so that row sets read anew

  private:
    void LoadRows(StoredTable& table);
    void MarkRead(StoredTable& table);
    int lastNumber_ = 0;
};

}  // namespace tendo
