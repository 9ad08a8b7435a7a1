#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "project/project_records.h"

namespace tendo {

/// The three models of a system.
enum class Side { Cooling, Heating, Water };
inline constexpr std::size_t SideCount = 3;

/// How a cell is written: text; a quantity or money, empty without a model; a plain number;
/// nothing.
enum class RowFormat { Text, Quantity, Money, Plain, Nothing };

/// Rows that stand together. A group is printed, or left out, as the equipment shown asks for.
enum class RowGroup { Model, Warranty, OperatingCost, Size, CoolingUnit, Furnace, Price };

/// What a row takes from a system.
struct RawCell {
    std::string text;
    float number = 0;
};
using CellSource = RawCell (*)(const ProjectRecords& project, int system);

/// One row of the comparison table: its label, its option (none: always printed), and its source
/// for each side (none: the side doesn't have it).
struct SalesRow {
    std::string_view label;
    const char* option;
    RowGroup group;
    RowFormat format;
    std::array<CellSource, SideCount> source;
};

/// All rows in the order of their groups.
std::span<const SalesRow> SalesRows();

/// The trimmed model number of a system's side.
std::string ModelNumber(const ProjectRecords& project, Side side, int system);
std::string ModelType(const ProjectRecords& project, Side side, int system);

/// The system that a side's operating cost is taken from, from 0. Throws RuntimeError 9,
/// which tells the user why, when a record names none of the five.
int SelectedSystem(const ProjectRecords& project, Side side, int system);

/// The text of a row's cell. `valueSystem` gives the value, `system` the model that lets it be
/// shown. Throws RuntimeError 6, which tells the user why, when the value is no number.
std::string CellText(const ProjectRecords& project, const SalesRow& row, Side side, int system,
                     int valueSystem);

}  // namespace tendo
