#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tendo {

/// A calendar day and a time of day, without a zone.
struct DateTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// Days since 30 December 1899 with the time of day as fraction, the form of dates in database
/// files.
double SerialOfDate(const DateTime& date);
/// To the second; a serial outside the years 100 to 9999 gives the zero day, 30 December 1899.
DateTime DateOfSerial(double serial);
/// 0 = Sunday.
int DayOfWeek(const DateTime& date);

/// The present moment; tests and the driver put a fixed day in its place.
DateTime Now();
void SetToday(std::optional<DateTime> today);
/// "1998-05-04" or "1998-05-04T12:30:00".
std::optional<DateTime> ReadIsoDate(std::string_view text);
std::string IsoText(const DateTime& date);

/// Today's date as text in the short form, "5/4/1998".
std::string ShortDateText(const DateTime& date);
/// "Monday, May 04, 1998".
std::string LongDateText(const DateTime& date);
/// "May 04, 1998" (the picture "mmmm dd, yyyy").
std::string MonthDayYearText(const DateTime& date);
/// A date as people in the United States write it: 5/4/98, 5-4-1998, May 4, 1998, 4 May 1998,
/// 1998-05-04, with or without a weekday and a time; nothing when it doesn't read as one. Two-digit
/// years: 00 to 29 are 20xx, 30 to 99 are 19xx.
std::optional<DateTime> ReadDate(std::string_view text);

}  // namespace tendo
