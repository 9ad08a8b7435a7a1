#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>

#include "app/active_bar.h"
#include "app/command_table.h"

namespace tendo {
namespace {

TEST(CommandTable, EachToolStandsOnceInABandOfTheMenuBar) {
    std::set<std::string> tools, bands(Bands().begin(), Bands().end());
    for (const Command& command : Commands()) {
        EXPECT_TRUE(tools.insert(command.tool).second) << command.tool;
        EXPECT_TRUE(bands.contains(command.band)) << command.tool;
    }
}

TEST(CommandTable, ToolsWithAProjectsNeedAreThoseOfTheList) {
    const std::set<std::string> expected = {"ToolClose",
                                            "ToolSave",
                                            "ToolSaveAs",
                                            "ToolPreview",
                                            "ToolPrint",
                                            "ToolImportFromTendo",
                                            "ToolImportFromPyros",
                                            "ToolImportFromKORVA",
                                            "ToolImportFromMELDA",
                                            "ToolCut",
                                            "ToolCopy",
                                            "ToolPaste",
                                            "ToolUndo",
                                            "ToolDelete",
                                            "ToolSelectAll",
                                            "ToolGPD",
                                            "ToolSystemTendos",
                                            "ToolMaterialCosts",
                                            "ToolLaborCosts",
                                            "ToolFootnotes",
                                            "ToolHotWater",
                                            "ToolReportOptions"};
    std::set<std::string> found;
    for (const Command& command : Commands())
        if (command.needsProject) found.insert(command.tool);
    EXPECT_EQ(found, expected);
}

TEST(CommandTable, NoTwoCommandsShareAShortcut) {
    std::set<std::string> shortcuts = {"Ctrl+Shift+P"};
    for (const Command& command : Commands())
        if (*command.shortcut) {
            EXPECT_TRUE(shortcuts.insert(command.shortcut).second) << command.tool;
        }
}

TEST(CommandTable, NoTwoCaptionsOfAMenuShareAMnemonic) {
    std::set<std::pair<std::string, char>> seen;
    for (const Command& command : Commands()) {
        const std::string caption = command.caption;
        const std::size_t mark = caption.find('&');
        if (mark == std::string::npos) continue;
        const char key = static_cast<char>(std::toupper(caption.at(mark + 1)));
        EXPECT_TRUE(seen.insert({command.band, key}).second) << command.tool;
    }
}

TEST(CommandTable, EachIconIsDrawn) {
    for (const Command& command : Commands())
        if (*command.icon) {
            EXPECT_TRUE(
                std::ifstream(std::string(TENDO_SOURCE_DIR "/data/icons/") + command.icon + ".svg"))
                << command.icon;
        }
}

TEST(CommandTable, ToolbarAndGuestsNameTools) {
    for (const char* tool : MainToolbarTools())
        if (*tool) {
            EXPECT_NE(FindCommand(tool), nullptr) << tool;
        }
    for (const MenuGuest& guest : MenuGuests())
        EXPECT_NE(FindCommand(guest.tool), nullptr) << guest.tool;
}

TEST(CommandTable, BravolinHasNoProcedure) {
    ASSERT_NE(FindCommand("ToolBRAVOLIN"), nullptr);
    EXPECT_STREQ(FindCommand("ToolBRAVOLIN")->procedure, "");
}

TEST(CommandTable, RecentToolsHaveNumbers) {
    EXPECT_EQ(RecentFileNumber("RecentFile1"), 1);
    EXPECT_EQ(RecentFileNumber("RecentFile20"), 20);
    for (const char* tool :
         {"RecentFile", "RecentFile0", "RecentFile21", "RecentFile1x", "ToolOpen"})
        EXPECT_EQ(RecentFileNumber(tool), 0) << tool;
}

TEST(ActiveBarTest, WithNoProjectSaveIsDisabledAndTheMaterialDatabaseIsNot) {
    ActiveBar bar;
    bar.DisableActiveBarTools();
    EXPECT_FALSE(bar.CanUse("ToolSave"));
    EXPECT_TRUE(bar.CanUse("ToolMaterialDB"));
    EXPECT_TRUE(bar.CanUse("ToolNew"));
    bar.EnableActiveBarTools();
    EXPECT_TRUE(bar.CanUse("ToolSave"));
}

TEST(ActiveBarTest, ACommandWithoutItsScreenCannotBeUsed) {
    ActiveBar bar;
    bar.SetAvailable("ToolOptions", false);
    EXPECT_FALSE(bar.CanUse("ToolOptions"));
    EXPECT_TRUE(bar.Find("ToolOptions")->enabled);
}

TEST(ActiveBarTest, RecentFilesShowWithTheirNumber) {
    ActiveBar bar;
    EXPECT_FALSE(bar.Find("RecentFile1")->visible);
    bar.SetRecentFile(1, " /jobs/Maple.tdw ");
    EXPECT_TRUE(bar.Find("RecentFile1")->visible);
    EXPECT_EQ(bar.Find("RecentFile1")->caption, "&1: /jobs/Maple.tdw");
    bar.SetRecentFile(1, "");
    EXPECT_FALSE(bar.CanUse("RecentFile1"));
}

TEST(ActiveBarTest, EachChangeIsTold) {
    ActiveBar bar;
    std::string told;
    bar.Changed = [&](const std::string& name, const ActiveBar::Tool& tool) {
        told += name + (tool.enabled ? "+" : "-");
    };
    bar.SetEnabled("ToolMaterialDB", false);
    bar.SetEnabled("ToolUnknown", false);
    EXPECT_EQ(told, "ToolMaterialDB-");
}

}  // namespace
}  // namespace tendo
