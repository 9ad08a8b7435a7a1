#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
#include "platform/print/table_text.h"

namespace tendo {
namespace {

using namespace page_geometry;

// Ten points: characters 100 twips wide, lines 200 high; a row of one line is 270 high, a spacer
// 100. The text of the first column starts at 450 (360 and insets of 25 and 65).
constexpr int FirstText = Left + TableInset + CellPadding;
constexpr int RowHeight = 270;

class Tables : public testing::Test {
  protected:
    Tables() { surface.Action(3); }

    const Document& Finish() {
        surface.Action(6);
        return surface.Result();
    }
    const Page& FinishOnePage() {
        EXPECT_EQ(Finish().pages.size(), 1U);
        return surface.Result().pages.at(0);
    }
    static std::string Rows(int count, const std::string& row) {
        std::string body;
        for (int i = 0; i < count; ++i)
            body += row + std::to_string(i) + ";";
        return body;
    }

    FixedMeasurer measurer;
    LayoutSurface surface{measurer};
};

TEST(TableTexts, AFormatHoldsAlignmentMarkAndWidthOfEachColumn) {
    const std::vector<TableColumn> columns = ParseTableFormat("<1540|<+3600|>~1400|^600");
    ASSERT_EQ(columns.size(), 4U);
    EXPECT_EQ(columns[0].align, CellAlign::Left);
    EXPECT_EQ(columns[0].width, 1540);
    EXPECT_EQ(columns[1].align, CellAlign::Left);
    EXPECT_EQ(columns[1].width, 3600);
    EXPECT_EQ(columns[2].align, CellAlign::Right);
    EXPECT_EQ(columns[2].width, 1400);
    EXPECT_EQ(columns[3].align, CellAlign::Center);
    EXPECT_EQ(columns[3].width, 600);
}

TEST(TableTexts, ABrokenWidthIsHeldInBounds) {
    EXPECT_EQ(ParseTableFormat("<+").at(0).width, 0);
    EXPECT_EQ(ParseTableFormat("<-5").at(0).width, 0);
    EXPECT_EQ(ParseTableFormat("").size(), 1U);
}

TEST(TableTexts, ARowWithMoreCellsThanColumnsLosesTheExtraOnes) {
    using Cells = std::vector<std::string_view>;
    EXPECT_EQ(SplitCells("Available Cooling:|||", 3), (Cells{"Available Cooling:", "", ""}));
    EXPECT_EQ(SplitCells("a|b|c|d", 2), (Cells{"a", "b"}));
    EXPECT_EQ(SplitCells("a", 3), (Cells{"a", "", ""}));
}

TEST(TableTexts, EachRowIsClosedByASemicolon) {
    using Texts = std::vector<std::string_view>;
    EXPECT_EQ(SplitRows("||;a|b;;"), (Texts{"||", "a|b", ""}));
    EXPECT_EQ(SplitRows("a;rest"), (Texts{"a", "rest"}));
    EXPECT_TRUE(SplitRows("").empty());
}

TEST_F(Tables, CellsStandInTheirColumns) {
    surface.AddTable("<+2000|>2000|^2000", "", "ab|cd|ef;");
    const Page& page = FinishOnePage();
    ASSERT_EQ(page.texts.size(), 3U);
    EXPECT_EQ(page.texts[0].x, FirstText);
    EXPECT_EQ(page.texts[1].x,
              385 + 4000 - CellPadding - 200);     // at the right of the second column
    EXPECT_EQ(page.texts[2].x, 385 + 5000 - 100);  // in the middle of the third
    EXPECT_EQ(page.texts[0].y, 720 + 35 + 160);
    EXPECT_EQ(surface.CurrentY(), 720 + RowHeight);
    EXPECT_EQ(surface.CurrentX(), Left);
}

TEST_F(Tables, CellsWrapAndTheRowGrows) {
    // 2000 less twice 65 holds 18 characters: two lines.
    surface.AddTable("<2000|<2000", "", "Gas furnace, two stage|x;y;");
    EXPECT_EQ(surface.CurrentY(), 720 + 470 + RowHeight);
    EXPECT_EQ(PageText(FinishOnePage()), "Gas furnace, two\nstage\nx\ny");
}

TEST_F(Tables, ASpacerRowIsHalfALineHigh) {
    surface.AddTable("<2000|<2000|<2000", "", "||;");
    EXPECT_EQ(surface.CurrentY(), 720 + 100);
}

TEST_F(Tables, TheHeaderIsBoldOnItsShadeAndLineBreaksInItAreKept) {
    surface.AddTable("<2000|<2000", "|Dealer\r\nCost", "a|b;", 0xC0E0FF);
    const Page& page = FinishOnePage();
    ASSERT_EQ(page.texts.size(), 4U);
    EXPECT_EQ(page.texts[0].text, "Dealer");
    EXPECT_EQ(page.texts[1].text, "Cost");
    EXPECT_TRUE(surface.Result().fonts[static_cast<std::size_t>(page.texts[0].font)].bold);
    EXPECT_FALSE(surface.Result().fonts[static_cast<std::size_t>(page.texts[2].font)].bold);
    const BoxItem& shade = std::get<BoxItem>(page.shapes.at(0));
    EXPECT_EQ(shade.fill, Rgb{0xFFE0C0});
    EXPECT_EQ(shade.left, 385);
    EXPECT_EQ(shade.right, 4385);
    EXPECT_EQ(shade.bottom - shade.top, 470);
}

TEST_F(Tables, WithoutAShadeTheHeaderHasNoBox) {
    surface.AddTable("<2000", "Head", "a;");
    EXPECT_TRUE(FinishOnePage().shapes.empty());
}

TEST_F(Tables, TheHeaderRowIsRepeatedOnEachPage) {
    // 13680 / 270 is 50 rows a page, one of them the header.
    surface.AddTable("<5000", "Head", Rows(99, "row "), 0xFF);
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 3U);
    EXPECT_EQ(document.pages[0].texts.size(), 50U);
    EXPECT_EQ(document.pages[1].texts.size(), 50U);
    for (const Page& page : document.pages) {
        EXPECT_EQ(page.texts[0].text, "Head");
        EXPECT_EQ(page.shapes.size(), 1U);
    }
    EXPECT_EQ(PageText(document.pages[2]), "Head\nrow 98");
}

TEST_F(Tables, ARowThatFitsOnAPageIsNotSplit) {
    for (int i = 0; i < 67; ++i)
        surface.Paragraph("line");                         // 280 twips are left
    surface.AddTable("<1000", "", "one two three four;");  // 8 characters a line, three lines
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(document.pages[0].texts.size(), 67U);
    EXPECT_EQ(PageText(document.pages[1]), "one two\nthree\nfour");
}

TEST_F(Tables, ARowHigherThanAPageIsSplitByLines) {
    std::string cell;
    for (int i = 0; i < 100; ++i)
        cell += "word ";
    surface.AddTable("<600|<5000", "H", cell + "|x;");  // one word a line
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    // After the header 13410 twips remain: (13410 - 70) / 200 is 66 lines; and the x.
    EXPECT_EQ(document.pages[0].texts.size(), 68U);
    EXPECT_EQ(document.pages[1].texts.size(), 35U);
}

TEST_F(Tables, AHeaderDoesNotStandAloneAtTheFootOfAPage) {
    for (int i = 0; i < 66; ++i)
        surface.Paragraph("line");  // 480 twips are left, less than two rows
    surface.AddTable("<5000", "Head", "row;", 0xFF);
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageText(document.pages[1]), "Head\nrow");
}

TEST_F(Tables, ATotalOfAComparisonStandsOut) {
    surface.TableBorder(3);
    surface.AddTable("<3000|<3000", "", "List Price:|1;Total Price:|2;");
    const Page& page = FinishOnePage();
    const auto bold = [&](std::size_t i) {
        return surface.Result().fonts[static_cast<std::size_t>(page.texts[i].font)].bold;
    };
    EXPECT_FALSE(bold(0));
    EXPECT_TRUE(bold(2));
    EXPECT_TRUE(bold(3));
}

TEST_F(Tables, EachSectionOfAComparisonEndsWithARule) {
    surface.TableBorder(3);
    // A spacer of 100 begins the table and parts its two sections of one row.
    surface.AddTable("<3000|<3000", "", "|;a|1;|;b|2;");
    const Page& page = FinishOnePage();
    ASSERT_EQ(page.shapes.size(), 2U);
    const LineItem& first = std::get<LineItem>(page.shapes[0]);
    EXPECT_EQ(first.x1, 385);
    EXPECT_EQ(first.x2, 6385);
    EXPECT_EQ(first.y1, 720 + 100 + RowHeight + 50);  // in the middle of the spacer
    EXPECT_EQ(std::get<LineItem>(page.shapes[1]).y1, 720 + 2 * 100 + 2 * RowHeight);
}

TEST_F(Tables, ATotalTakesTheRowAboveItToTheNextPage) {
    surface.TableBorder(3);
    for (int i = 0; i < 66; ++i)
        surface.Paragraph("line");  // 480 twips are left: one row of 270, not two
    surface.AddTable("<5000", "", "List Price:;Total Price:;");
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageText(document.pages[1]), "List Price:\nTotal Price:");
}

TEST_F(Tables, ARepeatedHeaderKeepsTheSpaceBelowIt) {
    surface.AddTable("<5000", "Head", ";" + Rows(50, "row "));
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    // Header 270, spacer 100, padding 35 and an ascent of 160.
    EXPECT_EQ(document.pages[0].texts[1].y, 720 + 270 + 100 + 35 + 160);
    EXPECT_EQ(document.pages[1].texts[1].y, 720 + 270 + 100 + 35 + 160);
}

TEST_F(Tables, WideLineSpacingStandsHalfAboveAndHalfBelowTheText) {
    surface.LineSpacing(200);
    surface.AddTable("<5000", "", "a;");
    EXPECT_EQ(surface.CurrentY(), 720 + 400 + 70);
    EXPECT_EQ(FinishOnePage().texts[0].y, 720 + 35 + 100 + 160);
}

TEST_F(Tables, AHeaderOnADarkShadeIsWhite) {
    surface.TextColor(0x333333);
    surface.AddTable("<5000", "Head", "a;", 0x703020);  // blue-green-red: a dark blue
    surface.AddTable("<5000", "Head", "a;", 0xC0E0FF);
    const Page& page = FinishOnePage();
    EXPECT_EQ(page.texts[0].color, Rgb{0xFFFFFF});
    EXPECT_EQ(page.texts[1].color, Rgb{0x333333});
    EXPECT_EQ(page.texts[2].color, Rgb{0x333333});
}

TEST_F(Tables, AFigureTooWideForItsCellIsSetSmallerWithItsRow) {
    // 1330 less twice 65 is 1200, room for 12 characters at 10 points. "$1,234,567.90" has 13: at
    // 9 points (180 twips, 90 a character) it takes 1170; at 9.5 it would take 1235.
    surface.AddTable("<3000|>1330", "", "Total|$1,234,567.90;List|$1.00;");
    const Page& page = FinishOnePage();
    const auto size = [&](std::size_t i) {
        return surface.Result().fonts[static_cast<std::size_t>(page.texts[i].font)].sizeTwips;
    };
    ASSERT_EQ(page.texts.size(), 4U);
    EXPECT_EQ(size(0), 180);
    EXPECT_EQ(size(1), 180);
    EXPECT_EQ(size(2), 200);
    EXPECT_EQ(surface.CurrentY(), 720 + 2 * RowHeight);
    EXPECT_EQ(page.texts[0].y, 720 + 35 + 10 + 144);  // half of 20 above; an ascent of 144
}

TEST_F(Tables, AWordFarTooWideForItsCellIsBrokenInItsOwnSize) {
    surface.AddTable("<1330", "", "abcdefghijklmnopqrstuvwxyz;");
    const Page& page = FinishOnePage();
    ASSERT_EQ(page.texts.size(), 3U);
    EXPECT_EQ(page.texts[0].text, "abcdefghijkl");
    EXPECT_EQ(surface.Result().fonts[static_cast<std::size_t>(page.texts[0].font)].sizeTwips, 200);
}

TEST_F(Tables, AHeadingKeepsItsLineByASmallerSize) {
    // "SYSTEM #5" has 9 characters in room for 8: at 8.5 points (85 a character) 765 of 800.
    surface.AddTable("<930|<2000", "SYSTEM #5|Wide", "a|b;", 0xFF);
    const Page& page = FinishOnePage();
    EXPECT_EQ(page.texts[0].text, "SYSTEM #5");
    EXPECT_EQ(surface.Result().fonts[static_cast<std::size_t>(page.texts[0].font)].sizeTwips, 170);
    EXPECT_EQ(std::get<BoxItem>(page.shapes.at(0)).bottom, 720 + RowHeight);
}

TEST_F(Tables, ATableWiderThanThePageIsNarrowedToIt) {
    surface.AddTable("<21500|>10750", "Head|Head", "a|b;", 0xFF);
    const Page& page = FinishOnePage();
    const BoxItem& shade = std::get<BoxItem>(page.shapes.at(0));
    // 21500 and 10750 of 32250 in 10750: 7166 and 3583.
    EXPECT_EQ(shade.right, 385 + 7166 + 3583);
    EXPECT_EQ(page.texts.back().x, 385 + 7166 + 3583 - CellPadding - 100);
}

TEST_F(Tables, ARuledTableHasALineUnderEachRowButNoSpacer) {
    surface.TableBorder(2);
    surface.AddTable("<3000", "Head", ";a;b;");
    EXPECT_EQ(FinishOnePage().shapes.size(), 3U);
}

TEST_F(Tables, AGridHasAFrameAroundEachCell) {
    surface.TableBorder(7);
    surface.AddTable("<3000|<3000", "", "a|b;c|d;");
    EXPECT_EQ(FinishOnePage().shapes.size(), 4U);
}

TEST_F(Tables, ColumnsWithoutWidthLoseNoText) {
    surface.AddTable("<0", "", "ab;");
    EXPECT_EQ(PageText(FinishOnePage()), "a\nb");
}

TEST_F(Tables, TheNewPageEventWritesAboveTheRepeatedHeader) {
    surface.NewPageEvent = [&] {
        if (surface.CurrentPage() > 1) surface.Paragraph("running");
    };
    surface.AddTable("<5000", "Head", Rows(50, "row "));
    const Document& document = Finish();
    ASSERT_EQ(document.pages.size(), 2U);
    EXPECT_EQ(PageText(document.pages[1]), "running\nHead\nrow 49");
}

}  // namespace
}  // namespace tendo
