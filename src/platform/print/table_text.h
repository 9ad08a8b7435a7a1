#pragma once

#include <string_view>
#include <vector>

namespace tendo {

enum class CellAlign { Left, Center, Right };

/// One column of a table: how its cells stand and its width in twips.
struct TableColumn {
    CellAlign align = CellAlign::Left;
    int width = 0;
};

/// Columns of a format text, "<+2000|>1400|^~600". The layout marks `+` and `~` are accepted and
/// change nothing. Widths are held between 0 and 32767.
std::vector<TableColumn> ParseTableFormat(std::string_view format);

/// Cells of one row, cut at `|`; exactly `count` of them: surplus cells are lost, missing ones
/// empty.
std::vector<std::string_view> SplitCells(std::string_view row, std::size_t count);

/// Rows of a body, each closed by `;`; text behind the last `;` is a row of its own.
std::vector<std::string_view> SplitRows(std::string_view body);

}  // namespace tendo
