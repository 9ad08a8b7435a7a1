#include <gtest/gtest.h>

#include <optional>

#include "sample_tables.h"

namespace tendo {
namespace {

using jet::ColumnType;

TEST(Recordset, OpensOnTheFirstRowInTableOrder) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    EXPECT_EQ(rows.RecordCount(), 7);
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    EXPECT_EQ(rows.Text("Description"), "copper pipe 1/2");
    EXPECT_EQ(Column(rows, "Part Number"), "CP-12|EL-1|null|OB[1]|N-0|ZB-4*|CP-34");
    EXPECT_EQ(book.OpenRecordset("[materials]").RecordCount(), 7);
}

TEST(Recordset, MovesOverBothEnds) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    EXPECT_FALSE(rows.BOF());
    rows.MoveNext();
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Category"), "Controls");
    EXPECT_FALSE(rows.EOF_());
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_EQ(ErrorOf([&] { rows.MoveNext(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.Text("Category"); }), 3021);
    rows.MovePrevious();
    EXPECT_EQ(rows.Text("Category"), "Controls");
    rows.MoveFirst();
    rows.MovePrevious();
    EXPECT_TRUE(rows.BOF());
    EXPECT_EQ(ErrorOf([&] { rows.MovePrevious(); }), 3021);
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Category"), "Pipe");
    rows.MoveLast();
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(ErrorOf([&] { rows.MoveTo(3); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.MoveTo(-1); }), 3021);
    EXPECT_EQ(rows.AbsolutePosition(), 2);
}

TEST(Recordset, WithoutRowsBothEndsAreReached) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select * from Materials where UnitCst > 1000");
    EXPECT_TRUE(rows.BOF());
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.MoveLast(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.Delete(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.Edit(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.Bookmark(); }), 3021);
    rows.FindFirst("UnitCst = 1");
    EXPECT_TRUE(rows.NoMatch());
}

TEST(Recordset, TheProgramsOwnSearchesFindTheirRows) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    const std::pair<const char*, int> searches[] = {{"Category Like 'Valve'", 3},
                                                    {"Category Like 'PIPE'", 0},
                                                    {"Description Like '*pipe*'", 0},
                                                    {"Description Like '*PIPE 3*'", 6},
                                                    {"Part Number Like '*34*'", 6},
                                                    {"[Part Number] Like '*34*'", 6},
                                                    {"part number like '*n-0*'", 4},
                                                    {"Description Like '*O''Brien*'", 3},
                                                    {"Description Like '* [#]#'", 5},
                                                    {"[Part Number] Like 'OB[[]#]'", 3},
                                                    {"[Part Number] Like '*[*]'", 5},
                                                    {"[Part Number] Like '[!a-m]?-#'", -1},
                                                    {"[Part Number] Like '[!a-m]-#'", 4},
                                                    {"UnitCst Like '0'", 4},
                                                    {"UnitCst Like '99.9'", 5},
                                                    {"UnitCst Like '0.25'", 1},
                                                    {"UnitCst Like 7", 3},
                                                    {"ListCst Like ''", -1},
                                                    {"Category Is Null", 2},
                                                    {"Not Category Like '*p*'", 3},
                                                    {"UnitCst = 12 And ListCst = 20", 2},
                                                    {"UnitCst = 12 Or UnitCst = 7", 2},
                                                    {"Materials.Category = 'controls'", 5}};
    for (const auto& [criteria, position] : searches) {
        rows.MoveLast();
        rows.FindFirst(criteria);
        EXPECT_EQ(rows.NoMatch(), position < 0) << criteria;
        EXPECT_EQ(rows.AbsolutePosition(), position < 0 ? 6 : position) << criteria;
    }
}

TEST(Recordset, ASystemIsFoundByItsNumberAsText) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("ModelInfo", {ColumnOf("SystemNumber", ColumnType::Integer),
                                               ColumnOf("CLGSalePrice", ColumnType::Single),
                                               ColumnOf("HTGSalePrice", ColumnType::Single),
                                               ColumnOf("WHSalePrice", ColumnType::Single)}));
    for (std::int64_t i = 1; i <= 5; ++i)
        database.AppendRows("ModelInfo", {{i, i < 3 ? 100.0 : 0.0, 0.0, i == 3 ? 0.5 : 0.0}});
    Recordset rows = database.OpenRecordset("ModelInfo");
    rows.FindFirst("SystemNumber Like '2'");
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    rows.FindFirst("SystemNumber Like '12'");
    EXPECT_TRUE(rows.NoMatch());
    rows.FindFirst("CLGSalePrice Like '0' And HTGSalePrice Like '0' And WHSalePrice Like '0'");
    EXPECT_EQ(rows.Integer("SystemNumber"), 4);
}

TEST(Recordset, FindNextGoesOnBehindTheCurrentRow) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.FindNext("Category Like 'Pipe'");  // the first row itself isn't tested
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    rows.FindNext("Category Like 'Pipe'");
    EXPECT_EQ(rows.AbsolutePosition(), 6);
    rows.FindNext("Category Like 'Pipe'");
    EXPECT_TRUE(rows.NoMatch());
    EXPECT_EQ(rows.AbsolutePosition(), 6);
    rows.FindFirst("Category Like 'Pipe'");
    EXPECT_FALSE(rows.NoMatch());
    EXPECT_EQ(rows.AbsolutePosition(), 0);
}

TEST(Recordset, FindFollowsTheOrderOfTheQuery) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select * from Materials order by Description desc");
    rows.FindFirst("Category = 'Pipe'");
    EXPECT_EQ(rows.Text("Description"), "Elbow");
    rows.FindNext("Category = 'Pipe'");
    EXPECT_EQ(rows.Text("Description"), "copper pipe 3/4");
}

TEST(Recordset, ACriterionMayNameAColumnThatIsNotShown) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select Description from Materials where UnitCst > 1.75");
    rows.FindFirst("ListCst = 9.5");
    EXPECT_EQ(rows.Text("Description"), "O'Brien valve");
    EXPECT_FALSE(rows.HasField("ListCst"));
}

TEST(Recordset, BrokenCriteriaAreSyntaxErrorsAndLeaveThePosition) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.MoveTo(2);
    for (const char* criteria :
         {"", "Description Like '*O'Brien*'", "Description Like '*'*'", "Description Like '*[*'",
          "Description Like", "Description Like Category", "Like 'x'", "Description 'x'",
          "Description = 'x' Order By Description", "Description = 'x'; Delete from Materials",
          "(Description = 'x'", "Description = 'x' --", "And", "Description Is", "Category In ()",
          "UnitCst Between 1", "1 = 1 /* x"})
        EXPECT_EQ(ErrorOf([&] { rows.FindFirst(criteria); }), 3077) << criteria;
    EXPECT_EQ(ErrorOf([&] { rows.FindNext("Colour = 'red'"); }), 3070);
    EXPECT_EQ(ErrorOf([&] { rows.FindNext("Brand Name Like 'red'"); }), 3070);
    EXPECT_EQ(ErrorOf([&] { rows.FindNext("Category = 1"); }), 3464);
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(rows.RecordCount(), 7);
}

TEST(Recordset, BookmarksLeadBackToTheirRows) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select * from Materials order by Description");
    rows.MoveTo(3);
    const std::int64_t bookmark = rows.Bookmark();
    rows.MoveFirst();
    rows.Delete();
    rows.SetBookmark(bookmark);
    EXPECT_EQ(rows.Text("Description"), "copper pipe 3/4");
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    rows.Delete();
    EXPECT_EQ(ErrorOf([&] { rows.SetBookmark(bookmark); }), 3159);
    EXPECT_EQ(ErrorOf([&] { rows.SetBookmark(-1); }), 3159);
}

TEST(Recordset, ABookmarkOfADeletedLastRowNeverMeansANewOne) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    rows.MoveLast();
    const std::int64_t bookmark = rows.Bookmark();
    rows.Delete();
    rows.AddNew();
    rows.Update();
    EXPECT_EQ(ErrorOf([&] { rows.SetBookmark(bookmark); }), 3159);
}

TEST(Recordset, AfterADeleteMoveNextGoesToTheRowBehindIt) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    rows.Delete();
    EXPECT_EQ(rows.RecordCount(), 2);
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_FALSE(rows.EOF_());
    EXPECT_EQ(ErrorOf([&] { rows.Text("Category"); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rows.Delete(); }), 3021);
    rows.MoveNext();
    EXPECT_EQ(rows.Text("Category"), "Valve");
    rows.MoveNext();
    rows.Delete();
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    rows.MovePrevious();
    EXPECT_EQ(rows.Text("Category"), "Valve");
}

TEST(Recordset, AfterADeleteMovePreviousGoesToTheRowBeforeIt) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    rows.MoveTo(1);
    rows.Delete();
    rows.MovePrevious();
    EXPECT_EQ(rows.Text("Category"), "Pipe");
}

TEST(Recordset, AfterADeleteFindNextTestsTheRowBehindIt) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.Delete();
    rows.FindNext("Category = 'pipe'");
    EXPECT_EQ(rows.Text("Description"), "Elbow");
}

TEST(Recordset, AllRowsCanBeDeletedOneByOne) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    for (int count = rows.RecordCount(); count > 0; --count) {
        rows.MoveFirst();
        rows.Delete();
    }
    EXPECT_EQ(rows.RecordCount(), 0);
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(book.OpenRecordset("Materials").RecordCount(), 0);
}

TEST(Recordset, AddNewWritesARowBehindTheLastAndLeavesTheCurrentOne) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.MoveTo(3);
    rows.AddNew();
    EXPECT_TRUE(rows.IsNull("Description"));
    rows.Set("Description", "Damper");
    EXPECT_EQ(rows.Text("Description"), "Damper");
    EXPECT_EQ(rows.RecordCount(), 7);
    rows.Update();
    EXPECT_EQ(rows.RecordCount(), 8);
    EXPECT_EQ(rows.Text("Description"), "O'Brien valve");
    rows.MoveLast();
    EXPECT_EQ(rows.Text("Description"), "Damper");
    EXPECT_TRUE(rows.IsNull("UnitCst"));
    EXPECT_EQ(Column(book, "Materials", "Description"),
              "copper pipe 1/2|Elbow|Apron|O'Brien valve|null|Zone board #4|copper pipe "
              "3/4|Damper");
}

TEST(Recordset, AnAddedRowAtTheEndIsNotTheCurrentOne) {
    Database book = PriceBook();
    book.DeleteAllRows("Categories");
    Recordset rows = book.OpenRecordset("Categories");
    rows.AddNew();
    rows.Set("Category", "New");
    rows.Update();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_FALSE(rows.BOF());
    rows.MoveFirst();
    EXPECT_EQ(rows.Text("Category"), "New");
}

TEST(Recordset, EditChangesTheCurrentRowInEveryRowSet) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    Recordset others = book.OpenRecordset("Select Category from Materials where UnitCst = 12");
    EXPECT_TRUE(others.IsNull("Category"));
    rows.MoveTo(2);
    rows.Edit();
    rows.Set("Category", "Sheet metal");
    EXPECT_TRUE(others.IsNull("Category"));
    rows.Update();
    EXPECT_EQ(rows.Text("Category"), "Sheet metal");
    EXPECT_EQ(rows.Text("Description"), "Apron");
    EXPECT_EQ(others.Text("Category"), "Sheet metal");
}

TEST(Recordset, EditThroughSomeColumnsKeepsTheOthers) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select Category from Materials where UnitCst = 7");
    rows.Edit();
    rows.Set("Category", "Valves");
    rows.Update();
    EXPECT_EQ(Column(book, "Select * from Materials where Category = 'Valves'", "Part Number"),
              "OB[1]");
}

TEST(Recordset, ARenamedCategoryIsChangedInAllItsRows) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.FindFirst("Category Like 'Pipe'");
    while (!rows.NoMatch()) {
        rows.Edit();
        rows.Set("Category", "Tube");
        rows.Update();
        rows.FindNext("Category Like 'Pipe'");
    }
    EXPECT_EQ(Column(rows, "Category"), "Tube|Tube|null|Valve|Valve|Controls|Tube");
}

TEST(Recordset, ADynasetKeepsItsRowsWhateverTheirValuesBecome) {
    Database book = PriceBook();
    Recordset cheap = book.OpenRecordset("Select * from Materials where UnitCst < 1");
    cheap.Edit();
    cheap.Set("UnitCst", 500.0);
    cheap.Update();
    EXPECT_EQ(cheap.RecordCount(), 2);
    EXPECT_EQ(cheap.Single("UnitCst"), 500.0F);
}

TEST(Recordset, ARowDeletedElsewhereIsToldAtReading) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    Recordset others = book.OpenRecordset("Categories");
    EXPECT_EQ(others.Text("Category"), "Pipe");
    rows.Delete();
    EXPECT_EQ(ErrorOf([&] { others.Text("Category"); }), 3167);
    EXPECT_EQ(ErrorOf([&] { others.Edit(); }), 3167);
    others.FindFirst("Category Like '*'");
    EXPECT_EQ(others.AbsolutePosition(), 1);
}

TEST(Recordset, SetAndUpdateNeedAddNewOrEdit) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    EXPECT_EQ(ErrorOf([&] { rows.Set("Category", "x"); }), 3020);
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3020);
    EXPECT_EQ(ErrorOf([&] { rows.CancelUpdate(); }), 3020);
    rows.Edit();
    rows.Set("Category", "x");
    rows.CancelUpdate();
    EXPECT_EQ(rows.Text("Category"), "Pipe");
    rows.Edit();
    rows.Set("Category", "x");
    rows.MoveNext();  // gives the change up
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), 3020);
    EXPECT_EQ(Column(book, "Categories", "Category"), "Pipe|Valve|Controls");
}

TEST(Recordset, UnknownFieldsAreNamed) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Categories");
    EXPECT_TRUE(rows.HasField("CATEGORY"));
    EXPECT_FALSE(rows.HasField("Colour"));
    EXPECT_EQ(ErrorOf([&] { rows.Get("Colour"); }), 3265);
    EXPECT_EQ(ErrorOf([&] { rows.Get(1); }), 3265);
    EXPECT_EQ(ErrorOf([&] { rows.Get(-1); }), 3265);
    rows.AddNew();
    EXPECT_EQ(ErrorOf([&] { rows.Set("Colour", "red"); }), 3265);
}

TEST(Recordset, ACalculatedColumnCanNotBeSet) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Select UnitCst * 2 As Twice from Materials");
    EXPECT_EQ(rows.Double("Twice"), 3);
    rows.Edit();
    EXPECT_EQ(ErrorOf([&] { rows.Set("Twice", 8.0); }), 3164);
}

TEST(Recordset, TypedReadingGivesDefaultsForNull) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.MoveTo(1);
    EXPECT_EQ(rows.Single("ListCst"), 0.0F);
    EXPECT_EQ(rows.Double("ListCst"), 0.0);
    EXPECT_EQ(rows.Integer("ListCst"), 0);
    EXPECT_FALSE(rows.Boolean("ListCst"));
    rows.MoveTo(2);
    EXPECT_EQ(rows.Text("Category"), "");
    EXPECT_EQ(ErrorOf([&] { rows.Integer("Description"); }), 13);
    EXPECT_EQ(ErrorOf([&] { rows.Boolean("Description"); }), 13);
}

TEST(Recordset, TypedReadingRoundsAndTellsOverflow) {
    Database database = Database::InMemory();
    database.AppendTable(TableOf("T", {ColumnOf("D", ColumnType::Double)}));
    database.AppendRows("T", {{2.5}, {3.5}, {32767.4}, {32767.5}, {1e39}, {-32768.5}, {-32768.6}});
    Recordset rows = database.OpenRecordset("T");
    EXPECT_EQ(rows.Integer("D"), 2);  // halves go to the even neighbour
    rows.MoveNext();
    EXPECT_EQ(rows.Integer("D"), 4);
    rows.MoveNext();
    EXPECT_EQ(rows.Integer("D"), 32767);
    rows.MoveNext();
    EXPECT_EQ(ErrorOf([&] { rows.Integer("D"); }), 6);
    EXPECT_EQ(rows.Long("D"), 32768);
    rows.MoveNext();
    EXPECT_EQ(ErrorOf([&] { rows.Long("D"); }), 6);
    EXPECT_EQ(ErrorOf([&] { rows.Single("D"); }), 6);
    rows.MoveNext();
    EXPECT_EQ(rows.Integer("D"), -32768);
    rows.MoveNext();
    EXPECT_EQ(ErrorOf([&] { rows.Integer("D"); }), 6);
}

TEST(Recordset, AClosedDatabaseIsToldNotReached) {
    std::optional<Recordset> rows;
    {
        Database book = PriceBook();
        rows = book.OpenRecordset("Materials");
        rows->FindFirst("UnitCst = 7");
        EXPECT_EQ(rows->Text("Description"), "O'Brien valve");
    }
    EXPECT_EQ(ErrorOf([&] { rows->Text("Description"); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->MoveFirst(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->FindFirst("UnitCst = 7"); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->AddNew(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->Edit(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->Delete(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows->RecordCount(); }), 3420);
}

TEST(Recordset, ADatabasePutInAnothersPlaceClosesIt) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    book = PriceBook();
    EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), 3420);
    EXPECT_EQ(book.OpenRecordset("Materials").RecordCount(), 7);
    book.Close();
    EXPECT_EQ(ErrorOf([&] { book.OpenRecordset("Materials"); }), 3420);
    EXPECT_EQ(ErrorOf([&] { book.DeleteAllRows("Materials"); }), 3420);
    book.Close();
    EXPECT_FALSE(book.Changed());
}

TEST(Recordset, AClosedRowSetIsTold) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    rows.Close();
    EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows.Text("Category"); }), 3420);
}

TEST(Recordset, RowsOfADeletedTableAreTold) {
    Database book = PriceBook();
    Recordset rows = book.OpenRecordset("Materials");
    book.DeleteTable("materials");
    EXPECT_EQ(ErrorOf([&] { rows.Text("Category"); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows.AddNew(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { book.OpenRecordset("Materials"); }), 3078);
}

}  // namespace
}  // namespace tendo
