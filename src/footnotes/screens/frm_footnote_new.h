#pragma once

#include <optional>
#include <string>

#include "footnotes/screens/footnote_changes.h"
#include "platform/qt/form.h"

class QVBoxLayout;

namespace tendo {

class RichEditor;
class TextField;

/// Writes one new footnote. Closing stores it; Cancel doesn't. What can't be stored keeps the
/// screen open.
class frmFootnoteNew : public Form {
    Q_OBJECT
  public:
    /// `stored` takes the name under which the footnote was stored.
    frmFootnoteNew(FootnoteMode mode, std::optional<std::string>& stored);
    QSize sizeHint() const override { return {860, 560}; }

  protected:
    bool QueryUnload() override;
    void FormUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddButtons(QVBoxLayout* column);
    /// A row of the library holds the new footnote's place from the start.
    void AddDraft();
    void Cancel();
    bool MayDiscard();
    bool StoreInLibrary();
    bool StoreInProject();
    void OfferToLibrary(const std::string& name, const std::string& text);

    FootnoteMode mode_;
    std::optional<std::string>& stored_;
    bool cancelled_ = false;
    std::string draft_;
    TextField* name_ = nullptr;
    RichEditor* editor_ = nullptr;
};

/// Shows the screen and returns when it has closed: the name of the footnote, nothing when none was
/// stored.
std::optional<std::string> ShowFootnoteNew(FootnoteMode mode);

}  // namespace tendo
