#include "programs/driver/compare.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace tendo::driver {
namespace {

std::optional<double> PlainNumber(const std::string& text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || text.empty()) return std::nullopt;
    return value;
}

bool SameNumber(double a, double b) {
    if (a == b) return true;
    const double larger = std::max(std::fabs(a), std::fabs(b));
    const double unit = std::pow(10.0, std::floor(std::log10(larger)) - 6);
    return std::fabs(a - b) <= unit * 1.0000001;
}

std::string WithoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}  // namespace

std::string TextOf(const Json& value) {
    if (value.is_null()) return "";
    return value.is_string() ? value.get<std::string>() : value.dump();
}

bool Agrees(const std::string& expected, const Json& got) {
    if (got.is_array()) {
        return std::any_of(got.begin(), got.end(),
                           [&](const Json& item) { return Agrees(expected, item); }) ||
               expected == got.dump();
    }
    const std::string text = TextOf(got);
    if (expected.starts_with('~')) return text.find(expected.substr(1)) != std::string::npos;
    if (got.is_boolean())
        return got.get<bool>() ? expected == "true" || expected == "1"
                               : expected == "false" || expected == "0";
    const auto wanted = PlainNumber(expected);
    const auto present = PlainNumber(text);
    if (wanted && present) return SameNumber(*wanted, *present);
    return WithoutTrailingBlanks(expected) == WithoutTrailingBlanks(text);
}

}  // namespace tendo::driver
