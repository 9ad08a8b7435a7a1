#include "platform/print/table_text.h"

#include <algorithm>

#include "platform/text/number_text.h"

namespace tendo {

namespace {

TableColumn ParseColumn(std::string_view field) {
    TableColumn column;
    const std::size_t digits = std::min(field.find_first_not_of("<>^+~ "), field.size());
    for (const char mark : field.substr(0, digits)) {
        if (mark == '<') column.align = CellAlign::Left;
        if (mark == '>') column.align = CellAlign::Right;
        if (mark == '^') column.align = CellAlign::Center;
    }
    column.width = std::max<int>(0, LeadingInteger(field.substr(digits)));
    return column;
}

}  // namespace

std::vector<TableColumn> ParseTableFormat(std::string_view format) {
    std::vector<TableColumn> columns;
    while (true) {
        const std::size_t bar = format.find('|');
        columns.push_back(ParseColumn(format.substr(0, bar)));
        if (bar == std::string_view::npos) return columns;
        format.remove_prefix(bar + 1);
    }
}

std::vector<std::string_view> SplitCells(std::string_view row, std::size_t count) {
    std::vector<std::string_view> cells;
    cells.reserve(count);
    while (cells.size() < count) {
        const std::size_t bar = std::min(row.find('|'), row.size());
        cells.push_back(row.substr(0, bar));
        row.remove_prefix(std::min(bar + 1, row.size()));
    }
    return cells;
}

std::vector<std::string_view> SplitRows(std::string_view body) {
    std::vector<std::string_view> rows;
    while (!body.empty()) {
        const std::size_t end = std::min(body.find(';'), body.size());
        rows.push_back(body.substr(0, end));
        body.remove_prefix(std::min(end + 1, body.size()));
    }
    return rows;
}

}  // namespace tendo
