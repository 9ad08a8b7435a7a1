#include "platform/text/number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tendo {
namespace {

struct TextAndValue {
    const char* text;
    double value;
};

TEST(ValueOfTexts, AcceptsCurrencyThousandsSignAndExponent) {
    constexpr TextAndValue Cases[] = {
        {"$1,234.56", 1234.56},
        {"-$5", -5},
        {"$-5", -5},
        {"($12.00)", -12},
        {" 12 ", 12},
        {"+3", 3},
        {"1e3", 1000},
        {"2.5D-1", 0.25},
        {".5", 0.5},
        {"5.", 5},
        {"1,2,3", 123},
        {"$0.00", 0},
        {"-.25", -0.25},
        {"$ 12", 12},
        {"$(3)", -3},
        {"12-", -12},
        {"007", 7},
        {"\t8", 8},
        {"( 4 )", -4},
        {"1,234,567.5", 1234567.5},
        {"+$1,000", 1000},
        {"1E+2", 100},
    };
    for (const TextAndValue& one : Cases) {
        EXPECT_EQ(ValueOfText(one.text), static_cast<float>(one.value)) << one.text;
        double value = -77;
        EXPECT_TRUE(ReadNumber(one.text, value)) << one.text;
        EXPECT_DOUBLE_EQ(value, one.value) << one.text;
    }
}

TEST(ValueOfTexts, ATextThatIsNoNumberReadsAsZero) {
    constexpr const char* Cases[] = {
        "",     "same", "-",    ".",     "$",   "12abc",  "1 2", "%",     "45%", "--5", "$$5",
        "(5",   "5)",   "(-5)", "1.2.3", "1e",  "e5",     ",5",  "1.5,0", "()",  "+",   "-$",
        "5 -x", "1e5.", "0x10", "inf",   "nan", "- same", "5--", "-5-",   "£5",  "1e+",
    };
    for (const char* text : Cases) {
        EXPECT_EQ(ValueOfText(text), 0.0f) << text;
        double value = -77;
        EXPECT_FALSE(ReadNumber(text, value)) << text;
        EXPECT_EQ(value, -77) << text;
    }
}

TEST(ValueOfTexts, OutsideTheRangeOfAFloatReadsAsZero) {
    EXPECT_EQ(ValueOfText("3.5e38"), 0.0f);
    EXPECT_EQ(ValueOfText("-1e39"), 0.0f);
    EXPECT_EQ(ValueOfText("1e99999999999999999999"), 0.0f);
    EXPECT_EQ(ValueOfText(std::string(400, '9')), 0.0f);
    EXPECT_EQ(ValueOfText("3.4028235e38"), std::numeric_limits<float>::max());
    EXPECT_EQ(ValueOfText("1e-60"), 0.0f);  // too small to hold
}

TEST(ValueOfTexts, ReadsDoublesToTheirOwnRange) {
    double value = -1;
    EXPECT_TRUE(ReadNumber("1e300", value));
    EXPECT_EQ(value, 1e300);
    EXPECT_FALSE(ReadNumber("1e309", value));
    EXPECT_FALSE(ReadNumber(std::string(310, '9'), value));
    EXPECT_TRUE(ReadNumber("1e-400", value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(ReadNumber("0." + std::string(400, '0') + "1", value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(ReadNumber("0e999999999999999999999", value));
    EXPECT_EQ(value, 0);
    EXPECT_FALSE(ReadNumber("0.001e400", value));
    EXPECT_TRUE(ReadNumber("1000e-99999999999999999999", value));
    EXPECT_EQ(value, 0);
}

TEST(LeadingNumbers, TakeDigitsAsFarAsTheyGo) {
    constexpr TextAndValue Cases[] = {
        {"1 'True", 1},    {"0 'False", 0}, {"12abc", 12}, {"abc", 0},    {"", 0},
        {"  -3.5x", -3.5}, {"+4", 4},       {"\t\n 7", 7}, {".5.5", 0.5}, {"1e3", 1000},
        {"1d2", 100},      {"1e", 1},       {"2e+x", 2},   {"-", 0},      {"$5", 0},
        {"1,000", 1},      {"24 12", 2412},  // blanks within are passed over too
        {"1e9999", 0},     {"- 5", -5},
    };
    for (const TextAndValue& one : Cases) {
        EXPECT_DOUBLE_EQ(LeadingNumber(one.text), one.value) << one.text;
    }
}

TEST(LeadingNumbers, UnderstandHexadecimal) {
    EXPECT_EQ(LeadingNumber("&HFF"), 255);
    EXPECT_EQ(LeadingNumber(" &hC0FFFF "), 0xC0FFFF);
    EXPECT_EQ(LeadingNumber("&HFFFF"), -1);  // four digits are a 16-bit number with sign
    EXPECT_EQ(LeadingNumber("&HFFFF&"), 65535);
    EXPECT_EQ(LeadingLong("&H80000005"), -2147483643);  // a system colour
    EXPECT_EQ(LeadingNumber("&H"), 0);
    EXPECT_EQ(LeadingNumber("&HXY"), 0);
    EXPECT_EQ(LeadingNumber("&H123456789"), 0);  // more than 32 bits
    EXPECT_EQ(LeadingNumber("&"), 0);
}

TEST(LeadingNumbers, StayWithinTheRangeOfTheType) {
    EXPECT_EQ(LeadingInteger("32767"), 32767);
    EXPECT_EQ(LeadingInteger("-32768"), -32768);
    EXPECT_EQ(LeadingInteger("32768"), 0);
    EXPECT_EQ(LeadingLong("2147483647"), 2147483647);
    EXPECT_EQ(LeadingLong("2147483648"), 0);
    EXPECT_EQ(LeadingLong("-1e30"), 0);
    EXPECT_EQ(LeadingSingle("8.25"), 8.25f);
    EXPECT_EQ(LeadingSingle("1e39"), 0.0f);
    EXPECT_EQ(LeadingSingle("3.4028235E+38"), std::numeric_limits<float>::max());
    EXPECT_EQ(LeadingSingle("&HFF"), 255.0f);
    EXPECT_EQ(LeadingInteger("2.5"), 2);  // a half goes to the even number
    EXPECT_EQ(LeadingInteger("3.5"), 4);
}

TEST(PlainNumbers, HaveAtMostSevenDigitsForAFloat) {
    EXPECT_EQ(PlainNumberText(999.9f), "999.9");
    EXPECT_EQ(PlainNumberText(0.25f), "0.25");
    EXPECT_EQ(PlainNumberText(0.5f), "0.5");
    EXPECT_EQ(PlainNumberText(-3.0f), "-3");
    EXPECT_EQ(PlainNumberText(1e20f), "1E+20");
    EXPECT_EQ(PlainNumberText(1234567.0f), "1234567");
    EXPECT_EQ(PlainNumberText(12345678.0f), "1.234568E+07");
    EXPECT_EQ(PlainNumberText(0.1f), "0.1");
    EXPECT_EQ(PlainNumberText(1.0f / 3), "0.3333333");
    EXPECT_EQ(PlainNumberText(0.0f), "0");
    EXPECT_EQ(PlainNumberText(-0.0f), "0");
}

TEST(PlainNumbers, HaveFifteenForADouble) {
    EXPECT_EQ(PlainNumberText(0.1), "0.1");
    EXPECT_EQ(PlainNumberText(1234567890.25), "1234567890.25");
    EXPECT_EQ(PlainNumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(PlainNumberText(1e300), "1E+300");
    EXPECT_EQ(PlainNumberText(std::int32_t{-42}), "-42");
}

TEST(PlainNumbers, OfWhatIsNoNumberReadBackAsZero) {
    EXPECT_EQ(PlainNumberText(std::numeric_limits<float>::infinity()), "1.#INF");
    EXPECT_EQ(PlainNumberText(-std::numeric_limits<double>::infinity()), "-1.#INF");
    EXPECT_EQ(ValueOfText(PlainNumberText(std::numeric_limits<float>::quiet_NaN())), 0.0f);
}

}  // namespace
}  // namespace tendo
