#include "platform/text/runtime_error.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

TEST(RuntimeErrors, CarryNumberAndDescription) {
    const RuntimeError error(error_number::DivisionByZero, "Division by zero");
    EXPECT_EQ(error.Number(), 11);
    EXPECT_EQ(error.Description(), "Division by zero");
}

TEST(RuntimeErrors, HaveUsualDescriptions) {
    EXPECT_EQ(ErrorDescription(6), "Overflow");
    EXPECT_EQ(ErrorDescription(11), "Division by zero");
    EXPECT_EQ(ErrorDescription(13), "Type mismatch");
    EXPECT_EQ(ErrorDescription(53), "File not found");
    EXPECT_EQ(ErrorDescription(3265), "Item not found in this collection.");
    EXPECT_EQ(ErrorDescription(-1), "Application-defined or object-defined error");
}

TEST(RuntimeErrors, AreThrownByNumber) {
    try {
        ThrowError(error_number::SubscriptOutOfRange);
        FAIL() << "nothing was thrown";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 9);
        EXPECT_EQ(error.Description(), "Subscript out of range");
    }
}

}  // namespace
}  // namespace tendo
