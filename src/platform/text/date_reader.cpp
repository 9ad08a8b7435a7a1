#include <array>
#include <chrono>
#include <span>

#include "platform/text/date_names.h"
#include "platform/text/date_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t LongestDateText = 64;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// 1 for the first name; 0 when none begins with the word. Three letters tell months and weekdays
/// apart.
int NameNumber(std::span<const std::string_view> names, std::string_view word) {
    if (word.size() < 3) return 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (word.size() <= names[i].size() && EqualsNoCase(names[i].substr(0, word.size()), word)) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

/// Takes one piece after the other off a text; a piece that isn't there leaves the text as it is.
class DateScanner {
  public:
    explicit DateScanner(std::string_view text) : rest_(text) {}

    bool AtEnd() {
        SkipBlanks();
        return rest_.empty();
    }

    bool Take(char c) {
        SkipBlanks();
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// A number of at most `most` digits; `digits` receives how many it has.
    bool TakeNumber(int& value, std::size_t most, std::size_t& digits) {
        SkipBlanks();
        std::size_t count = 0;
        int number = 0;
        for (; count < rest_.size() && count < most && IsDigit(rest_[count]); ++count) {
            number = number * 10 + (rest_[count] - '0');
        }
        if (count == 0 || (count < rest_.size() && IsDigit(rest_[count]))) return false;
        rest_.remove_prefix(count);
        value = number;
        digits = count;
        return true;
    }

    bool TakeNumber(int& value) {
        std::size_t digits = 0;
        return TakeNumber(value, 2, digits);
    }

    /// A name from a list, whole or shortened to three letters or more, with or without a point.
    bool TakeName(std::span<const std::string_view> names, int& number) {
        SkipBlanks();
        std::size_t length = 0;
        while (length < rest_.size() && IsLetter(rest_[length]))
            ++length;
        const int found = NameNumber(names, rest_.substr(0, length));
        if (found == 0) return false;
        number = found;
        rest_.remove_prefix(length);
        Take('.');
        return true;
    }

    /// "AM", "pm", "a", "p".
    bool TakeHalfOfDay(bool& afternoon) {
        SkipBlanks();
        if (rest_.empty()) return false;
        const char letter = static_cast<char>(rest_.front() | 0x20);
        if (letter != 'a' && letter != 'p') return false;
        afternoon = letter == 'p';
        rest_.remove_prefix(1);
        if (!rest_.empty() && (rest_.front() | 0x20) == 'm') rest_.remove_prefix(1);
        return true;
    }

  private:
    void SkipBlanks() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) {
            rest_.remove_prefix(1);
        }
    }

    std::string_view rest_;
};

/// A year of four digits, or of one or two in the years 1930 to 2029.
bool TakeYear(DateScanner& scanner, int& year) {
    std::size_t digits = 0;
    if (!scanner.TakeNumber(year, 4, digits) || digits == 3) return false;
    if (digits <= 2) year += year < 30 ? 2000 : 1900;
    return true;
}

bool TakeNumericDate(DateScanner& scanner, DateTime& date) {
    int first = 0;
    std::size_t digits = 0;
    if (!scanner.TakeNumber(first, 4, digits) || digits == 3) return false;
    const char separator = scanner.Take('/') ? '/' : '-';
    if (separator == '-' && !scanner.Take('-')) return false;
    int second = 0;
    if (digits == 4) {  // year, month, day
        date.year = first;
        return scanner.TakeNumber(date.month) && scanner.Take(separator) &&
               scanner.TakeNumber(date.day);
    }
    date.month = first;
    if (!scanner.TakeNumber(second) || !scanner.Take(separator)) return false;
    date.day = second;
    return TakeYear(scanner, date.year);
}

/// "May 4, 1998", "May 4 98".
bool TakeMonthFirst(DateScanner& scanner, DateTime& date) {
    if (!scanner.TakeName(MonthNames, date.month)) return false;
    scanner.Take('-');
    if (!scanner.TakeNumber(date.day)) return false;
    if (!scanner.Take(',')) scanner.Take('-');
    return TakeYear(scanner, date.year);
}

/// "4 May 1998", "4-May-98".
bool TakeDayFirst(DateScanner& scanner, DateTime& date) {
    if (!scanner.TakeNumber(date.day)) return false;
    scanner.Take('-');
    if (!scanner.TakeName(MonthNames, date.month)) return false;
    if (!scanner.Take(',')) scanner.Take('-');
    return TakeYear(scanner, date.year);
}

bool TakeTime(DateScanner& scanner, DateTime& date) {
    if (!scanner.TakeNumber(date.hour) || !scanner.Take(':') || !scanner.TakeNumber(date.minute)) {
        return false;
    }
    if (scanner.Take(':') && !scanner.TakeNumber(date.second)) return false;
    bool afternoon = false;
    if (scanner.TakeHalfOfDay(afternoon)) {
        if (date.hour < 1 || date.hour > 12) return false;
        date.hour = date.hour % 12 + (afternoon ? 12 : 0);
    }
    return date.hour < 24 && date.minute < 60 && date.second < 60;
}

bool IsCalendarDay(const DateTime& date) {
    if (date.year < 100 || date.month < 1 || date.day < 1) return false;
    return (std::chrono::year{date.year} / date.month / date.day).ok();
}

}  // namespace

std::optional<DateTime> ReadDate(std::string_view text) {
    if (text.size() > LongestDateText) return {};
    DateScanner start(text);
    int weekday = 0;
    if (start.TakeName(WeekdayNames, weekday)) start.Take(',');
    constexpr std::array Forms{TakeNumericDate, TakeMonthFirst, TakeDayFirst};
    for (const auto takeForm : Forms) {
        DateScanner scanner = start;
        DateTime date;
        if (!takeForm(scanner, date)) continue;
        if (!IsCalendarDay(date)) return {};
        if (scanner.AtEnd()) return date;
        if (!scanner.Take('T')) scanner.Take(',');
        if (!TakeTime(scanner, date) || !scanner.AtEnd()) return {};
        return date;
    }
    return {};
}

std::optional<DateTime> ReadIsoDate(std::string_view text) {
    const bool withTime = text.size() == 19 && text[10] == 'T';
    if (text.size() != 10 && !withTime) return {};
    constexpr std::string_view Shape = "0000-00-00T00:00:00";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (Shape[i] == '0' ? !IsDigit(text[i]) : text[i] != Shape[i]) return {};
    }
    return ReadDate(text);
}

}  // namespace tendo
