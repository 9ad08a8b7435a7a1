#include <cstdint>
#include <string>

#include "platform/database/database.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"

namespace tendo {
namespace {

/// Ten-thousandths as an amount, without the zeros at the end: 1005000 is "100.5".
std::string CurrencyText(std::int64_t amount) {
    const bool negative = amount < 0;
    const std::uint64_t size =
        negative ? 0 - static_cast<std::uint64_t>(amount) : static_cast<std::uint64_t>(amount);
    std::string text = (negative ? "-" : "") + std::to_string(size / 10000);
    std::string decimals = std::to_string(10000 + size % 10000).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    return decimals.empty() ? text : text + "." + decimals;
}

/// Bytes as their hexadecimal digits.
std::string BytesText(const std::string& bytes) {
    constexpr const char* Digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += Digits[byte >> 4];
        text += Digits[byte & 15];
    }
    return text;
}

std::string FloatingText(double value, jet::ColumnType type) {
    if (type == jet::ColumnType::Date) return ShortDateText(DateOfSerial(value));
    if (type == jet::ColumnType::Single) return PlainNumberText(static_cast<float>(value));
    return PlainNumberText(value);
}

}  // namespace

std::string TextOfValue(const jet::Value& value, jet::ColumnType type) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
    if (const auto* number = std::get_if<double>(&value)) return FloatingText(*number, type);
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return type == jet::ColumnType::Currency ? CurrencyText(*whole) : std::to_string(*whole);
    const auto* text = std::get_if<std::string>(&value);
    if (!text) return "";
    const bool isBytes = type == jet::ColumnType::Binary || type == jet::ColumnType::Ole;
    return isBytes ? BytesText(*text) : *text;
}

}  // namespace tendo
