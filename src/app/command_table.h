#pragma once

#include <string_view>
#include <vector>

namespace tendo {

/// Where a command stands in its menu and what it needs.
struct Command {
    const char* tool;       // "ToolNew"
    const char* procedure;  // "mnuFileNew_Click"; empty: a click does nothing
    const char* band;       // the menu
    const char* caption;    // with its mnemonic
    const char* shortcut = "";
    const char* icon = "";
    bool needsProject = false;  // on the list of EnableActiveBarTools
    bool startsGroup = false;   // a separator stands before it in its menu
};

/// All commands in menu order.
const std::vector<Command>& Commands();
/// nullptr when there is no such tool.
const Command* FindCommand(std::string_view tool);

/// The bands in the order of the menu bar.
const std::vector<const char*>& Bands();

/// Tools of the main toolbar in their order; an empty name is a separator.
const std::vector<const char*>& MainToolbarTools();

/// Commands of one band that stand in a second menu too.
struct MenuGuest {
    const char* band;
    const char* tool;
    bool startsGroup;
};
const std::vector<MenuGuest>& MenuGuests();

/// "RecentFile1" and upward.
inline constexpr int RecentToolCount = 20;
/// 1 for "RecentFile1"; 0 for any other tool.
int RecentFileNumber(std::string_view tool);

}  // namespace tendo
