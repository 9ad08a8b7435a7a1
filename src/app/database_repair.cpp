#include "app/database_repair.h"

#include <vector>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_reader.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

std::vector<jet::TableToWrite> AllTables(const jet::Reader& reader) {
    std::vector<jet::TableToWrite> tables;
    for (const std::string& name : reader.TableNames()) {
        const auto rows = [&reader, name](const auto& write) {
            reader.ReadRows(name, [&](std::span<const jet::ValueView> row) {
                write(row);
                return true;
            });
        };
        tables.push_back({reader.Table(name), rows});
    }
    return tables;
}

void KeepJetThree(const std::string& fileName) {
    const std::string kept =
        DirectoryOf(fileName) + StemOf(fileName) + " (Jet 3)" + ExtensionOf(fileName);
    if (!FileExists(kept)) CopyFileOver(fileName, kept);
}

}  // namespace

void RepairDatabase(const std::string& fileName) {
    const jet::Reader reader = jet::Reader::OpenFile(fileName);
    if (reader.NotKeptOnWrite().any()) {
        throw RuntimeError(error_number::ReadOnlyDatabase,
                           fileName + " holds objects that a repair would lose.");
    }
    const std::string repaired = jet::WriteFile(AllTables(reader), SerialOfDate(Now()));
    if (reader.Generation() == 3) KeepJetThree(fileName);
    ReplaceFile(fileName, repaired);
}

}  // namespace tendo
