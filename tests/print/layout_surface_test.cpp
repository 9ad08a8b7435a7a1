#include "platform/print/layout_surface.h"

#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"

namespace tendo {
namespace {

using namespace page_geometry;

// In the fixed font of ten points every character is 100 twips wide and a line 200 twips high; 68
// lines fit on a page (13680 / 200), 106 characters on a line (10620 / 100).
constexpr int TextLeft = Left + TextInset;
constexpr int TextRight = Right - TextInset;

class Layout : public testing::Test {
  protected:
    Layout() { surface.Action(3); }

    const Document& Finish() {
        surface.Action(6);
        return surface.Result();
    }
    void Lines(int count) {
        for (int i = 0; i < count; ++i)
            surface.Paragraph("line");
    }

    FixedMeasurer measurer;
    LayoutSurface surface{measurer};
};

TEST_F(Layout, ADocumentWithoutContentsHasNoPage) {
    surface.FontName("Arial");
    surface.CurrentY(5000);
    EXPECT_EQ(surface.CurrentPage(), 1);
    EXPECT_TRUE(Finish().pages.empty());
}

TEST_F(Layout, ThePageIsThePrintableAreaAndItsCentreIsFourInches) {
    EXPECT_EQ(surface.PageWidth() / 2, 5760);
    EXPECT_EQ(surface.PageHeight(), 15120);
    EXPECT_EQ((TextLeft + TextRight) / 2, 5760);
}

TEST_F(Layout, AParagraphStandsAtTheUpperLeftAndMovesThePenDown) {
    surface.Paragraph("Hello");
    EXPECT_EQ(surface.CurrentY(), 920);
    EXPECT_EQ(surface.CurrentX(), Left);
    const TextItem& text = Finish().pages.at(0).texts.at(0);
    EXPECT_EQ(text.x, TextLeft);
    EXPECT_EQ(text.y, 880);  // 720 and an ascent of four fifths of 200
    EXPECT_EQ(text.width, 500);
}

TEST_F(Layout, AnEmptyParagraphIsAnEmptyLine) {
    surface.Paragraph("");
    EXPECT_EQ(surface.CurrentY(), 920);
    EXPECT_EQ(Finish().pages.size(), 1U);
}

TEST_F(Layout, ParagraphsAreCentredAndSetToTheRight) {
    surface.TextAlign(1);
    surface.Paragraph("four");
    surface.TextAlign(2);
    surface.Paragraph("four");
    const Page& page = Finish().pages.at(0);
    EXPECT_EQ(page.texts[0].x, 5760 - 200);
    EXPECT_EQ(page.texts[1].x, TextRight - 400);
}

TEST_F(Layout, LineSpacingStretchesEveryLine) {
    surface.LineSpacing(150);
    surface.Paragraph("one");
    EXPECT_EQ(surface.CurrentY(), 1020);
}

TEST_F(Layout, APageThatIsFullIsLeftAndTheEventComesBeforeTheNextLine) {
    std::vector<int> opened;
    surface.NewPageEvent = [&] {
        opened.push_back(surface.CurrentPage());
        if (surface.CurrentPage() > 1) surface.Paragraph("head");
    };
    Lines(69);
    EXPECT_EQ(opened, (std::vector<int>{1, 2}));
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(document.pages[0].texts.size(), 68U);
    EXPECT_EQ(PageText(document.pages[1]), "head\nline");
}

TEST_F(Layout, NewPageEndsThePage) {
    surface.Paragraph("one");
    surface.NewPage();
    EXPECT_EQ(surface.CurrentPage(), 2);
    EXPECT_EQ(surface.CurrentY(), Top);
    surface.Paragraph("two");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageText(document.pages[1]), "two");
}

TEST_F(Layout, TextGoesOnBehindThePen) {
    surface.CurrentX(2000);
    surface.CurrentY(3000);
    surface.Text("ab");
    surface.Text("cd");
    EXPECT_EQ(surface.CurrentX(), 2400);
    EXPECT_EQ(surface.CurrentY(), 3000);
    const Page& page = Finish().pages.at(0);
    EXPECT_EQ(page.texts[1].x, 2200);
    EXPECT_EQ(page.texts[1].y, 3160);
}

TEST_F(Layout, MeasureTellsTheWidthInTheCurrentFont) {
    surface.Measure("ab cd");
    EXPECT_EQ(surface.MeasuredWidth(), 500);
    surface.FontSize(20);
    surface.Measure("ab cd");
    EXPECT_EQ(surface.MeasuredWidth(), 1000);
}

TEST_F(Layout, ARectangleIsFilledAndOutlinedByBrushAndPen) {
    surface.BrushColor(0xC0FFFF);  // blue-green-red: a light yellow
    surface.PenWidth(2);
    surface.X1(100);
    surface.Y1(200);
    surface.X2(300);
    surface.Y2(400);
    surface.Draw(2);
    surface.BrushStyle(1);
    surface.PenWidth(0);
    surface.Draw(2);
    const Page& page = Finish().pages.at(0);
    const BoxItem& box = std::get<BoxItem>(page.shapes.at(0));
    EXPECT_EQ(box.left, 100);
    EXPECT_EQ(box.bottom, 400);
    EXPECT_EQ(box.fill, Rgb{0xFFFFC0});
    EXPECT_EQ(box.outline, Rgb{0});
    EXPECT_EQ(box.penWidth, 15);
    EXPECT_FALSE(std::get<BoxItem>(page.shapes.at(1)).fill);
    EXPECT_FALSE(std::get<BoxItem>(page.shapes.at(1)).outline);
}

TEST_F(Layout, TheWindowColourIsWhite) {
    EXPECT_EQ(RgbOfColor(static_cast<std::int32_t>(0x80000005U)), 0xFFFFFFU);
    EXPECT_EQ(RgbOfColor(0x0000FF), 0xFF0000U);
}

TEST_F(Layout, AHeadingOnABarStandsInItsMiddleAndEntersTheOutline) {
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(700);
    surface.Y2(1020);
    surface.Draw(2);
    surface.Paragraph("Sales Report");
    surface.Paragraph("body");
    const Document& document = Finish();
    // Capitals are 140 high: base line at the middle of the bar, 860, and 70.
    EXPECT_EQ(document.pages[0].texts[0].y, 930);
    EXPECT_EQ(document.pages[0].texts[1].y, 1080);
    ASSERT_EQ(document.outline.size(), 1U);
    EXPECT_EQ(document.outline[0].title, "Sales Report");
    EXPECT_EQ(document.outline[0].page, 0);
}

TEST_F(Layout, AHeadingWithoutRoomForItsSectionTakesItsBarToTheNextPage) {
    surface.NewPageEvent = [&] {
        if (surface.CurrentPage() > 1) surface.Paragraph("running");
    };
    Lines(65);  // 13720; three lines of 200 would fit, a heading wants four
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(13650);
    surface.Y2(13970);
    surface.Draw(2);
    surface.Paragraph("Footnotes");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_TRUE(document.pages[0].shapes.empty());
    ASSERT_EQ(document.pages[1].shapes.size(), 1U);
    const BoxItem& bar = std::get<BoxItem>(document.pages[1].shapes[0]);
    EXPECT_EQ(bar.top, 920 - 70);  // as far above its text as before
    EXPECT_EQ(bar.bottom - bar.top, 320);
    EXPECT_EQ(PageText(document.pages[1]), "running\nFootnotes");
    EXPECT_EQ(document.outline.back().page, 1);
}

TEST_F(Layout, AHeadingGoesAlongWithATableThatBeginsOnTheNextPage) {
    Lines(63);  // 13320: a heading has its four lines, 1080 twips
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(13250);
    surface.Y2(13570);
    surface.Draw(2);
    surface.Paragraph("Sales Report");
    surface.Paragraph("");
    // 680 twips are left; header 270, a row of two lines 470 and a line want 940.
    surface.AddTable("<1000", "Head", "one two three;");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageText(document.pages[1]), "Sales Report\nHead\none two\nthree");
    EXPECT_TRUE(document.pages[0].shapes.empty());
    const BoxItem& bar = std::get<BoxItem>(document.pages[1].shapes.at(0));
    EXPECT_EQ(bar.top, 720 - 70);
    EXPECT_EQ(document.outline.back().page, 1);
    EXPECT_EQ(document.outline.back().y, 720 - 70);
    // Heading and empty line, then the header's padding and ascent.
    EXPECT_EQ(document.pages[1].texts[1].y, 720 + 400 + 35 + 160);
}

TEST_F(Layout, ALargeHeadingsBarGrowsWithIt) {
    surface.FontSize(30);  // 600 twips: capitals 420, descent 120
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(700);
    surface.Y2(1017);
    surface.Draw(2);
    surface.Paragraph("Sales Report");
    const Page& page = Finish().pages.at(0);
    const BoxItem& bar = std::get<BoxItem>(page.shapes.at(0));
    EXPECT_EQ(bar.top, 700);
    EXPECT_EQ(bar.bottom, 700 + 660);
    EXPECT_EQ(page.texts[0].y, (700 + 1360 + 420) / 2);
}

TEST_F(Layout, NoLineOfAParagraphStandsAloneAtTheFootOfAPage) {
    Lines(67);  // one line is left
    surface.Paragraph(std::string(106, 'a') + " " + std::string(106, 'b') + " " +
                      std::string(106, 'c') + " d");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(document.pages[0].texts.size(), 67U);
    EXPECT_EQ(document.pages[1].texts.size(), 4U);
}

TEST_F(Layout, NoLineOfAParagraphStandsAloneAtTheHeadOfAPage) {
    Lines(65);  // three lines are left for a paragraph of four: two stay, two go
    surface.Paragraph(std::string(106, 'a') + " " + std::string(106, 'b') + " " +
                      std::string(106, 'c') + " d");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(document.pages[0].texts.size(), 67U);
    EXPECT_EQ(document.pages[1].texts.size(), 2U);
}

TEST_F(Layout, AParagraphOfThreeLinesStaysWhole) {
    Lines(66);
    surface.Paragraph(std::string(106, 'a') + " " + std::string(106, 'b') + " c");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(document.pages[1].texts.size(), 3U);
}

TEST_F(Layout, CentredLinesKeepSingleSpacing) {
    surface.LineSpacing(200);
    surface.TextAlign(1);
    surface.Paragraph("TENDO SALES PROPOSAL");
    EXPECT_EQ(surface.CurrentY(), 920);
    surface.TextAlign(0);
    surface.Paragraph("text");
    EXPECT_EQ(surface.CurrentY(), 1320);
}

TEST_F(Layout, TheBannersRuleGivesWayToLinesThatNeedTheRoom) {
    surface.DrawLine(331, 1200, 11203, 1200);
    surface.Paragraph("one");
    surface.Paragraph("two");  // ends at 1120
    EXPECT_EQ(std::get<LineItem>(surface.Result().pages[0].shapes[0]).y1, 1200);
    surface.Paragraph("three");  // ends at 1320
    const LineItem& rule = std::get<LineItem>(surface.Result().pages[0].shapes[0]);
    EXPECT_EQ(rule.y1, 1380);
    EXPECT_EQ(rule.y2, 1380);
    surface.Paragraph("");  // an empty line doesn't collide
    surface.Paragraph("below");
    EXPECT_EQ(std::get<LineItem>(surface.Result().pages[0].shapes[0]).y1, 1380);
}

TEST_F(Layout, ARuleBehindThePenStaysWhereItIs) {
    surface.Paragraph("one");
    surface.DrawLine(331, 920, 11203, 920);
    surface.Paragraph("two");
    EXPECT_EQ(std::get<LineItem>(Finish().pages[0].shapes[0]).y1, 920);
}

TEST_F(Layout, ATitlePageStandsInTheOutlineUnderItsFirstLine) {
    surface.Paragraph("");
    surface.Paragraph("MARLOW RESIDENCE");
    surface.NewPage();
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(700);
    surface.Y2(1020);
    surface.Draw(2);
    surface.Paragraph("Sales Report");
    const Document& document = Finish();
    ASSERT_EQ(document.outline.size(), 2U);
    EXPECT_EQ(document.outline[0].title, "MARLOW RESIDENCE");
    EXPECT_EQ(document.outline[0].page, 0);
    EXPECT_EQ(document.outline[1].page, 1);
}

TEST_F(Layout, AHeadingWithRoomForItsSectionStays) {
    Lines(64);  // 13520; four lines of 200 fit
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(13450);
    surface.Y2(13770);
    surface.Draw(2);
    surface.Paragraph("Footnotes");
    EXPECT_EQ(Finish().pages.size(), 1U);
}

TEST_F(Layout, ANarrowBoxIsNoBarOfAHeading) {
    surface.X1(3000);
    surface.X2(6000);
    surface.Y1(700);
    surface.Y2(1020);
    surface.Draw(2);
    surface.Paragraph("text");
    EXPECT_TRUE(Finish().outline.empty());
}

TEST_F(Layout, HeaderAndFooterStandInThreeFieldsOnEachPage) {
    surface.HdrFontSize(10);
    surface.Header("{left\\line second}|mid|right");
    surface.Footer("||Saturday");
    surface.Paragraph("body");
    surface.NewPage();
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    const Page& page = document.pages[0];
    ASSERT_EQ(page.texts.size(), 6U);
    EXPECT_EQ(page.texts[0].text, "left");
    EXPECT_EQ(page.texts[0].x, TextLeft);
    // Two lines of 200 around 374: the first from 174, its base line 160 below.
    EXPECT_EQ(page.texts[0].y, 334);
    EXPECT_EQ(page.texts[1].y, 534);
    EXPECT_EQ(page.texts[2].x, 5760 - 150);
    EXPECT_EQ(page.texts[3].x, TextRight - 500);
    EXPECT_EQ(page.texts[4].text, "body");
    EXPECT_EQ(page.texts[5].text, "Saturday");
    EXPECT_GT(page.texts[5].y, Bottom);
    EXPECT_EQ(document.pages[1].texts.size(), 5U);
}

TEST_F(Layout, AHeaderHoldsForThePageThatIsLeftWithIt) {
    surface.Paragraph("one");
    surface.Header("first||");
    surface.NewPage();
    surface.Header("");
    const Document& document = Finish();
    EXPECT_EQ(PageText(document.pages[0]), "first\none");
    EXPECT_EQ(PageText(document.pages[1]), "");
}

TEST_F(Layout, ANewDocumentStartsWithoutTheHeaderOfTheOneBefore) {
    surface.Header("old||");
    surface.Paragraph("one");
    surface.Action(6);
    surface.Action(3);
    surface.Paragraph("two");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 1U);
    EXPECT_EQ(PageText(document.pages[0]), "two");
}

TEST_F(Layout, ThePageBorderIsABoxAtTheMargins) {
    surface.PageBorder(4);
    surface.Paragraph("x");
    const BoxItem& box = std::get<BoxItem>(Finish().pages.at(0).shapes.back());
    EXPECT_EQ(box.left, Left);
    EXPECT_EQ(box.top, Top);
    EXPECT_EQ(box.right, Right);
    EXPECT_EQ(box.bottom, Bottom);
    EXPECT_FALSE(box.fill);
}

TEST_F(Layout, PicturesAndLinesKeepTheirPlaces) {
    surface.X1(1);
    surface.Y1(2);
    surface.X2(3);
    surface.Y2(4);
    surface.Picture("a.png");
    surface.DrawLine(10, 20, 30, 40);
    const Page& page = Finish().pages.at(0);
    EXPECT_EQ(std::get<PictureItem>(page.shapes[0]).path, "a.png");
    EXPECT_EQ(std::get<PictureItem>(page.shapes[0]).bottom, 4);
    EXPECT_EQ(std::get<LineItem>(page.shapes[1]).y2, 40);
}

TEST_F(Layout, RichTextIsReadOnlyWhenAsked) {
    surface.Paragraph("{\\b bold}");
    surface.AutoRTF(true);
    surface.Paragraph("{\\b bold}");
    const Document& document = Finish();
    EXPECT_EQ(document.pages[0].texts[0].text, "{\\b bold}");
    EXPECT_EQ(document.pages[0].texts[1].text, "bold");
    EXPECT_TRUE(document.fonts[static_cast<std::size_t>(document.pages[0].texts[1].font)].bold);
}

TEST_F(Layout, RichParagraphsHangByTheirIndents) {
    surface.AutoRTF(true);
    surface.Paragraph("{\\rtf1\\fs20\\li720\\fi-360 1.\\tab item\\par}");
    const Page& page = Finish().pages.at(0);
    EXPECT_EQ(page.texts[0].x, TextLeft + 360);
    EXPECT_EQ(page.texts[1].x, TextLeft + 720);
}

TEST_F(Layout, PrintingHandsOverTheFinishedDocument) {
    std::size_t pages = 0;
    surface.onPrint = [&](const Document& document) { pages = document.pages.size(); };
    surface.Paragraph("x");
    surface.Action(6);
    surface.Action(9);
    EXPECT_EQ(pages, 1U);
}

}  // namespace
}  // namespace tendo
