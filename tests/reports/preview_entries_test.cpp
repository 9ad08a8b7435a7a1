#include "reports/preview_entries.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

TEST(PageEntry, EmptyIsIgnored) {
    EXPECT_FALSE(PageOfEntry("", 5));
    EXPECT_FALSE(PageOfEntry("   ", 5));
}

TEST(PageEntry, BelowOneIsNotTaken) {
    EXPECT_FALSE(PageOfEntry("0", 5));
    EXPECT_FALSE(PageOfEntry("-1", 5));
}

TEST(PageEntry, AboveTheNumberOfPagesIsNotTaken) {
    EXPECT_FALSE(PageOfEntry("6", 5));
    EXPECT_FALSE(PageOfEntry("99999999999999999999", 5));
}

TEST(PageEntry, FirstAndLastPageAreTaken) {
    EXPECT_EQ(PageOfEntry("1", 5), 1);
    EXPECT_EQ(PageOfEntry(" 5 ", 5), 5);
}

TEST(PageEntry, NothingIsTakenWithoutPages) {
    EXPECT_FALSE(PageOfEntry("1", 0));
}

TEST(PageEntry, WhatIsNoNumberIsNotTaken) {
    for (const char* entry : {"two", "2a", "2.5", "2 3", "+", "-"})
        EXPECT_FALSE(PageOfEntry(entry, 5)) << entry;
}

TEST(ZoomEntry, TakesPercentWithAndWithoutItsSign) {
    EXPECT_EQ(ZoomOfEntry("120"), 120);
    EXPECT_EQ(ZoomOfEntry("120%"), 120);
    EXPECT_EQ(ZoomOfEntry(" 120 % "), 120);
}

TEST(ZoomEntry, RoundsToWholePercent) {
    EXPECT_EQ(ZoomOfEntry("62.4"), 62);
    EXPECT_EQ(ZoomOfEntry("62.5%"), 63);
}

TEST(ZoomEntry, StaysWithinItsBounds) {
    EXPECT_EQ(ZoomOfEntry("1"), SmallestZoom);
    EXPECT_EQ(ZoomOfEntry("0.5"), SmallestZoom);
    EXPECT_EQ(ZoomOfEntry("9999"), LargestZoom);
    EXPECT_EQ(ZoomOfEntry("1e300"), LargestZoom);
}

TEST(ZoomEntry, NonsenseIsIgnored) {
    for (const char* entry : {"", " ", "%", "big", "0", "-50", "nan", "12%%", "1 0"})
        EXPECT_FALSE(ZoomOfEntry(entry)) << entry;
}

}  // namespace
}  // namespace tendo
