#include "platform/print/contrast.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

TEST(Contrasts, BlackOnWhiteIsTheLargest) {
    // Luminances 0 and 1: (1 + 0.05) / (0 + 0.05).
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 1e-9);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0x000000), 21, 1e-9);
    EXPECT_NEAR(Contrast(0x808080, 0x808080), 1, 1e-9);
    // Pure red has the luminance 0.2126: 1.05 / 0.2626.
    EXPECT_NEAR(Contrast(0xFF0000, 0xFFFFFF), 3.9985, 1e-3);
}

TEST(Contrasts, ATextThatCanBeReadKeepsItsColour) {
    EXPECT_EQ(LegibleOn(0xFFE0C0, 0x333333), 0x333333U);
    EXPECT_EQ(LegibleOn(0xFFFFFF, 0xFF0000), 0xFF0000U);
}

TEST(Contrasts, ATextThatCannotBeReadTurnsBlackOrWhite) {
    EXPECT_EQ(LegibleOn(0x203070, 0x333333), 0xFFFFFFU);
    EXPECT_EQ(LegibleOn(0xFFFF80, 0xFFFFFF), 0x000000U);
}

}  // namespace
}  // namespace tendo
