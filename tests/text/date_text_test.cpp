#include "platform/text/date_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace tendo {
namespace {

constexpr DateTime FourthOfMay{1998, 5, 4, 0, 0, 0};

TEST(DateSerials, CountDaysFromTheEndOf1899) {
    EXPECT_EQ(SerialOfDate({1899, 12, 30}), 0);
    EXPECT_EQ(SerialOfDate({1899, 12, 31}), 1);
    EXPECT_EQ(SerialOfDate({1900, 1, 1}), 2);
    // 1970 began 25569 days after the zero day; 1 January 2000 is 10957 days (30 years with 7 leap
    // days) on.
    EXPECT_EQ(SerialOfDate({1970, 1, 1}), 25569);
    EXPECT_EQ(SerialOfDate({2000, 1, 1}), 25569 + 10957);
    EXPECT_DOUBLE_EQ(SerialOfDate({1900, 1, 1, 18, 0, 0}), 2.75);
    EXPECT_DOUBLE_EQ(SerialOfDate({1899, 12, 29, 6, 0, 0}),
                     -1.25);  // the time counts forward all the same
}

TEST(DateSerials, GoBackToDates) {
    EXPECT_EQ(DateOfSerial(2.75), (DateTime{1900, 1, 1, 18, 0, 0}));
    EXPECT_EQ(DateOfSerial(-1.25), (DateTime{1899, 12, 29, 6, 0, 0}));
    EXPECT_EQ(DateOfSerial(25569), (DateTime{1970, 1, 1}));
    EXPECT_EQ(DateOfSerial(2 - 1e-9), (DateTime{1900, 1, 1}));  // rounded to the second
    const DateTime moment{1998, 5, 4, 13, 59, 59};
    EXPECT_EQ(DateOfSerial(SerialOfDate(moment)), moment);
}

TEST(DateSerials, OutOfTheCalendarGiveTheZeroDay) {
    for (const double serial :
         {1e300, -1e300, 2958466.0, -657435.0, std::numeric_limits<double>::quiet_NaN(),
          std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(DateOfSerial(serial), DateTime()) << serial;
    }
    EXPECT_EQ(DateOfSerial(2958465.0), (DateTime{9999, 12, 31}));
    EXPECT_EQ(DateOfSerial(-657434.0), (DateTime{100, 1, 1}));
}

TEST(Dates, KnowTheirWeekday) {
    EXPECT_EQ(DayOfWeek(FourthOfMay), 1);  // a Monday
    EXPECT_EQ(DayOfWeek({2000, 1, 1}), 6);
    EXPECT_EQ(DayOfWeek({1899, 12, 30}), 6);
}

TEST(Dates, AFixedDayTakesThePlaceOfTheClock) {
    SetToday(DateTime{1998, 5, 4, 9, 30, 0});
    EXPECT_EQ(Now(), (DateTime{1998, 5, 4, 9, 30, 0}));
    SetToday({});
    EXPECT_GT(Now().year, 2020);
}

TEST(Dates, AreWrittenInFourForms) {
    EXPECT_EQ(ShortDateText(FourthOfMay), "5/4/1998");
    EXPECT_EQ(LongDateText(FourthOfMay), "Monday, May 04, 1998");
    EXPECT_EQ(MonthDayYearText({1999, 12, 25}), "December 25, 1999");
    EXPECT_EQ(IsoText(FourthOfMay), "1998-05-04");
    EXPECT_EQ(IsoText({1998, 5, 4, 12, 30, 0}), "1998-05-04T12:30:00");
}

TEST(IsoDates, AreReadStrictly) {
    EXPECT_EQ(ReadIsoDate("1998-05-04"), FourthOfMay);
    EXPECT_EQ(ReadIsoDate("1998-05-04T12:30:05"), (DateTime{1998, 5, 4, 12, 30, 5}));
    for (const char* text :
         {"", "1998-5-4", "1998-02-29", "1998-13-01", "1998/05/04", "1998-05-04T",
          "1998-05-04T24:00:00", "1998-05-04 12:30:00", "98-05-04xx"}) {
        EXPECT_FALSE(ReadIsoDate(text)) << text;
    }
}

TEST(DateReading, UnderstandsTheUsualForms) {
    for (const char* text :
         {"5/4/98", "05/04/1998", "5-4-1998", "5-4-98", "May 4, 1998", "May 04, 1998", "may 4 1998",
          "4 May 1998", "4-May-98", "May-4-98", "1998-05-04", "1998/5/4", "Monday, May 04, 1998",
          "Mon May 4, 1998", "Mon. 5/4/98", "  5 / 4 / 98  ", "MAY 4, 98"}) {
        EXPECT_EQ(ReadDate(text), FourthOfMay) << text;
    }
    EXPECT_EQ(ReadDate("Sept. 30, 1999"), (DateTime{1999, 9, 30}));
    EXPECT_EQ(ReadDate("Jul 1 2001"), (DateTime{2001, 7, 1}));
}

TEST(DateReading, TakesATimeAlong) {
    EXPECT_EQ(ReadDate("5/4/98 1:05 PM"), (DateTime{1998, 5, 4, 13, 5, 0}));
    EXPECT_EQ(ReadDate("5/4/98 12:00:01 am"), (DateTime{1998, 5, 4, 0, 0, 1}));
    EXPECT_EQ(ReadDate("May 4, 1998, 23:59"), (DateTime{1998, 5, 4, 23, 59, 0}));
}

TEST(DateReading, TwoDigitYearsTurnAtThirty) {
    EXPECT_EQ(ReadDate("1/1/00")->year, 2000);
    EXPECT_EQ(ReadDate("1/1/29")->year, 2029);
    EXPECT_EQ(ReadDate("1/1/30")->year, 1930);
    EXPECT_EQ(ReadDate("1/1/99")->year, 1999);
}

TEST(DateReading, GivesNothingForWhatIsNoDate) {
    for (const char* text : {"",
                             "soon",
                             "5/4",
                             "13/1/98",
                             "2/30/98",
                             "0/1/98",
                             "1/0/98",
                             "2/29/1999",
                             "5/4/98x",
                             "5/4-98",
                             "5/4/19988",
                             "5/4/199",
                             "May",
                             "Ma 4, 1998",
                             "Mayday 4, 1998",
                             "12:30",
                             "5/4/98 25:00",
                             "5/4/98 12:60",
                             "5/4/98 13:00 PM",
                             "5/4/98 0:10 am",
                             "next Monday",
                             "4 5 98",
                             "--",
                             "//",
                             "99999999999/1/98",
                             "Monday"}) {
        EXPECT_FALSE(ReadDate(text)) << text;
    }
    EXPECT_FALSE(ReadDate("5/4/98" + std::string(100, ' ')));
    EXPECT_TRUE(ReadDate("2/29/2000"));
}

}  // namespace
}  // namespace tendo
