#include "app/database_repair.h"

#include "platform/jet/jet_reader.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/runtime_error.h"
#include "program_home.h"

namespace tendo {
namespace {

class DatabaseRepair : public ProgramHome {};

jet::TableToWrite Categories() {
    jet::TableToWrite table;
    table.definition.name = "Categories";
    table.definition.columns = {{.name = "Category", .size = 50}};
    table.rows = [](const auto& write) {
        for (const char* name : {"Ducts", "Pipes"}) {
            const jet::ValueView row[] = {std::string_view(name)};
            write(row);
        }
    };
    return table;
}

TEST_F(DatabaseRepair, EveryTableAndRowIsWrittenAnew) {
    Write("tendo.mdb", jet::WriteFile({Categories()}, 36000));
    RepairDatabase(directory + "tendo.mdb");
    const jet::Reader reader = jet::Reader::OpenFile(directory + "tendo.mdb");
    EXPECT_TRUE(reader.Check().empty());
    std::vector<std::string> names;
    reader.ReadRows("Categories", [&](std::span<const jet::ValueView> row) {
        names.emplace_back(std::get<std::string_view>(row[0]));
        return true;
    });
    EXPECT_EQ(names, (std::vector<std::string>{"Ducts", "Pipes"}));
}

TEST_F(DatabaseRepair, AFileThatIsNoDatabaseStaysAsItIs) {
    Write("tendo.mdb", "no database");
    EXPECT_THROW(RepairDatabase(directory + "tendo.mdb"), RuntimeError);
    EXPECT_EQ(Read("tendo.mdb"), "no database");
}

}  // namespace
}  // namespace tendo
