#include "platform/database/like_pattern.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

bool Like(std::string_view text, std::string_view pattern) {
    const auto read = LikePattern::Read(pattern);
    EXPECT_TRUE(read.has_value()) << pattern;
    return read && read->Matches(text);
}

bool IsBroken(std::string_view pattern) {
    return !LikePattern::Read(pattern).has_value();
}

TEST(LikePattern, AsteriskStandsForAnyCharactersAlsoNone) {
    EXPECT_TRUE(Like("", "*"));
    EXPECT_TRUE(Like("anything", "*"));
    EXPECT_TRUE(Like("pipe", "*pipe*"));
    EXPECT_TRUE(Like("copper pipe 1/2", "*pipe*"));
    EXPECT_TRUE(Like("aXbXc", "a*b*c"));
    EXPECT_FALSE(Like("aXbX", "a*b*c"));
    EXPECT_FALSE(Like("pip", "*pipe*"));
}

TEST(LikePattern, AMisfitLateInTheTextGoesBackToTheLastAsterisk) {
    EXPECT_TRUE(Like("ababac", "*abac"));
    EXPECT_TRUE(Like("mississippi", "m*iss*ip*i"));
    EXPECT_FALSE(Like("mississippi", "m*iss*is*sip"));
}

TEST(LikePattern, WithoutSignsTheWholeTextMustFit) {
    EXPECT_TRUE(Like("Pipe", "pipe"));
    EXPECT_FALSE(Like("Pipes", "pipe"));
    EXPECT_FALSE(Like("", "pipe"));
    EXPECT_TRUE(Like("", ""));
    EXPECT_FALSE(Like("x", ""));
}

TEST(LikePattern, CaseDoesNotCount) {
    EXPECT_TRUE(Like("PIPE", "pipe"));
    EXPECT_TRUE(Like("pipe", "PI[P]E"));
    EXPECT_TRUE(Like("\xC3\x89lan", "\xC3\xA9LAN"));  // an accented E in both cases
    EXPECT_TRUE(Like("Q", "[a-z]"));
    EXPECT_FALSE(Like("Q", "[!a-z]"));
}

TEST(LikePattern, QuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(Like("cat", "c?t"));
    EXPECT_FALSE(Like("ct", "c?t"));
    EXPECT_FALSE(Like("coat", "c?t"));
    EXPECT_TRUE(Like("\xC3\xA9", "?"));  // one character of two bytes
}

TEST(LikePattern, NumberSignStandsForADigit) {
    EXPECT_TRUE(Like("System 4", "System #"));
    EXPECT_FALSE(Like("System x", "System #"));
    EXPECT_FALSE(Like("System #", "System #"));
    EXPECT_FALSE(Like("System 12", "System #"));
}

TEST(LikePattern, BracketsHoldASet) {
    EXPECT_TRUE(Like("b", "[abc]"));
    EXPECT_FALSE(Like("d", "[abc]"));
    EXPECT_TRUE(Like("5", "[0-4a5-9]"));
    EXPECT_FALSE(Like("b", "[!abc]"));
    EXPECT_TRUE(Like("d", "[!abc]"));
    EXPECT_FALSE(Like("", "[!abc]"));
}

TEST(LikePattern, ASignInBracketsStandsForItself) {
    EXPECT_TRUE(Like("5*", "5[*]"));
    EXPECT_FALSE(Like("55", "5[*]"));
    EXPECT_TRUE(Like("what?", "what[?]"));
    EXPECT_TRUE(Like("#4", "[#]4"));
    EXPECT_TRUE(Like("[1]", "[[]1]"));
    EXPECT_TRUE(Like("!", "[!]"));  // alone it is no negation
    EXPECT_TRUE(Like("!", "!"));
    EXPECT_TRUE(Like("-", "[a-]"));
    EXPECT_TRUE(Like("-", "[-a]"));
    EXPECT_TRUE(Like("]", "]"));
}

TEST(LikePattern, EmptyBracketsStandForNoCharacter) {
    EXPECT_TRUE(Like("ab", "a[]b"));
    EXPECT_FALSE(Like("axb", "a[]b"));
}

TEST(LikePattern, AnOpenBracketAndABackwardRangeAreBroken) {
    EXPECT_TRUE(IsBroken("a["));
    EXPECT_TRUE(IsBroken("*[abc*"));
    EXPECT_TRUE(IsBroken("[z-a]"));
    EXPECT_FALSE(IsBroken("]a"));
}

TEST(LikePattern, ManyAsterisksTakeNoLongTime) {
    // Trying every way to share out the text would not end in a lifetime.
    std::string pattern;
    for (int i = 0; i < 200; ++i)
        pattern += "a*";
    EXPECT_FALSE(Like(std::string(20000, 'a'), pattern + "b"));
}

}  // namespace
}  // namespace tendo
