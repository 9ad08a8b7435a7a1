#pragma once

#include "materials/takeoff_line.h"

namespace tendo {

/// The kinds of help on the takeoff's page: one a column that can be edited.
enum class TakeoffHelp : std::uint8_t {
    Quantity,
    Accessory,
    Tax,
    GrossMargin,
    PriceMarkup,
    ListDiscount,
    SalePrice
};

/// The help of a text column; what has none of its own tells about the quantity.
TakeoffHelp HelpOf(TakeoffField field);

/// Shows the help box of a line. True when the user agreed to what it offers; `accessory` and
/// `tax` are then as ticked there.
bool ShowTakeoffHelp(TakeoffHelp help, const TakeoffLine& line, bool& accessory, bool& tax);

}  // namespace tendo
