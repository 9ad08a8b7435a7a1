#include "footnotes/footnote_markup.h"

#include <gmock/gmock.h>

#include "report_fixture.h"
#include "reports/generate_reports.h"

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

TEST(FootnoteMarkup, APageMarkerBehindAStopBreaksThePageAndTheTextIsGone) {
    EXPECT_EQ(FootnoteParagraphs("{a<STOP>b<PAGE>c}", 0), (Paragraphs{"{a}", "{}"}));
    EXPECT_EQ(FootnoteParagraphs("{a<PAGE>b<STOP>c}", 0), (Paragraphs{"{a}", "{b}"}));
    EXPECT_EQ(FootnoteParagraphs("{a<STOP>b<PAGE>c<STOP>d}", 0), (Paragraphs{"{a}", "{}"}));
}

class Footnotes : public ReportTest {
  protected:
    Footnotes() { surface.Action(3); }
    void Add(const char* description) {
        project.ProjectFootNotes.push_back({"Terms", description});
        ++project.gvNumOfFootnotes;
    }
};

TEST_F(Footnotes, TwoWithTheSameNameBothPrintInTheirOrder) {
    Add("one");
    Add("two");
    PrintFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\nAutoRTF true\nParagraph \"one\"\nParagraph \"two\"\n");
}

TEST_F(Footnotes, OnlyAsManyAsTheCountArePrinted) {
    Add("one");
    Add("two");
    project.gvNumOfFootnotes = 1;
    PrintFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"), Paragraphs{"one"});
    project.gvNumOfFootnotes = 99;  // a damaged count
    surface.Action(3);
    PrintFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"), (Paragraphs{"one", "two"}));
}

TEST_F(Footnotes, StopBeforePageStillBreaksThePageAndTheTextAfterTheStopIsGone) {
    Option("chkPrintTitleReport", "0");
    Add("{\\rtf1 a<STOP>b<PAGE>c}");
    PrintFootnotes(context);
    surface.Action(6);
    EXPECT_EQ(CountOf("NewPage"), 1);
    ASSERT_EQ(layout.Result().pages.size(), 2U);
    EXPECT_EQ(PageText(layout.Result().pages[0]), "a");
    EXPECT_THAT(PageText(layout.Result().pages[1]), testing::Not(testing::HasSubstr("c\n")));
}

TEST_F(Footnotes, ThePrintedTextIsRichAndTheBracesAreNotSeen) {
    Add("{\\rtf1 {\\b Price} <$$$$><PAGE>rest\\par }");
    PrintFootnotes(context);
    surface.Action(6);
    EXPECT_EQ(PageText(layout.Result().pages.at(0)), "Price  $17,265.80");
    EXPECT_THAT(PageText(layout.Result().pages.at(1)),
                testing::EndsWith("rest\nSaturday, May 09, 1998"));
}

}  // namespace
}  // namespace tendo
