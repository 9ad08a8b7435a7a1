#include "app/screens/frm_help_pages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "app/command_table.h"

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

TEST(HelpPageOfScreen, LeadsToItsPageAndAnyOtherToTheIndex) {
    EXPECT_EQ(HelpPageOfScreen("frmGPD"), "general-project-data.md");
    EXPECT_EQ(HelpPageOfScreen("frmSumModelData"), "price-table.md");
    EXPECT_EQ(HelpPageOfScreen("frmWHInfo"), "hot-water.md");
    EXPECT_EQ(HelpPageOfScreen("frmLaborCosts"), "labor.md");
    EXPECT_EQ(HelpPageOfScreen("frmListAddDelete"), "lists.md");
    EXPECT_EQ(HelpPageOfScreen(""), "index.md");
    EXPECT_EQ(HelpPageOfScreen("frmTip"), "index.md");
}

TEST(HelpPageOfScreen, EachPageThatIsNamedIsWritten) {
    const std::string folder = std::string(TENDO_SOURCE_DIR) + "/docs/guide/";
    std::set<std::string> pages = {"index.md", "first-job.md"};  // of the Help menu's commands
    for (const auto& [screen, page] : HelpPagesByScreen())
        pages.insert(page);
    for (const std::string& page : pages)
        EXPECT_TRUE(std::filesystem::exists(folder + page)) << page;
}

TEST(HelpPages, EachLinkAndPictureOfAPageIsThere) {
    const std::string folder = std::string(TENDO_SOURCE_DIR) + "/docs/guide/";
    int links = 0;
    for (const HelpPage& page : Guide()) {
        for (std::size_t at = page.text.find("]("); at != std::string::npos;
             at = page.text.find("](", at + 2)) {
            const std::string target =
                page.text.substr(at + 2, page.text.find_first_of(")#", at + 2) - at - 2);
            if (target.empty() || target.find(':') != std::string::npos) continue;
            ++links;
            EXPECT_TRUE(std::filesystem::exists(folder + target)) << page.file << ": " << target;
        }
    }
    EXPECT_GT(links, 10);
}

TEST(HelpPages, ThePageOfKeysNamesEachShortcutOfTheMenus) {
    std::string keys;
    for (const HelpPage& page : Guide())
        if (page.file == "keys.md") keys = page.text;
    for (const Command& command : Commands())
        EXPECT_NE(keys.find(command.shortcut), std::string::npos) << command.tool;
}

TEST(HelpPages, EachPageIsLinkedToByTheIndex) {
    const std::vector<HelpPage> pages = Guide();
    for (const HelpPage& page : pages)
        if (page.file != "index.md") {
            EXPECT_NE(pages[0].text.find("(" + page.file + ")"), std::string::npos) << page.file;
        }
}

}  // namespace
}  // namespace tendo
