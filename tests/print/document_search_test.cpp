#include "platform/print/document_search.h"

#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

namespace tendo {
namespace {

using namespace page_geometry;

// In the fixed font of ten points every character is 100 twips wide and a line 200 twips high, with
// an ascent of 160; 106 characters fit on a line.
class DocumentSearch : public testing::Test {
  protected:
    DocumentSearch() { surface.Action(3); }

    std::vector<DocumentMatch> Find(std::string_view text) {
        surface.Action(6);
        return FindText(surface.Result(), text);
    }
    /// The text of a match, its parts joined by a stroke.
    std::string Told(const DocumentMatch& match) {
        std::string text;
        for (const MatchPart& part : match.parts) {
            if (!text.empty()) text += '/';
            text +=
                PageOf(match).texts.at(part.text).text.substr(part.begin, part.end - part.begin);
        }
        return text;
    }
    const Page& PageOf(const DocumentMatch& match) {
        return surface.Result().pages.at(static_cast<std::size_t>(match.page));
    }

    FixedMeasurer measurer;
    LayoutSurface surface{measurer};
};

TEST_F(DocumentSearch, CaseDoesNotCount) {
    surface.Paragraph("Heating, heat pump and HEAT");
    const auto matches = Find("hEaT");
    ASSERT_EQ(matches.size(), 3U);
    EXPECT_EQ(Told(matches[0]), "Heat");
    EXPECT_EQ(Told(matches[1]), "heat");
    EXPECT_EQ(Told(matches[2]), "HEAT");
}

TEST_F(DocumentSearch, LettersBeyondAsciiAreFoundInEitherCase) {
    surface.Paragraph("Caf\u00E9 Ren\u00C9, \u00DCber");
    const auto matches = Find("\u00E9");
    ASSERT_EQ(matches.size(), 2U);
    EXPECT_EQ(Told(matches[0]), "\u00E9");
    EXPECT_EQ(Told(matches[1]), "\u00C9");
    EXPECT_EQ(Find("\u00FCBER").size(), 1U);
}

TEST_F(DocumentSearch, PlacesDoNotOverlap) {
    surface.Paragraph("aaaaa");
    EXPECT_EQ(Find("aa").size(), 2U);
}

TEST_F(DocumentSearch, APlaceMayRunOverTheEndOfALine) {
    // 100 characters and a word of 7 leave no room on the first line for "pump".
    surface.Paragraph(std::string(98, 'x') + " central pump of the house");
    const auto matches = Find("central pump of");
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(Told(matches[0]), "central/pump of");
}

TEST_F(DocumentSearch, APlaceMayRunOverFontsOfOneLine) {
    surface.AutoRTF(true);
    surface.Paragraph("{\\rtf1 our \\b best\\b0 ly offer}");
    const auto matches = Find("our bestly offer");
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(Told(matches[0]), "our /best/ly offer");
}

TEST_F(DocumentSearch, ParagraphsStandApart) {
    surface.Paragraph("ends here");
    surface.Paragraph("");
    surface.Paragraph("begins there");
    EXPECT_TRUE(Find("here begins").empty());
}

TEST_F(DocumentSearch, PagesStandApart) {
    surface.Paragraph("ends here");
    surface.NewPage();
    surface.Paragraph("begins there");
    EXPECT_TRUE(Find("here begins").empty());
    const auto matches = Find("begins");
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(matches[0].page, 1);
}

TEST_F(DocumentSearch, ALabelAndItsFigureInATableAreOnePlace) {
    surface.AddTable("<~3000|<~3000", "", "Total Price:|$3,310.00;");
    const auto matches = Find("total price: $3,310");
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(Told(matches[0]), "Total Price:/$3,310");
}

TEST_F(DocumentSearch, TheLinesOfACellFollowEachOther) {
    // 3000 twips less 2 x 65 take 28 characters: the cell breaks behind "pump".
    surface.AddTable("<~3000|<~3000", "", "A variable speed heat pump system|12;");
    const auto matches = Find("pump system");
    ASSERT_EQ(matches.size(), 1U);
    EXPECT_EQ(matches[0].parts.size(), 2U);
}

TEST_F(DocumentSearch, BlanksOfTheSearchedTextCountAsOne) {
    surface.Paragraph("a  wide   gap");
    EXPECT_EQ(Find("  a wide    gap ").size(), 1U);
}

TEST_F(DocumentSearch, NothingIsFoundForAnEmptyTextOrBlanks) {
    surface.Paragraph("some text");
    EXPECT_TRUE(Find("").empty());
    EXPECT_TRUE(Find("   ").empty());
    EXPECT_TRUE(FindText(Document(), "some").empty());
}

TEST_F(DocumentSearch, TheBoxOfAPlaceCoversItsLetters) {
    surface.Paragraph("Total Price");
    const auto matches = Find("price");
    ASSERT_EQ(matches.size(), 1U);
    const auto boxes = BoxesOf(surface.Result(), matches[0], measurer);
    ASSERT_EQ(boxes.size(), 1U);
    // Six characters of 100 twips stand ahead of it, five are its own.
    EXPECT_EQ(boxes[0].left, Left + TextInset + 600);
    EXPECT_EQ(boxes[0].right, Left + TextInset + 1100);
    EXPECT_EQ(boxes[0].top, Top);
    EXPECT_EQ(boxes[0].bottom, Top + 200);
}

}  // namespace
}  // namespace tendo
