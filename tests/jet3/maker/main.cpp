#include <cstdio>
#include <exception>
#include <filesystem>

#include "jet3_file.h"
#include "platform/files/safe_file.h"
#include "programs/sample_data/csv.h"
#include "programs/sample_data/tables.h"

namespace {

using namespace tendo;

/// An empty cell is null, of a text as well.
jet::Value ValueOf(const std::string& cell, jet::ColumnType type) {
    if (cell.empty() && type != jet::ColumnType::Boolean) return std::monostate();
    return ValueOfCell(cell, type);
}

jet3::Table ReadTable(const std::filesystem::path& source) {
    jet3::Table table;
    table.definition.name = source.stem().string();
    for (const CsvRow& cells : ReadCsv(source.string())) {
        if (table.definition.columns.empty()) {
            for (const std::string& head : cells)
                table.definition.columns.push_back(ColumnOfHead(head));
            continue;
        }
        jet::Row row;
        for (std::size_t i = 0; i < table.definition.columns.size(); ++i)
            row.push_back(ValueOf(cells.at(i), table.definition.columns[i].type));
        table.rows.push_back(row);
    }
    return table;
}

}  // namespace

/// make-jet3-file OUTPUT SOURCE ...: makes a Jet 3 database of comma-separated files, each a table
/// by the file's name, with a head of column names and types.
int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) {
        std::fputs("usage: make-jet3-file OUTPUT SOURCE ...\n", stderr);
        return 2;
    }
    try {
        std::vector<jet3::Table> tables;
        for (int i = 2; i < argumentCount; ++i)
            tables.push_back(ReadTable(arguments[i]));
        ReplaceFile(arguments[1], jet3::FileBytes(tables));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make-jet3-file: %s\n", error.what());
        return 1;
    }
}
