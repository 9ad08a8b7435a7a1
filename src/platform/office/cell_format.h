#pragma once

#include <string_view>

namespace tendo {

/// True for the built-in number formats that show dates or times.
bool IsBuiltInDateFormat(unsigned format);
/// True for a format code that shows a date or a time ("yyyy-mm-dd", "[h]:mm").
bool IsDateFormat(std::string_view code);

/// A stored serial as days since 30 December 1899. Files may count from 1904, and those that count
/// from 1900 take that year for a leap year: their days before March 1900 are one less.
double DateSerial(double stored, bool from1904);

/// "#DIV/0!" of a stored error's number.
std::string_view ErrorName(unsigned code);

}  // namespace tendo
