#pragma once

#include <functional>
#include <string>

namespace tendo {

/// The only way to a command, for menus, toolbar, search box and driver: commits the field in focus
/// and calls the tool's procedure. An error that the procedure didn't tell itself is shown here.
void ActiveBar_Click(const std::string& tool);

/// Adds the procedure of a command that other rooms bring ("mnuFilePrint_Click"); wiring.cpp does
/// so.
void RegisterProcedure(const std::string& name, std::function<void()> run);

/// Makes the tools available whose procedure and screen exist.
void RefreshAvailableTools();

/// Marks the tool of the screen in front.
void RefreshCheckedTools();

/// Runs a part of the program from the top of an event: an error that reaches it is shown with the
/// normal pointer. False then.
bool RunGuarded(const std::function<void()>& run);

/// Called after each command.
void SetCommandObserver(std::function<void()> observer);

}  // namespace tendo
