#pragma once

#include "footnotes/screens/footnote_changes.h"
#include "platform/qt/form.h"

class QHBoxLayout;
class QLabel;
class QListWidget;

namespace tendo {

class RichEditor;

/// Picks footnotes from the library for one of the project's lists.
class frmSelectFootNoteFromDB : public Form {
    Q_OBJECT
  public:
    explicit frmSelectFootNoteFromDB(FootnoteMode mode);
    QSize sizeHint() const override { return {760, 480}; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QHBoxLayout* MakeButtons();
    void DBLFootNoteName_Click();
    void btnSelect_Click();

    FootnoteMode mode_;
    QListWidget* library_ = nullptr;
    RichEditor* text_ = nullptr;
    QLabel* added_ = nullptr;
};

}  // namespace tendo
