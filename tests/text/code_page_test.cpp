#include "platform/text/code_page.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

using namespace std::string_literals;

TEST(CodePages, Windows1252GoesBothWays) {
    EXPECT_EQ(FromWindows1252("caf\xE9 \x80 \x93x\x94"), "café € “x”");
    EXPECT_EQ(ToWindows1252("café € “x”"), "caf\xE9 \x80 \x93x\x94");
}

TEST(CodePages, EveryByteComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(ToWindows1252(FromWindows1252(all)), all);
}

TEST(CodePages, TheOpenBytesAreControlCharacters) {
    EXPECT_EQ(FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePages, ACharacterWithoutAPlaceBecomesAQuestionMark) {
    EXPECT_EQ(ToWindows1252("Ω漢𝄞ł"), "????");
    EXPECT_EQ(ToWindows1252("\u0080"), "?");  // the control character whose byte is the euro sign
    EXPECT_EQ(ToWindows1252("a\xFF"), "a?");
}

TEST(CodePages, Utf16GoesBothWays) {
    EXPECT_EQ(ToUtf16("A€"), "A\0\xAC\x20"s);
    EXPECT_EQ(ToUtf16("𝄞"), "\x34\xD8\x1E\xDD"s);  // U+1D11E = D834 DD1E
    EXPECT_EQ(FromUtf16("A\0\xAC\x20\x34\xD8\x1E\xDD"s), "A€𝄞");
}

TEST(CodePages, ALoneSurrogateAndAnOddByteDoNoHarm) {
    EXPECT_EQ(FromUtf16("\x34\xD8"s), "\uFFFD");
    EXPECT_EQ(FromUtf16("\x34\xD8\x41\x00"s), "\uFFFDA");
    EXPECT_EQ(FromUtf16("\x1E\xDD\x41\x00"s), "\uFFFDA");
    EXPECT_EQ(FromUtf16("\x41\x00\x42"s), "A");
    EXPECT_EQ(FromUtf16(""), "");
}

TEST(CodePages, TheBytesOfATextFileTellTheirCode) {
    EXPECT_EQ(FromTextFileBytes("café"), "café");
    EXPECT_EQ(FromTextFileBytes("\xEF\xBB\xBF"
                                "café"),
              "café");
    EXPECT_EQ(FromTextFileBytes("caf\xE9"), "café");
    EXPECT_EQ(FromTextFileBytes("\xFF\xFE"
                                "c\0\xE9\0"s),
              "cé");
    EXPECT_EQ(FromTextFileBytes("\xFE\xFF"
                                "\0c\0\xE9"s),
              "cé");
    EXPECT_EQ(FromTextFileBytes(""), "");
    EXPECT_EQ(FromTextFileBytes("\xEF\xBB\xBF\xEF\xBB\xBFx"), "x");
    EXPECT_EQ(FromTextFileBytes("\xFE\xFF\xFE\xFF\0x"s), "x");
}

}  // namespace
}  // namespace tendo
