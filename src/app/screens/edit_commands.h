#pragma once

namespace tendo {

/// The Edit commands act on the text field that has the focus; any other control ignores them.
void mnuEditUndo_Click();
void mnuEditCut_Click();
void mnuEditCopy_Click();
void mnuEditPaste_Click();
void mnuEditDelete_Click();
void mnuEditSelectAll_Click();

}  // namespace tendo
