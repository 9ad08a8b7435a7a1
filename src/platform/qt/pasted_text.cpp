#include "platform/qt/pasted_text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>

#include "platform/qt/enhanced_input.h"
#include "platform/qt/fields.h"

namespace tendo {
namespace {

/// The rules of a line within a combo box are the combo box's.
QWidget* OwnerOf(QWidget* field) {
    auto* combo = qobject_cast<QComboBox*>(field->parentWidget());
    return combo ? combo : field;
}

QString Accepted(QWidget* field, QString text) {
    for (const auto* input :
         OwnerOf(field)->findChildren<EnhancedInput*>(Qt::FindDirectChildrenOnly))
        text = input->Accepted(text);
    if (const auto* line = qobject_cast<const TextField*>(field)) text = line->Accepted(text);
    return text;
}

QString OnOneLine(QString text) {
    text.replace("\r\n", " ");
    for (const QChar mark : {QChar('\n'), QChar('\r'), QChar('\t'), QChar(QChar::LineSeparator),
                             QChar(QChar::ParagraphSeparator)})
        text.replace(mark, ' ');
    return text;
}

template <class Field>
void Redo(Field* field) {
    if (!field->isReadOnly()) field->redo();
}

/// Lines tell their menu's commands by the caption alone.
bool IsPaste(const QAction& action) {
    return action.objectName() == "edit-paste" ||
           action.text().section('\t', 0, 0) == QLineEdit::tr("&Paste");
}

/// The menu of a field, whose own command for pasting gives way to ours.
template <class Field>
void ShowFieldMenu(Field* field, const QPoint& place) {
    QMenu* menu = field->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        if (!IsPaste(*action)) continue;
        action->disconnect();
        QObject::connect(action, &QAction::triggered, field, [field] { PasteAsTyped(field); });
    }
    menu->popup(place);
}

class PasteWatch : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (auto* line = qobject_cast<QLineEdit*>(watched)) return LineEvent(line, event);
        if (auto* memo = qobject_cast<QPlainTextEdit*>(watched)) return MemoEvent(memo, event);
        auto* memo = qobject_cast<QPlainTextEdit*>(watched->parent());
        return memo && watched == memo->viewport() && ViewportEvent(memo, event);
    }

  private:
    static bool LineEvent(QLineEdit* line, QEvent* event) {
        switch (event->type()) {
            case QEvent::KeyPress:
                return KeyPressed(line, static_cast<QKeyEvent*>(event));
            case QEvent::ContextMenu:
                if (line->contextMenuPolicy() != Qt::DefaultContextMenu) return false;
                ShowFieldMenu(line, static_cast<QContextMenuEvent*>(event)->globalPos());
                return true;
            case QEvent::MouseButtonRelease:
                return MiddleReleased(line, static_cast<QMouseEvent*>(event));
            case QEvent::Drop:
                return Dropped(line, static_cast<QDropEvent*>(event));
            case QEvent::InputMethod:
                return Composed(line, static_cast<QInputMethodEvent*>(event));
            default:
                return false;
        }
    }

    static bool MemoEvent(QPlainTextEdit* memo, QEvent* event) {
        if (event->type() == QEvent::KeyPress)
            return KeyPressed(memo, static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::InputMethod)
            return Composed(memo, static_cast<QInputMethodEvent*>(event));
        return false;
    }

    static bool ViewportEvent(QPlainTextEdit* memo, QEvent* event) {
        if (event->type() == QEvent::ContextMenu) {
            ShowFieldMenu(memo, static_cast<QContextMenuEvent*>(event)->globalPos());
            return true;
        }
        if (event->type() == QEvent::Drop) return Dropped(memo, static_cast<QDropEvent*>(event));
        return false;
    }

    template <class Field>
    static bool KeyPressed(Field* field, QKeyEvent* event) {
        if (event->matches(QKeySequence::Paste)) {
            PasteAsTyped(field);
            return true;
        }
        if (event->key() != Qt::Key_Y || event->modifiers() != Qt::ControlModifier) return false;
        Redo(field);
        return true;
    }

    /// The desktop's selection, where there is one.
    static bool MiddleReleased(QLineEdit* line, const QMouseEvent* event) {
        const QClipboard* clipboard = QApplication::clipboard();
        if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) return false;
        const QString text = clipboard->text(QClipboard::Selection);
        line->setCursorPosition(line->cursorPositionAt(event->pos()));
        InsertAsTyped(line, text);
        return true;
    }

    static void PlaceCaret(QLineEdit* line, const QDropEvent& event) {
        line->setCursorPosition(line->cursorPositionAt(event.position().toPoint()));
    }
    static void PlaceCaret(QPlainTextEdit* memo, const QDropEvent& event) {
        memo->setTextCursor(memo->cursorForPosition(event.position().toPoint()));
    }

    /// A text that is moved within its field has passed the rules already.
    template <class Field>
    static bool Dropped(Field* field, QDropEvent* event) {
        const bool own =
            event->source() && (event->source() == field ||
                                field->isAncestorOf(qobject_cast<QWidget*>(event->source())));
        if (own || !event->mimeData()->hasText() || event->mimeData()->hasUrls()) return false;
        PlaceCaret(field, *event);
        InsertAsTyped(field, event->mimeData()->text());
        event->setDropAction(Qt::CopyAction);
        event->accept();
        return true;
    }

    /// The text that an input method is done with; what it still composes stays its own.
    template <class Field>
    static bool Composed(Field* field, QInputMethodEvent* event) {
        const QString text = event->commitString();
        if (text.isEmpty() || Accepted(field, text) == text) return false;
        event->setCommitString({}, event->replacementStart(), event->replacementLength());
        InsertAsTyped(field, text);
        return false;
    }
};

}  // namespace

void InsertAsTyped(QWidget* field, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(field)) {
        const QString accepted = Accepted(line, OnOneLine(text));
        if (!line->isReadOnly() && !accepted.isEmpty()) line->insert(accepted);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(field)) {
        const QString accepted = Accepted(memo, QString(text).replace("\r\n", "\n"));
        if (!memo->isReadOnly() && !accepted.isEmpty()) memo->insertPlainText(accepted);
    }
}

void PasteAsTyped(QWidget* field) {
    InsertAsTyped(field, QApplication::clipboard()->text());
}

void WatchPasting() {
    static QPointer<PasteWatch> watch;
    if (watch) return;
    watch = new PasteWatch(qApp);
    qApp->installEventFilter(watch);
}

}  // namespace tendo
