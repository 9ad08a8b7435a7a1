// Rich texts that are broken, endless or none at all.

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <iterator>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "platform/text/text.h"
#include "rich_pieces.h"

namespace tendo {
namespace {

std::string Plain(std::string_view text) {
    return PlainTextOf(ReadRichOrPlainText(text, {}));
}

std::string CorpusText(const std::string& name) {
    std::ifstream file(std::string(TENDO_TEST_DATA) + "/rtf/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t LaidOutPages(std::string_view text) {
    FixedMeasurer measurer;
    LayoutSurface surface(measurer);
    surface.Action(3);
    surface.AutoRTF(true);
    surface.Paragraph(text);
    surface.Action(6);
    return surface.Result().pages.size();
}

std::string Repeated(std::string_view part, std::size_t bytes) {
    std::string text;
    text.reserve(bytes + part.size());
    while (text.size() < bytes)
        text += part;
    return text;
}

/// True when a cut parts a word behind a backslash or the number behind it.
bool PartsAWord(std::string_view text, std::size_t cut) {
    const auto isPart = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    std::size_t start = cut;
    while (start > 0 && isPart(text[start - 1]))
        --start;
    return start > 0 && text[start - 1] == '\\' && isPart(text[cut]);
}

/// What was read before the cut is a beginning of the whole.
TEST(RtfDamage, CutAtEveryByteATextKeepsWhatStandsBefore) {
    const std::string text =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}}{\\colortbl;\\red9\\green9"
        "\\blue9;}{\\*\\generator x;}\\pard\\qc\\b Terms\\b0\\par{\\pntext\\f1\\'B7\\tab}{\\*\\pn"
        "\\pnlvlblt{\\pntxtb\\'B7}}point \\u8364?\\par\\trowd\\cellx99\\cellx999\\intbl a\\cell b"
        "\\cell\\row\\pard{\\field{\\*\\fldinst X}{\\fldrslt see}} end\\par}";
    const std::string whole = Plain(text);
    for (std::size_t bytes = 15; bytes < text.size(); ++bytes) {
        const std::string cut = Plain(std::string_view(text).substr(0, bytes));
        EXPECT_TRUE(StartsWith(whole, TrimmedRight(cut)) || PartsAWord(text, bytes))
            << bytes << ": " << cut;
    }
}

TEST(RtfDamage, FilesOfTheCorpusCutAnywhereAreReadWrittenAndLaidOut) {
    for (const auto* name : {"writer_tables.rtf", "abiword_warranty.rtf", "pandoc_rates.rtf",
                             "writer_fields.rtf", "doxygen_takeoff.rtf"}) {
        const std::string text = CorpusText(name);
        ASSERT_GT(text.size(), 1000u);
        for (std::size_t bytes = 1; bytes < text.size(); bytes += 37) {
            const std::string cut = text.substr(0, bytes);
            const RichText read = ReadRichOrPlainText(cut, {});
            EXPECT_EQ(PlainTextOf(ReadRichText(WriteRichText(read), {})).size() > 0,
                      PlainTextOf(read).size() > 0);
            EXPECT_GE(LaidOutPages(cut), 1u);
        }
    }
}

TEST(RtfDamage, BracesThatDoNotMatchLoseNoWords) {
    EXPECT_EQ(Plain("{\\rtf1 a{\\b b\\par c"), "ab\nc");
    EXPECT_EQ(Plain("{\\rtf1 a}} b}"), "a");
    EXPECT_EQ(Plain("{\\b a}} b\\par}} c"), "a b\n c");
}

TEST(RtfDamage, WhatIsNoRichTextIsShownAsItIs) {
    EXPECT_EQ(Plain("rtf1 Terms"), "rtf1 Terms");
    EXPECT_EQ(Plain("\\rtf1 Terms\\par"), "\\rtf1 Terms\\par");
}

TEST(RtfDamage, ZeroBytesAreNothing) {
    EXPECT_EQ(Plain(""), "");
    EXPECT_EQ(Plain(std::string("{\\rtf1 a\0b\0}", 13)), "ab");
    EXPECT_EQ(LaidOutPages(std::string(10000, '\0')), 1u);
}

/// Of EF BB, EF BB BF and BF the middle is a mark that isn't shown; three broken bytes remain.
TEST(RtfDamage, BrokenLettersBecomeTheSignForThem) {
    const std::string text = Plain("{\\b a\xEF\xBB\xEF\xBB\xBF\xBFz}");
    EXPECT_EQ(text, "a\uFFFD\uFFFD\uFFFDz");
    EXPECT_EQ(PlainTextOf(ReadRichText(WriteRichText(ReadRichText("{\\b \xC3\\i\xA9}", {})), {})),
              "\uFFFD\uFFFD");
}

TEST(RtfDamage, WordsAndNumbersAtTheVeryEndAreHarmless) {
    for (const auto* end : {"\\", "\\b", "\\fs", "\\fs-", "\\fs-9", "\\u", "\\u8364", "\\'", "\\'4",
                            "\\bin", "\\bin9", "\\*", "{\\*", "{\\*\\pn", "{\\footnote", "\\cell",
                            "{\\fonttbl{\\f0", "{\\colortbl\\red", "\\trowd\\cellx"})
        EXPECT_EQ(Plain(std::string("{\\rtf1 Terms") + end).substr(0, 5), "Terms") << end;
}

TEST(RtfDamage, TenMegabytesOfRichTextAreReadAndLaidOut) {
    const std::string text =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}" +
        Repeated("\\pard\\b The\\b0  condensing unit stands on a pad.\\par\r\n", 10'000'000) + "}";
    const RichText read = ReadRichText(text, {});
    EXPECT_EQ(read.paragraphs.size(), 10'000'000u / 54 + 1);
    EXPECT_GT(LaidOutPages(text), 2000u);
}

TEST(RtfDamage, TenMegabytesOfPlainTextAreLaidOut) {
    EXPECT_GT(LaidOutPages(Repeated("The condensing unit stands on a pad.\r\n", 10'000'000)),
              2000u);
}

TEST(RtfDamage, MegabytesOfOneSignAreRead) {
    for (const auto* part : {"{", "}", "\\", "\\par ", "\\'", "\\'b7", "\\u8364?", "{\\footnote x",
                             "\\cell ", "\\row", "\\trowd\\cellx9", "{\\*\\pn", "\\tx9", "\\f9",
                             "{\\fonttbl{\\f9 A", "\\ansicpg9\\'b7", "<", "\\page"})
        EXPECT_NO_THROW(ReadRichText("{\\rtf1 " + Repeated(part, 1'000'000), {})) << part;
}

}  // namespace
}  // namespace tendo
