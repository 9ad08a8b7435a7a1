#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/settings_store.h"
#include "platform/files/system_calls.h"
#include "platform/text/text.h"
#include "price_book_fixture.h"

namespace tendo {
namespace {

constexpr int Description = 1;

class PriceBookOnDisk : public PriceBookTest {
  protected:
    PriceBookOnDisk() {
        Make({{"Boot", "C-3", "Duct", 9.85, 40}, {"Elbow", "B-2", "Copper", 12, 13}}, {"Duct"});
    }

    void Type(const std::string& description) {
        EXPECT_TRUE(book.SetCell(Description, description));
        EXPECT_TRUE(book.LeaveRow());
    }

    /// Changes the file as another program would.
    void ElsewhereAdd(const std::string& table, const jet::Row& row) const {
        Database database = Database::OpenDatabase(File());
        database.AppendRows(table, {row});
        database.Close();
    }
    void ElsewhereAddTable(const std::string& name) const {
        Database database = Database::OpenDatabase(File());
        jet::TableDefinition table;
        table.name = name;
        jet::Column column;
        column.name = "List Name";
        column.size = 50;
        table.columns = {column};
        database.AppendTable(table);
        database.AppendRows(name, {{std::string("Rough-in")}, {std::string("Trim")}});
        database.Close();
    }

    /// While it stands, the folder of the price book can't be found.
    struct FolderAway {
        explicit FolderAway(const std::string& folderName) : folder(folderName) {
            std::filesystem::rename(folder, folder + ".away");
        }
        ~FolderAway() { std::filesystem::rename(folder + ".away", folder); }
        FolderAway(const FolderAway&) = delete;
        FolderAway& operator=(const FolderAway&) = delete;
        std::string folder;
    };
    std::string FolderName() const {
        const std::string directory = DirectoryOf(File());
        return directory.substr(0, directory.size() - 1);
    }
};

TEST_F(PriceBookOnDisk, ChangingTheDatabaseWritesTheFormerOneAndRemembersTheNewOne) {
    const std::string other = folder.Path("other.mdb");
    WriteMaterialDatabase(other, {{"Zinc", "Z", "Duct", 1, 2}});
    EXPECT_TRUE(book.SetCell(Description, "Boot, typed"));
    EXPECT_TRUE(book.ChangeDatabase("  " + other + " "));
    EXPECT_EQ(book.DatabaseName(), other);
    EXPECT_EQ(Column(Description), "Zinc");
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 1 of 1 Materials");
    EXPECT_EQ(State().MaterialDatabaseName, other);
    EXPECT_EQ(Settings().GetSetting("Settings", "MaterialDatabase"), other);
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, typed|Elbow");
}

TEST_F(PriceBookOnDisk, ADatabaseThatIsNoPriceBookIsToldAndTheFormerOneStays) {
    const std::string plain = folder.Path("plain.mdb");
    Database::CreateDatabase(plain);
    ReplaceFile(folder.Path("text.mdb"), "no database");
    const std::string noValid =
        "This database does not contain valid Material records.  Please select another "
        "database.\nLocation =";
    EXPECT_FALSE(book.ChangeDatabase(folder.Path("missing.mdb")));
    EXPECT_EQ(Told(), noValid + "1");
    EXPECT_FALSE(book.ChangeDatabase(folder.Path("text.mdb")));
    EXPECT_EQ(Told(), noValid + "1");
    EXPECT_FALSE(book.ChangeDatabase(plain));
    EXPECT_EQ(Told(), noValid + "2");
    EXPECT_EQ(Column(Description), "Boot|Elbow");
    EXPECT_EQ(State().MaterialDatabaseName, File());
    Type("Boot, still edited");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, still edited|Elbow");
}

TEST_F(PriceBookOnDisk, ABookWithoutAColumnOrWithoutCategoriesIsNoPriceBook) {
    const std::string noCategories = folder.Path("nocategories.mdb");
    const std::string noColumn = folder.Path("nocolumn.mdb");
    for (const std::string& path : {noCategories, noColumn})
        CopyFileOver(File(), path);
    Database first = Database::OpenDatabase(noCategories);
    first.DeleteTable("Categories");
    first.Close();
    Database second = Database::OpenDatabase(noColumn);
    jet::TableDefinition materials = second.Table("Materials");
    materials.columns.erase(materials.columns.begin() + 3);  // Part Number
    second.DeleteTable("Materials");
    second.AppendTable(materials);
    second.Close();
    EXPECT_FALSE(book.ChangeDatabase(noCategories));
    EXPECT_TRUE(EndsWith(Told(), "Location =3"));
    EXPECT_FALSE(book.ChangeDatabase(noColumn));
    EXPECT_TRUE(EndsWith(Told(), "Location =2"));
}

TEST_F(PriceBookTest, WithoutADatabaseTheBookIsEmptyAndItsCommandsDoNothing) {
    EXPECT_FALSE(book.Open());
    EXPECT_TRUE(EndsWith(Told(), "Location =1"));
    EXPECT_EQ(book.Title(), "Edit/Add Materials - 0 of 0 Materials");
    book.AddMaterial();
    book.DeleteMaterial();
    book.SortBy(3);
    book.Search("x");
    book.SearchAgain("x");
    book.NewCategory();
    book.RenameCategory();
    book.DeleteCategory();
    book.UndoDelete();
    book.GridKey(123, Description);
    EXPECT_TRUE(book.Write());
    EXPECT_FALSE(book.ReadAgainIfChanged());
    EXPECT_EQ(Told(), "");
    WriteMaterialDatabase(folder.Path("new.mdb"), {});
    EXPECT_TRUE(book.ChangeDatabase(folder.Path("new.mdb")));
    EXPECT_EQ(Settings().GetSetting("Settings", "MaterialDatabase"), folder.Path("new.mdb"));
}

TEST_F(PriceBookOnDisk, ANewDatabaseIsACopyOfTheEmptyOne) {
    WriteMaterialDatabase(folder.Path("blank.mdb"), {});
    EXPECT_TRUE(book.CreateNewDatabase(folder.Path("mine.mdb")));
    EXPECT_EQ(book.DatabaseName(), folder.Path("mine.mdb"));
    EXPECT_EQ(book.Rows().Count(), 0);
    book.AddMaterial();
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk(folder.Path("blank.mdb"), "Materials", "Description"), "");
    EXPECT_FALSE(book.CreateNewDatabase("  "));
    EXPECT_EQ(Told(), "");
}

TEST_F(PriceBookOnDisk, WithoutTheEmptyDatabaseNothingIsMade) {
    EXPECT_FALSE(book.CreateNewDatabase(folder.Path("mine.mdb")));
    EXPECT_TRUE(Contains(Told(), "blank.mdb"));
    EXPECT_FALSE(FileExists(folder.Path("mine.mdb")));
    EXPECT_EQ(Column(Description), "Boot|Elbow");
}

TEST_F(PriceBookOnDisk, AWriteThatFailsKeepsTheFileAndTheChangesAndIsToldOnce) {
    const std::string before = ReadWholeFile(File());
    Type("Boot, round");
    {
        const FolderAway away(FolderName());
        EXPECT_FALSE(book.Write());
        EXPECT_FALSE(book.Write());
        EXPECT_EQ(told.size(), 1U);
        EXPECT_TRUE(StartsWith(told[0], "The price book is not on disk.  "));
        EXPECT_FALSE(book.WriteFailure().empty());
    }
    EXPECT_EQ(ReadWholeFile(File()), before);
    EXPECT_TRUE(book.HasUnwrittenChanges());
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(book.WriteFailure(), "");
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, round|Elbow");
}

TEST_F(PriceBookOnDisk, ADiskThatFillsUpHalfWayKeepsTheOldFileWhole) {
    const std::string before = ReadWholeFile(File());
    Type("Boot, round");
    static int calls;
    calls = 0;
    SystemCalls().write = [](int file, const void* bytes, size_t size) -> ssize_t {
        if (++calls == 1) return ::write(file, bytes, std::min<size_t>(size, 5000));
        errno = ENOSPC;
        return -1;
    };
    EXPECT_FALSE(book.Write());
    SystemCalls() = SystemCallTable();
    EXPECT_GT(calls, 1);
    EXPECT_TRUE(Contains(Told(), "the disk is full"));
    EXPECT_EQ(ReadWholeFile(File()), before);
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, round|Elbow");
}

TEST_F(PriceBookOnDisk, TheDatabaseIsNotLeftWhileChangesCantBeWritten) {
    const std::string other =
        (std::filesystem::temp_directory_path() / "tendo_other_book.mdb").string();
    std::filesystem::remove(other);
    WriteMaterialDatabase(other, {});
    Type("Boot, round");
    {
        const FolderAway away(FolderName());
        EXPECT_FALSE(book.ChangeDatabase(other));
    }
    EXPECT_EQ(book.DatabaseName(), File());
    EXPECT_EQ(Column(Description), "Boot, round|Elbow");
    std::filesystem::remove(other);
}

TEST_F(PriceBookOnDisk, OtherTablesOfTheFileThatChangedMeanwhileAreKept) {
    ElsewhereAddTable("Material Lists");
    Type("Boot, round");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, round|Elbow");
    EXPECT_EQ(OnDisk("Material Lists", "List Name"), "Rough-in|Trim");
    ElsewhereAdd("Material Lists", {std::string("Attic")});
    Type("Boot, oval");
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, oval|Elbow");
    EXPECT_EQ(OnDisk("Material Lists", "List Name"), "Rough-in|Trim|Attic");
    EXPECT_TRUE(asked.empty());
}

TEST_F(PriceBookOnDisk, ABookChangedElsewhereIsReadAgain) {
    EXPECT_TRUE(book.MoveTo(1));
    EXPECT_FALSE(book.ReadAgainIfChanged());
    ElsewhereAdd("Materials", {std::string("Zinc"), 1.0, 2.0, std::string("Z"), std::string("")});
    EXPECT_TRUE(book.ReadAgainIfChanged());
    EXPECT_EQ(Column(Description), "Boot|Elbow|Zinc");
    EXPECT_EQ(book.Rows().CurrentRow(), 1);
    EXPECT_EQ(notes.back(), "The price book was changed elsewhere and has been read again.");
    EXPECT_FALSE(book.ReadAgainIfChanged());
}

TEST_F(PriceBookOnDisk, OfTwoSetsOfChangesTheUserChooses) {
    Type("Boot, mine");
    ElsewhereAdd("Materials", {std::string("Zinc"), 1.0, 2.0, std::string("Z"), std::string("")});
    EXPECT_FALSE(book.ReadAgainIfChanged());  // it would lose what waits to be written
    answers = {false};
    EXPECT_TRUE(book.Write());
    EXPECT_TRUE(Contains(asked.back(), "was changed by another program"));
    EXPECT_EQ(Column(Description), "Boot|Elbow|Zinc");
    Type("Boot, mine");
    ElsewhereAdd("Materials", {std::string("Tee"), 1.0, 2.0, std::string("T"), std::string("")});
    answers = {true};
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, mine|Elbow|Zinc");
}

TEST_F(PriceBookOnDisk, AFileThatIsGoneIsWrittenAnew) {
    Type("Boot, round");
    std::filesystem::remove(File());
    EXPECT_TRUE(book.Write());
    EXPECT_EQ(OnDisk("Materials", "Description"), "Boot, round|Elbow");
}

}  // namespace
}  // namespace tendo
