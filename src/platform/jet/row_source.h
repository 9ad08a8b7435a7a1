#pragma once

#include <functional>
#include <span>

#include "platform/jet/jet_types.h"

namespace tendo::jet {

/// Gives the rows of a table one by one; calls the function with one value per column.
using RowSource = std::function<void(const std::function<void(std::span<const ValueView>)>&)>;

}  // namespace tendo::jet
