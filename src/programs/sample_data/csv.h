#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tendo {

using CsvRow = std::vector<std::string>;

/// The rows of comma-separated text; a cell in quotes may hold commas, line ends and doubled
/// quotes. Empty lines are passed over. RuntimeError 5 with the line for a quote that is never
/// closed, text behind a closing quote, or more than 200 cells in a row.
std::vector<CsvRow> ParseCsv(std::string_view text);

/// The rows of a file of at most 16 MB.
std::vector<CsvRow> ReadCsv(const std::string& path);

}  // namespace tendo
