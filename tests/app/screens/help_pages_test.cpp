#include "app/screens/frm_help_pages.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tendo {
namespace {

std::vector<HelpPage> Guide() {
    return LoadHelpPages(std::string(TENDO_SOURCE_DIR) + "/docs/guide/");
}

TEST(HelpPages, TheIndexComesFirstAndThePagesInItsOrder) {
    const auto pages = Guide();
    ASSERT_GE(pages.size(), 8U);
    EXPECT_EQ(pages[0].file, "index.md");
    EXPECT_EQ(pages[0].title, "Tendo user guide");
    EXPECT_EQ(pages[1].file, "first-job.md");
    EXPECT_EQ(pages[1].title, "Your first job");
}

TEST(HelpPages, AFolderThatIsNotThereHasNone) {
    EXPECT_TRUE(LoadHelpPages("/no/such/folder/").empty());
}

TEST(HelpSearch, FindsLinesThatHoldAllTheWordsInEitherCaseHeadingsFirst) {
    const std::vector<HelpPage> pages = {
        {"a.md", "A", "# A\nThe *sale price* of a [row](b.md)\nA price\n"},
        {"b.md", "B", "# B\n## Sale PRICE\n| key | sale | price |\n"}};
    const auto finds = SearchHelp(pages, "price Sale");
    ASSERT_EQ(finds.size(), 3U);
    EXPECT_EQ(finds[0].page, 1U);
    EXPECT_EQ(finds[0].line, "Sale PRICE");
    EXPECT_EQ(finds[1].line, "The sale price of a row");
    EXPECT_EQ(finds[2].line, "key   sale   price");
}

TEST(HelpSearch, NoWordsFindNothing) {
    EXPECT_TRUE(SearchHelp(Guide(), "  ").empty());
    EXPECT_TRUE(SearchHelp(Guide(), "zyzzyva").empty());
}

TEST(HelpPageOfScreen, LeadsToAPageOfTheGuideOrToItsIndex) {
    EXPECT_EQ(HelpPageOfScreen("frmGPD"), "general-project-data.md");
    EXPECT_EQ(HelpPageOfScreen("frmSumModelData"), "price-table.md");
    EXPECT_EQ(HelpPageOfScreen(""), "index.md");
    for (const char* screen : {"frmGPD", "frmSumModelData", "frmModelSelection", "frmPreview"})
        EXPECT_TRUE(std::filesystem::exists(std::string(TENDO_SOURCE_DIR) + "/docs/guide/" +
                                            HelpPageOfScreen(screen)));
}

}  // namespace
}  // namespace tendo
