#include <QTableView>
#include <cerrno>

#include "platform/database/database.h"
#include "platform/files/safe_file.h"
#include "platform/files/system_calls.h"
#include "running_program.h"

namespace tendo {
namespace {

/// The price book on its screen while its file can't be written.
class PriceBookFailures : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        WriteBook();
        StartProgram();
        ActiveBarClick("ToolMaterialDB");
        form = Form::Find("frmEditMaterials");
        ASSERT_NE(form, nullptr);
        dialogs->messages.clear();
        saved = ReadWholeFile(directory + "tendo.mdb");
    }
    void TearDown() override {
        SystemCalls() = SystemCallTable();
        RunningProgram::TearDown();
    }

    static jet::TableDefinition TableOf(const std::string& name,
                                        const std::vector<std::string>& columns) {
        jet::TableDefinition table;
        table.name = name;
        for (const std::string& columnName : columns) {
            jet::Column& column = table.columns.emplace_back();
            column.name = columnName;
            const bool isCost = columnName.ends_with("Cst");
            column.type = isCost ? jet::ColumnType::Single : jet::ColumnType::Text;
            column.size = isCost ? 0 : 255;
        }
        return table;
    }

    void WriteBook() const {
        Database::CreateDatabase(directory + "tendo.mdb");
        Database database = Database::OpenDatabase(directory + "tendo.mdb");
        database.AppendTable(
            TableOf("Materials", {"Description", "UnitCst", "ListCst", "Part Number", "Category"}));
        database.AppendTable(TableOf("Categories", {"Category"}));
        for (const char* description : {"Boot", "Elbow"})
            database.AppendRows("Materials", {{std::string(description), 1.0, 2.0, std::string("1"),
                                               std::string()}});
        database.Close();
    }

    void TypeAndLeaveTheRow() const {
        auto* view = qobject_cast<QTableView*>(form->Control("DBGridMaterials"));
        view->model()->setData(view->model()->index(0, 1), "Boot, round", Qt::EditRole);
        view->setCurrentIndex(view->model()->index(1, 1));
    }
    static void FillTheDisk() {
        SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
            errno = ENOSPC;
            return -1;
        };
    }
    std::string OnDisk() const { return ReadWholeFile(directory + "tendo.mdb"); }

    Form* form = nullptr;
    std::string saved;
};

TEST_F(PriceBookFailures, AFullDiskIsToldOnceAndTheScreenStaysWithItsChanges) {
    FillTheDisk();
    TypeAndLeaveTheRow();
    EXPECT_TRUE(TickTimer("tmrWriteBook"));
    EXPECT_TRUE(TickTimer("tmrWriteBook"));
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_TRUE(Saw("the disk is full"));
    dialogs->answers = {Answer::No};
    EXPECT_FALSE(form->Unload());
    EXPECT_TRUE(Saw("Close the price book and lose them?"));
    EXPECT_EQ(OnDisk(), saved);
    SystemCalls() = SystemCallTable();
    EXPECT_TRUE(TickTimer("tmrWriteBook"));
    EXPECT_NE(OnDisk(), saved);
    EXPECT_TRUE(form->Unload());
}

TEST_F(PriceBookFailures, ClosedInSpiteOfItTheFileIsAsItWas) {
    FillTheDisk();
    TypeAndLeaveTheRow();
    dialogs->answers = {Answer::Yes};
    EXPECT_TRUE(form->Unload());
    EXPECT_EQ(OnDisk(), saved);
    EXPECT_FALSE(State().MaterialDatabaseHeld);
}

TEST_F(PriceBookFailures, ACommandOfTheMainWindowBringsTheLastChangeToTheDiskFirst) {
    TypeAndLeaveTheRow();
    ActiveBarClick("ToolArrangeIcons");
    EXPECT_NE(OnDisk(), saved);
}

}  // namespace
}  // namespace tendo
