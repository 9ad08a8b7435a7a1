#pragma once

#include "pricing/price_fields.h"

namespace tendo {

/// What a field of the price screen is, told to the user who asks.
struct PriceHelp {
    const char* title;
    const char* text;
    const char* prompt;  // "Please Enter Gross Margin:"; nullptr for fields that take no input
};

const PriceHelp& HelpOf(TableField field);

}  // namespace tendo
