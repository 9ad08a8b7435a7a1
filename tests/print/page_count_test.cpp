#include "platform/print/page_count.h"

#include <gtest/gtest.h>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

namespace tendo {
namespace {

using namespace page_geometry;

class PageCount : public testing::Test {
  protected:
    /// The right field of the running header of each page of a document.
    std::vector<TextItem> Headers(int pages, int more) {
        surface.Action(3);
        surface.HdrFontSize(8);
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) surface.NewPage();
            surface.Header("||{Page " + std::to_string(page) + " of " + PageCountMark(more) + "}");
            surface.Paragraph("text");
        }
        surface.Action(6);
        std::vector<TextItem> headers;
        for (const Page& page : surface.Result().pages)
            headers.push_back(page.texts.front());
        return headers;
    }

    FixedMeasurer measurer;
    LayoutSurface surface{measurer};
};

TEST_F(PageCount, StandsOnEveryPageOnceTheDocumentHasEnded) {
    const auto headers = Headers(3, 0);
    ASSERT_EQ(headers.size(), 3U);
    EXPECT_EQ(headers[0].text, "Page 1 of 3");
    EXPECT_EQ(headers[2].text, "Page 3 of 3");
}

TEST_F(PageCount, CountsWhatStandsAheadOfTheDocument) {
    // Two pages that are numbered from 5: the last one is 6.
    EXPECT_EQ(Headers(2, 4)[0].text, "Page 1 of 6");
}

TEST_F(PageCount, KeepsTheRightEndOfItsField) {
    // Twelve pages. Eight points are 160 twips, 80 a character: "Page 1 of 12" is 960 wide, "Page
    // 12 of 12" 1040.
    const auto headers = Headers(12, 0);
    EXPECT_EQ(headers[0].width, 960);
    EXPECT_EQ(headers[11].width, 1040);
    for (const TextItem& header : headers)
        EXPECT_EQ(header.x + header.width, Right - TextInset) << header.text;
}

}  // namespace
}  // namespace tendo
