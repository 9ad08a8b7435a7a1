#pragma once

#include <functional>

#include "footnotes/project_footnotes.h"
#include "platform/qt/form.h"

class QListWidget;

namespace tendo {

class RichEditor;

/// Picks footnotes from the library for one of the project's lists.
class frmSelectFootNoteFromDB : public Form {
    Q_OBJECT
  public:
    /// `added` runs after each footnote that was added, so that the caller refills its list.
    frmSelectFootNoteFromDB(FootnoteList target, std::function<void()> added);
    QSize sizeHint() const override { return {760, 480}; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void DBLFootNoteName_Click();
    void btnSelect_Click();

    FootnoteList target_;
    std::function<void()> added_;
    QListWidget* library_ = nullptr;
    RichEditor* text_ = nullptr;
};

}  // namespace tendo
