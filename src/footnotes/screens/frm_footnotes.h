#pragma once

#include <string>

#include "platform/qt/form.h"

class QLabel;
class QListWidget;
class QVBoxLayout;

namespace tendo {

class FootnoteText;
class ProjectFootnoteList;

/// The project's footnotes: the library and the proposal's list side by side with an editor.
class frmFootnotes : public Form {
    Q_OBJECT
  public:
    frmFootnotes();
    QSize sizeHint() const override { return {1060, 680}; }

  protected:
    void CommitEdits() override;
    void StoreFields() override;
    bool QueryUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddLibrary(QVBoxLayout* column);
    void AddSelected(QVBoxLayout* column);
    void AddEditor(QVBoxLayout* column);

    /// Reads the library's names anew.
    void RefreshLibrary();
    void ChooseInLibrary(const std::string& name);
    void ShowSource();
    void EnableButtons();

    void DBLFootNoteName_Click();
    void btnNew_Click();
    void btnAddToList_Click();
    void btnDelete_Click();
    void btnRename_Click();

    QListWidget* library_ = nullptr;
    ProjectFootnoteList* selected_ = nullptr;
    QLabel* shown_ = nullptr;
    FootnoteText* text_ = nullptr;
};

}  // namespace tendo
