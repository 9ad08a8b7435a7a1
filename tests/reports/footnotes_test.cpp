#include <gmock/gmock.h>

#include "report_fixture.h"
#include "reports/generate_reports.h"

namespace tendo {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

using Texts = std::vector<std::string>;

class Footnotes : public ReportTest {
  protected:
    Footnotes() { surface.Action(3); }
    void Add(const char* description) {
        project.ProjectFootNotes.push_back({"Terms", description});
        ++project.gvNumOfFootnotes;
    }
    void AddAccessory(const char* description) {
        project.ProjectAccRptFootNotes.push_back({"Offer", description});
        ++project.NumOfAccRptFootnotes;
    }
    /// The text of a page as a reader sees it.
    std::string Page(std::size_t number) {
        surface.Action(6);
        return PageText(layout.Result().pages.at(number - 1));
    }
    /// What the page says above its running header and footer, which are laid behind it.
    Texts TextPages() {
        surface.Action(6);
        Texts pages;
        for (const auto& page : layout.Result().pages) {
            const std::string text = PageText(page);
            pages.push_back(text.substr(0, text.find("TENDO - HVAC")));
        }
        return pages;
    }
};

TEST_F(Footnotes, TwoWithTheSameNameBothPrintInTheirOrder) {
    Add("one");
    Add("two");
    PrintFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\nAutoRTF true\nParagraph \"one\"\nParagraph \"two\"\n");
}

TEST_F(Footnotes, SeveralWithMarkersAreWrittenOneAfterTheOther) {
    Add("{\\rtf1 Total <$$$$>.<PAGE>Terms <$$$$><PAGE>End}");
    Add("{\\rtf1 Kept<STOP> dropped <$$$$>}");
    Add("<STOP>all dropped");
    Add("last");
    PrintFootnotes(context);
    ExpectGolden("footnotes.txt");
}

TEST_F(Footnotes, OnlyAsManyAsTheCountArePrinted) {
    Add("one");
    Add("two");
    project.gvNumOfFootnotes = 1;
    PrintFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"), Texts{"one"});
    for (const std::int16_t damaged : {std::int16_t{99}, std::int16_t{32767}}) {
        project.gvNumOfFootnotes = damaged;
        surface.Action(3);
        PrintFootnotes(context);
        EXPECT_EQ(ValuesOf("Paragraph"), (Texts{"one", "two"}));
    }
    project.gvNumOfFootnotes = -1;
    surface.Action(3);
    PrintFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\n");
}

TEST_F(Footnotes, TheBlankRowOfAnEmptyListIsNotPrinted) {
    project.ProjectFootNotes.resize(1);
    project.ProjectAccRptFootNotes.resize(1);
    PrintFootnotes(context);
    PrintFirstAccessoryFootnote(context);
    PrintAccessoryFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\n");
}

TEST_F(Footnotes, AFootnoteWithTwoPageMarkersPrintsOnThreePages) {
    Add("{\\rtf1 a<PAGE>b<PAGE>c}");
    PrintFootnotes(context);
    EXPECT_EQ(CountOf("NewPage"), 2);
    const Texts pages = TextPages();
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0], "a");
    EXPECT_THAT(Page(2), HasSubstr("Page 2\n"));
    EXPECT_THAT(Page(2), EndsWith("b\nSaturday, May 09, 1998"));
    EXPECT_THAT(Page(3), EndsWith("c\nSaturday, May 09, 1998"));
}

TEST_F(Footnotes, StopAtTheVeryStartPrintsAnEmptyParagraph) {
    Add("<STOP>{\\rtf1 gone}");
    PrintFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"), Texts{"}"});
    const int below = surface.CurrentY();
    EXPECT_GT(below, 720);  // a line of its own
    EXPECT_EQ(Page(1), "");
}

TEST_F(Footnotes, StopBeforePageStillBreaksThePageAndTheTextAfterTheStopIsGone) {
    Add("{\\rtf1 a<STOP>b<PAGE>c}");
    PrintFootnotes(context);
    EXPECT_EQ(CountOf("NewPage"), 1);
    const Texts pages = TextPages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0], "a");
    EXPECT_THAT(Page(2), Not(HasSubstr("c\n")));
    EXPECT_THAT(Page(2), HasSubstr("Page 2"));
}

TEST_F(Footnotes, ThePrintedTextIsRichAndTheBracesAreNotSeen) {
    Add("{\\rtf1 {\\b Price} <$$$$><PAGE>rest\\par }");
    PrintFootnotes(context);
    EXPECT_EQ(Page(1), "Price  $17,265.80");
    EXPECT_THAT(Page(2), EndsWith("rest\nSaturday, May 09, 1998"));
}

TEST_F(Footnotes, OneThatIsNotRichTextPrintsAsPlainText) {
    Add("Pay <$$$$> within 30 days; see C:\\terms | §4.<PAGE>Thanks.");
    PrintFootnotes(context);
    EXPECT_EQ(Page(1), "Pay $17,265.80 within 30 days; see C:\\terms | §4.");
    EXPECT_THAT(Page(2), EndsWith("Thanks.\nSaturday, May 09, 1998"));
}

TEST_F(Footnotes, BrokenRichTextPrintsWhatCanBeRead) {
    for (const char* broken : {"{\\rtf1 kept", "{\\rtf1 {\\b kept}}}}", "{\\rtf1\\fs99999999 kept}",
                               "{\\rtf1 {\\unknown1 kept}"}) {
        project.ProjectFootNotes.clear();
        project.gvNumOfFootnotes = 0;
        Add(broken);
        surface.Action(3);
        PrintFootnotes(context);
        EXPECT_THAT(Page(1), HasSubstr("kept")) << broken;
    }
}

TEST_F(Footnotes, TheFirstAccessoryFootnoteStandsAlone) {
    AddAccessory("{\\rtf1 Offer of <$$$$>}");
    AddAccessory("second");
    PrintFirstAccessoryFootnote(context);
    EXPECT_EQ(CallsText(), "Action 3\nAutoRTF true\nParagraph \"{\\rtf1 Offer of $17,265.80}\"\n");
}

TEST_F(Footnotes, TheOtherAccessoryFootnotesAreTheSecondToTheLast) {
    AddAccessory("first");
    AddAccessory("second<PAGE>rest");
    AddAccessory("third<STOP>gone");
    PrintAccessoryFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"),
              (Texts{"second}", "", "{rest", "third}"}));  // "": under the running header
    EXPECT_EQ(CountOf("NewPage"), 1);
}

TEST_F(Footnotes, WithoutAccessoryFootnotesBothStepsPrintNothing) {
    Add("of the proposal");
    PrintFirstAccessoryFootnote(context);
    PrintAccessoryFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\n");
}

TEST_F(Footnotes, WithExactlyOneAccessoryFootnoteTheSecondStepPrintsNothing) {
    AddAccessory("only");
    PrintAccessoryFootnotes(context);
    EXPECT_EQ(CallsText(), "Action 3\n");
    PrintFirstAccessoryFootnote(context);
    EXPECT_EQ(ValuesOf("Paragraph"), Texts{"only"});
}

TEST_F(Footnotes, TheProposalPrintsNoAccessoryFootnotes) {
    Add("of the proposal");
    AddAccessory("of the accessories");
    PrintFootnotes(context);
    EXPECT_EQ(ValuesOf("Paragraph"), Texts{"of the proposal"});
}

}  // namespace
}  // namespace tendo
