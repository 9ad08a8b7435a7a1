// Footnotes with their markers in awkward places, as they come onto the paper.

#include <gtest/gtest.h>

#include "footnotes/footnote_markup.h"
#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

namespace tendo {
namespace {

using Pages = std::vector<std::string>;

/// The texts of the pages that a footnote prints, at a final price of 1,500 dollars.
Pages Printed(std::string_view description) {
    FixedMeasurer measurer;
    LayoutSurface surface(measurer);
    surface.Action(3);
    surface.AutoRTF(true);
    bool first = true;
    for (const std::string& paragraph : FootnoteParagraphs(description, 1500)) {
        if (!first) surface.NewPage();
        surface.Paragraph(paragraph);
        first = false;
    }
    surface.Action(6);
    Pages pages;
    for (const Page& page : surface.Result().pages)
        pages.push_back(PageText(page));
    return pages;
}

TEST(FootnotePrint, TwoPageMarkersPrintOnThreePages) {
    EXPECT_EQ(Printed("{\\rtf1 a<PAGE>b<PAGE>c\\par}"), (Pages{"a", "b", "c"}));
}

TEST(FootnotePrint, AMarkerWithinAGroupLeavesBracesBehindThatAreNotPrinted) {
    EXPECT_EQ(Printed("{\\rtf1\\pard {\\b A <PAGE> B} C\\par}"), (Pages{"A", " B C"}));
    EXPECT_EQ(Printed("{\\rtf1 {\\b A <PAGE> B} C}"), (Pages{"A", " B C"}));
    EXPECT_EQ(Printed("{\\rtf1 {{\\b{A<PAGE>B}}} C {D}}"), (Pages{"A", "B C {D}"}));
    EXPECT_EQ(Printed("{\\rtf1 {\\b A <STOP> B} C\\par}"), Pages{"A"});
}

TEST(FootnotePrint, AMarkerNextToAControlWordIsFound) {
    EXPECT_EQ(Printed("{\\rtf1 x\\b<PAGE>\\b0 y}"), (Pages{"x", "y"}));
    EXPECT_EQ(Printed("{\\rtf1\\fs24<$$$$>\\b<$$$$>}"), Pages{"$1,500.00 $1,500.00"});
    EXPECT_EQ(Printed("{\\rtf1 x\\i<STOP>\\i0 y}"), Pages{"x"});
}

TEST(FootnotePrint, MarkersInATablePrintWhatStandsAroundThem) {
    const std::string row =
        "\\trowd\\cellx3000\\cellx6000\\pard\\intbl Price\\cell <$$$$>\\cell\\row";
    EXPECT_EQ(Printed("{\\rtf1" + row + "\\pard end\\par}"), Pages{"Price $1,500.00\nend"});
    EXPECT_EQ(Printed("{\\rtf1\\trowd\\cellx3000\\cellx6000\\intbl A\\cell B<PAGE>C\\cell\\row"
                      "\\pard end\\par}"),
              (Pages{"A B", "C\nend"}));
    EXPECT_EQ(Printed("{\\rtf1\\trowd\\cellx3000\\intbl A<STOP>\\cell\\row\\pard end\\par}"),
              Pages{"A"});
}

TEST(FootnotePrint, MarkersInLowerCaseAreText) {
    EXPECT_EQ(Printed("{\\rtf1 <page> <Stop> <$$$>}"), Pages{"<page> <Stop> <$$$>"});
}

TEST(FootnotePrint, AMarkerThatFormattingPartsIsText) {
    EXPECT_EQ(Printed("{\\rtf1 <PA{}GE>}"), Pages{"<PAGE>"});
    EXPECT_EQ(Printed("{\\rtf1 <ST\\plain OP> b}"), Pages{"<STOP> b"});
}

TEST(FootnotePrint, NothingIsPrintedBehindAStopButItsPageBreak) {
    EXPECT_EQ(Printed("{\\rtf1 a<STOP>b<PAGE>c\\par}"), (Pages{"a", ""}));
    EXPECT_EQ(Printed("<STOP>{\\rtf1 a}"), Pages{""});
}

TEST(FootnotePrint, TheSecondPageKeepsTheLettersOfItsCodePageAndSymbolFont) {
    EXPECT_EQ(Printed("{\\rtf1\\ansi\\ansicpg1251{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}"
                      "{\\f2\\fcharset238 Arial CE;}}"
                      "\\'ca<PAGE>\\f0 \\'ca {\\f1\\'b7} {\\f2\\'b3}\\par}"),
              (Pages{"К", "К • ł"}));
}

TEST(FootnotePrint, PlainTextWithMarkersPrintsAsPlainText) {
    EXPECT_EQ(Printed("C:\\dir<PAGE>{so} on<STOP>x"), (Pages{"C:\\dir", "{so} on"}));
}

TEST(FootnotePrint, AHundredThousandPageMarkersAreCutInLinearTime) {
    std::string text = "{\\rtf1 ";
    for (int i = 0; i < 100000; ++i)
        text += "words of a footnote<PAGE>";
    const std::vector<std::string> paragraphs = FootnoteParagraphs(text + "}", 0);
    ASSERT_EQ(paragraphs.size(), 100001u);
    EXPECT_EQ(paragraphs[99999], "{words of a footnote}");
}

}  // namespace
}  // namespace tendo
