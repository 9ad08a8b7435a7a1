#pragma once

#include <QListWidget>
#include <optional>

#include "footnotes/project_footnotes.h"
#include "footnotes/screens/footnote_changes.h"

namespace tendo {

class FootnoteText;

/// The footnotes of one of the project's lists by their names, in the order of printing, with the
/// commands on them. The text of the chosen one is shown in an editor. F2 renames, Delete removes,
/// Ctrl with an arrow key moves, and so does the mouse.
class ProjectFootnoteList : public QListWidget {
    Q_OBJECT
  public:
    ProjectFootnoteList(FootnoteMode mode, FootnoteText* text, QWidget* parent);

    /// The chosen row of the project's list.
    std::optional<std::size_t> Row() const;
    void ChooseLast() { setCurrentRow(count() - 1); }
    /// Shows the text of the chosen footnote, after that of the editor was stored.
    void ShowRow(std::size_t row);
    void ShowChosen();

    void Remove();
    void Rename();
    void Move(bool up);

  Q_SIGNALS:
    /// Another footnote was chosen, or none.
    void Chosen();
    /// The list is another one, or a text in it.
    void Changed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    FootnoteList List() const;
    void Refill();
    void MoveTo(std::size_t from, std::size_t to);

    FootnoteMode mode_;
    FootnoteText* text_;
};

}  // namespace tendo
