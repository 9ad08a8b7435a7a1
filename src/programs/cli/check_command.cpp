#include <cstdio>

#include "platform/jet/jet_reader.h"
#include "programs/cli/arguments.h"
#include "project/project_file.h"

namespace tendo::cli {
namespace {

/// What a project file must hold beyond being a whole database: the thirteen tables, with rows
/// enough.
std::vector<std::string> ProjectFaults(const jet::Reader& reader) {
    std::vector<std::string> faults;
    for (const jet::TableDefinition& wanted : ProjectTables()) {
        if (!reader.HasTable(wanted.name)) {
            faults.push_back("the table " + wanted.name + " is missing");
            continue;
        }
        for (const jet::Column& column : wanted.columns) {
            bool found = false;
            for (const jet::Column& present : reader.Table(wanted.name).columns)
                found = found || present.name == column.name;
            if (!found)
                faults.push_back("the table " + wanted.name + " has no column " + column.name);
        }
    }
    return faults;
}

}  // namespace

void RunCheck(const Arguments& arguments) {
    const std::string& file = arguments.plain[0];
    const jet::Reader reader = jet::Reader::OpenFile(file);
    std::vector<std::string> faults = reader.Check();
    if (faults.empty() && reader.HasTable("GPDProjectFormat")) faults = ProjectFaults(reader);
    if (faults.empty()) {
        std::printf("%s is whole: Jet %d, %zu tables\n", file.c_str(), reader.Generation(),
                    reader.TableNames().size());
        return;
    }
    std::string text = file + ": " + faults.front();
    if (faults.size() > 1) text += " (and " + std::to_string(faults.size() - 1) + " more)";
    throw Failure(text + ". Nothing was changed; take a copy from before the damage");
}

}  // namespace tendo::cli
