#pragma once

#include <string>
#include <vector>

#include "platform/qt/form.h"
#include "project/project_records.h"

namespace tendo {

class TakeoffPage;
class TextField;

/// Edit/Add Material List: the editor of a named material list. It works on a copy of the catalogue
/// of its own, so that a takeoff that is open keeps its selections.
class frmMatList : public Form {
    Q_OBJECT
  public:
    /// `catalogue`: the current price book with the list's selections.
    frmMatList(const std::string& name, bool isNew, std::vector<MaterialRow> catalogue);

  protected:
    bool QueryUnload() override;
    void FormUnload() override;

  private:
    void AddName(const std::string& name);
    void AddSave();
    /// False when nothing was saved: no name, or a failure that was told.
    bool SaveMaterialList();
    bool IsUnsaved();
    std::string ListName() const;
    void btnSaveAssembly_Click();

    std::vector<MaterialRow> catalogue_;
    std::vector<MaterialRow> saved_;  // the rows as they were read or saved
    std::string savedName_;           // empty for a list that was never saved
    TakeoffPage* page_ = nullptr;
    TextField* txtListName_ = nullptr;
};

/// The editor of a list, or an empty one for a new list, not shown yet; nullptr, after a message,
/// when the price book is too short for it or can't be read.
Form* MakeMaterialListEditor(const std::string& name, bool isNew);

}  // namespace tendo
