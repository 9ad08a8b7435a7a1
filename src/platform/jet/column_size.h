#pragma once

#include "platform/jet/jet_types.h"

namespace tendo::jet {

/// Whether values of the type stand in the fixed part of a row.
bool IsFixedType(ColumnType type);

/// The declared size in bytes of a column in a Jet 4 file: of `size` characters for a text, `size`
/// bytes for a binary, 0 for a long value. A Boolean's is 1, though it stands in the row's mask.
std::uint16_t SizeOfType(ColumnType type, int size);

}  // namespace tendo::jet
