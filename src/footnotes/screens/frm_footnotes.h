#pragma once

#include <optional>
#include <string>

#include "platform/qt/form.h"

class QLabel;
class QListWidget;
class QVBoxLayout;

namespace tendo {

class RichEditor;

/// The project's footnotes: the library and the proposal's list side by side with an editor.
class frmFootnotes : public Form {
    Q_OBJECT
  public:
    frmFootnotes();
    QSize sizeHint() const override { return {1060, 680}; }

  protected:
    void StoreFields() override { StoreText(); }
    void FormUnload() override { StoreText(); }
    void keyPressEvent(QKeyEvent* event) override;

  private:
    /// Where the text in the editor came from: a footnote of the library by its name, or a row of
    /// the project's list.
    struct Source {
        std::string name;
        std::optional<std::size_t> row;
    };

    void AddLibrary(QVBoxLayout* column);
    void AddSelected(QVBoxLayout* column);
    void AddEditor(QVBoxLayout* column);

    void RefreshLibrary();
    void RefreshSelected();
    /// Puts an edited text back to where it came from.
    void StoreText();
    void ShowNothing();
    std::optional<std::size_t> SelectedRow() const;
    void MoveSelected(bool up);
    void EnableButtons();

    void DBLFootNoteName_Click();
    void lstSelectedFootnotes_Click();
    void btnNew_Click();
    void btnAddToList_Click();
    void btnDelete_Click();
    void btnRename_Click();
    void btnSelectedRename_Click();
    void btnSelectedDelete_Click();

    QListWidget* library_ = nullptr;
    QListWidget* selected_ = nullptr;
    QLabel* shown_ = nullptr;
    RichEditor* editor_ = nullptr;
    std::optional<Source> source_;
};

}  // namespace tendo
