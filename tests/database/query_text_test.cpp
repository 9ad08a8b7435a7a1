// The query texts that the program sends, and the rules of the language they are written in.

#include <gtest/gtest.h>

#include "sample_tables.h"

namespace tendo {
namespace {

using jet::ColumnType;

constexpr std::monostate Null;

/// Model tables of four rows: capacities 20, 36, 60 and 999.9.
Database ModelTables() {
    Database database = Database::InMemory();
    for (const char* name : {"AC File", "HP File", "GS HP File", "GAMA File", "WH File"})
        database.AppendTable(TableOf(
            name,
            {ColumnOf("Model", ColumnType::Text, 35), ColumnOf("EPA", ColumnType::Boolean),
             ColumnOf("Capacity", ColumnType::Single), ColumnOf("Seer", ColumnType::Single),
             ColumnOf("CoolCapacity", ColumnType::Single),
             ColumnOf("CoolingCapacity", ColumnType::Single),
             ColumnOf("CoolingEER", ColumnType::Single), ColumnOf("HPCap5", ColumnType::Single),
             ColumnOf("HeatingCapacity", ColumnType::Single), ColumnOf("AFUE", ColumnType::Single),
             ColumnOf("StorVol", ColumnType::Single), ColumnOf("EFF", ColumnType::Single),
             ColumnOf("FuelType", ColumnType::Integer),
             ColumnOf("DealerCost", ColumnType::Currency), ColumnOf("Added", ColumnType::Date)}));
    const auto row = [](const char* model, bool epa, double size, double efficiency,
                        std::int64_t fuel, std::int64_t cost, double added) {
        return jet::Row{model, epa,        size, efficiency, size, size, efficiency, size,
                        size,  efficiency, size, efficiency, fuel, cost, added};
    };
    for (const std::string& name : database.TableNames())
        database.AppendRows(name, {row("FA-20", true, 20, 8, 2, 1005000, 35000),
                                   row("FA-36", false, 36, 10, 4, 1001000, 35920),
                                   row("fb-60", true, 60, 12, 5, 1005001, 35921),
                                   row("FB-999", false, 999.9, 14, 8, -50000, 36000)});
    return database;
}

int CountOf(Database& database, const std::string& source) {
    return database.OpenRecordset(source).RecordCount();
}

TEST(QueryText, TheModelQueriesFilterByTheirLimits) {
    Database database = ModelTables();
    const std::string queries[] = {
        "Select * from [AC File] where [Capacity] >= 36 And [Capacity] <= 60 And [Seer] >= 10",
        "Select * from [HP File] where [CoolCapacity] >= 36 And [CoolCapacity] <= 60 And [Seer] >= "
        "10",
        "Select * from [GS HP File] where [CoolingCapacity] >= 36 And [CoolingCapacity] <= 60 And "
        "[CoolingEER] >= 10",
        "Select * from [HP File] where [HPCap5] >= 36 And [HPCap5] <= 60 And [Seer] >= 10",
        "Select * from [GS HP File] where [HeatingCapacity] >= 36 And [HeatingCapacity] <= 60 And "
        "[CoolingEER] >= 10",
        "Select * from [WH File] where [StorVol] >= 36 And [StorVol] <= 60 And [EFF] >= 10"};
    for (const std::string& query : queries)
        EXPECT_EQ(Column(database, query, "Model"), "FA-36|fb-60") << query;
}

TEST(QueryText, FurnacesAndBoilersShareATable) {
    Database database = ModelTables();
    EXPECT_EQ(Column(database, "Select * from [GAMA File] where [FuelType] <= 4", "Model"),
              "FA-20|FA-36");
    EXPECT_EQ(Column(database, "Select * from [GAMA File] where [FuelType] > 4", "Model"),
              "fb-60|FB-999");
    EXPECT_EQ(Column(database,
                     "Select * from [GAMA File] where FuelType <= 4 And [Capacity] >= 0 And "
                     "[Capacity] <= 20 And [AFUE] >= 0",
                     "Model"),
              "FA-20");
    EXPECT_EQ(Column(database,
                     "Select * from [GAMA File] where FuelType > 4 And [Capacity] >= 0 And "
                     "[Capacity] <= 1000.5 And [AFUE] >= 14",
                     "Model"),
              "FB-999");
}

TEST(QueryText, ASingleMeetsALiteralInDoublePrecision) {
    // The Single nearest to 999.9 is 999.900024...: above the literal, as it always was.
    Database database = ModelTables();
    EXPECT_EQ(CountOf(database, "Select * from [AC File] where [Capacity] <= 999.9"), 3);
    EXPECT_EQ(CountOf(database, "Select * from [AC File] where [Capacity] > 999.9"), 1);
}

TEST(QueryText, CurrencyComparesAsItsAmount) {
    Database database = ModelTables();
    const std::string start = "Select * from [AC File] where DealerCost ";
    EXPECT_EQ(Column(database, start + "> 100.5", "Model"), "fb-60");
    EXPECT_EQ(Column(database, start + "= 100.5", "Model"), "FA-20");
    EXPECT_EQ(Column(database, start + "= 100.1", "Model"), "FA-36");
    EXPECT_EQ(Column(database, start + "= 100.5001", "Model"), "fb-60");
    EXPECT_EQ(Column(database, start + "< 0", "Model"), "FB-999");
    EXPECT_EQ(Column(database, start + "Like '100.*'", "Model"), "FA-20|FA-36|fb-60");
    EXPECT_EQ(Column(database, start + "Like '-5'", "Model"), "FB-999");
    EXPECT_EQ(Column(database, "Select * from [AC File] order by DealerCost", "DealerCost"),
              "-5|100.1|100.5|100.5001");
}

TEST(QueryText, YesIsMinusOne) {
    Database database = ModelTables();
    const std::string start = "Select * from [AC File] where ";
    for (const char* condition : {"EPA", "EPA = True", "EPA = Yes", "[EPA] = -1", "EPA <> False",
                                  "EPA Like '-1'", "(Capacity = 20 Or Capacity = 60) = True"})
        EXPECT_EQ(Column(database, start + condition, "Model"), "FA-20|fb-60") << condition;
    for (const char* condition : {"Not EPA", "EPA = No", "EPA = 0", "EPA Like '0'"})
        EXPECT_EQ(Column(database, start + condition, "Model"), "FA-36|FB-999") << condition;
    EXPECT_EQ(Column(database, "Select * from [AC File] order by EPA", "EPA"),
              "True|True|False|False");
}

TEST(QueryText, DatesStandBetweenNumberSigns) {
    // 35920 is 5 May 1998: 35796 is 1 January 1998, and 124 days lie between.
    Database database = ModelTables();
    const std::string start = "Select * from [AC File] where Added ";
    EXPECT_EQ(Column(database, start + "= #5/5/1998#", "Model"), "FA-36");
    EXPECT_EQ(Column(database, start + ">= #1998-05-05#", "Model"), "FA-36|fb-60|FB-999");
    EXPECT_EQ(Column(database, start + "Between #5/5/98# And #5/6/98#", "Model"), "FA-36|fb-60");
    EXPECT_EQ(Column(database, start + "Like '5/5/1998'", "Model"), "FA-36");
    EXPECT_EQ(ErrorOf([&] { database.OpenRecordset(start + "= #no date#"); }), 3075);
    EXPECT_EQ(ErrorOf([&] { database.OpenRecordset(start + "= #5/5/1998"); }), 3075);
}

TEST(QueryText, TheCatalogueStandsByCategoryAndDescriptionWithNullsFirst) {
    Database book = PriceBook();
    EXPECT_EQ(Column(book, "SELECT * FROM Materials ORDER BY Category, Description", "Description"),
              "Apron|Zone board #4|copper pipe 1/2|copper pipe 3/4|Elbow|null|O'Brien valve");
}

TEST(QueryText, TheMaterialGridSortsByEachColumn) {
    Database book = PriceBook();
    const auto sorted = [&](const char* order) {
        return Column(book, std::string("Select * from Materials order by ") + order,
                      "Description");
    };
    EXPECT_EQ(sorted("Description"),
              "null|Apron|copper pipe 1/2|copper pipe 3/4|Elbow|O'Brien valve|Zone board #4");
    // Hyphens don't count at first: "CP12" before "CP34" before "EL1".
    EXPECT_EQ(sorted("[Part Number], Description"),
              "Apron|copper pipe 1/2|copper pipe 3/4|Elbow|null|O'Brien valve|Zone board #4");
    EXPECT_EQ(sorted("UnitCst, Description"),
              "null|Elbow|copper pipe 1/2|copper pipe 3/4|O'Brien valve|Apron|Zone board #4");
    EXPECT_EQ(sorted("ListCst, Description"),
              "Elbow|null|copper pipe 1/2|copper pipe 3/4|O'Brien valve|Apron|Zone board #4");
    EXPECT_EQ(sorted("Description desc"),
              "Zone board #4|O'Brien valve|Elbow|copper pipe 3/4|copper pipe 1/2|Apron|null");
    EXPECT_EQ(Column(book, "Select * from Categories order by Category", "Category"),
              "Controls|Pipe|Valve");
}

TEST(QueryText, RowsOfEqualKeysStayInTableOrder) {
    Database book = PriceBook();
    EXPECT_EQ(Column(book, "Select * from Materials where Category = 'pipe' order by Category",
                     "Part Number"),
              "CP-12|EL-1|CP-34");
}

TEST(QueryText, TextIsComparedWithoutCaseAndBlanksAtTheEnd) {
    Database book = PriceBook();
    const std::string start = "Select * from Materials where ";
    EXPECT_EQ(CountOf(book, start + "Category = 'PIPE'"), 3);
    EXPECT_EQ(CountOf(book, start + "Category = 'pipe   '"), 3);
    EXPECT_EQ(CountOf(book, start + "Category <> 'pipe'"), 3);  // null is neither
    EXPECT_EQ(CountOf(book, start + "Category In ('CONTROLS', 'valve')"), 3);
    EXPECT_EQ(CountOf(book, start + "Category Not In ('CONTROLS', 'valve')"), 3);
    EXPECT_EQ(CountOf(book, start + "Category Between 'c' And 'PIPE'"), 4);
}

TEST(QueryText, NullIsAskedForByIsNull) {
    Database book = PriceBook();
    const std::string start = "Select * from Materials where ";
    EXPECT_EQ(Column(book, start + "Category Is Null", "Description"), "Apron");
    EXPECT_EQ(CountOf(book, start + "ListCst Is Not Null"), 6);
    EXPECT_EQ(CountOf(book, start + "ListCst = Null"), 0);
    EXPECT_EQ(CountOf(book, start + "Not (ListCst > 1000)"), 6);
}

TEST(QueryText, SumsAndProductsAreWorkedOut) {
    Database book = PriceBook();
    EXPECT_EQ(
        Column(book, "Select * from Materials where ListCst - UnitCst * 2 = 0", "Part Number"),
        "CP-12|CP-34");
    EXPECT_EQ(Column(book, "Select * from Materials where UnitCst / 3 = 4", "Description"),
              "Apron");
    EXPECT_EQ(Column(book, "Select * from Materials where -UnitCst = -7", "Description"),
              "O'Brien valve");
    EXPECT_EQ(Column(book, "Select UnitCst + 1 As More from Materials where UnitCst = 7", "More"),
              "8");
    EXPECT_EQ(CountOf(book, "Select * from Materials where UnitCst / 0 = 4"), 0);
}

TEST(QueryText, AndBindsTighterThanOr) {
    Database book = PriceBook();
    EXPECT_EQ(
        CountOf(book, "Select * from Materials where UnitCst = 7 Or UnitCst = 12 And ListCst = 1"),
        1);
    EXPECT_EQ(
        CountOf(book,
                "Select * from Materials where (UnitCst = 7 Or UnitCst = 12) And ListCst = 1"),
        0);
}

TEST(QueryText, ADoubledApostropheIsOne) {
    Database book = PriceBook();
    EXPECT_EQ(CountOf(book, "Select * from Materials where Description = 'O''Brien valve'"), 1);
    EXPECT_EQ(CountOf(book, "Select * from Materials where Description = \"O'Brien valve\""), 1);
}

TEST(QueryText, TheFootnoteQueryTakesItsNameInApostrophes) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("FootNotes", {ColumnOf("FootNoteName", ColumnType::Text, 40),
                                               ColumnOf("Description", ColumnType::Memo)}));
    database.AppendRows("FootNotes", {{"Warranty", "Five years."}, {"Filter", Null}});
    EXPECT_EQ(Column(database, "Select * from [FootNotes] where [FootNoteName] = 'warranty'",
                     "Description"),
              "Five years.");
    EXPECT_EQ(CountOf(database, "Select * from FootNotes"), 2);
    EXPECT_EQ(ErrorOf([&] {
                  database.OpenRecordset("Select * from [FootNotes] where [FootNoteName] = 'O'B'");
              }),
              3075);
}

constexpr const char* SystemsQuery =
    "SELECT CLGModelData.SystemNumber, CLGModelData.Manuf, CLGModelData.ModelNum, "
    "CLGModelData.ModelType, CLGModelData.ModelQty, CLGModelData.ModelDesc, HTGModelData.Manuf, "
    "HTGModelData.ModelNum, HTGModelData.ModelType, HTGModelData.ModelQty, HTGModelData.ModelDesc, "
    "WHModelData.Manuf, WHModelData.ModelNum, WHModelData.ModelType, WHModelData.ModelQty, "
    "WHModelData.ModelDesc FROM (CLGModelData INNER JOIN HTGModelData ON CLGModelData.SystemNumber "
    "= HTGModelData.SystemNumber) INNER JOIN WHModelData ON HTGModelData.SystemNumber = "
    "WHModelData.SystemNumber;";

/// Systems 1 to 3 in each of the three tables; the heating table also has a second row of system 2.
Database SystemTables() {
    Database database = Database::InMemory();
    for (const std::string name : {"CLGModelData", "HTGModelData", "WHModelData"}) {
        database.AppendTable(TableOf(
            name,
            {ColumnOf("SystemNumber", ColumnType::Integer), ColumnOf("Manuf", ColumnType::Text, 40),
             ColumnOf("ModelNum", ColumnType::Text, 35), ColumnOf("ModelType", ColumnType::Integer),
             ColumnOf("ModelQty", ColumnType::Integer),
             ColumnOf("ModelDesc", ColumnType::Text, 50)}));
        for (std::int64_t i = 1; i <= 3; ++i)
            database.AppendRows(
                name, {{i, name.substr(0, 2) + std::to_string(i), "M", Null, std::int64_t{1}, ""}});
    }
    return database;
}

TEST(QueryText, TheSystemsOfAProjectComeFromThreeJoinedTables) {
    Database database = SystemTables();
    Recordset rows = database.OpenRecordset(SystemsQuery);
    ASSERT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(rows.Fields().size(), 16U);
    EXPECT_EQ(rows.Fields()[0].name, "SystemNumber");
    EXPECT_EQ(rows.Fields()[1].name, "CLGModelData.Manuf");
    EXPECT_EQ(rows.Fields()[1].size, 40);
    EXPECT_EQ(rows.Fields()[6].name, "HTGModelData.Manuf");
    EXPECT_EQ(Column(rows, "SystemNumber"), "1|2|3");
    EXPECT_EQ(Column(rows, "CLGModelData.SystemNumber"), "1|2|3");
    EXPECT_EQ(Column(rows, "WHModelData.Manuf"), "WH1|WH2|WH3");
    rows.MoveTo(1);
    EXPECT_EQ(std::get<std::string>(rows.Get(6)), "HT2");
    EXPECT_EQ(rows.Integer("WHModelData.ModelQty"), 1);
    rows.FindFirst("HTGModelData.Manuf Like '*3'");
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    const std::int64_t third = rows.Bookmark();
    rows.MoveFirst();
    rows.SetBookmark(third);
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(ErrorOf([&] { rows.Delete(); }), 3027);
    EXPECT_EQ(ErrorOf([&] { rows.Edit(); }), 3027);
    EXPECT_EQ(ErrorOf([&] { rows.AddNew(); }), 3027);
}

TEST(QueryText, AJoinLeavesOutAndRepeatsRowsByItsCondition) {
    Database database = SystemTables();
    database.AppendRows("HTGModelData", {{std::int64_t{2}, "again", "M", Null, Null, ""}});
    Recordset heating = database.OpenRecordset("HTGModelData");
    heating.Delete();  // system 1
    EXPECT_EQ(Column(database, SystemsQuery, "HTGModelData.Manuf"), "HT2|again|HT3");
}

TEST(QueryText, OuterJoinsKeepRowsWithoutAPartner) {
    Database database = SystemTables();
    Recordset heating = database.OpenRecordset("HTGModelData");
    heating.MoveLast();
    heating.Delete();
    const std::string tail =
        "JOIN HTGModelData AS H ON C.SystemNumber = H.SystemNumber Order By C.SystemNumber";
    EXPECT_EQ(
        Column(database, "Select C.Manuf, H.Manuf from CLGModelData AS C LEFT " + tail, "H.Manuf"),
        "HT1|HT2|null");
    EXPECT_EQ(
        Column(database, "Select C.*, H.Manuf from CLGModelData C RIGHT OUTER " + tail, "C.Manuf"),
        "CL1|CL2");
}

TEST(QueryText, DistinctGivesEachTextOnceWhateverItsCase) {
    Database book = PriceBook();
    EXPECT_EQ(CountOf(book, "Select Distinct Category from Materials"), 4);
    EXPECT_EQ(CountOf(book, "Select All Category from Materials"), 7);
}

TEST(QueryText, ColumnsOfTwoTablesMustBeTold) {
    Database database = SystemTables();
    EXPECT_EQ(
        ErrorOf([&] {
            database.OpenRecordset("Select * from CLGModelData, HTGModelData where Manuf = 'x'");
        }),
        3079);
    EXPECT_EQ(CountOf(database, "Select * from CLGModelData, HTGModelData"), 9);
}

TEST(QueryText, MissingThingsAreNamed) {
    Database book = PriceBook();
    const std::pair<const char*, int> faults[] = {
        {"Nothing", 3078},
        {"", 3078},
        {"Select * from Nothing", 3078},
        {"Select * from Materials where Colour = 1", 3061},
        {"Select Colour from Materials", 3061},
        {"Select * from Materials order by Colour", 3061},
        {"Select * from Materials where Categories.Category = 'x'", 3061},
        {"Select * from Materials where Category = 5", 3464},
        {"Select * from Materials where UnitCst = '5'", 3464},
        {"Select * from Materials where Category", 3464},
        {"Select * from Materials where Category + 1 = 2", 3464},
    };
    for (const auto& [text, number] : faults)
        EXPECT_EQ(ErrorOf([&, source = text] { book.OpenRecordset(source); }), number) << text;
    try {
        book.OpenRecordset("Select * from Materials where Colour = 1");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_NE(error.Description().find("Colour"), std::string::npos);
    }
}

TEST(QueryText, BrokenTextsAreSyntaxErrors) {
    Database book = PriceBook();
    const char* texts[] = {
        "Select",
        "Select *",
        "Select * from",
        "Select from Materials",
        "Select * Materials",
        "Select * from Materials where",
        "Select * from Materials where Category = ",
        "Select * from Materials where Category Like ",
        "Select * from Materials where Category Like 'a",
        "Select * from Materials where Category Like '[a'",
        "Select * from Materials where [Category = 'a'",
        "Select * from Materials where [] = 'a'",
        "Select * from Materials where (UnitCst = 1",
        "Select * from Materials where UnitCst = 1)",
        "Select * from Materials where UnitCst = 1 2",
        "Select * from Materials where UnitCst == 1",
        "Select * from Materials where UnitCst = 1x",
        "Select * from Materials where UnitCst = 1e999",
        "Select * from Materials where UnitCst = ?1",
        "Select * from Materials where UnitCst = @a",
        "Select * from Materials order Category",
        "Select * from Materials order by",
        "Select * from Materials order by 1",
        "Select * from Materials, Materials",
        "Select * from Materials group by Category",
        "Select Count(*) from Materials",
        "Select load_extension('x') from Materials",
        "Select * from (Select * from Materials)",
        "Select * from Materials union Select * from Categories",
        "Select * from Materials; Select * from Materials",
    };
    for (const char* text : texts)
        EXPECT_EQ(ErrorOf([&] { book.OpenRecordset(text); }), 3075) << text;
}

TEST(QueryText, OnlySelectIsTaken) {
    Database book = PriceBook();
    for (const char* text :
         {"Delete * from Materials", "DROP TABLE Materials", "Update Materials set UnitCst = 0",
          "Insert into Materials values (1)", "Create table x (a)", "Alter table Materials",
          "PRAGMA table_info(t1)", "Attach database 'x' as y"})
        EXPECT_EQ(ErrorOf([&] { book.OpenRecordset(text); }), 3075) << text;
    for (const char* text : {"sqlite_master", "t1", "Select * from sqlite_master",
                             "Select * from t1", "Select * from main.t1"})
        EXPECT_NE(ErrorOf([&] { book.OpenRecordset(text); }), 0) << text;
    EXPECT_EQ(book.OpenRecordset("Materials").RecordCount(), 7);
}

TEST(QueryText, NothingInjectedIsRun) {
    Database book = PriceBook();
    const char* names[] = {
        "x'; Drop table Materials; --",
        "x'; Delete from t1; --",
        "x') --",
        "x' /* ",
        "x' union select * from sqlite_master --",
        "x\"'",
        "'",
        "''' Or",
    };
    for (const std::string name : names)
        EXPECT_EQ(ErrorOf([&] {
                      book.OpenRecordset("Select * from Materials where Category = '" + name + "'");
                  }),
                  3075)
            << name;
    EXPECT_EQ(book.OpenRecordset("Materials").RecordCount(), 7);
}

TEST(QueryText, NamesOfEveryKindStayNames) {
    Database database = Database::InMemory();
    const std::string odd = "a\"b'; drop table t1; --";
    database.AppendTable(TableOf(
        odd, {ColumnOf("x\"') --", ColumnType::Text, 9), ColumnOf("select", ColumnType::Integer)}));
    database.AppendRows(odd, {{"y", std::int64_t{3}}});
    EXPECT_EQ(Column(database, "[" + odd + "]", "x\"') --"), "y");
    EXPECT_EQ(
        Column(database, "Select [select] from [" + odd + "] where [x\"') --] = 'Y'", "select"),
        "3");
}

TEST(QueryText, TextsBeyondMeasureAreRefusedNotRun) {
    Database book = PriceBook();
    const std::string start = "Select * from Materials where ";
    std::string chain = "UnitCst = 1";
    for (int i = 0; i < 5000; ++i)
        chain += " Or UnitCst = 1";
    const std::string nested = std::string(10000, '(') + "UnitCst = 1" + std::string(10000, ')');
    for (const std::string& text : {start + chain, start + nested})
        EXPECT_EQ(ErrorOf([&] { book.OpenRecordset(text); }), 3075);
    EXPECT_EQ(CountOf(book, start + std::string(9999, '-') + "UnitCst < -90"), 1);
}

}  // namespace
}  // namespace tendo
