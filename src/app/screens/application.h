#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tendo {

/// How the program is started; empty texts take the platform's places.
struct StartOptions {
    std::string home;               // the program directory
    std::string winIni;             // the file that holds section "Velmo Software"
    std::string today;              // "1998-05-04" puts a fixed day in the clock's place
    std::vector<std::string> args;  // one file name at most
    bool shortLogo = false;         // ends the logo's wait at once
    bool sample = false;            // opens the sample job when nothing else came up
};

/// Runs the whole start-up order. A QApplication must exist. With `shortLogo` the main window
/// stands when this returns, otherwise the logo does and its timer goes on. False when the program
/// ends instead (no common directory, a second copy); its message was shown then.
bool StartTendo(const StartOptions& options);

/// Closes the main window as its user would. False when that was cancelled; otherwise all screens
/// are gone and the program may be started again.
bool QuitTendo();

/// One command as it stands at present.
struct ToolState {
    std::string name;     // "ToolNew"
    std::string band;     // "File"
    std::string caption;  // with its mnemonic
    bool enabled = false;
    bool visible = false;
    bool checked = false;
};

/// All commands in the order of the menus; empty without a main window.
std::vector<ToolState> Tools();
std::optional<ToolState> FindTool(const std::string& tool);

/// Runs a command through `ActiveBar_Click`. False when it is unknown, hidden or disabled.
bool ActiveBarClick(const std::string& tool);

/// What a drop of these files on the main window does.
void DropFiles(const std::vector<std::string>& paths);

/// Runs one tick of a timer by its name ("tmrAutoSave", "tmrGPD", "tmrLetUserSeeLogo"); false when
/// no loaded form has it. A timer is a QTimer with its name as object name, below its form.
bool TickTimer(const std::string& name);

}  // namespace tendo
