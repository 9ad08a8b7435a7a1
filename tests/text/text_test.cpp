#include "platform/text/text.h"

#include <gtest/gtest.h>

#include "platform/text/fixed_text.h"

namespace tendo {
namespace {

TEST(Trimming, TakesBlanksOffBothEndsOrOne) {
    EXPECT_EQ(Trimmed("  a b  "), "a b");
    EXPECT_EQ(TrimmedLeft("  a b  "), "a b  ");
    EXPECT_EQ(TrimmedRight("  a b  "), "  a b");
    EXPECT_EQ(Trimmed("    "), "");
    EXPECT_EQ(TrimmedLeft(""), "");
}

TEST(Trimming, OnlyTheBlankCounts) {
    EXPECT_EQ(Trimmed("\t a \n"), "\t a \n");
    EXPECT_EQ(Trimmed(" \xC2\xA0 "), "\xC2\xA0");  // a hard blank stays
}

TEST(Characters, AreCountedNotBytes) {
    EXPECT_EQ(CharacterCount(""), 0u);
    EXPECT_EQ(CharacterCount("Müller"), 6u);
    EXPECT_EQ(CharacterCount("€𝄞"), 2u);  // three and four bytes
}

TEST(Characters, BrokenBytesCountAsOneEach) {
    EXPECT_EQ(CharacterCount("\xFF\xFE"), 2u);
    EXPECT_EQ(CharacterCount("a\xE2\x82"), 3u);         // a sequence cut short
    EXPECT_EQ(CharacterCount("\xC0\x80"), 2u);          // an overlong zero
    EXPECT_EQ(CharacterCount("\xED\xA0\x80"), 3u);      // a surrogate
    EXPECT_EQ(CharacterCount("\xF4\x90\x80\x80"), 4u);  // above the last code point
}

TEST(Characters, FirstAndLastNeverCutACharacter) {
    EXPECT_EQ(FirstCharacters("Müller", 2), "Mü");
    EXPECT_EQ(FirstCharacters("Müller", 99), "Müller");
    EXPECT_EQ(FirstCharacters("Müller", 0), "");
    EXPECT_EQ(LastCharacters("5 €𝄞", 2), "€𝄞");
    EXPECT_EQ(LastCharacters("äöü", 3), "äöü");
    EXPECT_EQ(LastCharacters("abc", 0), "");
}

TEST(LetterCase, MapsLatinGreekAndCyrillic) {
    EXPECT_EQ(UpperCase("proposal.TDW 12"), "PROPOSAL.TDW 12");
    EXPECT_EQ(LowerCase("PROPOSAL.tdw 12"), "proposal.tdw 12");
    EXPECT_EQ(UpperCase("äöüéñçÿ÷ß"), "ÄÖÜÉÑÇŸ÷ß");
    EXPECT_EQ(LowerCase("ÄÖÜÉÑÇŸ×"), "äöüéñçÿ×");
    EXPECT_EQ(UpperCase("łőžąıſ"), "ŁŐŽĄIS");
    EXPECT_EQ(LowerCase("ŁŐŽĄİ"), "łőžąi");
    EXPECT_EQ(UpperCase("αβγάέήίόύώς"), "ΑΒΓΆΈΉΊΌΎΏΣ");
    EXPECT_EQ(LowerCase("ΑΒΓΆΈΉΊΌΎΏΣΪ"), "αβγάέήίόύώσϊ");
    EXPECT_EQ(UpperCase("привет ёжґӏ"), "ПРИВЕТ ЁЖҐӀ");
    EXPECT_EQ(LowerCase("ПРИВЕТ ЁЖҐӀ"), "привет ёжґӏ");
    EXPECT_EQ(UpperCase("ệ µ"), "Ệ Μ");  // the micro sign's capital is the Greek letter
}

TEST(LetterCase, LeavesEverythingElse) {
    EXPECT_EQ(UpperCase("漢字 €½"), "漢字 €½");
    EXPECT_EQ(UpperCase("a\xFFz\xE2\x82"), "A\xFFZ\xE2\x82");
}

TEST(LetterCase, ComparesWithoutCase) {
    EXPECT_TRUE(EqualsNoCase("Velmo SoftWare", "Velmo Software"));
    EXPECT_TRUE(EqualsNoCase("MÜLLER", "müller"));
    EXPECT_TRUE(EqualsNoCase("σ", "ς"));
    EXPECT_TRUE(EqualsNoCase("", ""));
    EXPECT_FALSE(EqualsNoCase("abc", "ab"));
    EXPECT_FALSE(EqualsNoCase("abc", "abd"));
    EXPECT_FALSE(EqualsNoCase("@", "`"));  // 0x20 apart, but no letters
    EXPECT_FALSE(EqualsNoCase("ä", "ö"));
}

TEST(TextParts, AreFoundReplacedAndSplit) {
    EXPECT_TRUE(StartsWith("Tendo.ini", "Tendo"));
    EXPECT_FALSE(StartsWith("Ten", "Tendo"));
    EXPECT_TRUE(EndsWith("Tendo.ini", ".ini"));
    EXPECT_TRUE(Contains("<STOP>", "TO"));
    EXPECT_FALSE(Contains("<STOP>", "to"));
    EXPECT_EQ(Replaced("a.b.c", ".", "::"), "a::b::c");
    EXPECT_EQ(Replaced("aaa", "a", "aa"), "aaaaaa");  // never within what was put in
    EXPECT_EQ(Replaced("abc", "", "x"), "abc");
    EXPECT_EQ(Split("a|b||", '|'), (std::vector<std::string>{"a", "b", "", ""}));
    EXPECT_EQ(Split("", '|'), (std::vector<std::string>{""}));
}

TEST(CodePoints, GoBothWays) {
    EXPECT_EQ(ToCodePoints("aé€𝄞"), U"aé€𝄞");
    EXPECT_EQ(FromCodePoints(U"aé€𝄞"), "aé€𝄞");
    EXPECT_EQ(ToCodePoints("a\xFF"), U"a\xFFFD");
    EXPECT_EQ(FromCodePoints(std::u32string{0xD800, 0x110000}), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(CodePoints, WellFormedTextIsTold) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("aé€𝄞\xF4\x8F\xBF\xBF"));
    EXPECT_FALSE(IsUtf8("caf\xE9"));
    EXPECT_FALSE(IsUtf8("\xC1\xBF"));
    EXPECT_FALSE(IsUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(IsUtf8("\xF5\x80\x80\x80"));
}

TEST(FixedTexts, AStoredTitleOf41CharactersIsCutTo40) {
    const std::string title = "1234567890123456789012345678901234567890X";
    FixedText<40> stored(title);
    EXPECT_EQ(stored.Trimmed(), title.substr(0, 40));
    EXPECT_EQ(stored.Padded(), title.substr(0, 40));
}

TEST(FixedTexts, AStoredTitleOf41CharactersOutsideAsciiIsCutTo40) {
    std::string title;
    for (int i = 0; i < 41; ++i)
        title += "ü";
    const FixedText<40> stored(title);
    EXPECT_EQ(CharacterCount(stored.Trimmed()), 40u);
    EXPECT_EQ(stored.Trimmed().size(), 80u);
    EXPECT_TRUE(IsUtf8(stored.Trimmed()));
}

TEST(FixedTexts, ReadBackPaddedWithBlanks) {
    FixedText<6> text("äb");
    EXPECT_EQ(text.Padded(), "äb    ");
    EXPECT_EQ(text.width(), 6u);
    text = "  c ";
    EXPECT_EQ(text.Padded(), "  c   ");
    EXPECT_EQ(text.Trimmed(), "c");
    EXPECT_EQ(text.WithoutPadding(), "  c");
    EXPECT_FALSE(text.IsBlank());
}

TEST(FixedTexts, ANewFieldIsAllBlanks) {
    const FixedText<4> text;
    EXPECT_EQ(text.Padded(), "    ");
    EXPECT_TRUE(text.IsBlank());
    EXPECT_EQ(text, FixedText<4>("   "));
}

}  // namespace
}  // namespace tendo
