#include "platform/text/date_text.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "platform/text/date_names.h"

namespace tendo {

namespace {

constexpr std::chrono::sys_days SerialZero{std::chrono::year{1899} / 12 / 30};
constexpr double FirstSerial = -657434;  // 1 January 100
constexpr double LastSerial = 2958465;   // 31 December 9999
constexpr int SecondsOfDay = 24 * 60 * 60;

std::optional<DateTime> fixedToday;

/// A day or month out of its range counts on into the next month or year.
std::chrono::sys_days DaysOf(const DateTime& date) {
    const std::chrono::year_month january = std::chrono::year{date.year} / 1;
    const std::chrono::year_month month = january + std::chrono::months{date.month - 1};
    return std::chrono::sys_days{month / 1} + std::chrono::days{date.day - 1};
}

std::string_view MonthName(int month) {
    return MonthNames[std::clamp(month, 1, 12) - 1];
}

template <typename... Values>
std::string Printed(const char* format, Values... values) {
    char buffer[96];
    std::snprintf(buffer, sizeof buffer, format, values...);
    return buffer;
}

}  // namespace

double SerialOfDate(const DateTime& date) {
    const auto days = static_cast<double>((DaysOf(date) - SerialZero).count());
    const double time = (date.hour * 3600.0 + date.minute * 60.0 + date.second) / SecondsOfDay;
    return days < 0 ? days - time : days + time;
}

DateTime DateOfSerial(double serial) {
    if (!(serial >= FirstSerial && serial < LastSerial + 1)) return {};
    double days = std::trunc(serial);
    int seconds = static_cast<int>(std::lround(std::fabs(serial - days) * SecondsOfDay));
    if (seconds == SecondsOfDay) {
        seconds = 0;
        days += 1;
    }
    const std::chrono::year_month_day day{SerialZero + std::chrono::days{static_cast<int>(days)}};
    return {int{day.year()},
            static_cast<int>(unsigned{day.month()}),
            static_cast<int>(unsigned{day.day()}),
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60};
}

int DayOfWeek(const DateTime& date) {
    return static_cast<int>(std::chrono::weekday{DaysOf(date)}.c_encoding());
}

DateTime Now() {
    if (fixedToday) return *fixedToday;
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
}

void SetToday(std::optional<DateTime> today) {
    fixedToday = today;
}

std::string IsoText(const DateTime& date) {
    const std::string day = Printed("%04d-%02d-%02d", date.year, date.month, date.day);
    if (date.hour == 0 && date.minute == 0 && date.second == 0) return day;
    return day + Printed("T%02d:%02d:%02d", date.hour, date.minute, date.second);
}

std::string ShortDateText(const DateTime& date) {
    return Printed("%d/%d/%d", date.month, date.day, date.year);
}

std::string MonthDayYearText(const DateTime& date) {
    return std::string(MonthName(date.month)) + Printed(" %02d, %04d", date.day, date.year);
}

std::string LongDateText(const DateTime& date) {
    return std::string(WeekdayNames[DayOfWeek(date)]) + ", " + MonthDayYearText(date);
}

}  // namespace tendo
