// Criteria and SELECT texts: any text must give rows or one of the language's own errors, and the
// tables must stay as they are.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/database/database.h"
#include "platform/text/runtime_error.h"

namespace {

using tendo::jet::ColumnType;

void Require(bool condition) {
    if (!condition) std::abort();
}

tendo::jet::Column Column(const char* name, ColumnType type) {
    tendo::jet::Column column;
    column.name = name;
    column.type = type;
    column.size = type == ColumnType::Text ? 255 : 0;
    return column;
}

tendo::Database SmallDatabase() {
    tendo::Database database = tendo::Database::InMemory();
    for (const char* name : {"A", "B C"}) {
        tendo::jet::TableDefinition table;
        table.name = name;
        table.columns = {Column("T", ColumnType::Text),     Column("Part Number", ColumnType::Text),
                         Column("N", ColumnType::Long),     Column("S", ColumnType::Single),
                         Column("C", ColumnType::Currency), Column("B", ColumnType::Boolean),
                         Column("D", ColumnType::Date),     Column("M", ColumnType::Memo)};
        database.AppendTable(table);
        database.AppendRows(
            name, {{"pipe", "P-1", std::int64_t{1}, 0.5, std::int64_t{1005000}, true, 35920.0, ""},
                   {"\xC3\xA9lan", {}, std::int64_t{-7}, 999.9, std::int64_t{-1}, false, {}, {}},
                   {{}, "x'y", {}, 0.0, {}, true, 0.0, "long text"}});
    }
    return database;
}

/// True when the call ended in an error of the query language.
template <class Call>
bool Fails(Call call, std::initializer_list<int> numbers) {
    try {
        call();
        return false;
    } catch (const tendo::RuntimeError& error) {
        for (const int number : numbers)
            if (error.Number() == number) return true;
        std::abort();
    }
}

void ReadAll(tendo::Recordset& rows) {
    for (; !rows.EOF_(); rows.MoveNext())
        for (const tendo::jet::Column& column : rows.Fields())
            rows.Text(column.name);
}

/// A cross join of many tables has more rows than a test has time.
bool IsTooMuch(std::string_view text) {
    std::size_t names = 0;
    for (const char c : text)
        names += c == ',' || c == 'J' || c == 'j';
    return names > 4 || text.size() > 4000;
}

void RunSelect(tendo::Database& database, const std::string& text) {
    if (IsTooMuch(text)) return;
    Fails(
        [&] {
            tendo::Recordset rows = database.OpenRecordset(text);
            ReadAll(rows);
        },
        {3075, 3061, 3078, 3079, 3464});
}

void RunCriteria(tendo::Database& database, std::string_view text) {
    tendo::Recordset rows = database.OpenRecordset("A");
    rows.MoveTo(1);
    const auto find = [&] { rows.FindFirst(text); };
    if (Fails(find, {3077, 3070, 3464})) {
        Require(rows.AbsolutePosition() == 1);
        return;
    }
    Require(rows.NoMatch() ? rows.AbsolutePosition() == 1 : !rows.EOF_());
    for (int i = 0; i < 4 && !rows.NoMatch(); ++i)
        rows.FindNext(text);
    Require(rows.NoMatch());  // there are three rows
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tendo::Database database = SmallDatabase();
    const std::string text(reinterpret_cast<const char*>(data), size);
    RunCriteria(database, text);
    RunSelect(database, text);
    RunSelect(database, "Select * from A where " + text);
    RunSelect(database, "Select * from A order by " + text);
    RunSelect(database, "Select " + text + " from [B C]");
    Require(database.OpenRecordset("A").RecordCount() == 3);
    Require(database.OpenRecordset("B C").RecordCount() == 3);
    return 0;
}
