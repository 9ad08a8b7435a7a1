#include "platform/database/database.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "../files/ended_process.h"
#include "../files/test_folder.h"
#include "platform/database/database_hooks.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_reader.h"
#include "platform/text/text.h"
#include "sample_tables.h"

namespace tendo {
namespace {

using jet::ColumnType;

constexpr std::monostate Null;

class DatabaseFileTest : public TestFolder {
  protected:
    /// A file with a price book of two materials and two categories.
    std::string PriceFile() const {
        const std::string path = Path("prices.mdb");
        Database::CreateDatabase(path);
        Database database = Database::OpenDatabase(path);
        jet::TableDefinition materials =
            TableOf("Materials",
                    {ColumnOf("Description", ColumnType::Text, 255),
                     ColumnOf("UnitCst", ColumnType::Single), ColumnOf("Note", ColumnType::Memo)});
        jet::Index key;
        key.name = "Key";
        key.columns = {"Description"};
        materials.indexes = {key};
        database.AppendTable(materials);
        database.AppendTable(TableOf("Categories", {ColumnOf("Category", ColumnType::Text, 255)}));
        database.AppendRows("Materials",
                            {{"pipe", 1.5, ""}, {"Elbow", Null, std::string(5000, 'n')}});
        database.AppendRows("Categories", {{"Pipe"}, {"\xC3\x89lan"}});
        database.Close();
        return path;
    }

    /// A copy of a file that an engine wrote; empty where those files are not there.
    std::string CopyOfShared(const std::string& name) const {
        const std::string from = std::string(TENDO_SOURCE_DIR) + "/../shared/jet/" + name;
        if (!FileExists(from)) return "";
        return Put(BaseName(name), ReadWholeFile(from));
    }

    /// The first shared file of a generation that does or doesn't hold what can't be written.
    std::string SharedFile(int generation, bool withNotKept) const {
        for (int i = 1; i <= 8; ++i) {
            const std::string name =
                "real/j" + std::to_string(generation) + "_0" + std::to_string(i) + ".mdb";
            const std::string path = CopyOfShared(name);
            if (path.empty()) continue;
            const jet::Reader reader = jet::Reader::OpenFile(path);
            if (reader.NotKeptOnWrite().any() == withNotKept && !reader.TableNames().empty())
                return path;
        }
        return "";
    }
};

std::string AllText(const std::string& path) {
    Database database = Database::OpenDatabase(path);
    std::string text;
    for (const std::string& name : database.TableNames()) {
        text += "[" + name + "]";
        Recordset rows = database.OpenRecordset("[" + name + "]");
        for (; !rows.EOF_(); rows.MoveNext())
            for (const jet::Column& column : rows.Fields())
                text += (rows.IsNull(column.name) ? "null" : rows.Text(column.name)) + ";";
    }
    return text;
}

TEST_F(DatabaseFileTest, ANewFileHasNoTablesAndIsMadeOnce) {
    const std::string path = Path("new.mdb");
    Database::CreateDatabase(path);
    EXPECT_EQ(ErrorOf([&] { Database::CreateDatabase(path); }), 3204);
    const Database database = Database::OpenDatabase(path);
    EXPECT_EQ(database.Name(), path);
    EXPECT_TRUE(database.TableNames().empty());
    EXPECT_FALSE(database.Changed());
}

TEST_F(DatabaseFileTest, WhatIsClosedIsThereAgain) {
    const std::string path = PriceFile();
    EXPECT_EQ(AllText(path), "[Materials]pipe;1.5;;Elbow;null;" + std::string(5000, 'n') +
                                 ";[Categories]Pipe;\xC3\x89lan;");
    const Database database = Database::OpenDatabase(path);
    const jet::TableDefinition& materials = database.Table("MATERIALS");
    EXPECT_EQ(materials.columns[0].size, 255);
    EXPECT_TRUE(materials.columns[0].allowZeroLength);
    EXPECT_EQ(materials.columns[2].type, ColumnType::Memo);
    ASSERT_EQ(materials.indexes.size(), 1U);
    EXPECT_EQ(materials.indexes[0].name, "Key");
    EXPECT_FALSE(materials.indexes[0].unique);
}

TEST_F(DatabaseFileTest, EveryTypeComesBackAsItWent) {
    const std::string path = Path("types.mdb");
    Database::CreateDatabase(path);
    const std::vector<std::pair<jet::Column, jet::Value>> cells = {
        {ColumnOf("Flag", ColumnType::Boolean), true},
        {ColumnOf("Tiny", ColumnType::Byte), std::int64_t{255}},
        {ColumnOf("Short", ColumnType::Integer), std::int64_t{-32768}},
        {ColumnOf("Whole", ColumnType::Long), std::int64_t{-2147483648LL}},
        {ColumnOf("Cost", ColumnType::Currency), std::int64_t{1005001}},
        {ColumnOf("Size", ColumnType::Single), double{999.9F}},
        {ColumnOf("Fine", ColumnType::Double), 999.9},
        {ColumnOf("Day", ColumnType::Date), 35920.5},
        {ColumnOf("Bits", ColumnType::Binary, 4), std::string("\0\1\2", 3)},
        {ColumnOf("Name", ColumnType::Text, 20), "O'Brien \xE2\x82\xAC"},
        {ColumnOf("Long", ColumnType::Memo), std::string(3000, 'm')}};
    jet::TableDefinition table = TableOf("T", {});
    jet::Row row;
    for (const auto& [column, value] : cells) {
        table.columns.push_back(column);
        row.push_back(value);
    }
    jet::Row empty(row.size(), Null);
    empty[0] = false;
    {
        Database database = Database::OpenDatabase(path);
        database.AppendTable(table);
        database.AppendRows("T", {row, empty});
        database.Close();
    }
    Database database = Database::OpenDatabase(path);
    Recordset rows = database.OpenRecordset("T");
    ASSERT_EQ(rows.RecordCount(), 2);
    for (std::size_t i = 0; i < row.size(); ++i) {
        EXPECT_EQ(rows.Fields()[i].type, cells[i].first.type);
        EXPECT_EQ(rows.Get(static_cast<int>(i)), row[i]) << cells[i].first.name;
    }
    rows.MoveNext();
    for (std::size_t i = 0; i < row.size(); ++i)
        EXPECT_EQ(rows.Get(static_cast<int>(i)), empty[i]) << cells[i].first.name;
}

TEST_F(DatabaseFileTest, ChangesOfEachKindAreWritten) {
    const std::string path = PriceFile();
    {
        Database database = Database::OpenDatabase(path);
        Recordset rows = database.OpenRecordset("Select * from Materials order by Description");
        rows.Edit();
        rows.Set("UnitCst", 3.25);
        rows.Update();
        rows.MoveNext();
        rows.Delete();
        rows.AddNew();
        rows.Set("Description", "Damper");
        rows.Update();
        database.AppendField("Materials", ColumnOf("Added", ColumnType::Text, 5));
        database.DeleteTable("Categories");
        EXPECT_TRUE(database.Changed());
        database.Close();
    }
    EXPECT_EQ(AllText(path),
              "[Materials]Elbow;3.25;" + std::string(5000, 'n') + ";null;Damper;null;null;null;");
}

TEST_F(DatabaseFileTest, TablesThatWereNotOpenedAreKept) {
    const std::string path = PriceFile();
    const std::string before = AllText(path);
    {
        Database database = Database::OpenDatabase(path);
        database.AppendRows("Categories", {{"Valve"}});
        database.Close();
    }
    EXPECT_EQ(AllText(path), before + "Valve;");
    {
        Database database = Database::OpenDatabase(path);
        database.DeleteAllRows("Materials");
        database.Close();
    }
    EXPECT_EQ(AllText(path), "[Materials][Categories]Pipe;\xC3\x89lan;Valve;");
}

TEST_F(DatabaseFileTest, ReadingAloneWritesNothing) {
    const std::string path = PriceFile();
    Database database = Database::OpenDatabase(path);
    Recordset rows = database.OpenRecordset("Materials");
    rows.Edit();
    rows.Set("Description", "never written");
    rows.CancelUpdate();
    EXPECT_EQ(ErrorOf([&] { database.AppendRows("Materials", {{"too few"}}); }), 3265);
    EXPECT_FALSE(database.Changed());
    std::filesystem::remove(path);
    database.Close();
    EXPECT_FALSE(FileExists(path));
}

TEST_F(DatabaseFileTest, TheRowsOfATableAreCountedWithoutOpeningThem) {
    Database database = Database::OpenDatabase(PriceFile());
    const int rows = database.OpenRecordset("Categories").RecordCount();
    EXPECT_EQ(database.RecordCount("categories"), rows);
    database.AppendRows("Categories", {{"Valve"}});
    EXPECT_EQ(database.RecordCount("Categories"), rows + 1);
    database.DeleteAllRows("Categories");
    EXPECT_EQ(database.RecordCount("Categories"), 0);
    EXPECT_EQ(ErrorOf([&] { database.RecordCount("Nothing"); }), 3078);
    database.Close();
    EXPECT_EQ(ErrorOf([&] { database.RecordCount("Materials"); }), 3420);
}

TEST_F(DatabaseFileTest, WithoutCloseNothingIsWritten) {
    const std::string path = PriceFile();
    const std::string before = Get("prices.mdb");
    {
        Database database = Database::OpenDatabase(path);
        database.DeleteAllRows("Materials");
        EXPECT_TRUE(database.Changed());
    }
    EXPECT_EQ(Get("prices.mdb"), before);
}

TEST_F(DatabaseFileTest, AFailedWriteIsToldAndCanBeTriedAgain) {
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::rename(PriceFile(), Path("folder/prices.mdb"));
    const std::string path = Path("folder/prices.mdb");
    Database database = Database::OpenDatabase(path);
    database.AppendRows("Categories", {{"Valve"}});
    std::filesystem::rename(Path("folder"), Path("away"));
    EXPECT_NE(ErrorOf([&] { database.Close(); }), 0);
    EXPECT_TRUE(database.Changed());
    EXPECT_EQ(Column(database, "Categories", "Category"), "Pipe|\xC3\x89lan|Valve");
    std::filesystem::rename(Path("away"), Path("folder"));
    database.Close();
    Database again = Database::OpenDatabase(path);
    EXPECT_EQ(Column(again, "Categories", "Category"), "Pipe|\xC3\x89lan|Valve");
}

TEST_F(DatabaseFileTest, AWriteRemovesWhatAKilledOneLeftBesideTheFile) {
    const std::string path = PriceFile();
    Put(".tendo-" + EndedProcess() + "-1.new", "half");
    Database database = Database::OpenDatabase(path);
    database.AppendRows("Categories", {{"Duct"}});
    EXPECT_EQ(EntryCount(), 2);
    database.Close();
    EXPECT_EQ(EntryCount(), 1);
}

TEST_F(DatabaseFileTest, ASaveWritesAndTheRowSetsGoOn) {
    const std::string path = PriceFile();
    Database database = Database::OpenDatabase(path);
    Recordset rows = database.OpenRecordset("Materials");
    for (const char* description : {"Cap", "Tee"}) {
        rows.Edit();
        rows.Set("Description", std::string(description));
        rows.Update();
        EXPECT_TRUE(database.Changed());
        database.Save();
        EXPECT_FALSE(database.Changed());
        Database again = Database::OpenDatabase(path);
        EXPECT_EQ(again.OpenRecordset("Materials").Text("Description"), description);
        EXPECT_EQ(again.OpenRecordset("Categories").RecordCount(), 2);
    }
    const std::string bytes = ReadWholeFile(path);
    database.Save();  // nothing changed
    EXPECT_EQ(ReadWholeFile(path), bytes);
}

TEST_F(DatabaseFileTest, ASaveThatFailsKeepsTheFileAndTheChanges) {
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::rename(PriceFile(), Path("folder/prices.mdb"));
    const std::string path = Path("folder/prices.mdb");
    const std::string bytes = ReadWholeFile(path);
    Database database = Database::OpenDatabase(path);
    database.DeleteAllRows("Materials");
    std::filesystem::rename(Path("folder"), Path("away"));
    EXPECT_NE(ErrorOf([&] { database.Save(); }), 0);
    EXPECT_TRUE(database.Changed());
    std::filesystem::rename(Path("away"), Path("folder"));
    EXPECT_EQ(ReadWholeFile(path), bytes);
    database.Save();
    EXPECT_EQ(Database::OpenDatabase(path).OpenRecordset("Materials").RecordCount(), 0);
}

TEST_F(DatabaseFileTest, DuplicatesInTheFilesUniqueIndexAreRefused) {
    const std::string path = Path("unique.mdb");
    Database::CreateDatabase(path);
    jet::TableDefinition table = TableOf("T", {ColumnOf("Name", ColumnType::Text, 20)});
    jet::Index index;
    index.name = "ByName";
    index.columns = {"Name"};
    index.unique = true;
    table.indexes = {index};
    {
        Database database = Database::OpenDatabase(path);
        database.AppendTable(table);
        database.AppendRows("T", {{"One"}, {"Two"}});
        database.Close();
    }
    Database database = Database::OpenDatabase(path);
    EXPECT_EQ(ErrorOf([&] { database.AppendRows("T", {{"three"}, {"ONE"}}); }), 3022);
    EXPECT_EQ(Column(database, "T", "Name"), "One|Two");
}

TEST_F(DatabaseFileTest, FilesThatAreNoDatabasesAreTold) {
    EXPECT_EQ(ErrorOf([&] { Database::OpenDatabase(Path("missing.mdb")); }), 3024);
    EXPECT_EQ(ErrorOf([&] { Database::OpenDatabase(Put("empty.mdb", "")); }), 3343);
    EXPECT_EQ(ErrorOf([&] { Database::OpenDatabase(Put("text.mdb", "no database")); }), 3343);
    const std::string whole = ReadWholeFile(PriceFile());
    EXPECT_NE(ErrorOf([&] { AllText(Put("half.mdb", whole.substr(0, whole.size() / 2))); }), 0);
}

TEST_F(DatabaseFileTest, AFileWhoseContentsWouldBeLostIsNotChanged) {
    const std::string path = SharedFile(3, true);
    if (path.empty()) GTEST_SKIP() << "no file with such contents in ../shared";
    const std::string before = ReadWholeFile(path);
    Database database = Database::OpenDatabase(path);
    const std::string table = database.TableNames().front();
    EXPECT_GE(database.OpenRecordset("[" + table + "]").RecordCount(), 0);
    EXPECT_EQ(ErrorOf([&] { database.DeleteAllRows(table); }), 3027);
    EXPECT_EQ(ErrorOf([&] { database.DeleteTable(table); }), 3027);
    EXPECT_EQ(ErrorOf([&] { database.AppendField(table, ColumnOf("X", ColumnType::Byte)); }), 3027);
    EXPECT_EQ(ErrorOf([&] { database.AppendTable(TableOf("X", {})); }), 3027);
    EXPECT_EQ(ErrorOf([&] { database.AppendRows(table, {}); }), 3027);
    EXPECT_EQ(ErrorOf([&] { database.OpenRecordset("[" + table + "]").AddNew(); }), 3027);
    try {
        database.DeleteAllRows(table);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(Contains(error.Description(), "would be lost")) << error.Description();
        EXPECT_TRUE(Contains(error.Description(), path)) << error.Description();
    }
    EXPECT_FALSE(database.Changed());
    database.Close();
    EXPECT_EQ(ReadWholeFile(path), before);
}

TEST_F(DatabaseFileTest, AnOlderFileIsKeptBesideItsNewerForm) {
    const std::string path = SharedFile(3, false);
    if (path.empty()) GTEST_SKIP() << "no Jet 3 file of tables alone in ../shared";
    const std::string original = ReadWholeFile(path);
    const std::string rows = AllText(path);
    const std::string kept = DirectoryOf(path) + StemOf(path) + " (Jet 3).mdb";
    std::vector<std::string> told;
    HooksOfDatabases().JetThreeKept = [&](const std::string& file, const std::string& keptAs) {
        told = {file, keptAs};
    };
    const auto addTable = [&](const std::string& name) {
        Database database = Database::OpenDatabase(path);
        database.AppendTable(TableOf(name, {ColumnOf("X", ColumnType::Byte)}));
        database.Close();
    };
    addTable("Fresh");
    EXPECT_EQ(told, (std::vector<std::string>{path, kept}));
    EXPECT_EQ(ReadWholeFile(kept), original);
    EXPECT_EQ(jet::Reader::OpenFile(path).Generation(), 4);
    EXPECT_EQ(AllText(path), rows + "[Fresh]");

    told.clear();
    addTable("Second");  // of the newer generation by now
    EXPECT_TRUE(told.empty());
    HooksOfDatabases().JetThreeKept = nullptr;
}

TEST_F(DatabaseFileTest, ACopyThatIsThereAlreadyIsNotOverwritten) {
    const std::string path = SharedFile(3, false);
    if (path.empty()) GTEST_SKIP() << "no Jet 3 file of tables alone in ../shared";
    const std::string original = ReadWholeFile(path);
    const std::string other = Put(StemOf(path) + " (Jet 3).mdb", "something else");
    Database database = Database::OpenDatabase(path);
    database.AppendTable(TableOf("Fresh", {ColumnOf("X", ColumnType::Byte)}));
    database.Close();
    EXPECT_EQ(ReadWholeFile(other), "something else");
    EXPECT_EQ(ReadWholeFile(DirectoryOf(path) + StemOf(path) + " (Jet 3, 2).mdb"), original);
}

TEST_F(DatabaseFileTest, ModelFilesAnswerTheSelectionsQueries) {
    const std::string path = CopyOfShared("fixtures/models_small.mdb");
    if (path.empty()) GTEST_SKIP() << "no such file in ../shared";
    Database database = Database::OpenDatabase(path);
    const int all = database.OpenRecordset("AC File").RecordCount();
    ASSERT_GT(all, 0);
    const auto count = [&](const std::string& condition) {
        return database.OpenRecordset("Select * from [AC File] where " + condition).RecordCount();
    };
    EXPECT_EQ(count("[Capacity] >= 0 And [Capacity] <= 1000 And [Seer] >= 0") +
                  count("[Capacity] Is Null Or [Seer] Is Null"),
              all);
    EXPECT_EQ(count("Not EPA") + count("EPA"), all);
    EXPECT_EQ(count("Model Like '*'") + count("Model Is Null"), all);
    for (const char* table : {"HP File", "GS HP File", "GAMA File", "WH File"})
        EXPECT_TRUE(database.OpenRecordset(table).HasField("EPA")) << table;
}

TEST_F(DatabaseFileTest, AProjectsSystemsJoinIntoFiveRows) {
    const std::string path = CopyOfShared("fixtures/project.tdw");
    if (path.empty()) GTEST_SKIP() << "no such file in ../shared";
    Database database = Database::OpenDatabase(path);
    EXPECT_EQ(
        Column(database,
               "SELECT CLGModelData.SystemNumber, HTGModelData.Manuf FROM (CLGModelData INNER "
               "JOIN HTGModelData ON CLGModelData.SystemNumber = HTGModelData.SystemNumber) "
               "INNER JOIN WHModelData ON HTGModelData.SystemNumber = "
               "WHModelData.SystemNumber;",
               "SystemNumber"),
        "1|2|3|4|5");
}

}  // namespace
}  // namespace tendo
