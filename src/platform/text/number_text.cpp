#include "platform/text/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "platform/text/number_scan.h"

namespace tendo {

namespace {

/// The value of a scanned number in the wanted type. One too small for the type is 0.
template <typename Number>
bool ValueOf(const ScannedNumber& scanned, Number& value) {
    Number magnitude = 0;
    const char* const end = scanned.digits.data() + scanned.digits.size();
    const auto result = std::from_chars(scanned.digits.data(), end, magnitude);
    if (result.ec == std::errc::result_out_of_range) {
        if (scanned.IsLarge()) return false;
        magnitude = 0;
    }
    value = scanned.negative ? -magnitude : magnitude;
    return true;
}

template <typename Number>
Number Leading(std::string_view text) {
    std::int32_t bits = 0;
    if (ScanHexadecimal(text, bits)) return static_cast<Number>(bits);
    Number value = 0;
    ScannedNumber scanned;
    return ScanLeadingNumber(text, scanned) && ValueOf(scanned, value) ? value : 0;
}

template <typename Integer>
Integer WholeNumber(double value) {
    const double rounded = std::nearbyint(value);
    if (rounded < static_cast<double>(std::numeric_limits<Integer>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<Integer>::max())) {
        return 0;
    }
    return static_cast<Integer>(rounded);
}

/// `digits` significant digits, without zeros at the end; the exponent has two digits at least.
template <typename Number>
std::string GeneralText(Number value, int digits) {
    if (std::isnan(value)) return "1.#QNAN";
    if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
    if (value == 0) return "0";  // also for a zero with a minus sign
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    std::string text(buffer, result.ptr);
    if (const std::size_t exponent = text.find('e'); exponent != std::string::npos) {
        text[exponent] = 'E';
    }
    return text;
}

}  // namespace

float ValueOfText(std::string_view text) {
    float value = 0;
    ScannedNumber scanned;
    return ScanNumber(text, scanned) && ValueOf(scanned, value) ? value : 0;
}

bool ReadNumber(std::string_view text, double& value) {
    ScannedNumber scanned;
    return ScanNumber(text, scanned) && ValueOf(scanned, value);
}

double LeadingNumber(std::string_view text) {
    return Leading<double>(text);
}

std::int16_t LeadingInteger(std::string_view text) {
    return WholeNumber<std::int16_t>(LeadingNumber(text));
}

std::int32_t LeadingLong(std::string_view text) {
    return WholeNumber<std::int32_t>(LeadingNumber(text));
}

float LeadingSingle(std::string_view text) {
    return Leading<float>(text);
}

std::string PlainNumberText(float value) {
    return GeneralText(value, 7);
}

std::string PlainNumberText(double value) {
    return GeneralText(value, 15);
}

std::string PlainNumberText(std::int32_t value) {
    return std::to_string(value);
}

}  // namespace tendo
