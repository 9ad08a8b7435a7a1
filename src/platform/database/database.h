#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/jet_types.h"

namespace tendo {

class Recordset;

/// One open database: a Jet file read whole into an in-memory SQLite database, worked on there, and
/// written back whole (as Jet 4, through the safe replace) by Close when anything changed. The file
/// itself is closed between Open and Close.
class Database {
  public:
    /// Opens a file. RuntimeError: 3024 could not find file, 70, 3343 unrecognized format, 3031.
    /// A file that holds things this program can't write back (jet::NotKept) opens read-only: a
    /// change is refused with 3027 and a description that says what would be lost. A Jet 3 file is
    /// written back as Jet 4; the first time its original is kept as "NAME (Jet 3).EXT" and
    /// `DatabaseHooks::JetThreeKept` is told.
    static Database OpenDatabase(std::string_view path);
    /// A database in memory only, for queries over tables that come from elsewhere; Close writes
    /// nothing.
    static Database InMemory();
    /// Makes a new file without tables; RuntimeError 3204 when a file of the name exists.
    static void CreateDatabase(std::string_view path);

    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();  // without Close: nothing is written

    const std::string& Name() const;
    std::vector<std::string> TableNames() const;
    bool HasTable(std::string_view table) const;
    /// RuntimeError 3265 when there is no such table.
    const jet::TableDefinition& Table(std::string_view table) const;

    /// Appends a table, its columns and indexes; RuntimeError 3010 when it exists.
    void AppendTable(const jet::TableDefinition& table);
    /// Appends a column to a table; rows that are there hold null in it. RuntimeError 3191 when it
    /// exists.
    void AppendField(std::string_view table, const jet::Column& column);
    void DeleteTable(std::string_view table);
    /// Appends rows in one step (bulk loading of whole tables); the same checks as
    /// Recordset::Update.
    void AppendRows(std::string_view table, const std::vector<jet::Row>& rows);

    /// A table's name or a SELECT text. RuntimeError 3078 for a missing table, 3061 for a missing
    /// column, 3075 for a broken text. Row order is table order unless the text orders otherwise.
    Recordset OpenRecordset(std::string_view source);

    /// Number of rows of a table, without opening them. RuntimeError 3078.
    int RecordCount(std::string_view table);

    /// Removes all rows of a table.
    void DeleteAllRows(std::string_view table);

    /// Writes the file when anything changed, and stays open. A failure leaves the old file whole,
    /// the changes are still to be written, and it throws.
    void Save();
    /// Writes the file when anything changed. A failure leaves the old file whole and throws.
    void Close();
    /// True when Close would write.
    bool Changed() const;

    struct Engine;

  private:
    explicit Database(std::shared_ptr<Engine> engine);
    std::shared_ptr<Engine> engine_;
};

/// A row set over one table or one SELECT. A dynaset: it keeps the keys of its rows as they were at
/// opening, values are read as they are now. Opens on the first row.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    /// Number of rows, those added through this recordset included, deleted ones not.
    int RecordCount() const;
    bool BOF() const;
    bool EOF_() const;  // EOF is a macro of the C library
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// Goes to row `position`, counted from 0.
    void MoveTo(int position);
    /// The current row counted from 0; -1 without one.
    int AbsolutePosition() const;

    /// Criteria of the query language: comparisons, And, Or, Not, Like, Is Null, brackets. 3077 for
    /// a broken text. The position stays where it was when nothing matches, and NoMatch is true.
    void FindFirst(std::string_view criteria);
    void FindNext(std::string_view criteria);
    bool NoMatch() const;

    /// A key of the current row; setting one goes there. RuntimeError 3021 without a current row,
    /// 3159 for a row that is gone.
    std::int64_t Bookmark() const;
    void SetBookmark(std::int64_t bookmark);

    /// New row with all columns null (Boolean false), written by Update, which leaves the current
    /// row as it was. Set between AddNew or Edit and Update only (3020). Update enforces types and
    /// widths: 3163 for a text too long, 3315 for an empty text where none is allowed, 3314 for a
    /// missing required value, 3022 for a duplicate key, 3421 for a wrong type.
    void AddNew();
    void Edit();
    void Set(std::string_view field, const jet::Value& value);
    void Update();
    void CancelUpdate();
    /// Deletes the current row; the position goes to none until the next move, and MoveNext goes to
    /// the row behind it.
    void Delete();

    const std::vector<jet::Column>& Fields() const;
    bool HasField(std::string_view field) const;
    /// RuntimeError 3265 for an unknown field, 3021 without a current row.
    jet::Value Get(std::string_view field) const;
    jet::Value Get(int field) const;
    bool IsNull(std::string_view field) const;

    /// Typed reading; null gives the default ("" or 0), a number out of range RuntimeError 6, a
    /// text where a number is wanted 13.
    std::string Text(std::string_view field) const;
    float Single(std::string_view field) const;
    double Double(std::string_view field) const;
    std::int16_t Integer(std::string_view field) const;
    std::int32_t Long(std::string_view field) const;
    bool Boolean(std::string_view field) const;

    void Close();

    struct State;

  private:
    friend class Database;
    explicit Recordset(std::unique_ptr<State> state);
    std::unique_ptr<State> state_;
};

/// Text of a value as grids and JSON show it: null "", Boolean "True"/"False", numbers in plain
/// text, currency with four decimals less trailing zeros, dates by ShortDateText.
std::string TextOfValue(const jet::Value& value, jet::ColumnType type);

/// A value as a number; null is 0, true -1. RuntimeError 13 for a text.
double NumberOfValue(const jet::Value& value, jet::ColumnType type);

}  // namespace tendo
