#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tendo {

/// A number found in a text, brought into the form that std::from_chars reads.
struct ScannedNumber {
    std::string digits;  // digits, at most one point, and an exponent "e-5"; at least one digit
    bool negative = false;

    /// True when the value lies at 1 or above: tells an overflow from a value too small to hold.
    bool IsLarge() const;
};

/// A whole text as a number: currency sign, sign before or after, parentheses, thousands
/// separators. False when anything else is in it.
bool ScanNumber(std::string_view text, ScannedNumber& number);

/// The number a text begins with; blanks, tabs and line feeds are passed over anywhere.
bool ScanLeadingNumber(std::string_view text, ScannedNumber& number);

/// "&HFF". Up to four digits are a 16-bit number and up to eight a 32-bit one, both with sign
/// ("&HFFFF" is -1); an ampersand behind the digits makes it 32-bit. False when it doesn't begin
/// so.
bool ScanHexadecimal(std::string_view text, std::int32_t& value);

}  // namespace tendo
