#include "written_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace tendo::jet {

namespace {

constexpr double Made = 45319.5;

struct View {
    ValueView operator()(const std::string& text) const { return std::string_view(text); }
    template <class Other>
    ValueView operator()(Other value) const {
        return value;
    }
};

}  // namespace

TableToWrite TableOf(TableDefinition definition, Rows rows) {
    TableToWrite table;
    table.definition = std::move(definition);
    table.rows = [rows = std::move(rows)](const auto& add) {
        std::vector<ValueView> views;
        for (const Row& row : rows) {
            views.clear();
            for (const Value& value : row)
                views.push_back(std::visit(View{}, value));
            add(views);
        }
    };
    return table;
}

Column ColumnOf(const std::string& name, ColumnType type, int size) {
    Column column;
    column.name = name;
    column.type = type;
    column.size = size;
    return column;
}

std::string OutputOf(const std::string& command, int* status) {
    std::string output;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (!pipe) return output;
    char part[4096];
    for (std::size_t got = 0; (got = fread(part, 1, sizeof part, pipe)) > 0;)
        output.append(part, got);
    const int ended = pclose(pipe);
    if (status) *status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    return output;
}

TemporaryFile::TemporaryFile(const std::string& name, const std::string& bytes)
    : path_((std::filesystem::temp_directory_path() /
             ("tendo-jet-" + std::to_string(getpid()) + "-" + name))
                .string()) {
    std::ofstream(path_, std::ios::binary) << bytes;
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

Reader WrittenAndChecked(const std::vector<TableToWrite>& tables) {
    const std::string bytes = WriteFile(tables, Made);
    Reader reader = Reader::OpenBytes(bytes, "written.mdb");
    EXPECT_EQ(reader.Check(), std::vector<std::string>{});
    const std::string checker = SharedJetFile("jet_check.py");
    if (!checker.empty()) {
        const TemporaryFile file("checked.mdb", bytes);
        int status = 0;
        const std::string said =
            OutputOf("python3 '" + checker + "' '" + file.Path() + "'", &status);
        EXPECT_EQ(status, 0) << said;
        EXPECT_NE(said.find(": ok ("), std::string::npos) << said;
    }
    return reader;
}

}  // namespace tendo::jet
