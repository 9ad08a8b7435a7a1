#include "footnotes/screens/project_footnote_list.h"

#include <QDropEvent>
#include <QKeyEvent>

#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/footnote_text.h"
#include "platform/qt/dialogs.h"

namespace tendo {

ProjectFootnoteList::ProjectFootnoteList(FootnoteMode mode, FootnoteText* text, QWidget* parent)
    : QListWidget(parent), mode_(mode), text_(text) {
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    FillFootnoteList(this, NamesOf(List()));
    connect(this, &QListWidget::currentRowChanged, this, &ProjectFootnoteList::ShowChosen);
    connect(this, &QListWidget::itemClicked, this, &ProjectFootnoteList::ShowChosen);
    connect(&FootnoteChanges::Instance(), &FootnoteChanges::Done, this,
            [this](FootnoteMode changed) {
                if (changed == mode_) Refill();
            });
}

FootnoteList ProjectFootnoteList::List() const {
    return ListOf(mode_);
}

std::optional<std::size_t> ProjectFootnoteList::Row() const {
    const int row = currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= List().Size()) return {};
    return static_cast<std::size_t>(row);
}

void ProjectFootnoteList::ShowRow(std::size_t row) {
    if (text_->Store()) {
        text_->ShowProjectText(mode_, row);
        return;
    }
    const QSignalBlocker quiet(this);
    setCurrentRow(-1);  // the editor keeps what it couldn't store
}

void ProjectFootnoteList::ShowChosen() {
    if (const auto row = Row()) ShowRow(*row);
    Q_EMIT Chosen();
}

/// The editor goes on with its row, if that is still there.
void ProjectFootnoteList::Refill() {
    FillFootnoteList(this, NamesOf(List()));
    if (text_->Mode() == mode_ && text_->ProjectRow()) {
        if (const auto row = Row())
            text_->ShowProjectText(mode_, *row);
        else
            text_->ShowNothing();
    }
    Q_EMIT Chosen();
    Q_EMIT Changed();
}

void ProjectFootnoteList::Remove() {
    const auto row = Row();
    if (!row || Ask("TENDO", "Are you sure you want to remove this footnote?", Buttons::YesNo) !=
                    Answer::Yes)
        return;
    ChangeFootnotes(mode_, [&] { RemoveFootnote(List(), *row); });
}

void ProjectFootnoteList::Rename() {
    const auto row = Row();
    if (!row) return;
    const std::string name = AskFootnoteName(std::string(List().rows[*row].Name.Trimmed()));
    if (name.empty()) return;
    ChangeFootnotes(mode_, [&] { List().rows[*row].Name = name; });
}

void ProjectFootnoteList::Move(bool up) {
    const auto row = Row();
    if (row && (up ? *row > 0 : *row + 1 < List().Size())) MoveTo(*row, up ? *row - 1 : *row + 1);
}

/// Step by step, as the commands do it. The footnote stays chosen and its text in the editor.
void ProjectFootnoteList::MoveTo(std::size_t from, std::size_t to) {
    FootnotesWillChange(mode_);
    for (std::size_t row = from; row > to; --row)
        MoveFootnoteUp(List(), row);
    for (std::size_t row = from; row < to; ++row)
        MoveFootnoteDown(List(), row);
    if (text_->Mode() == mode_ && text_->ProjectRow() == from) text_->FollowRow(to);
    {
        const QSignalBlocker quiet(this);
        setCurrentRow(static_cast<int>(to));
    }
    FootnotesHaveChanged(mode_);
}

void ProjectFootnoteList::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers() == Qt::ControlModifier;
    if (event->key() == Qt::Key_F2) return Rename();
    if (event->key() == Qt::Key_Delete) return Remove();
    if (control && event->key() == Qt::Key_Up) return Move(true);
    if (control && event->key() == Qt::Key_Down) return Move(false);
    QListWidget::keyPressEvent(event);
}

/// The project's list decides; the view only tells where the mouse let go.
void ProjectFootnoteList::dropEvent(QDropEvent* event) {
    const auto from = Row();
    event->ignore();
    if (!from) return;
    const QModelIndex over = indexAt(event->position().toPoint());
    std::size_t to = over.isValid() ? static_cast<std::size_t>(over.row()) : List().Size() - 1;
    const DropIndicatorPosition place = dropIndicatorPosition();
    if (place == BelowItem && to < *from) ++to;
    if (place == AboveItem && to > *from) --to;
    if (to != *from) MoveTo(*from, to);
}

}  // namespace tendo
