#pragma once

#include <optional>
#include <string>

#include "pricing/price_fields.h"
#include "pricing/price_reason.h"

namespace tendo {

/// What a field of the price screen is, told to the user who asks.
struct PriceHelp {
    const char* title;
    const char* text;
    const char* prompt;  // "Please Enter Gross Margin:"; nullptr for fields that take no input
};

const PriceHelp& HelpOf(TableField field);

/// Shows a help with the reason of its figure, and asks for another text, `text` at
/// first; nothing on cancel and for a help without a prompt.
std::optional<std::string> AskWithHelp(const PriceHelp& help, const PriceReason& reason,
                                       const std::string& text);

}  // namespace tendo
