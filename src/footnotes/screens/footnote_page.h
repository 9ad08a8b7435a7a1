#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "footnotes/screens/footnote_changes.h"

class QVBoxLayout;

namespace tendo {

class FootnoteText;
class ProjectFootnoteList;

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

    /// Puts an edited text into its footnote.
    void StoreText();

    /// Runs after every change of the list or of a text in it.
    std::function<void()> Changed;

  private:
    void AddButtons(QVBoxLayout* column);
    void EnableButtons();
    void AddFromDatabase();
    void AddNew();
    /// What is typed reaches the list when the keys rest.
    void WatchTyping();

    FootnoteMode mode_;
    const FootnotePageNames& names_;
    ProjectFootnoteList* list_ = nullptr;
    FootnoteText* text_ = nullptr;
    QTimer typing_;
};

}  // namespace tendo
