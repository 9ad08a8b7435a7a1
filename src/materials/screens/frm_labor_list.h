#pragma once

#include <string>

#include "materials/screens/labor_screen.h"

class QLineEdit;

namespace tendo {

class TextField;

/// Labor List for All Systems: the editor of a named labor list.
class frmLaborList : public LaborScreen {
    Q_OBJECT
  public:
    explicit frmLaborList(const std::string& name);

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
    bool changed_ = false;
};

/// Loads the editor with a list, or empty for a new one; it isn't shown yet.
Form* MakeLaborListEditor(const std::string& name, bool isNew);

}  // namespace tendo
