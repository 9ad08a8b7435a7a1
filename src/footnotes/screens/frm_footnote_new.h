#pragma once

#include <string>

#include "footnotes/project_footnotes.h"
#include "platform/qt/form.h"

class QVBoxLayout;

namespace tendo {

class RichEditor;
class TextField;

/// Where a new footnote goes: the library, the proposal's list, the accessories report's list.
enum class FootnoteMode { Database, Selected, AccRpt };

/// The project's list of a mode.
FootnoteList ListOf(FootnoteMode mode);

/// Writes one new footnote. Closing stores it; Cancel doesn't.
class frmFootnoteNew : public Form {
    Q_OBJECT
  public:
    explicit frmFootnoteNew(FootnoteMode mode);
    QSize sizeHint() const override { return {860, 560}; }

  protected:
    bool QueryUnload() override;
    void FormUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddButtons(QVBoxLayout* column);
    /// A row of the library holds the new footnote's place from the start.
    void AddDraft();
    void StoreInLibrary();
    void StoreInProject();

    FootnoteMode mode_;
    bool cancelled_ = false;
    std::string draft_;
    TextField* name_ = nullptr;
    RichEditor* editor_ = nullptr;
};

/// Shows the screen and returns when it has closed.
void ShowFootnoteNew(FootnoteMode mode);

}  // namespace tendo
