#include "programs/sample_data/tables.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>

#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr std::uint64_t LongestText = 1U << 20;
constexpr double CurrencyUnits = 10000;

/// One line of the list of databases.
struct TableSource {
    std::string file;
    std::string table;
    std::string source;
    bool withRows = true;
    std::string index;  // "Name:Column", or empty
};

TableSource TableSourceOf(const CsvRow& row) {
    if (row.size() != 5) throw RuntimeError(5, "sample_data.csv: a line without five cells");
    return {row[0], row[1], row[2], row[3] == "yes", row[4]};
}

std::string CellText(const std::string& source, const std::string& cell) {
    if (!StartsWith(cell, "@")) return cell;
    return ReadWholeFile(source + cell.substr(1), LongestText);
}

jet::TableDefinition Definition(const TableSource& table, const CsvRow& heads) {
    jet::TableDefinition definition;
    definition.name = table.table;
    for (const std::string& head : heads)
        definition.columns.push_back(ColumnOfHead(head));
    if (!table.index.empty()) {
        const std::vector<std::string> parts = Split(table.index, ':');
        jet::Index index;
        index.name = parts.at(0);
        index.columns = {parts.at(1)};
        definition.indexes.push_back(index);
    }
    return definition;
}

jet::Row RowOf(const std::string& source, const CsvRow& cells, const jet::TableDefinition& table) {
    if (cells.size() != table.columns.size())
        throw RuntimeError(5, table.name + ": a row of " + std::to_string(cells.size()) +
                                  " cells instead of " + std::to_string(table.columns.size()));
    jet::Row row;
    for (std::size_t i = 0; i < cells.size(); ++i)
        row.push_back(ValueOfCell(CellText(source, cells[i]), table.columns[i].type));
    return row;
}

void AddTable(Database& database, const std::string& source, const TableSource& table) {
    const std::vector<CsvRow> cells = ReadCsv(source + table.source);
    if (cells.empty()) throw RuntimeError(5, table.source + ": no heading");
    const jet::TableDefinition definition = Definition(table, cells.front());
    database.AppendTable(definition);
    std::vector<jet::Row> rows;
    for (std::size_t i = 1; table.withRows && i < cells.size(); ++i)
        rows.push_back(RowOf(source, cells[i], definition));
    database.AppendRows(table.table, rows);
}

void BuildDatabase(const std::string& source, const std::string& path,
                   const std::vector<TableSource>& tables) {
    MakeDirectory(DirectoryOf(path));
    DeleteFileIfThere(path);
    Database::CreateDatabase(path);
    Database database = Database::OpenDatabase(path);
    for (const TableSource& table : tables)
        AddTable(database, source, table);
    database.Close();
}

double NumberOf(const std::string& cell) {
    double value = 0;
    if (!ReadNumber(cell, value))
        throw RuntimeError(error_number::TypeMismatch, "\"" + cell + "\" is no number");
    return value;
}

jet::Value DateOf(const std::string& cell) {
    const auto date = ReadIsoDate(cell);
    if (!date) throw RuntimeError(error_number::TypeMismatch, "\"" + cell + "\" is no date");
    return SerialOfDate(*date);
}

}  // namespace

jet::Column ColumnOfHead(const std::string& head) {
    static const std::map<std::string, jet::ColumnType> types = {
        {"Boolean", jet::ColumnType::Boolean}, {"Integer", jet::ColumnType::Integer},
        {"Long", jet::ColumnType::Long},       {"Currency", jet::ColumnType::Currency},
        {"Single", jet::ColumnType::Single},   {"Date", jet::ColumnType::Date},
        {"Text", jet::ColumnType::Text},       {"Memo", jet::ColumnType::Memo}};
    const std::size_t blank = head.rfind(' ');
    const std::size_t bracket = std::min(head.find('(', blank), head.size());
    const auto type =
        types.find(blank == std::string::npos ? "" : head.substr(blank + 1, bracket - blank - 1));
    if (type == types.end()) throw RuntimeError(5, "\"" + head + "\" names no column type");
    jet::Column column;
    column.name = head.substr(0, blank);
    column.type = type->second;
    if (bracket < head.size()) column.size = LeadingInteger(head.substr(bracket + 1));
    return column;
}

jet::Value ValueOfCell(const std::string& cell, jet::ColumnType type) {
    if (type == jet::ColumnType::Text || type == jet::ColumnType::Memo) return cell;
    if (cell.empty()) return std::monostate();
    switch (type) {
        case jet::ColumnType::Boolean:
            return cell == "Yes";
        case jet::ColumnType::Currency:
            return static_cast<std::int64_t>(std::llround(NumberOf(cell) * CurrencyUnits));
        case jet::ColumnType::Single:
            return NumberOf(cell);
        case jet::ColumnType::Date:
            return DateOf(cell);
        default:
            return static_cast<std::int64_t>(std::llround(NumberOf(cell)));
    }
}

void BuildDatabases(const std::string& source, const std::string& output) {
    std::map<std::string, std::vector<TableSource>> tables;
    const std::vector<CsvRow> list = ReadCsv(source + "sample_data.csv");
    for (std::size_t i = 1; i < list.size(); ++i) {
        const TableSource table = TableSourceOf(list[i]);
        tables[table.file].push_back(table);
    }
    for (const auto& [file, fileTables] : tables)
        BuildDatabase(source, output + file, fileTables);
}

}  // namespace tendo
