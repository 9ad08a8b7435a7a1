#pragma once

#include <string>
#include <vector>

namespace tendo {

/// The Open command: opens `FileToOpen` at once when it names a project file, else asks for a file.
void mnuFileOpen_Click();

/// Opens an entry of the recent list by its number from 1; an empty place does nothing.
void RecentFile_Click(int number);

/// Files dropped on the main window.
void MDIForm_OLEDragDrop(const std::vector<std::string>& files);

}  // namespace tendo
