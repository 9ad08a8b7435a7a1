#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tendo {

/// The number that a text reads as, with currency sign, thousands separators, sign (before or
/// after), parentheses for a negative number and an exponent accepted; 0 for text that doesn't read
/// as a number (empty, "-", ".", "same", "12abc") or lies outside the range of a float. Never
/// fails.
float ValueOfText(std::string_view text);

/// The same in double precision and with a verdict: false when the text is no number or lies
/// outside the range; `value` is left alone then.
bool ReadNumber(std::string_view text, double& value);

/// The numeric value of the leading digits: sign, digits, point and exponent (E or D) are taken as
/// far as they go ("1 'True" gives 1, "12abc" 12, "abc" 0); blanks, tabs and line feeds are passed
/// over, also within the number. Hexadecimal "&HFF" is understood, four digits as a 16-bit number
/// with sign. Out of range: 0.
double LeadingNumber(std::string_view text);
/// The same, rounded to a whole number (a half to the even one) and held within the range of the
/// type (out of range: the default of 0).
std::int16_t LeadingInteger(std::string_view text);
std::int32_t LeadingLong(std::string_view text);
float LeadingSingle(std::string_view text);

/// The plain text of a number in its shortest general form, at most 7 significant digits for a
/// float and 15 for a double, with a zero before the point, no padding ("999.9", "0.25", "1E+20").
/// What is no number gives "1.#INF" or "1.#QNAN", which read back as 0.
std::string PlainNumberText(float value);
std::string PlainNumberText(double value);
std::string PlainNumberText(std::int32_t value);

/// A number by a format picture: digit places `#` and `0`, comma for thousands, point, `%` (times
/// 100), `\` before a literal character, other characters stand as they are ("$#,###,##0.00",
/// "##0.0", "##0.0#", "#,##0.00", "##0.0%", "\$#####0"). Rounds to the nearest last digit, ties
/// away from zero, on the decimal text of the value (its shortest form that reads back as the
/// same). A negative number keeps a leading minus ("-$12.00"); one that rounds to zero has none.
/// Throws 6 (Overflow) for an infinity or what is no number.
std::string FormatNumber(float value, std::string_view picture);
std::string FormatNumber(double value, std::string_view picture);

/// The pictures used on screens.
inline constexpr std::string_view MoneyPicture = "$#,###,##0.00";
inline constexpr std::string_view PercentPicture = "##0.0";
inline constexpr std::string_view TaxPicture = "##0.0#";

}  // namespace tendo
