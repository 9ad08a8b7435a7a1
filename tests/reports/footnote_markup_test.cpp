#include "footnotes/footnote_markup.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

using Paragraphs = std::vector<std::string>;

TEST(FootnoteMarkup, ATextWithoutMarkersIsOneParagraph) {
    EXPECT_EQ(FootnoteParagraphs("{\\rtf1 Terms}", 0), Paragraphs{"{\\rtf1 Terms}"});
    EXPECT_EQ(FootnoteParagraphs("", 0), Paragraphs{""});
}

TEST(FootnoteMarkup, EveryFinalPriceIsPutIn) {
    EXPECT_EQ(FootnoteParagraphs("{\\b <$$$$>} or <$$$$>", 17265.8F),
              Paragraphs{"{\\b $17,265.80} or $17,265.80"});
}

TEST(FootnoteMarkup, TwoPageMarkersPrintOnThreePages) {
    EXPECT_EQ(FootnoteParagraphs("{\\rtf1 a<PAGE>b<PAGE>c}", 0),
              (Paragraphs{"{\\rtf1 a}", "{b}", "{c}"}));
}

TEST(FootnoteMarkup, StopDropsWhatFollows) {
    EXPECT_EQ(FootnoteParagraphs("{\\rtf1 a<STOP>b}", 0), Paragraphs{"{\\rtf1 a}"});
    EXPECT_EQ(FootnoteParagraphs("{a<STOP>b<STOP>c}", 0), Paragraphs{"{a}"});
}

TEST(FootnoteMarkup, StopAtTheVeryStartPrintsAnEmptyParagraph) {
    EXPECT_EQ(FootnoteParagraphs("<STOP>{\\rtf1 a}", 0), Paragraphs{"}"});
}

TEST(FootnoteMarkup, AFinalPriceBeforeAStopIsExpandedAndOneBehindItDropped) {
    EXPECT_EQ(FootnoteParagraphs("{<$$$$> a<STOP> <$$$$>}", 5), Paragraphs{"{$5.00 a}"});
}

TEST(FootnoteMarkup, MarkersAreCapitalsInPointedBrackets) {
    EXPECT_EQ(FootnoteParagraphs("{<page>PAGE<stop>STOP< PAGE >$$$$}", 5),
              Paragraphs{"{<page>PAGE<stop>STOP< PAGE >$$$$}"});
}

TEST(FootnoteMarkup, AMarkerMayStandBetweenFormattingCodes) {
    EXPECT_EQ(FootnoteParagraphs("{\\rtf1{\\b<$$$$>\\b0<PAGE>}\\i<STOP>\\i0}", 5),
              (Paragraphs{"{\\rtf1{\\b$5.00\\b0}", "{}\\i}"}));
}

TEST(FootnoteMarkup, TheFinalPriceIsWrittenWithThousandsAndCents) {
    EXPECT_EQ(FootnoteParagraphs("<$$$$>", 1234567.5F), Paragraphs{"$1,234,567.50"});
    EXPECT_EQ(FootnoteParagraphs("<$$$$>", 0), Paragraphs{"$0.00"});
    EXPECT_EQ(FootnoteParagraphs("<$$$$>", -12.5F), Paragraphs{"-$12.50"});
}

TEST(FootnoteMarkup, AHundredThousandMarkersTakeOneWalk) {
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "Terms of this offer<PAGE><$$$$>";
    const Paragraphs paragraphs = FootnoteParagraphs(text, 5);
    ASSERT_EQ(paragraphs.size(), 100001U);
    EXPECT_EQ(paragraphs[1], "{$5.00Terms of this offer}");
    EXPECT_EQ(paragraphs.back(), "{$5.00");
}

TEST(FootnoteMarkup, APageMarkerBehindAStopBreaksThePageAndTheTextIsGone) {
    EXPECT_EQ(FootnoteParagraphs("{a<STOP>b<PAGE>c}", 0), (Paragraphs{"{a}", "{}"}));
    EXPECT_EQ(FootnoteParagraphs("{a<PAGE>b<STOP>c}", 0), (Paragraphs{"{a}", "{b}"}));
    EXPECT_EQ(FootnoteParagraphs("{a<STOP>b<PAGE>c<STOP>d}", 0), (Paragraphs{"{a}", "{}"}));
}

}  // namespace
}  // namespace tendo
