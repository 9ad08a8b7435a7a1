#include <gtest/gtest.h>

#include <climits>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

namespace tendo {
namespace {

using namespace page_geometry;

/// Values that no report means but a profile or a project may bring about. In the fixed font of ten
/// points every character is 100 twips wide and a line 200 twips high.
class OddCalls : public testing::Test {
  protected:
    OddCalls() { surface.Action(3); }

    const Document& Finish() {
        surface.Action(6);
        return surface.Result();
    }
    int HeightOfALine() {
        const int before = surface.CurrentY();
        surface.Paragraph("line");
        return surface.CurrentY() - before;
    }

    FixedMeasurer measurer;
    LayoutSurface surface{measurer};
};

TEST_F(OddCalls, ATableWithoutColumnsKeepsItsText) {
    surface.AddTable("", "", "ab;");
    EXPECT_EQ(PageText(Finish().pages.at(0)), "a\nb");
}

TEST_F(OddCalls, ATableWithoutRowsIsItsHeader) {
    surface.AddTable("<5000", "Head", "", 0xFF);
    EXPECT_EQ(PageText(Finish().pages.at(0)), "Head");
}

TEST_F(OddCalls, FontSizesAreHeldBetweenOneAndTwoHundredPoints) {
    surface.FontSize(-5);
    EXPECT_EQ(HeightOfALine(), 20);
    surface.FontSize(0);
    EXPECT_EQ(HeightOfALine(), 20);
    surface.FontSize(INT_MAX);
    EXPECT_EQ(HeightOfALine(), 4000);
    surface.FontSize(INT_MIN);
    EXPECT_EQ(HeightOfALine(), 20);
}

TEST_F(OddCalls, ALineSpacingOfNothingIsSingle) {
    for (const int percent : {0, -5, INT_MIN}) {
        surface.LineSpacing(percent);
        EXPECT_EQ(HeightOfALine(), 200);
    }
}

TEST_F(OddCalls, ALineSpacingBeyondSenseIsHeld) {
    surface.LineSpacing(10000);
    EXPECT_EQ(HeightOfALine(), 800);
    surface.LineSpacing(1);
    EXPECT_EQ(HeightOfALine(), 100);
}

TEST_F(OddCalls, AnEventWhoseOwnLinesFillThePageDoesNotOpenTheNext) {
    surface.NewPageEvent = [&] {
        if (surface.CurrentPage() == 1) return;
        for (int i = 0; i < 8; ++i)
            surface.Paragraph("running");
    };
    surface.FontSize(100);  // lines of 2000: six a page
    for (int i = 0; i < 7; ++i)
        surface.Paragraph("line");
    EXPECT_EQ(Finish().pages.size(), 2U);
}

TEST_F(OddCalls, LineSpacingMakesNoLineHigherThanAQuarterPage) {
    surface.FontSize(50);
    surface.LineSpacing(400);
    EXPECT_EQ(HeightOfALine(), 3420);  // 13680 / 4, not 4000
    surface.FontSize(200);
    EXPECT_EQ(HeightOfALine(), 4000);  // its own height
}

TEST_F(OddCalls, AGiantHeadingAtTheTopLeavesNoEmptyPageBehind) {
    surface.FontSize(200);  // a line of 4000; four of them are more than a page
    surface.X1(Left);
    surface.X2(Right);
    surface.Y1(Top - 70);
    surface.Y2(Top + 250);
    surface.Draw(2);
    surface.Paragraph("A");
    EXPECT_EQ(Finish().pages.size(), 1U);
}

TEST_F(OddCalls, APenFarOffThePageIsHeld) {
    for (const int place : {INT_MAX, INT_MIN}) {
        surface.CurrentX(place);
        surface.CurrentY(place);
        surface.Text("far");
        surface.Paragraph("away");
    }
    EXPECT_LE(Finish().pages.size(), 3U);
}

TEST_F(OddCalls, OtherNumbersOfColumnsAndPageBordersChangeNothing) {
    surface.PageBorder(4);
    surface.Columns(1);
    surface.Paragraph("text");
    const std::string plain = DocumentJson(Finish());
    surface.Action(3);
    surface.PageBorder(4);
    for (const int columns : {0, 3, -1, INT_MAX})
        surface.Columns(columns);
    surface.Paragraph("text");
    EXPECT_EQ(DocumentJson(Finish()), plain);
}

TEST_F(OddCalls, APageBorderOfAnotherNumberIsNone) {
    for (const int border : {0, 1, 7, -1, INT_MAX}) {
        surface.Action(3);
        surface.PageBorder(border);
        surface.Paragraph("text");
        EXPECT_TRUE(Finish().pages.at(0).shapes.empty()) << border;
    }
}

TEST_F(OddCalls, UnknownTableBordersAreNone) {
    for (const int border : {0, 1, 4, 5, 6, 8, -1, INT_MAX}) {
        surface.TableBorder(border);
        surface.AddTable("<3000|<3000", "", "a|b;|;c|d;");
    }
    EXPECT_TRUE(Finish().pages.at(0).shapes.empty());
}

TEST_F(OddCalls, ABarInsideBracesPartsNoFields) {
    surface.Header("{left {a|b}\\line two}|mid|{right|tail}");
    surface.Paragraph("body");
    EXPECT_EQ(PageText(Finish().pages.at(0)), "left a|b\ntwo\nmid right|tail\nbody");
}

TEST_F(OddCalls, ABraceThatIsNeverClosedDoesNotSwallowTheOtherFields) {
    surface.Header("{left|mid|right}}");
    surface.HdrFontSize(10);
    surface.Paragraph("body");
    const Page& page = Finish().pages.at(0);
    ASSERT_EQ(page.texts.size(), 4U);
    EXPECT_EQ(page.texts[1].text, "mid");
}

TEST_F(OddCalls, AHeaderLongerThanItsBandIsSetSmallerAndStaysInIt) {
    std::string name;
    for (int i = 0; i < 12; ++i)
        name += "Vanderhoeven ";
    surface.HdrFontSize(8);
    surface.Header("{" + name + "\\line two\\line three}||");
    surface.Paragraph("body");
    const Document& document = Finish();
    for (const TextItem& text : document.pages.at(0).texts) {
        if (text.text == "body") continue;
        EXPECT_GT(text.y, 28);
        EXPECT_LT(text.y, Top);
        EXPECT_LT(text.x + text.width, 5500);  // clear of the icon in the middle
        const auto font = static_cast<std::size_t>(text.font);
        EXPECT_LT(document.fonts.at(font).sizeTwips, 160);
    }
}

TEST_F(OddCalls, AHeaderOfHundredLinesIsCutAtItsBand) {
    std::string header = "{first";
    for (int i = 0; i < 100; ++i)
        header += "\\line more";
    surface.Header(header + "}||");
    surface.Paragraph("body");
    const Page& page = Finish().pages.at(0);
    EXPECT_EQ(page.texts[0].text, "first");
    EXPECT_GT(page.texts[0].y, 0);
    EXPECT_LT(page.texts[page.texts.size() - 2].y, Top);
}

TEST_F(OddCalls, ShapesFarOutsideThePaperDoNoHarm) {
    surface.X1(INT_MIN);
    surface.X2(INT_MAX);
    surface.Y1(INT_MIN);
    surface.Y2(INT_MAX);
    surface.Draw(2);
    surface.Picture("/nowhere.png");
    surface.DrawLine(INT_MIN, INT_MIN, INT_MAX, INT_MIN);
    surface.Paragraph("text");
    EXPECT_EQ(Finish().pages.at(0).shapes.size(), 3U);
}

TEST_F(OddCalls, IndentsThatLeaveNoRoomAreHeldOnThePage) {
    surface.AutoRTF(true);
    surface.Paragraph("{\\rtf1\\li99999\\ri99999\\sb999999\\sa999999 far\\par near\\par}");
    for (const Page& page : Finish().pages)
        for (const TextItem& text : page.texts) {
            EXPECT_GE(text.x, Left);
            EXPECT_LE(text.x + text.width, Right);
        }
}

/// Counts how often a font is asked.
class CountingMeasurer : public FixedMeasurer {
  public:
    double Width(const FontSpec& font, std::string_view text) override {
        ++asked;
        return FixedMeasurer::Width(font, text);
    }
    int asked = 0;
};

TEST(LongTables, AHundredThousandRowsAskTheFontOncePerWord) {
    CountingMeasurer measurer;
    LayoutSurface surface(measurer);
    surface.Action(3);
    std::string body;
    for (int i = 0; i < 100'000; ++i)
        body += "Flexible duct, insulated|six inches|$1,234.00;";
    surface.AddTable("<5000|<3000|>2000", "Item|Size|Price", body, 0xFF);
    surface.Action(6);
    // 13680 / 270 is 50 rows a page, one of them the header: 2041 pages, the last with 40 rows.
    ASSERT_EQ(surface.Result().pages.size(), 2041U);
    EXPECT_EQ(surface.Result().pages.back().texts.size(), 3U * 41);
    EXPECT_LT(measurer.asked, 40);
}

}  // namespace
}  // namespace tendo
