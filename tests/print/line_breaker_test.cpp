#include "platform/print/line_breaker.h"

#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"

namespace tendo {
namespace {

// In the fixed font of ten points every character is 100 twips wide and a line 200 twips high.
class LineBreaking : public testing::Test {
  protected:
    std::vector<std::string> Break(std::string_view text, int width) {
        const StyledRun run{text, fonts.Id({}), 0};
        std::vector<std::string> lines;
        for (const TextLine& line : BreakLines(fonts, {&run, 1}, {width, 0, 0, {}})) {
            lines.emplace_back();
            for (const LineFragment& fragment : line.fragments)
                lines.back() += fragment.text;
        }
        return lines;
    }

    FixedMeasurer measurer;
    FontTable fonts{measurer};
};

using Lines = std::vector<std::string>;

TEST_F(LineBreaking, AnEmptyTextIsOneEmptyLine) {
    EXPECT_EQ(Break("", 1000), Lines{""});
}

TEST_F(LineBreaking, WordsThatFitExactlyStayOnTheLine) {
    EXPECT_EQ(Break("abcde fghi", 1000), Lines{"abcde fghi"});
    EXPECT_EQ(Break("abcde fghij", 1000), (Lines{"abcde", "fghij"}));
}

TEST_F(LineBreaking, BlanksAtTheStartStayAndBlanksAtABreakVanish) {
    EXPECT_EQ(Break("  ab   cdefgh", 800), (Lines{"  ab", "cdefgh"}));
}

TEST_F(LineBreaking, AWordWiderThanTheLineIsBrokenBetweenCharacters) {
    EXPECT_EQ(Break("abcdefgh", 300), (Lines{"abc", "def", "gh"}));
    EXPECT_EQ(Break("äöüß", 200), (Lines{"äö", "üß"}));
}

TEST_F(LineBreaking, AWordWiderThanTheLineIsBrokenBehindItsHyphens) {
    EXPECT_EQ(Break("FA-3614-208/230V", 1000), (Lines{"FA-3614-", "208/230V"}));
    EXPECT_EQ(Break("FA-3614-208/230V", 500), (Lines{"FA-", "3614-", "208/", "230V"}));
    // A part that is too wide itself is broken between characters: "3614-" at four a line.
    EXPECT_EQ(Break("FA-3614-9", 400), (Lines{"FA-3", "614-", "9"}));
    EXPECT_EQ(Break("a-b ccc", 500), (Lines{"a-b", "ccc"}));  // a word that fits isn't touched
}

TEST_F(LineBreaking, ACommaOfANumberPartsNothing) {
    EXPECT_EQ(Break("1,234,567 a,b,c", 400), (Lines{"1,23", "4,56", "7", "a,b,", "c"}));
}

TEST_F(LineBreaking, AnAccentStaysWithItsLetter) {
    // e and U+0301: the fixed font counts two characters.
    EXPECT_EQ(Break("e\u0301e\u0301", 200), (Lines{"e\u0301", "e\u0301"}));
    EXPECT_EQ(Break("e\u0301e\u0301", 100), (Lines{"e\u0301", "e\u0301"}));
}

TEST_F(LineBreaking, AWordBehindTabsThatLeaveTheLineGoesToTheNext) {
    EXPECT_EQ(Break("\t\t\tab", 1000), (Lines{"", "ab"}));
}

TEST_F(LineBreaking, AMegabyteWithoutABlankLosesNoCharacter) {
    const std::string text(1 << 20, 'x');
    std::size_t characters = 0;
    for (const std::string& line : Break(text, 10000)) {
        EXPECT_LE(line.size(), 100U);
        characters += line.size();
    }
    EXPECT_EQ(characters, text.size());
}

TEST_F(LineBreaking, ALineNarrowerThanACharacterHoldsOne) {
    EXPECT_EQ(Break("abc", 10), (Lines{"a", "b", "c"}));
}

TEST_F(LineBreaking, ALineEndBreaksAndACarriageReturnVanishes) {
    EXPECT_EQ(Break("Dealer\r\nCost", 5000), (Lines{"Dealer", "Cost"}));
    EXPECT_EQ(Break("a\n\nb", 5000), (Lines{"a", "", "b"}));
}

TEST_F(LineBreaking, AWordOfTwoFontsIsNotTornApart) {
    const int bold = fonts.Id({"Arial", 200, true});
    const StyledRun runs[] = {{"one tw", fonts.Id({}), 0}, {"o", bold, 0}};
    // "one two" is 700 wide: at 650 the whole word "two" goes to the next line.
    const std::vector<TextLine> lines = BreakLines(fonts, runs, {650, 0, 0, {}});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].width, 300);
    ASSERT_EQ(lines[1].fragments.size(), 2U);
    EXPECT_EQ(lines[1].fragments[0].text, "tw");
    EXPECT_EQ(lines[1].fragments[1].text, "o");
    EXPECT_EQ(lines[1].fragments[1].x, 200);
}

TEST_F(LineBreaking, ALineIsAsHighAsItsLargestFont) {
    const int large = fonts.Id({"Arial", 400});
    const StyledRun runs[] = {{"a ", fonts.Id({}), 0}, {"B", large, 0}};
    const std::vector<TextLine> lines = BreakLines(fonts, runs, {5000, 0, 0, {}});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].height, 400);
    EXPECT_EQ(lines[0].ascent, 320);  // four fifths of the size
}

TEST_F(LineBreaking, ATabGoesToItsStopAndElseToTheNextHalfInch) {
    const StyledRun run{"a\tb\tc", fonts.Id({}), 0};
    const std::vector<TextLine> lines = BreakLines(fonts, {&run, 1}, {5000, 0, 0, {{900}}});
    ASSERT_EQ(lines[0].fragments.size(), 3U);
    EXPECT_EQ(lines[0].fragments[1].x, 900);
    EXPECT_EQ(lines[0].fragments[2].x, 1440);
}

TEST_F(LineBreaking, TheFirstLineStandsAtItsOwnIndent) {
    const StyledRun run{"aa bb", fonts.Id({}), 0};
    const std::vector<TextLine> lines = BreakLines(fonts, {&run, 1}, {500, 200, 100, {}});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].fragments[0].x, 200);
    EXPECT_EQ(lines[1].fragments[0].x, 100);
}

}  // namespace
}  // namespace tendo
