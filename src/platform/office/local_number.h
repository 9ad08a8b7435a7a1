#pragma once

#include <string_view>

namespace tendo {

/// A number written plainly: sign, digits, one point, exponent. Leading zeros ("00123") and more
/// than 15 digits are a part number's, not a number's: false.
bool ReadPlainNumber(std::string_view text, double& value);

/// A number as people write it in their country: "1,234.50", "1.234,50", "1 234,50", "1'234.50",
/// "12,5", "$12.00", "12,50 €", "(12.00)", "12.00-". One comma or point with exactly three digits
/// behind it parts thousands when it is a comma and decimals when it is a point. False, with
/// `value` left alone, when it is no number.
bool ReadLocalNumber(std::string_view text, double& value);

}  // namespace tendo
