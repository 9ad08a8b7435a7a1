#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "materials/screens/list_screens.h"
#include "platform/qt/form.h"

class QBoxLayout;
class QComboBox;
class QLabel;

namespace tendo {

/// Add/Edit/Delete Material List or Labor List: one dialog for both kinds.
class frmListAddDelete : public Form {
    Q_OBJECT
  public:
    explicit frmListAddDelete(ListKind kind);

    /// Title, prompt and choices of a kind, with "(None)" chosen.
    void SetKind(ListKind kind);

  private:
    void AddButtons(QBoxLayout* row);
    void SetMatComboList();
    void SetLaborComboList();
    void FillComboList(const std::vector<std::string>& names);
    /// The chosen list; empty without one.
    std::string ChosenList() const;
    /// Opens the editor; this dialog and the takeoff screen of its kind make room for it.
    void OpenEditor(const std::string& name, bool isNew);
    /// Both come back, the dialog for the editor's kind.
    void EditorClosed(ListKind kind);
    void btnAdd_Click();
    void btnEdit_Click();
    void btnDelete_Click();

    ListKind kind_;
    QPointer<Form> hiddenTakeoff_;
    QLabel* lblPrompt_ = nullptr;
    QComboBox* ComboSelectList_ = nullptr;
};

/// Shows the dialog for a kind of lists.
void ShowListAddDelete(ListKind kind);

}  // namespace tendo
