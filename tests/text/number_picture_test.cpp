#include <gtest/gtest.h>

#include <limits>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

struct PictureCase {
    double value;
    const char* picture;
    const char* text;
};

TEST(NumberPictures, WriteTheScreensFormats) {
    constexpr PictureCase Cases[] = {
        {0, "$#,###,##0.00", "$0.00"},
        {1234.5, "$#,###,##0.00", "$1,234.50"},
        {1234567.891, "$#,###,##0.00", "$1,234,567.89"},
        {123456789, "$#,###,##0.00", "$123,456,789.00"},  // more digits than places
        {-12, "$#,###,##0.00", "-$12.00"},
        {0.5, "$#,###,##0.00", "$0.50"},
        {999, "$###,###,##0.00", "$999.00"},
        {1000, "$###,###,##0.00", "$1,000.00"},
        {40, "$##0.00", "$40.00"},
        {1234, "$##0.00", "$1234.00"},
        {1234, "$#,##0.00", "$1,234.00"},
        {25, "##0.0", "25.0"},
        {33.333, "##0.0", "33.3"},
        {-75000, "##0.0", "-75000.0"},
        {8.25, "##0.0#", "8.25"},
        {8.5, "##0.0#", "8.5"},
        {8, "##0.0#", "8.0"},
        {12345, "###,##0", "12,345"},
        {12, "##0", "12"},
        {1.5, "#,##0.00", "1.50"},
        {3.1, "###0.00", "3.10"},
        {7, "#0.00", "7.00"},
    };
    for (const PictureCase& one : Cases) {
        EXPECT_EQ(FormatNumber(one.value, one.picture), one.text) << one.picture;
    }
}

TEST(NumberPictures, APercentSignMultipliesByHundred) {
    EXPECT_EQ(FormatNumber(0.45, "##0.0%"), "45.0%");
    EXPECT_EQ(FormatNumber(0.45, "##.0%"), "45.0%");
    EXPECT_EQ(FormatNumber(0.0045, "##.0%"), ".5%");  // 0.45, rounded; no zero before the point
    EXPECT_EQ(FormatNumber(0.0, "##.0%"), ".0%");
    EXPECT_EQ(FormatNumber(0.333f, "##0.0%"), "33.3%");
    EXPECT_EQ(FormatNumber(-0.05, "##0.0%"), "-5.0%");
}

TEST(NumberPictures, ABackslashMakesTheNextCharacterStandAsItIs) {
    EXPECT_EQ(FormatNumber(1250.0, "\\$#####0"), "$1250");
    EXPECT_EQ(FormatNumber(0.0, "\\$#####0"), "$0");
    EXPECT_EQ(FormatNumber(5.0, "\\#0\\%"), "#5%");
    EXPECT_EQ(FormatNumber(5.0, "0\\"), "5");
    EXPECT_EQ(FormatNumber(5.0, "0 MBH"), "5 MBH");
}

TEST(NumberPictures, AFloatIsTakenInItsShortestDecimalForm) {
    EXPECT_EQ(FormatNumber(0.125f, "0.00"), "0.13");
    EXPECT_EQ(FormatNumber(2.675f, "0.00"), "2.68");  // binary 2.67499995
    EXPECT_EQ(FormatNumber(1.005f, "0.00"), "1.01");
    EXPECT_EQ(FormatNumber(2.675, "0.00"), "2.68");
    EXPECT_EQ(FormatNumber(0.285, "0.00"), "0.29");
    EXPECT_EQ(FormatNumber(16777216.0f, "#,##0.00"), "16,777,216.00");
}

TEST(NumberPictures, TiesRoundAwayFromZero) {
    EXPECT_EQ(FormatNumber(0.05, "0.0"), "0.1");
    EXPECT_EQ(FormatNumber(-0.05, "0.0"), "-0.1");
    EXPECT_EQ(FormatNumber(0.5, "0"), "1");
    EXPECT_EQ(FormatNumber(1.5, "0"), "2");
    EXPECT_EQ(FormatNumber(2.5, "0"), "3");
    EXPECT_EQ(FormatNumber(0.049, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(9.995, "0.00"), "10.00");
    EXPECT_EQ(FormatNumber(999.95, "#,##0.0"), "1,000.0");
    EXPECT_EQ(FormatNumber(0.004, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(1.04, "0.0"), "1.0");
    EXPECT_EQ(FormatNumber(10.04, "0.0"), "10.0");
}

TEST(NumberPictures, ANegativeNumberThatRoundsToZeroHasNoMinus) {
    EXPECT_EQ(FormatNumber(-0.004, "$#,###,##0.00"), "$0.00");
    EXPECT_EQ(FormatNumber(-0.0f, "##0.0"), "0.0");
    EXPECT_EQ(FormatNumber(-0.005, "$#,###,##0.00"), "-$0.01");
}

TEST(NumberPictures, NumberSignsSuppressZeros) {
    EXPECT_EQ(FormatNumber(0.0, "#"), "");
    EXPECT_EQ(FormatNumber(0.25, "#.##"), ".25");
    EXPECT_EQ(FormatNumber(1.5, "#.##"), "1.5");
    EXPECT_EQ(FormatNumber(1.05, "0.0##"), "1.05");
    EXPECT_EQ(FormatNumber(5.0, "0,000"), "0,005");
    EXPECT_EQ(FormatNumber(12.0, ".00"), "12.00");
}

TEST(NumberPictures, ExtremeNumbersAreWrittenInFull) {
    EXPECT_EQ(FormatNumber(1e20f, "0.0"), "100000000000000000000.0");
    EXPECT_EQ(FormatNumber(1e-30, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0").size(), 309u);
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::denorm_min(), "#.#"), ".");
}

TEST(NumberPictures, WhatIsNoNumberIsAnOverflow) {
    for (const float value :
         {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        try {
            FormatNumber(value, MoneyPicture);
            ADD_FAILURE() << "no error for " << value;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), error_number::Overflow);
        }
    }
}

TEST(NumberPictures, AFormattedNumberReadsBack) {
    EXPECT_EQ(ValueOfText(FormatNumber(-1234.5f, MoneyPicture)), -1234.5f);
    EXPECT_EQ(ValueOfText(FormatNumber(8.25f, TaxPicture)), 8.25f);
    EXPECT_EQ(ValueOfText(FormatNumber(20.0f, PercentPicture)), 20.0f);
}

}  // namespace
}  // namespace tendo
