#include <gtest/gtest.h>

#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "rich_pieces.h"

namespace tendo {
namespace {

RichText Read(std::string_view text) {
    return ReadRichOrPlainText(text, {});
}

std::string Plain(std::string_view text) {
    return PlainTextOf(Read(text));
}

TEST(RtfWords, AFieldShowsItsResultAndNotItsInstruction) {
    EXPECT_EQ(Plain("{\\rtf1 see {\\field{\\*\\fldinst HYPERLINK \"http://x\"}"
                    "{\\fldrslt{\\ul our page}}}.}"),
              "see our page.");
    EXPECT_EQ(Plain("{\\rtf1 see {\\field{\\fldinst PAGE}{\\*\\fldrslt 3}}.}"), "see 3.");
    EXPECT_EQ(Plain("{\\rtf1{\\header{\\field{\\*\\fldinst PAGE}{\\*\\fldrslt 3}}}a}"), "a");
}

TEST(RtfWords, OfTwoWordingsTheOneInUnicodeIsTaken) {
    EXPECT_EQ(Plain("{\\rtf1 a{\\upr{Lodz}{\\*\\ud{\\u321?\\u243?d\\u378?}}}b}"), "aŁódźb");
}

TEST(RtfWords, AnObjectShowsItsResult) {
    EXPECT_EQ(Plain("{\\rtf1 a{\\object\\objemb{\\*\\objdata 0105}{\\result{rates}}}b}"),
              "aratesb");
    EXPECT_EQ(Plain("{\\rtf1{\\header{\\object{\\result{rates}}}}b}"), "b");
}

TEST(RtfWords, HiddenAndStruckOutWordsOfAReviewerAreNotShown) {
    EXPECT_EQ(Plain("{\\rtf1 a{\\v margin 22 %}b\\v c\\v0 d{\\deleted e}f}"), "abdf");
}

TEST(RtfWords, CapitalsAreShownAsCapitals) {
    EXPECT_EQ(Plain("{\\rtf1 {\\caps net \\'e9t\\u233?} days}"), "NET ÉTÉ days");
}

TEST(RtfWords, HeadersCommentsAndBookmarksAreLeftOut) {
    EXPECT_EQ(Plain("{\\rtf1{\\header top\\par}{\\*\\bkmkstart unit}a{\\*\\bkmkend unit}"
                    "{\\*\\atnid AB}{\\*\\annotation call\\par}b{\\xe index}{\\footerr f\\par}}"),
              "ab");
}

TEST(RtfWords, NotesStandBehindTheTextUnderTheirNumbers) {
    EXPECT_EQ(
        Plain("{\\rtf1 load{\\super\\chftn}{\\footnote {\\super\\chftn} By Manual J.}, "
              "duct{\\chftn{\\*\\footnote\\ftnalt\\chftn  By Manual D.\\par}}\\par end\\par}"),
        "load1, duct2\nend\n1 By Manual J.\n2 By Manual D.");
}

TEST(RtfWords, ANoteThatIsNeverClosedKeepsItsText) {
    EXPECT_EQ(Plain("{\\rtf1 a{\\footnote b"), "a\nb");
}

TEST(RtfWords, ARowOfATableKeepsItsCells) {
    const RichText text = Read(
        "{\\rtf1\\trowd\\trgaph108\\trleft0\\clbrdrt\\brdrs\\clbrdrb\\brdrs\\cellx3000"
        "\\clbrdrt\\brdrnone\\cellx5000\\pard\\intbl Helper\\tab x\\cell\\pard\\intbl\\qr "
        "$38.00\\par"
        " net\\par\\cell\\row\\pard after\\par}");
    ASSERT_EQ(text.paragraphs.size(), 2u);
    EXPECT_EQ(PlainTextOf(text), "Helper x\t$38.00\nnet\nafter");
    const std::vector<RichCell> cells = {
        {3000, RichAlign::Inherit, cell_side::Top | cell_side::Bottom},
        {5000, RichAlign::Right, 0}};
    EXPECT_EQ(text.paragraphs[0].cells, cells);
    EXPECT_TRUE(text.paragraphs[1].cells.empty());
}

TEST(RtfWords, ACellHasTheAlignmentOfItsLastParagraph) {
    const RichText text = Read(
        "{\\rtf1\\trowd\\cellx3000\\cellx5000{{\\pard\\intbl\\qr $38.00\\par}\\cell}"
        "{{\\pard\\intbl\\qc a\\par}{\\pard\\intbl b\\par}\\cell}\\row}");
    EXPECT_EQ(text.paragraphs[0].cells[0].align, RichAlign::Right);
    EXPECT_EQ(text.paragraphs[0].cells[1].align, RichAlign::Inherit);
}

TEST(RtfWords, TheMarkOfAListIsAsLargeAsItsText) {
    const RichText text =
        Read("{\\rtf1{\\listtext\\pard\\plain 1.\\tab}\\ls1\\fs18 furnace\\b  gas\\par}");
    for (const RichRun& run : text.paragraphs[0].runs)
        EXPECT_EQ(run.font.sizeTwips, 180) << run.text;
}

TEST(RtfWords, ATableCutOffInARowKeepsTheCellsSoFar) {
    const RichText text = Read("{\\rtf1\\trowd\\cellx3000\\cellx5000\\intbl a\\cell b");
    EXPECT_EQ(PlainTextOf(text), "a\tb");
    EXPECT_EQ(text.paragraphs[0].cells.size(), 2u);
}

TEST(RtfWords, ATableWithinATableStandsInItsCell) {
    EXPECT_EQ(Plain("{\\rtf1\\trowd\\cellx3000\\cellx6000\\intbl outer\\par\\itap2 1\\nestcell 2"
                    "\\nestcell{\\*\\nesttableprops\\trowd\\cellx99\\nestrow}{\\nonesttables\\par}"
                    "\\itap1 behind\\cell right\\cell\\row\\pard end\\par}"),
              "outer\n1   2   \nbehind\tright\nend");
}

TEST(RtfWords, APageBreakBeginsANewPage) {
    const RichText text = Read("{\\rtf1 one\\page two\\par\\pard\\pagebb three\\par}");
    ASSERT_EQ(text.paragraphs.size(), 3u);
    EXPECT_FALSE(text.paragraphs[0].pageBefore);
    EXPECT_TRUE(text.paragraphs[1].pageBefore);
    EXPECT_TRUE(text.paragraphs[2].pageBefore);
}

TEST(RtfWords, TabStopsHaveTheirKindAndLeader) {
    const RichText text =
        Read("{\\rtf1\\tqc\\tx4320\\tldot\\tqr\\tx8640\\tqdec\\tx9000\\tx9900 a\\par}");
    const std::vector<TabStop> tabs = {
        {4320, TabAlign::Center}, {8640, TabAlign::Right, '.'}, {9000, TabAlign::Decimal}, {9900}};
    EXPECT_EQ(text.paragraphs[0].tabs, tabs);
}

TEST(RtfWords, LineSpacingIsAMultipleALeastOrAnExactHeight) {
    const RichText text = Read(
        "{\\rtf1\\sl480\\slmult1 a\\par\\pard\\sl300\\slmult0 b\\par\\pard\\sl-300 c\\par\\pard "
        "d\\par}");
    EXPECT_EQ(text.paragraphs[0].lineSpacing, 200);
    EXPECT_EQ(text.paragraphs[1].leastLine, 300);
    EXPECT_EQ(text.paragraphs[2].exactLine, 300);
    EXPECT_EQ(text.paragraphs[3].lineSpacing, 100);
    EXPECT_EQ(text.paragraphs[3].leastLine + text.paragraphs[3].exactLine, 0);
}

/// Superscripts are 62 percent of 12 points in whole half points, 7 points, and a third of 12 up.
TEST(RtfWords, RaisedAndLoweredSignsAreSmall) {
    const RichText text = Read("{\\rtf1\\fs24 m{\\super 2} H{\\sub 2}O x{\\up6\\fs16 a}}");
    const std::vector<RichRun>& runs = text.paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 6u);
    EXPECT_EQ(runs[1].rise, 80);
    EXPECT_EQ(runs[1].font.sizeTwips, 140);
    EXPECT_EQ(runs[3].rise, -30);
    EXPECT_EQ(runs[5].rise, 60);
    EXPECT_EQ(runs[5].font.sizeTwips, 160);
}

TEST(RtfWords, ALeadByteTakesAPlainLetterAsItsSecondHalf) {
    // 83 5C and 83 65 are Katakana SO and TE in the Japanese page; B1 is half-width A alone.
    EXPECT_EQ(Plain("{\\rtf1\\ansi\\ansicpg932 \\'83\\'5c\\'83\\\\\\'83e\\'b1x}"), "ソソテｱx");
}

TEST(RtfWords, FallbacksOfTwoBytesAreLeftOut) {
    EXPECT_EQ(Plain("{\\rtf1\\uc2\\u26085\\'93\\'fa\\u26412 ??\\uc1\\u8364\\{x}"), "日本€x");
}

TEST(RtfWords, PlainIsTwelvePointsInTheDefaultFont) {
    const RichText text = Read(
        "{\\rtf1\\deff1{\\fonttbl{\\f0 Arial;}{\\f1 Times New Roman;}}start \\f0\\fs40\\b big"
        "\\plain  again}");
    const std::vector<RichRun>& runs = text.paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].font, (FontSpec{"Times New Roman", 240}));
    EXPECT_EQ(runs[1].font, (FontSpec{"Arial", 400, true}));
    EXPECT_EQ(runs[2].font, (FontSpec{"Times New Roman", 240}));
}

TEST(RtfWords, SignsOfTheSymbolFontsAreShownAsSuch) {
    EXPECT_EQ(
        Plain("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}{\\f2 Wingdings;}}"
              "\\f1 D\\f0 T 20{\\f1\\'b0} {\\f1\\'a3} {\\f1\\'b7}{\\f2\\'fc}{\\f1\\u-3913?}}"),
        "ΔT 20° ≤ •✓•");  // -3913 is U+F0B7
}

TEST(RtfWords, ListsWithBlankMarksAreCounted) {
    const std::string point =
        "{\\listtext\\pard\\tab}\\pard{\\*\\pn\\pnlvlbody\\pndec\\pnstart1{\\pntxtb (}{\\pntxta )}}"
        "\\ls3\\ilvl0 ";
    EXPECT_EQ(Plain("{\\rtf1" + point + "a\\par" + point + "b\\par}"), "(1)\ta\n(2)\tb");
}

TEST(RtfWords, MarksOfListsInTheTextAreTakenAsTheyAre) {
    EXPECT_EQ(Plain("{\\rtf1{\\listtext\\pard\\plain iv.\\tab}\\ls1\\ilvl0 d\\par}"), "iv.\td");
}

TEST(RtfWords, PlacesToHyphenateLeaveNoTrace) {
    EXPECT_EQ(Plain("{\\rtf1 hy\\-phen\\'adation\\u173?s\\u8203?x 18\\_2}"), "hyphenationsx 18-2");
}

TEST(RtfWords, AnyOrderOfStylesIsWrittenSoThatAMarkStaysWhole) {
    RichText text;
    RichRun plain{"price <$$", {"Arial", 200}, 0}, bold{"$$> and <PA", {"Arial", 200, true}, 0},
        red{"GE>", {"Arial", 200}, 0xFF0000}, rest{" a < b > c", {"Arial", 200}, 0};
    text.paragraphs.emplace_back().runs = {plain, bold, red, rest};
    const std::string written = WriteRichText(text);
    EXPECT_NE(written.find("<$$$$>"), std::string::npos) << written;
    EXPECT_NE(written.find("<PAGE>"), std::string::npos) << written;
    EXPECT_EQ(PlainTextOf(ReadRichText(written, {})), "price <$$$$> and <PAGE> a < b > c");
    const RichText read = ReadRichText(written, {});
    EXPECT_EQ(read.paragraphs[0].runs[1].text, " and <PAGE>");  // in the format of its "<"
    EXPECT_TRUE(read.paragraphs[0].runs[1].font.bold);
}

}  // namespace
}  // namespace tendo
