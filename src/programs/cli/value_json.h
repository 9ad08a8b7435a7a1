#pragma once

#include <string>

#include "platform/jet/jet_types.h"

namespace tendo::cli {

/// A value as JSON text: Boolean true/false; whole numbers; floats as the shortest number with the
/// same bits; currency as text with four decimals; dates "YYYY-MM-DDTHH:MM:SS"; binary as
/// lower-case hex; null.
std::string ValueJson(const jet::ValueView& value, jet::ColumnType type);

/// A text as a JSON string.
std::string TextJson(std::string_view text);

/// "integer", "single", "text" ...
const char* TypeName(jet::ColumnType type);

}  // namespace tendo::cli
