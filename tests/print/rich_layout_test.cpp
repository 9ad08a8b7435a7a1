// Rich text on the page, in letters of half their size: at 10 points (200 twips) each is 100 twips
// wide and a line 200 twips high. Text begins at 450 twips.

#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
#include "platform/print/line_breaker.h"

namespace tendo {
namespace {

constexpr int TextLeft = 450;

class TabbedLine : public testing::Test {
  protected:
    TextLine Broken(std::string_view text, std::vector<TabStop> tabs) {
        const StyledRun run{text, fonts_.Id({"Arial", 200})};
        return BreakLines(fonts_, {&run, 1}, {9000, 0, 0, std::move(tabs)}).front();
    }
    /// Where the fragment with this text begins.
    static double Start(const TextLine& line, std::string_view text) {
        for (const LineFragment& fragment : line.fragments)
            if (fragment.text == text) return fragment.x;
        return -1;
    }

  private:
    FixedMeasurer measurer_;
    FontTable fonts_{measurer_};
};

TEST_F(TabbedLine, TextStandsLeftCentredOrRightAtItsStop) {
    EXPECT_EQ(Start(Broken("ab\tcd", {{1000}}), "cd"), 1000);
    EXPECT_EQ(Start(Broken("ab\tcd", {{1000, TabAlign::Center}}), "cd"), 900);
    EXPECT_EQ(Start(Broken("ab\tcd", {{1000, TabAlign::Right}}), "cd"), 800);
    const TextLine two = Broken("a\tbb\tccc", {{1000, TabAlign::Right}, {2000, TabAlign::Right}});
    EXPECT_EQ(Start(two, "bb"), 800);
    EXPECT_EQ(Start(two, "ccc"), 1700);
    EXPECT_EQ(two.width, 2000);
}

TEST_F(TabbedLine, NumbersStandWithTheirPointAtADecimalStop) {
    EXPECT_EQ(Start(Broken("\t1.25", {{1000, TabAlign::Decimal}}), "1.25"), 900);
    EXPECT_EQ(Start(Broken("\t110.5", {{1000, TabAlign::Decimal}}), "110.5"), 700);
    EXPECT_EQ(Start(Broken("\t17", {{1000, TabAlign::Decimal}}), "17"), 800);
}

TEST_F(TabbedLine, TextWithTooLittleRoomBeforeItsStopBeginsAtTheTab) {
    EXPECT_EQ(Start(Broken("abcdef\tghij", {{700, TabAlign::Right}}), "ghij"), 600);
}

/// From 200 to 1800: dots in columns of 100 twips, half a dot away from the texts at least, so from
/// 300 to 1700.
TEST_F(TabbedLine, ALeaderFillsTheWayToTheStop) {
    const TextLine line = Broken("ab\tcd", {{2000, TabAlign::Right, '.'}});
    ASSERT_EQ(line.fragments.size(), 3u);
    EXPECT_EQ(line.fragments[1].text, std::string(14, '.'));
    EXPECT_EQ(line.fragments[1].x, 300);
    EXPECT_EQ(line.fragments[2].x, 1800);
}

TEST_F(TabbedLine, BehindALineBreakTextGoesOnAtTheRestOfTheParagraph) {
    FixedMeasurer measurer;
    FontTable fonts(measurer);
    const StyledRun run{"a\nb", fonts.Id({"Arial", 200})};
    const std::vector<TextLine> lines = BreakLines(fonts, {&run, 1}, {9000, -360, 0, {}});
    EXPECT_EQ(lines[0].fragments[0].x, -360);
    EXPECT_EQ(lines[1].fragments[0].x, 0);
}

class RichLayout : public testing::Test {
  protected:
    const Document& LaidOut(const std::string& rich) {
        surface_.Action(3);
        surface_.AutoRTF(true);
        surface_.Paragraph(rich);
        surface_.Action(6);
        return surface_.Result();
    }
    static const TextItem& Item(const Document& document, std::string_view text) {
        for (const Page& page : document.pages)
            for (const TextItem& item : page.texts)
                if (item.text == text) return item;
        ADD_FAILURE() << "no text " << text;
        static const TextItem none;
        return none;
    }

  private:
    FixedMeasurer measurer_;
    LayoutSurface surface_{measurer_};
};

/// Text keeps 108 twips off the edges of its cell.
TEST_F(RichLayout, CellsStandInTheirColumns) {
    const Document& document = LaidOut(
        "{\\rtf1\\fs20\\trowd\\cellx2000\\cellx4000\\pard\\intbl a\\cell\\pard\\intbl\\qr "
        "b\\cell\\row"
        "\\trowd\\cellx2000\\cellx4000\\pard\\intbl\\qc c\\line d\\cell\\pard\\intbl e\\cell\\row"
        "\\pard f\\par}");
    EXPECT_EQ(Item(document, "a").x, TextLeft + 108);
    EXPECT_EQ(Item(document, "b").x, TextLeft + 4000 - 108 - 100);
    EXPECT_EQ(Item(document, "c").x, TextLeft + 1000 - 50);
    EXPECT_EQ(Item(document, "e").y, Item(document, "c").y);
    EXPECT_EQ(Item(document, "f").y, Item(document, "c").y + 2 * 200);
}

/// Cells of 12,000 twips shrink to the text's width of 10,620: the second begins at 5,310.
TEST_F(RichLayout, ATableWiderThanThePageIsMadeToFit) {
    const Document& document =
        LaidOut("{\\rtf1\\fs20\\trowd\\cellx6000\\cellx12000\\intbl a\\cell b\\cell\\row}");
    EXPECT_EQ(Item(document, "b").x, TextLeft + 5310 + 108);
}

TEST_F(RichLayout, LinesOfCellsAreDrawnAsGiven) {
    const Document& document = LaidOut(
        "{\\rtf1\\fs20\\trowd\\clbrdrb\\brdrs\\cellx2000\\intbl a\\cell\\row"
        "\\trowd\\clbrdrt\\brdrs\\clbrdrl\\brdrs\\clbrdrb\\brdrs\\clbrdrr\\brdrs\\cellx2000"
        "\\intbl b\\cell\\row}");
    ASSERT_EQ(document.pages[0].shapes.size(), 2u);
    const auto& line = std::get<LineItem>(document.pages[0].shapes[0]);
    EXPECT_EQ(line.y1, line.y2);
    EXPECT_EQ(line.x2 - line.x1, 2000);
    const auto& box = std::get<BoxItem>(document.pages[0].shapes[1]);
    EXPECT_EQ(box.bottom - box.top, 200);
}

/// A page has room for (14400 - 720) / 200 = 68 lines.
TEST_F(RichLayout, ARowThatDoesNotFitGoesToTheNextPageWhole) {
    std::string text = "{\\rtf1\\fs20 ";
    for (int line = 0; line < 66; ++line)
        text += "x\\par ";
    const Document& document = LaidOut(
        text + "\\trowd\\cellx2000\\cellx4000\\intbl 1\\line 2\\line 3\\cell b\\cell\\row}");
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_EQ(PageText(document.pages[1]), "1\n2\n3\nb");
}

TEST_F(RichLayout, ARowHigherThanAPageGoesOnOverPages) {
    std::string text = "{\\rtf1\\fs20\\trowd\\cellx2000\\cellx4000\\intbl ";
    for (int line = 0; line < 100; ++line)
        text += "x\\line ";
    const Document& document = LaidOut(text + "\\cell end\\cell\\row}");
    EXPECT_EQ(document.pages.size(), 2u);
    Item(document, "end");
}

TEST_F(RichLayout, PageBreaksOfTheTextBreakThePage) {
    const Document& document = LaidOut("{\\rtf1 one\\page two\\par\\pard\\pagebb three\\par}");
    ASSERT_EQ(document.pages.size(), 3u);
    EXPECT_EQ(PageText(document.pages[1]), "two");
}

TEST_F(RichLayout, APageBreakAtTheVeryStartGivesNoEmptyPage) {
    EXPECT_EQ(LaidOut("{\\rtf1\\pagebb one\\par}").pages.size(), 1u);
}

TEST_F(RichLayout, LineSpacingOfTheTextParts) {
    const Document& document = LaidOut(
        "{\\rtf1\\fs20\\sl480\\slmult1 a\\par b\\par\\pard\\sl300\\slmult0 c\\par d\\par"
        "\\pard\\sl-180 e\\par f\\par\\pard\\sl-20 g\\par h\\par}");
    EXPECT_EQ(Item(document, "b").y - Item(document, "a").y, 400);
    EXPECT_EQ(Item(document, "d").y - Item(document, "c").y, 300);
    EXPECT_EQ(Item(document, "f").y - Item(document, "e").y, 180);
    EXPECT_EQ(Item(document, "h").y - Item(document, "g").y, 150);  // never less than 3/4
}

/// At 12 points a raised sign stands 80 twips above the base line; the words around it stay on it.
TEST_F(RichLayout, RaisedSignsStandAboveTheBaseLine) {
    const Document& document = LaidOut("{\\rtf1\\fs24 ft{\\super 2} wide}");
    EXPECT_EQ(Item(document, "ft").y - Item(document, "2").y, 80);
    EXPECT_EQ(PageText(document.pages[0]), "ft2 wide");
}

}  // namespace
}  // namespace tendo
