#include "platform/print/rich_text.h"

#include <gtest/gtest.h>

#include "rich_pieces.h"

namespace tendo {
namespace {

RichText Read(std::string_view text) {
    return ReadRichOrPlainText(text, {});
}

std::string Plain(std::string_view text) {
    return PlainTextOf(Read(text));
}

const RichRun& RunOf(const RichText& text, std::string_view part) {
    for (const RichParagraph& paragraph : text.paragraphs)
        for (const RichRun& run : paragraph.runs)
            if (run.text.find(part) != std::string::npos) return run;
    ADD_FAILURE() << "no run holds " << part;
    static const RichRun none;
    return none;
}

TEST(RichText, AHeaderGroupWithLineBreaksIsOneParagraphOfLines) {
    EXPECT_EQ(Plain("{TENDO - Program\\line Northfield\\line (507) 555-0100}"),
              "TENDO - Program\nNorthfield\n(507) 555-0100");
    EXPECT_EQ(Plain("{Velmo\\line Title\\line Page 3}"), "Velmo\nTitle\nPage 3");
    EXPECT_EQ(Plain("{Velmo\\line Title\\line}"), "Velmo\nTitle\n");
}

TEST(RichText, AGroupTakesTheFormatAroundIt) {
    RichRun base;
    base.font = {"Arial", 160, true};
    base.color = 0x123456;
    const RichText text = ReadRichText("{a\\line b}", base);
    EXPECT_EQ(text.paragraphs[0].runs[0].font, base.font);
    EXPECT_EQ(text.paragraphs[0].runs[0].color, 0x123456U);
}

TEST(RichText, FontsSizesAndStylesFollowTheirWords) {
    const RichText text = Read(
        "{\\rtf1\\ansi{\\fonttbl{\\f0\\fswiss Arial;}{\\f1\\froman Times New Roman;}}"
        "\\f0\\fs20 plain {\\b bold\\i both}\\ul under\\ulnone\\strike gone\\strike0\\f1\\fs48 "
        "large\\par}");
    ASSERT_EQ(text.paragraphs.size(), 1U);
    EXPECT_EQ(RunOf(text, "plain").font, (FontSpec{"Arial", 200}));
    EXPECT_EQ(RunOf(text, "bold").font, (FontSpec{"Arial", 200, true}));
    EXPECT_EQ(RunOf(text, "both").font, (FontSpec{"Arial", 200, true, true}));
    EXPECT_TRUE(RunOf(text, "under").font.underline);
    EXPECT_TRUE(RunOf(text, "gone").font.strike);
    EXPECT_EQ(RunOf(text, "large").font, (FontSpec{"Times New Roman", 480}));
}

TEST(RichText, AWholeDocumentStartsAtTwelvePointsRegular) {
    RichRun base;
    base.font = {"Arial", 280, true, true};
    const RichText text = ReadRichText("{\\rtf1 words}", base);
    EXPECT_EQ(text.paragraphs[0].runs[0].font, (FontSpec{"Arial", 240}));
}

TEST(RichText, ColoursComeFromTheTable) {
    const RichText text = Read(
        "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}"
        "auto\\cf1 red\\cf2 dark\\cf9 beyond}");
    EXPECT_EQ(RunOf(text, "auto").color, 0U);
    EXPECT_EQ(RunOf(text, "red").color, 0xFF0000U);
    EXPECT_EQ(RunOf(text, "dark").color, 0x010203U);
    EXPECT_EQ(RunOf(text, "beyond").color, 0U);
}

TEST(RichText, ParagraphsKeepAlignmentAndIndents) {
    const RichText text = Read(
        "{\\rtf1\\pard\\qc centred\\par\\pard\\qr right\\par"
        "\\pard\\li720\\ri360\\fi-360\\sb120\\sa240\\tx1000 hanging\\par\\pard left\\par}");
    ASSERT_EQ(text.paragraphs.size(), 4U);
    EXPECT_EQ(text.paragraphs[0].align, RichAlign::Center);
    EXPECT_EQ(text.paragraphs[1].align, RichAlign::Right);
    EXPECT_EQ(text.paragraphs[2].leftIndent, 720);
    EXPECT_EQ(text.paragraphs[2].rightIndent, 360);
    EXPECT_EQ(text.paragraphs[2].firstIndent, -360);
    EXPECT_EQ(text.paragraphs[2].spaceBefore, 120);
    EXPECT_EQ(text.paragraphs[2].spaceAfter, 240);
    EXPECT_EQ(text.paragraphs[2].tabs, std::vector<TabStop>{{1000}});
    EXPECT_EQ(text.paragraphs[3].align, RichAlign::Inherit);
}

TEST(RichText, AnEmptyParagraphStaysAnEmptyLine) {
    EXPECT_EQ(Plain("{\\rtf1 one\\par\\par two\\par}"), "one\n\ntwo");
}

TEST(RichText, BytesByTheirNumberAreReadInTheWindowsCodePage) {
    EXPECT_EQ(Plain("{\\rtf1 caf\\'e9 \\'93so\\'94 68\\'b0}"), "café “so” 68°");
}

TEST(RichText, BytesFollowTheCodePageOfTheDocumentOrTheirFont) {
    EXPECT_EQ(Plain("{\\rtf1\\ansi\\ansicpg1251 \\'ca\\'ee\\'eb}"), "Кол");
    EXPECT_EQ(Plain("{\\rtf1\\mac gro\\'a7}"), "groß");
    EXPECT_EQ(Plain("{\\rtf1\\pc 68\\'f8}"), "68°");
    EXPECT_EQ(Plain("{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset238 Arial CE;}}"
                    "\\f1 \\'b3\\f0  \\'b3}"),
              "ł ³");
}

TEST(RichText, ACharacterOfTwoBytesIsOneCharacter) {
    EXPECT_EQ(
        Plain("{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset128 Gothic;}}\\f0 \\'93\\'fa\\'96\\'7b}"),
        "日本");
}

TEST(RichText, UnicodeCharactersReplaceTheirSubstitutes) {
    EXPECT_EQ(Plain("{\\rtf1\\uc1 \\u8364?uro \\u-4051\\'b7}"),
              "€uro \xEF\x80\xAD");  // -4051 is U+F02D
    EXPECT_EQ(Plain("{\\rtf1\\uc0\\u8482 mark}"), "™mark");
    EXPECT_EQ(Plain("{\\rtf1\\uc1\\u-10179?\\u-8704?}"), "😀");  // a pair of surrogates
}

TEST(RichText, BulletsOfListsAreShown) {
    const std::string list =
        "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}}"
        "{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}first\\par}";
    EXPECT_EQ(Plain(list), "•\tfirst");
    EXPECT_TRUE(Read(list).paragraphs[0].bullet);
    EXPECT_FALSE(Read("{\\rtf1 \\bullet\\tab typed\\par}").paragraphs[0].bullet);
}

TEST(RichText, EscapedBracesAndSpecialCharactersAreText) {
    EXPECT_EQ(Plain("{\\rtf1 \\{a\\}\\\\ b\\~c\\tab d\\endash e\\bullet}"), "{a}\\ b\u00A0c\td–e•");
}

TEST(RichText, PicturesInfoAndUnknownDestinationsAreLeftOut) {
    EXPECT_EQ(Plain("{\\rtf1{\\info{\\author Someone}}{\\*\\generator Riched;}a"
                    "{\\pict\\wmetafile8 0100090000}b{\\stylesheet{Normal;}}c}"),
              "abc");
}

TEST(RichText, RawBytesOfAPictureArePassedOver) {
    EXPECT_EQ(Plain(std::string("{\\rtf1 a{\\pict\\bin4 }}{\\}b}", 26)), "ab");
    EXPECT_EQ(Plain("{\\rtf1 a\\bin999999 b}"), "a");
}

TEST(RichText, TextBehindTheLastBraceOfADocumentIsNoPartOfIt) {
    EXPECT_EQ(Plain("{\\rtf1 a}\r\nrest"), "a");
}

TEST(RichText, ATextThatIsNoRichTextIsShownAsItIs) {
    EXPECT_EQ(Plain("Terms: net 30\r\nThank you"), "Terms: net 30\nThank you");
    EXPECT_EQ(Plain("C:\\tools and {braces}"), "C:\\tools and {braces}");
    EXPECT_FALSE(IsRichText("a {\\b b}"));
}

TEST(RichText, BracesThatTheFootnoteMarkersLeftBehindAreNotShown) {
    EXPECT_EQ(Plain("}"), "");
    EXPECT_EQ(Plain("{}"), "");
    EXPECT_EQ(Plain("Plain text }"), "Plain text ");
    EXPECT_EQ(Plain("{ second part"), " second part");
    EXPECT_EQ(Plain("{ second part}"), " second part");
}

TEST(RichText, APartBehindAPageBreakReadsWithoutItsTables) {
    RichRun base;
    const RichText text = ReadRichText("{ more\\f0\\fs24 text\\cf1 red\\par }\r\n}", base);
    EXPECT_EQ(PlainTextOf(text), " moretextred");
    EXPECT_EQ(RunOf(text, "text").font, (FontSpec{"Arial", 240}));
}

TEST(RichText, BrokenGroupsEndWithTheText) {
    EXPECT_EQ(Plain("{\\rtf1 open {\\b bold"), "open bold");
    EXPECT_EQ(Plain("{\\rtf1 a\\"), "a");
    EXPECT_EQ(Plain("{\\rtf1 a\\'"), "a");
    EXPECT_EQ(Plain("{\\rtf1 a\\'z9}"), "az9");
    EXPECT_EQ(Plain("{\\b a}}}}b"), "ab");
}

TEST(RichText, VeryDeepGroupsArePassedOver) {
    const std::string deep =
        "{\\rtf1 a" + std::string(100000, '{') + "x" + std::string(100000, '}') + "b}";
    EXPECT_EQ(Plain(deep), "ab");
}

TEST(RichText, HugeNumbersAreHeldInBounds) {
    const RichText text =
        Read("{\\rtf1\\fs999999999999 a\\li99999999999999\\u99999999999 b\\fs-5 c}");
    EXPECT_EQ(RunOf(text, "a").font.sizeTwips, 4000);
    EXPECT_EQ(text.paragraphs[0].leftIndent, 8640);
    EXPECT_EQ(RunOf(text, "c").font.sizeTwips, 20);
}

}  // namespace
}  // namespace tendo
