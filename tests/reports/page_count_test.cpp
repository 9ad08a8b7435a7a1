#include <gmock/gmock.h>

#include "platform/print/document.h"
#include "report_fixture.h"
#include "reports/report_options.h"

namespace tendo {
namespace {

class NumberOfPages : public ReportTest {
  protected:
    /// A document of three pages with running headers; the text of one of them.
    std::string TextOfPage(std::size_t number) {
        surface.Action(3);
        surface.Paragraph("first");
        surface.NewPage();
        surface.NewPage();
        surface.Action(6);
        return PageText(layout.Result().pages.at(number - 1));
    }
};

TEST_F(NumberOfPages, IsNotPrintedUnlessMarked) {
    EXPECT_EQ(ReportOptionValues().Mark("chkPageCount"), 0);
    EXPECT_EQ(LoadReportOptions(project).Mark("chkPageCount"), 0);
    const std::string text = TextOfPage(2);
    EXPECT_THAT(text, testing::HasSubstr("Page 2"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("Page 2 of")));
}

TEST_F(NumberOfPages, FollowsThePageNumber) {
    Option("chkPageCount", "1");
    EXPECT_THAT(TextOfPage(2), testing::HasSubstr("Page 2 of 3"));
    EXPECT_THAT(TextOfPage(3), testing::HasSubstr("Page 3 of 3"));
}

TEST_F(NumberOfPages, CountsFromTheStartingPageNumber) {
    // Three pages from 5 on are 5, 6 and 7.
    Option("chkPageCount", "1");
    Option("txtStartingPageNo", "5");
    EXPECT_THAT(TextOfPage(2), testing::HasSubstr("Page 6 of 7"));
}

TEST_F(NumberOfPages, NeedsThePageNumbers) {
    Option("chkPageCount", "1");
    Option("chkPageNumbers", "0");
    EXPECT_THAT(TextOfPage(2), testing::Not(testing::HasSubstr(" of 3")));
}

TEST_F(NumberOfPages, IsNoPartOfAProposalFormat) {
    for (const ReportOption& option : ReportOptionTable())
        if (std::string_view(option.control) == "chkPageCount") {
            EXPECT_EQ(option.column, nullptr);
        }
}

}  // namespace
}  // namespace tendo
