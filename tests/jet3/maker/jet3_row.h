#pragma once

#include <string>
#include <vector>

#include "platform/jet/jet_types.h"

namespace tendo::jet3 {

/// A column of a table and where a row has it.
struct PlacedColumn {
    jet::Column column;
    bool fixed = false;
    std::size_t number = 0;    // bit in the mask
    std::size_t variable = 0;  // place among the variable columns
    std::size_t offset = 0;    // in the fixed part
    std::size_t bytes = 0;     // in the fixed part, or the longest text
};

/// Columns in their order: texts and objects are variable, all others fixed.
std::vector<PlacedColumn> PlaceColumns(const std::vector<jet::Column>& columns);

/// The bytes of a row as a Jet 3 file has them. std::invalid_argument for a value that isn't of its
/// column's type, or a type that isn't made here (Boolean, Byte, Integer, Long, Currency, Single,
/// Double, Date and Text are, and Ole where it is null).
std::string RowBytes(const std::vector<PlacedColumn>& columns, const jet::Row& row);

}  // namespace tendo::jet3
