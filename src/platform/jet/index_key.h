#pragma once

#include <string>

#include "platform/jet/jet_types.h"

namespace tendo::jet {

/// Appends the part of an index key that one value makes: a type byte and the value in an order
/// that compares by bytes. RuntimeError 3343 for a type that can't be indexed.
void AppendIndexKey(const ValueView& value, const Column& column, bool descending,
                    std::string& key);

}  // namespace tendo::jet
