// What a row may hold: types, widths, empty texts, keys; and how values show as text.

#include <gtest/gtest.h>

#include <limits>

#include "sample_tables.h"

namespace tendo {
namespace {

using jet::ColumnType;

constexpr std::monostate Null;

/// Writes a value into a table of one such column; gives what is stored.
jet::Value Stored(const jet::Column& column, const jet::Value& value) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("T", {column}));
    Recordset rows = database.OpenRecordset("T");
    rows.AddNew();
    rows.Set(column.name, value);
    rows.Update();
    rows.MoveFirst();
    return rows.Get(0);
}

jet::Value Stored(ColumnType type, const jet::Value& value) {
    return Stored(ColumnOf("C", type), value);
}

int Refused(ColumnType type, const jet::Value& value) {
    return ErrorOf([&] { Stored(type, value); });
}

TEST(RowRules, ATextTooLongForItsColumnIsRefusedAndNamesIt) {
    const jet::Column column = ColumnOf("Model", ColumnType::Text, 3);
    EXPECT_EQ(Stored(column, "abc"), jet::Value("abc"));
    EXPECT_EQ(ErrorOf([&] { Stored(column, "abcd"); }), 3163);
    EXPECT_EQ(ErrorOf([&] { Stored(column, "abc "); }), 3163);  // blanks take room too
    try {
        Stored(column, "abcd");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(),
                  "The field is too small to accept the amount of data you attempted to add.  Try "
                  "inserting or pasting less data. (column \"Model\" of table \"T\")");
    }
}

TEST(RowRules, WidthsCountCharactersNotBytes) {
    const jet::Column column = ColumnOf("C", ColumnType::Text, 3);
    EXPECT_EQ(Stored(column, "\xC3\xA9\xC3\xA9\xC3\xA9"), jet::Value("\xC3\xA9\xC3\xA9\xC3\xA9"));
    EXPECT_EQ(ErrorOf([&] { Stored(column, "\xC3\xA9\xC3\xA9\xC3\xA9x"); }), 3163);
    // One outside the basic plane takes two places in the file.
    EXPECT_EQ(ErrorOf([&] { Stored(column, "\xF0\x9F\x98\x80x"); }), 0);
    EXPECT_EQ(ErrorOf([&] { Stored(column, "\xF0\x9F\x98\x80xy"); }), 3163);
}

TEST(RowRules, ARefusedRowCanBeMendedAndWritten) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("T", {ColumnOf("C", ColumnType::Text, 3)}));
    Recordset rows = database.OpenRecordset("T");
    rows.AddNew();
    rows.Set("C", "abcd");
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3163);
    EXPECT_EQ(rows.RecordCount(), 0);
    rows.Set("C", "abc");
    rows.Update();
    EXPECT_EQ(Column(rows, "C"), "abc");
}

TEST(RowRules, BytesHaveAWidthOfBytesAndKeepZeros) {
    const jet::Column column = ColumnOf("C", ColumnType::Binary, 2);
    const std::string bytes("\0\xFF", 2);
    EXPECT_EQ(Stored(column, bytes), jet::Value(bytes));
    EXPECT_EQ(ErrorOf([&] { Stored(column, "abc"); }), 3163);
    const std::string text("a\0b", 3);
    EXPECT_EQ(Stored(ColumnType::Memo, text), jet::Value(text));
}

TEST(RowRules, AnEmptyTextIsRefusedWhereNoneIsAllowed) {
    jet::Column column = ColumnOf("C", ColumnType::Text, 3);
    EXPECT_EQ(Stored(column, ""), jet::Value(""));
    column.allowZeroLength = false;
    EXPECT_EQ(ErrorOf([&] { Stored(column, ""); }), 3315);
    EXPECT_EQ(Stored(column, Null), jet::Value(Null));
    column.type = ColumnType::Memo;
    EXPECT_EQ(ErrorOf([&] { Stored(column, ""); }), 3315);
}

TEST(RowRules, ARequiredColumnNeedsAValue) {
    jet::Column column = ColumnOf("C", ColumnType::Integer);
    column.required = true;
    EXPECT_EQ(ErrorOf([&] { Stored(column, Null); }), 3314);
    EXPECT_EQ(Stored(column, std::int64_t{0}), jet::Value(std::int64_t{0}));
}

TEST(RowRules, ABooleanIsNeverNull) {
    EXPECT_EQ(Stored(ColumnType::Boolean, Null), jet::Value(false));
    EXPECT_EQ(Stored(ColumnType::Boolean, true), jet::Value(true));
    EXPECT_EQ(Stored(ColumnType::Boolean, std::int64_t{-1}), jet::Value(true));
    EXPECT_EQ(Stored(ColumnType::Boolean, "Yes"), jet::Value(true));
    EXPECT_EQ(Stored(ColumnType::Boolean, "no"), jet::Value(false));
    EXPECT_EQ(Refused(ColumnType::Boolean, "perhaps"), 3421);
}

TEST(RowRules, WholeNumbersStayInTheirRange) {
    EXPECT_EQ(Stored(ColumnType::Byte, std::int64_t{255}), jet::Value(std::int64_t{255}));
    EXPECT_EQ(Refused(ColumnType::Byte, std::int64_t{256}), 6);
    EXPECT_EQ(Refused(ColumnType::Byte, std::int64_t{-1}), 6);
    EXPECT_EQ(Stored(ColumnType::Integer, -32768.0), jet::Value(std::int64_t{-32768}));
    EXPECT_EQ(Refused(ColumnType::Integer, std::int64_t{32768}), 6);
    EXPECT_EQ(Refused(ColumnType::Long, 2147483648.0), 6);
    EXPECT_EQ(Stored(ColumnType::Integer, 2.5), jet::Value(std::int64_t{2}));
    EXPECT_EQ(Stored(ColumnType::Integer, "12"), jet::Value(std::int64_t{12}));
    EXPECT_EQ(Stored(ColumnType::Integer, true), jet::Value(std::int64_t{-1}));
    EXPECT_EQ(Refused(ColumnType::Integer, "twelve"), 3421);
    EXPECT_EQ(Refused(ColumnType::Integer, ""), 3421);
    EXPECT_EQ(Refused(ColumnType::Long, std::numeric_limits<double>::quiet_NaN()), 6);
}

TEST(RowRules, CurrencyIsKeptInTenThousandths) {
    EXPECT_EQ(Stored(ColumnType::Currency, std::int64_t{1005000}),
              jet::Value(std::int64_t{1005000}));
    EXPECT_EQ(Stored(ColumnType::Currency, 100.5), jet::Value(std::int64_t{1005000}));
    EXPECT_EQ(Stored(ColumnType::Currency, "$100.50"), jet::Value(std::int64_t{1005000}));
    EXPECT_EQ(Refused(ColumnType::Currency, 1e15), 6);
}

TEST(RowRules, CurrencyReadsAsItsAmount) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("T", {ColumnOf("Cost", ColumnType::Currency)}));
    database.AppendRows("T", {{std::int64_t{1005000}}});
    Recordset rows = database.OpenRecordset("T");
    EXPECT_EQ(rows.Double("Cost"), 100.5);
    EXPECT_EQ(rows.Single("Cost"), 100.5F);
    EXPECT_EQ(rows.Text("Cost"), "100.5");
    EXPECT_EQ(rows.Get("Cost"), jet::Value(std::int64_t{1005000}));
}

TEST(RowRules, FloatingNumbersAreKeptInTheirPrecision) {
    EXPECT_EQ(Stored(ColumnType::Single, 999.9), jet::Value(double{999.9F}));
    EXPECT_EQ(Stored(ColumnType::Double, 999.9), jet::Value(999.9));
    EXPECT_EQ(Stored(ColumnType::Single, std::int64_t{3}), jet::Value(3.0));
    EXPECT_EQ(Refused(ColumnType::Single, 1e39), 6);
    EXPECT_EQ(Refused(ColumnType::Double, std::numeric_limits<double>::infinity()), 6);
    EXPECT_EQ(Refused(ColumnType::Single, "same"), 3421);
}

TEST(RowRules, DatesTakeSerialsAndTexts) {
    EXPECT_EQ(Stored(ColumnType::Date, 35920.5), jet::Value(35920.5));
    EXPECT_EQ(Stored(ColumnType::Date, "5/5/1998"), jet::Value(35920.0));
    EXPECT_EQ(Refused(ColumnType::Date, "soon"), 3421);
}

TEST(RowRules, NumbersInTextColumnsBecomeTheirPlainText) {
    const jet::Column column = ColumnOf("C", ColumnType::Text, 9);
    EXPECT_EQ(Stored(column, std::int64_t{12}), jet::Value("12"));
    EXPECT_EQ(Stored(column, 0.25), jet::Value("0.25"));
}

TEST(RowRules, ValuesComeBackInTheTypeOfTheirColumn) {
    Database database = Database::InMemory();
    const ColumnType types[] = {ColumnType::Integer, ColumnType::Double, ColumnType::Text,
                                ColumnType::Boolean};
    const jet::Value values[] = {std::int64_t{7}, 7.0, "7", true};
    for (std::size_t i = 0; i < std::size(types); ++i)
        EXPECT_EQ(Stored(ColumnOf("C", types[i], 5), values[i]), values[i]);
}

/// A table whose Name must be unique and whose Number counts itself up.
Database KeyedTable() {
    Database database = Database::InMemory();
    jet::TableDefinition table = TableOf(
        "T", {ColumnOf("Name", ColumnType::Text, 20), ColumnOf("Number", ColumnType::Long)});
    table.columns[1].autoNumber = true;
    jet::Index unique;
    unique.name = "ByName";
    unique.columns = {"Name"};
    unique.unique = true;
    jet::Index primary;
    primary.name = "PrimaryKey";
    primary.columns = {"Number"};
    primary.primary = true;
    primary.unique = true;
    table.indexes = {unique, primary};
    database.AppendTable(table);
    return database;
}

TEST(RowRules, AUniqueIndexRefusesTheSameTextInAnyCase) {
    Database database = KeyedTable();
    database.AppendRows("T", {{"One", Null}, {Null, Null}, {Null, Null}});
    Recordset rows = database.OpenRecordset("T");
    rows.AddNew();
    rows.Set("Name", "ONE");
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3022);
    EXPECT_EQ(rows.RecordCount(), 3);
    rows.Set("Name", "Two");
    rows.Update();
    rows.MoveLast();
    rows.Edit();
    rows.Set("Name", "one");
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3022);
    EXPECT_EQ(Column(database, "T", "Name"), "One|null|null|Two");
}

TEST(RowRules, AutomaticNumbersCountUp) {
    Database database = KeyedTable();
    database.AppendRows("T", {{"a", Null}, {"b", std::int64_t{40}}, {"c", Null}});
    EXPECT_EQ(Column(database, "T", "Number"), "1|40|41");
    Recordset rows = database.OpenRecordset("T");
    rows.Edit();
    rows.Set("Number", Null);
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3058);
}

TEST(RowRules, RowsAppendedTogetherGoInAllOrNone) {
    Database database = KeyedTable();
    EXPECT_EQ(ErrorOf([&] {
                  database.AppendRows("T", {{"a", Null}, {"b", Null}, {"A", Null}});
              }),
              3022);
    EXPECT_EQ(ErrorOf([&] {
                  database.AppendRows("T", {{"a", Null}, {std::string(21, 'x'), Null}});
              }),
              3163);
    EXPECT_EQ(ErrorOf([&] { database.AppendRows("T", {{"a"}}); }), 3265);
    EXPECT_EQ(ErrorOf([&] { database.AppendRows("U", {{"a"}}); }), 3078);
    EXPECT_EQ(database.OpenRecordset("T").RecordCount(), 0);
    database.AppendRows("T", {{"a", Null}});
    EXPECT_EQ(Column(database, "T", "Number"), "1");
}

TEST(RowRules, AnAppendedColumnIsNullInTheRowsThatAreThere) {
    Database book = PriceBook();
    Recordset before = book.OpenRecordset("Categories");
    book.AppendField("Categories", ColumnOf("CompanyIDNumber", ColumnType::Text, 255));
    book.AppendField("Categories", ColumnOf("Hidden", ColumnType::Boolean));
    EXPECT_EQ(before.Text("Category"), "Pipe");
    EXPECT_FALSE(before.HasField("Hidden"));
    before.AddNew();
    before.Set("Category", "New");
    before.Update();
    EXPECT_EQ(Column(book, "Categories", "CompanyIDNumber"), "null|null|null|null");
    Recordset rows = book.OpenRecordset("Select * from Categories where Not Hidden");
    EXPECT_EQ(Column(rows, "Hidden"), "False|False|False|False");
    rows.MoveFirst();
    rows.Edit();
    rows.Set("CompanyIDNumber", "4711");
    rows.Update();
    EXPECT_EQ(Column(rows, "CompanyIDNumber"), "4711|null|null|null");
    EXPECT_EQ(
        ErrorOf([&] { book.AppendField("Categories", ColumnOf("HIDDEN", ColumnType::Byte)); }),
        3191);
    EXPECT_EQ(ErrorOf([&] { book.AppendField("Nothing", ColumnOf("X", ColumnType::Byte)); }), 3265);
    EXPECT_EQ(book.Table("Categories").columns.size(), 3U);
}

TEST(RowRules, ATextColumnWithoutASizeHolds255Characters) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("T", {ColumnOf("A", ColumnType::Text)}));
    database.AppendField("T", ColumnOf("B", ColumnType::Text));
    EXPECT_EQ(database.Table("T").columns[0].size, 255);
    EXPECT_EQ(database.Table("T").columns[1].size, 255);
    EXPECT_EQ(ErrorOf([&] { database.AppendRows("T", {{std::string(256, 'x'), Null}}); }), 3163);
    database.AppendRows("T", {{Null, std::string(255, 'x')}});
}

TEST(RowRules, TablesAreMadeOnceAndDeletedOnce) {
    Database book = PriceBook();
    EXPECT_EQ(book.TableNames(), (std::vector<std::string>{"Materials", "Categories"}));
    EXPECT_EQ(
        ErrorOf([&] { book.AppendTable(TableOf("MATERIALS", {ColumnOf("X", ColumnType::Byte)})); }),
        3010);
    EXPECT_EQ(ErrorOf([&] { book.AppendTable(TableOf("Empty", {})); }), 3264);
    EXPECT_EQ(ErrorOf([&] {
                  book.AppendTable(TableOf(
                      "Two", {ColumnOf("X", ColumnType::Byte), ColumnOf("x", ColumnType::Byte)}));
              }),
              3191);
    EXPECT_EQ(ErrorOf([&] { book.Table("Nothing"); }), 3265);
    EXPECT_EQ(ErrorOf([&] { book.DeleteTable("Nothing"); }), 3265);
    EXPECT_EQ(ErrorOf([&] { book.DeleteAllRows("Nothing"); }), 3078);
    book.DeleteTable("Categories");
    EXPECT_FALSE(book.HasTable("Categories"));
    EXPECT_TRUE(book.HasTable("materials"));
    book.AppendTable(TableOf("Categories", {ColumnOf("X", ColumnType::Byte)}));
    EXPECT_EQ(book.OpenRecordset("Categories").RecordCount(), 0);
}

TEST(ValueText, ShowsEachTypeAsGridsDo) {
    EXPECT_EQ(TextOfValue(Null, ColumnType::Text), "");
    EXPECT_EQ(TextOfValue(true, ColumnType::Boolean), "True");
    EXPECT_EQ(TextOfValue(false, ColumnType::Boolean), "False");
    EXPECT_EQ(TextOfValue(std::int64_t{-32768}, ColumnType::Integer), "-32768");
    EXPECT_EQ(TextOfValue(double{999.9F}, ColumnType::Single), "999.9");
    EXPECT_EQ(TextOfValue(0.25, ColumnType::Double), "0.25");
    EXPECT_EQ(TextOfValue(35920.0, ColumnType::Date), "5/5/1998");
    EXPECT_EQ(TextOfValue("text", ColumnType::Memo), "text");
    EXPECT_EQ(TextOfValue(std::string("\0\xAB", 2), ColumnType::Binary), "00AB");
}

TEST(ValueText, CurrencyShowsFourDecimalsLessItsZeros) {
    const auto text = [](std::int64_t amount) { return TextOfValue(amount, ColumnType::Currency); };
    EXPECT_EQ(text(0), "0");
    EXPECT_EQ(text(1), "0.0001");
    EXPECT_EQ(text(-1), "-0.0001");
    EXPECT_EQ(text(1005000), "100.5");
    EXPECT_EQ(text(-50000), "-5");
    EXPECT_EQ(text(12345678), "1234.5678");
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::min()), "-922337203685477.5808");
}

}  // namespace
}  // namespace tendo
