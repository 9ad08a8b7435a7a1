#include "platform/text/number_scan.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace tendo {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// A place in a text and what is asked of it.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool AtEnd() const { return at_ == text_.size(); }
    char Peek() const { return AtEnd() ? '\0' : text_[at_]; }
    void Next() { ++at_; }
    void SkipBlanks() {
        while (!AtEnd() && IsBlank(text_[at_]))
            ++at_;
    }
    std::size_t Place() const { return at_; }
    void GoTo(std::size_t place) { at_ = place; }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
};

/// What may stand around the digits, each at most once.
struct Marks {
    bool currency = false;
    bool sign = false;
    bool minus = false;
    bool open = false;
    bool closed = false;
};

bool TakeLeadingMark(char c, Marks& marks) {
    if (c == '$' && !marks.currency) return marks.currency = true;
    if ((c == '-' || c == '+') && !marks.sign && !marks.open) {
        marks.minus = c == '-';
        return marks.sign = true;
    }
    if (c == '(' && !marks.sign && !marks.open) return marks.open = true;
    return false;
}

bool TakeTrailingMark(char c, Marks& marks) {
    if (c == ')' && marks.open && !marks.closed) return marks.closed = true;
    if ((c == '-' || c == '+') && !marks.sign && !marks.open) {
        marks.minus = c == '-';
        return marks.sign = true;
    }
    return false;
}

template <typename TakeMark>
void TakeMarks(Scanner& scanner, Marks& marks, TakeMark takeMark) {
    for (;;) {
        scanner.SkipBlanks();
        if (scanner.AtEnd() || !takeMark(scanner.Peek(), marks)) return;
        scanner.Next();
    }
}

/// Digits with one point; `separators` lets commas stand behind the first digit and before the
/// point. `skip` is called between any two characters.
template <typename Skip>
bool TakeDigits(Scanner& scanner, std::string& digits, bool separators, Skip skip) {
    bool any = false;
    bool point = false;
    for (; !scanner.AtEnd(); scanner.Next(), skip(scanner)) {
        const char c = scanner.Peek();
        if (IsDigit(c)) {
            any = true;
        } else if (c == '.' && !point) {
            point = true;
        } else if (c == ',' && separators && any && !point) {
            continue;
        } else {
            break;
        }
        digits += c;
    }
    return any;
}

/// An exponent when a whole one stands here; else nothing is taken.
template <typename Skip>
void TakeExponent(Scanner& scanner, std::string& digits, Skip skip) {
    const std::size_t start = scanner.Place();
    const char letter = scanner.Peek();
    if (letter != 'e' && letter != 'E' && letter != 'd' && letter != 'D') return;
    scanner.Next();
    skip(scanner);
    std::string exponent = "e";
    if (scanner.Peek() == '-' || scanner.Peek() == '+') {
        if (scanner.Peek() == '-') exponent += '-';
        scanner.Next();
        skip(scanner);
    }
    if (!IsDigit(scanner.Peek())) return scanner.GoTo(start);
    for (; IsDigit(scanner.Peek()); scanner.Next(), skip(scanner))
        exponent += scanner.Peek();
    digits += exponent;
}

void NoSkip(Scanner&) {}

void SkipBlanks(Scanner& scanner) {
    scanner.SkipBlanks();
}

int HexadecimalDigit(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

bool ScannedNumber::IsLarge() const {
    const std::size_t exponentAt = std::min(digits.find('e'), digits.size());
    const std::string_view mantissa = std::string_view(digits).substr(0, exponentAt);
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) return false;
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    // The power of ten of the first digit that isn't zero.
    long power = static_cast<long>(point) - static_cast<long>(first) - (first < point ? 1 : 0);
    if (exponentAt < digits.size()) {
        const std::string_view exponent = std::string_view(digits).substr(exponentAt + 1);
        long value = 0;
        const auto result =
            std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
        if (result.ec == std::errc::result_out_of_range) return exponent.front() != '-';
        if (value > (1L << 40) || value < -(1L << 40)) return value > 0;
        power += value;
    }
    return power >= 0;
}

bool ScanNumber(std::string_view text, ScannedNumber& number) {
    Scanner scanner(text);
    Marks marks;
    TakeMarks(scanner, marks, TakeLeadingMark);
    if (!TakeDigits(scanner, number.digits, true, NoSkip)) return false;
    TakeExponent(scanner, number.digits, NoSkip);
    TakeMarks(scanner, marks, TakeTrailingMark);
    number.negative = marks.minus || marks.open;
    return scanner.AtEnd() && marks.open == marks.closed;
}

bool ScanLeadingNumber(std::string_view text, ScannedNumber& number) {
    Scanner scanner(text);
    scanner.SkipBlanks();
    if (scanner.Peek() == '-' || scanner.Peek() == '+') {
        number.negative = scanner.Peek() == '-';
        scanner.Next();
        scanner.SkipBlanks();
    }
    if (!TakeDigits(scanner, number.digits, false, SkipBlanks)) return false;
    TakeExponent(scanner, number.digits, SkipBlanks);
    return true;
}

bool ScanHexadecimal(std::string_view text, std::int32_t& value) {
    Scanner scanner(text);
    scanner.SkipBlanks();
    if (scanner.Peek() != '&') return false;
    scanner.Next();
    if (scanner.Peek() != 'H' && scanner.Peek() != 'h') return false;
    scanner.Next();
    std::uint64_t bits = 0;
    int count = 0;
    for (int digit = HexadecimalDigit(scanner.Peek()); digit >= 0 && bits <= 0xFFFFFFFF;
         digit = HexadecimalDigit(scanner.Peek())) {
        bits = bits << 4 | static_cast<std::uint64_t>(digit);
        ++count;
        scanner.Next();
    }
    if (count == 0) return false;
    if (bits > 0xFFFFFFFF) {
        value = 0;
    } else if (bits <= 0xFFFF && scanner.Peek() != '&') {
        value = static_cast<std::int16_t>(bits);
    } else {
        value = static_cast<std::int32_t>(bits);
    }
    return true;
}

}  // namespace tendo
