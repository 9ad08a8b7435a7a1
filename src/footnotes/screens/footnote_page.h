#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "footnotes/project_footnotes.h"
#include "footnotes/screens/frm_footnote_new.h"

class QListWidget;
class QVBoxLayout;

namespace tendo {

class RichEditor;

/// Names of the controls of one of the two footnote lists of the report options.
struct FootnotePageNames {
    const char *caption, *list, *text, *bar;
    const char *addFromDatabase, *addNew, *remove, *up, *down;
};

/// One of the project's footnote lists with an editor: add from the library, write a new one,
/// remove, move.
class FootnotePage : public QWidget {
    Q_OBJECT
  public:
    /// `mode` tells which list it is.
    FootnotePage(FootnoteMode mode, const FootnotePageNames& names, QWidget* parent);

    /// Shows the list as it is now; an edited text is dropped.
    void Refill();
    /// Puts an edited text into its footnote.
    void StoreText();

    /// Runs after every change of the list.
    std::function<void()> Changed;

  private:
    void AddButtons(QVBoxLayout* column, const FootnotePageNames& names);
    FootnoteList List() const;
    std::optional<std::size_t> Row() const;
    void ShowChosen();
    void ListChanged();
    void AddFromDatabase();
    void AddNew();
    void Remove();
    void Move(bool up);

    FootnoteMode mode_;
    QListWidget* list_ = nullptr;
    RichEditor* editor_ = nullptr;
    std::optional<std::size_t> shown_;
};

}  // namespace tendo
