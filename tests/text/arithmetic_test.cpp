#include "platform/text/arithmetic.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

int ErrorOf(const std::string& text) {
    try {
        EvaluateArithmetic(text);
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(Arithmetic, ProductsGoBeforeSums) {
    EXPECT_EQ(EvaluateArithmetic("3*12+4"), 40);
    EXPECT_EQ(EvaluateArithmetic("4+3*12"), 40);
    EXPECT_EQ(EvaluateArithmetic("(250-18)/2"), 116);
    EXPECT_EQ(EvaluateArithmetic("100-20-5"), 75);
    EXPECT_EQ(EvaluateArithmetic("100/4/5"), 5);
    EXPECT_EQ(EvaluateArithmetic("2*(3+(4-1))*2"), 24);
}

TEST(Arithmetic, TakesBlanksPointsAndSigns) {
    EXPECT_EQ(EvaluateArithmetic(" 2.5 * 4 "), 10);
    EXPECT_EQ(EvaluateArithmetic("-3+5"), 2);
    EXPECT_EQ(EvaluateArithmetic("5*-2"), -10);
    EXPECT_EQ(EvaluateArithmetic("5--2"), 7);
    EXPECT_EQ(EvaluateArithmetic(".5+.25"), 0.75);
    EXPECT_EQ(EvaluateArithmetic("12"), 12);
}

TEST(Arithmetic, WhatIsNoExpressionHasNoValue) {
    for (const char* text : {"", " ", "3*", "*3", "3 4", "(3", "3)", "()", "abc", "3a", "1.2.3",
                             ".", "-", "2(3)", "3,4", "1e3", "$5"})
        EXPECT_EQ(EvaluateArithmetic(text), std::nullopt) << text;
}

TEST(Arithmetic, ADivisionByZeroIsAnError) {
    EXPECT_EQ(ErrorOf("3/0"), 11);
    EXPECT_EQ(ErrorOf("3/(2-2)"), 11);
    EXPECT_EQ(ErrorOf("0/3"), 0);  // none
}

TEST(Arithmetic, IsBoundedInLengthAndDepth) {
    EXPECT_EQ(EvaluateArithmetic(std::string(50, '(') + "7" + std::string(50, ')')), 7);
    EXPECT_EQ(EvaluateArithmetic(std::string(51, '(') + "7" + std::string(51, ')')), std::nullopt);
    EXPECT_EQ(EvaluateArithmetic("1" + std::string(199, ' ')), 1);
    EXPECT_EQ(EvaluateArithmetic("1" + std::string(200, ' ')), std::nullopt);
}

}  // namespace
}  // namespace tendo
