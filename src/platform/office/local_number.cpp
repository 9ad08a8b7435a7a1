#include "platform/office/local_number.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t LongestNumber = 40;
constexpr std::size_t CertainDigits = 15;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t DigitCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsDigit));
}

/// Without currency signs and the blanks and apostrophes that part thousands.
std::string WithoutMarks(std::string_view text) {
    std::string result(text);
    for (std::string_view mark : {"\u00A0", "\u202F", "\u2009", " ", "'", "\u2019", "\u20AC",
                                  "\u00A3", "$", "EUR", "USD", "CAD"})
        result = Replaced(result, mark, "");
    return Replaced(result, "\u2212", "-");
}

/// True when every group behind the first has three digits and the first one to three.
bool AreThousands(std::string_view text, char separator) {
    const std::vector<std::string> groups = Split(text, separator);
    if (groups.front().empty() || groups.front().size() > 3) return false;
    return std::all_of(groups.begin() + 1, groups.end(),
                       [](const std::string& group) { return group.size() == 3; });
}

/// Which of '.' and ',' stands before the decimals; 0 when neither does.
char DecimalSign(std::string_view text) {
    const std::size_t point = text.rfind('.');
    const std::size_t comma = text.rfind(',');
    if (point == text.npos && comma == text.npos) return 0;
    if (point != text.npos && comma != text.npos) return point > comma ? '.' : ',';
    const char sign = point == text.npos ? ',' : '.';
    const auto signs = std::count(text.begin(), text.end(), sign);
    if (signs > 1) return 0;
    return sign == ',' && AreThousands(text, ',') ? '\0' : sign;
}

/// Digits with separators brought to digits and one point; false when the groups are uneven.
bool ToPoint(std::string_view text, std::string& result) {
    const char decimal = DecimalSign(text);
    const std::size_t at = decimal == 0 ? text.npos : text.rfind(decimal);
    const std::string_view whole = text.substr(0, at);
    for (char separator : {'.', ','}) {
        if (whole.find(separator) == whole.npos) continue;
        if (separator == decimal || !AreThousands(whole, separator)) return false;
    }
    result = Replaced(Replaced(whole, ".", ""), ",", "");
    if (at != text.npos) result += "." + std::string(text.substr(at + 1));
    return std::all_of(result.begin(), result.end(), [](char c) { return IsDigit(c) || c == '.'; });
}

/// Takes sign or parentheses off; true for a negative number.
bool TakeSign(std::string& text) {
    if (text.size() > 2 && text.front() == '(' && text.back() == ')') {
        text = text.substr(1, text.size() - 2);
        return true;
    }
    if (text.size() < 2) return false;
    const char sign = text.front() == '-' || text.front() == '+' ? text.front() : text.back();
    if (sign != '-' && sign != '+') return false;
    text = sign == text.front() ? text.substr(1) : text.substr(0, text.size() - 1);
    return sign == '-';
}

}  // namespace

bool ReadPlainNumber(std::string_view text, double& value) {
    std::string_view digits = text;
    if (!digits.empty() && digits.front() == '-') digits.remove_prefix(1);
    if (digits.empty() || digits.size() > LongestNumber || !IsDigit(digits.front())) return false;
    if (digits.size() > 1 && digits.front() == '0' && IsDigit(digits[1])) return false;
    if (DigitCount(digits.substr(0, digits.find_first_of("eE"))) > CertainDigits) return false;
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return false;
    value = number;
    return true;
}

bool ReadLocalNumber(std::string_view text, double& value) {
    if (text.size() > 2 * LongestNumber) return false;
    std::string marked = WithoutMarks(text);
    const bool negative = TakeSign(marked);
    std::string digits;
    if (DigitCount(marked) == 0) return false;
    double number = 0;
    if (!ToPoint(marked, digits)) {
        if (!ReadPlainNumber(marked, number)) return false;
    } else if (!ReadNumber(digits, number)) {
        return false;
    }
    value = negative ? -number : number;
    return true;
}

}  // namespace tendo
