#include "programs/cli/value_json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "platform/text/date_text.h"

namespace tendo::cli {
namespace {

using jet::ColumnType;

std::string Shortest(double value, bool single) {
    if (std::isnan(value)) return "\"NaN\"";
    if (std::isinf(value)) return value > 0 ? "\"Infinity\"" : "\"-Infinity\"";
    std::array<char, 40> text{};
    const auto end =
        single ? std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(value))
               : std::to_chars(text.data(), text.data() + text.size(), value);
    std::string number(text.data(), end.ptr);
    if (number.find_first_of(".e") == std::string::npos) number += ".0";
    return number;
}

std::string CurrencyText(std::int64_t tenThousandths) {
    const bool negative = tenThousandths < 0;
    const std::uint64_t size = negative ? 0 - static_cast<std::uint64_t>(tenThousandths)
                                        : static_cast<std::uint64_t>(tenThousandths);
    std::string digits = std::to_string(size);
    if (digits.size() < 5) digits.insert(0, 5 - digits.size(), '0');
    digits.insert(digits.size() - 4, ".");
    return (negative ? "-" : "") + digits;
}

std::string Hex(std::string_view bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4];
        text += digits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

std::string NumberJson(double value, ColumnType type) {
    if (type != ColumnType::Date) return Shortest(value, type == ColumnType::Single);
    const DateTime date = DateOfSerial(value);
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", date.year, date.month,
                  date.day, date.hour, date.minute, date.second);
    return TextJson(text.data());
}

}  // namespace

std::string TextJson(std::string_view text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string ValueJson(const jet::ValueView& value, ColumnType type) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
    if (const auto* number = std::get_if<double>(&value)) return NumberJson(*number, type);
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return type == ColumnType::Currency ? TextJson(CurrencyText(*whole))
                                            : std::to_string(*whole);
    if (const auto* text = std::get_if<std::string_view>(&value))
        return TextJson(type == ColumnType::Binary || type == ColumnType::Ole ? Hex(*text)
                                                                              : std::string(*text));
    return "null";
}

const char* TypeName(ColumnType type) {
    switch (type) {
        case ColumnType::Boolean:
            return "boolean";
        case ColumnType::Byte:
            return "byte";
        case ColumnType::Integer:
            return "integer";
        case ColumnType::Long:
            return "long";
        case ColumnType::Currency:
            return "currency";
        case ColumnType::Single:
            return "single";
        case ColumnType::Double:
            return "double";
        case ColumnType::Date:
            return "date";
        case ColumnType::Binary:
            return "binary";
        case ColumnType::Text:
            return "text";
        case ColumnType::Ole:
            return "ole";
        case ColumnType::Memo:
            return "memo";
        case ColumnType::Guid:
            return "guid";
        case ColumnType::Numeric:
            return "numeric";
    }
    return "unknown";
}

}  // namespace tendo::cli
