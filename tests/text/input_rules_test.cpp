#include "platform/text/input_rules.h"

#include <gtest/gtest.h>

#include "platform/text/text.h"

namespace tendo {
namespace {

/// Types a text key by key at the end of a field; what stands there then.
std::string Typed(const InputValidator& validator, std::string_view keys, std::u32string left = U"",
                  const std::u32string& right = U"", const std::vector<std::string>& list = {}) {
    for (const char32_t key : ToCodePoints(keys))
        if (const auto kept = FilterKey(validator, {left, right}, key, list)) left += *kept;
    return FromCodePoints(left + right);
}

InputValidator Numbers(double least, double most, int places) {
    InputValidator validator;
    validator.NumberField = true;
    validator.MinNumberValue = least;
    validator.MaxNumberValue = most;
    validator.NumberOfDecimalPlaces = places;
    return validator;
}

TEST(NumericRule, AThirdDigitBehindThePointIsDroppedWithTwoDecimalPlaces) {
    EXPECT_EQ(Typed(Numbers(0, 1000, 2), "12.345"), "12.34");
}

TEST(NumericRule, ADigitBeforeThePointPassesWhenTheDecimalsAreFull) {
    EXPECT_EQ(Typed(Numbers(0, 1000, 2), "9", U"1", U".25"), "19.25");
}

TEST(NumericRule, Typing1001WithAMaximumOf100StopsAt100) {
    EXPECT_EQ(Typed(Numbers(0, 100, 0), "1001"), "100");
}

TEST(NumericRule, ADigitBelowTheMinimumIsDroppedOnlyWithAMinusSign) {
    EXPECT_EQ(Typed(Numbers(-50, 100, 0), "-51"), "-5");
    // 1 is below the least value of 10, but on the way to 15.
    EXPECT_EQ(Typed(Numbers(10, 100, 0), "15"), "15");
}

TEST(NumericRule, AMinusSignAnywhereButAtTheStartIsDropped) {
    const InputValidator validator = Numbers(-99, 99, 1);
    EXPECT_EQ(Typed(validator, "1-2-"), "12");
    EXPECT_EQ(Typed(validator, "-", U"", U"12"), "-12");
    EXPECT_EQ(Typed(validator, "--4"), "-4");
    EXPECT_EQ(Typed(validator, "-", U"", U"-12"), "-12");
}

TEST(NumericRule, AMinusSignIsDroppedWhenNothingBelowZeroIsAllowed) {
    EXPECT_EQ(Typed(Numbers(0, 99, 0), "-4"), "4");
}

TEST(NumericRule, APointIsDroppedWithoutDecimalPlacesAndWhenThereIsOne) {
    EXPECT_EQ(Typed(Numbers(0, 999, 0), "1.5"), "15");
    EXPECT_EQ(Typed(Numbers(0, 999, 2), "1.5.5"), "1.55");
}

TEST(NumericRule, OtherKeysAreDroppedAndBackspacePasses) {
    const InputValidator validator = Numbers(0, 999, 2);
    EXPECT_EQ(Typed(validator, "a1 b+2e$,"), "12");
    EXPECT_EQ(FilterKey(validator, {U"999", U""}, BackspaceKey), BackspaceKey);
}

TEST(NumericRule, AMoneyTextCountsWithItsSignAndCommas) {
    // $1,0000 reads as 10000, above 5000.
    EXPECT_EQ(Typed(Numbers(0, 5000, 2), "0", U"$1,000"), "$1,000");
    EXPECT_EQ(Typed(Numbers(0, 50000, 2), "5", U"$1,000"), "$1,0005");
}

TEST(NumericRule, TheKeyReplacesTheSelection) {
    // The selected text stands on neither side: a new text may begin.
    EXPECT_EQ(Typed(Numbers(-10, 10, 0), "-7"), "-7");
}

TEST(TextRule, KeysTurnToTheCaseOfTheField) {
    InputValidator validator;
    validator.CaseRestriction = CaseRestriction::Upper;
    EXPECT_EQ(Typed(validator, "fa-18é"), "FA-18É");
    validator.CaseRestriction = CaseRestriction::Lower;
    EXPECT_EQ(Typed(validator, "ABc"), "abc");
}

TEST(TextRule, ACharacterOutsideOfTheSetIsDroppedAfterItsCaseTurned) {
    InputValidator validator;
    validator.CaseRestriction = CaseRestriction::Upper;
    validator.AllowableCharacters = "ABC";
    EXPECT_EQ(Typed(validator, "aXbDc"), "ABC");
}

TEST(TextRule, AKeyBeyondTheGreatestLengthIsDropped) {
    InputValidator validator;
    validator.MaxTextLength = 3;
    EXPECT_EQ(Typed(validator, "äöüß"), "äöü");
    EXPECT_EQ(FilterKey(validator, {U"äöü", U""}, BackspaceKey), BackspaceKey);
}

TEST(ListRule, OnlyBeginningsOfTheListsItemsCanBeTypedAndTakeTheirSpelling) {
    InputValidator validator;
    validator.AllowOnlyComboFormListItems = true;
    const std::vector<std::string> list = {"Furnace", "Boiler"};
    EXPECT_EQ(Typed(validator, "bOxIlers", U"", U"", list), "Boiler");
    EXPECT_EQ(Typed(validator, "x", U"", U"", list), "");
}

TEST(ListRule, AListOfNumbersSkipsTheNumericRule) {
    InputValidator validator = Numbers(0, 1, 0);
    validator.AllowOnlyComboFormListItems = true;
    EXPECT_EQ(Typed(validator, "1/2", U"", U"", {"1/2", "3/4"}), "1/2");
}

TEST(InputValidatorRange, IsTheLeastAndTheGreatestNumberWithTheirPlaces) {
    EXPECT_EQ(Numbers(-5, 1234.5, 2).Range(), "-5.00 to 1,234.50");
    EXPECT_EQ(Numbers(0, 100, 0).Range(), "0 to 100");
    EXPECT_EQ(InputValidator().Range(), "");
}

TEST(PlainNumericField, DigitsAndBackspacePassAndAllElseIsDropped) {
    for (char32_t key = U'0'; key <= U'9'; ++key)
        EXPECT_TRUE(PlainNumberKeyPasses(key, false, U"12"));
    EXPECT_TRUE(PlainNumberKeyPasses(BackspaceKey, false, U"12"));
    for (const char32_t key : {U'.', U'-', U'a', U' ', U'$'})
        EXPECT_FALSE(PlainNumberKeyPasses(key, false, U"12"));
}

TEST(PlainNumericField, AMoneyFieldTakesOnePoint) {
    EXPECT_TRUE(PlainNumberKeyPasses(U'.', true, U"12"));
    EXPECT_FALSE(PlainNumberKeyPasses(U'.', true, U"1.2"));
    EXPECT_FALSE(PlainNumberKeyPasses(U'-', true, U"12"));
}

TEST(PlainNumericField, ATextThatDoesNotConvertReadsAsZeroWithoutAMessage) {
    for (const char* text : {"", "abc", ".", "12abc", "-"})
        EXPECT_EQ(PlainNumberOnLeave(text), "0.00") << text;
}

TEST(PlainNumericField, TheNumberIsShownInTheFieldsFormat) {
    EXPECT_EQ(PlainNumberOnLeave("1234.5"), "1234.50");
    EXPECT_EQ(PlainNumberOnLeave("1234.5", "$#,###,##0.00"), "$1,234.50");
    EXPECT_EQ(PlainNumberOnLeave("$1,234.50", "$#,###,##0.00"), "$1,234.50");
}

TEST(MovingByKeys, LeftInTheMiddleMovesTheCaretAndAtTheStartLeavesTheField) {
    EXPECT_FALSE(KeyLeavesField(MoveKey::Left, {.caret = 2, .length = 5}));
    EXPECT_TRUE(KeyLeavesField(MoveKey::Left, {.caret = 0, .length = 5}));
}

TEST(MovingByKeys, RightLeavesAtTheEndOrWithAllTheTextSelected) {
    EXPECT_FALSE(KeyLeavesField(MoveKey::Right, {.caret = 2, .length = 5}));
    EXPECT_TRUE(KeyLeavesField(MoveKey::Right, {.caret = 5, .length = 5}));
    EXPECT_TRUE(KeyLeavesField(MoveKey::Right, {.caret = 0, .length = 5, .selected = 5}));
    EXPECT_FALSE(KeyLeavesField(MoveKey::Right, {.caret = 5, .length = 5, .selected = 2}));
}

TEST(MovingByKeys, UpDownAndReturnLeaveFromAnywhereAndAControlWithoutTextAtOnce) {
    for (const MoveKey key : {MoveKey::Up, MoveKey::Down, MoveKey::Return})
        EXPECT_TRUE(KeyLeavesField(key, {.caret = 2, .length = 5}));
    EXPECT_TRUE(KeyLeavesField(MoveKey::Left, {.textField = false, .caret = 2, .length = 5}));
}

TEST(MovingByKeys, AnArrayMovesInItsOwnDirection) {
    EXPECT_EQ(StepInArray(MoveKey::Down, false, false), 1);
    EXPECT_EQ(StepInArray(MoveKey::Up, false, false), -1);
    EXPECT_EQ(StepInArray(MoveKey::Right, false, false), 0);
    EXPECT_EQ(StepInArray(MoveKey::Right, true, false), 1);
    EXPECT_EQ(StepInArray(MoveKey::Left, true, false), -1);
    EXPECT_EQ(StepInArray(MoveKey::Down, true, false), 0);
    EXPECT_EQ(StepInArray(MoveKey::Return, false, true), 1);
    EXPECT_EQ(StepInArray(MoveKey::Return, false, false), 0);
}

TEST(ArrayNames, AreANameWithAnIndexInParentheses) {
    const auto name = ReadArrayName("txtItemQty(14)");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->array, "txtItemQty");
    EXPECT_EQ(name->index, 14);
    for (const char* other :
         {"", "txtTitle", "(3)", "txt()", "txt(-1)", "txt(3)b", "txt(3x)", "txt(99999999999)"})
        EXPECT_FALSE(ReadArrayName(other)) << other;
}

TEST(FontForBigNumbers, ShrinksToSmallFontsUntilTheTextFits) {
    // Ten characters, each as wide as the font is high.
    const auto measure = [](const FittingFont& font) { return font.size * 10; };
    EXPECT_EQ(FontForWidth(200, 10, measure).size, 10);
    EXPECT_EQ(FontForWidth(90, 10, measure).size, 9);
    EXPECT_EQ(FontForWidth(90, 10, measure).family, "MS Sans Serif");
    EXPECT_EQ(FontForWidth(75, 10, measure).size, 7);
    EXPECT_EQ(FontForWidth(75, 10, measure).family, "Small Fonts");
    EXPECT_EQ(FontForWidth(1, 10, measure).size, 5);
}

}  // namespace
}  // namespace tendo
