#pragma once

#include <string>

#include "materials/screens/labor_screen.h"

namespace tendo {

class EnhancedInput;
class TextField;

/// Labor List for All Systems: the editor of a named labor list.
class frmLaborList : public LaborScreen {
    Q_OBJECT
  public:
    frmLaborList(const std::string& name, bool isNew);

  protected:
    void ReadList(const std::string& name) override;
    void Edited() override { changed_ = true; }
    bool QueryUnload() override;
    void FormUnload() override;

  private:
    void AddName(const std::string& name);
    /// False when nothing was saved: no name, or a failure that was told.
    bool Save();
    void btnSaveList_Click();
    void btnCopyProjectLabor_Click();

    TextField* txtListName_ = nullptr;
    EnhancedInput* nameInput_ = nullptr;
    bool changed_;  // since it was read or saved; a new list is from the start
};

/// The editor of a list, or an empty one for a new list, not shown yet; nullptr, after a message,
/// when the list can't be read.
Form* MakeLaborListEditor(const std::string& name, bool isNew);

}  // namespace tendo
