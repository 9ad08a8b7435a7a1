#include "programs/driver/input.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>
#include <stdexcept>

#include "platform/qt/form.h"

namespace tendo::driver {
namespace {

/// The screen a control stands on, in front of the others.
void BringForward(QWidget* control) {
    for (QWidget* widget = control; widget; widget = widget->parentWidget()) {
        if (auto* window = qobject_cast<QMdiSubWindow*>(widget)) {
            if (QMdiArea* area = window->mdiArea(); area && area->activeSubWindow() != window)
                area->setActiveSubWindow(window);
        }
    }
    QWidget* top = control->window();
    if (QApplication::activeWindow() != top) {
        top->activateWindow();
        SettleEvents();
    }
}

/// The page of a tab control on which a control stands comes to the front, as its user would turn
/// to it.
void TurnToPageOf(QWidget* control) {
    for (QWidget* page = control; page->parentWidget(); page = page->parentWidget()) {
        QWidget* stack = page->parentWidget();
        auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
        const int index = tabs ? tabs->indexOf(page) : -1;
        if (index < 0 || index == tabs->currentIndex() || !tabs->isVisible() ||
            !tabs->isTabEnabled(index) || !tabs->isTabVisible(index))
            continue;
        tabs->setCurrentIndex(index);
        SettleEvents();
    }
}

void MustBeUsable(QWidget* control) {
    TurnToPageOf(control);
    const std::string name = control->objectName().toStdString();
    if (!control->isEnabled()) throw std::runtime_error(name + " is disabled");
    if (!control->isVisible()) throw std::runtime_error(name + " is not visible");
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != control->window() && !modal->isAncestorOf(control))
        throw std::runtime_error(name + " is behind the modal window " +
                                 modal->objectName().toStdString());
}

void SendKey(QWidget* control, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QPointer<QWidget> target = QApplication::focusWidget() ? QApplication::focusWidget() : control;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &press);
    if (!target) return;
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &release);
}

void SendMouse(QWidget* widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void ClickAt(QWidget* widget, const QPoint& at, Click kind) {
    const Qt::MouseButton button = kind == Click::Right ? Qt::RightButton : Qt::LeftButton;
    QPointer<QWidget> alive(widget);
    SendMouse(widget, QEvent::MouseButtonPress, at, button);
    if (alive) SendMouse(widget, QEvent::MouseButtonRelease, at, button);
    if (!alive || kind != Click::Double) return;
    SendMouse(widget, QEvent::MouseButtonDblClick, at, button);
    if (alive) SendMouse(widget, QEvent::MouseButtonRelease, at, button);
}

QAbstractItemView* ViewOf(QWidget* control) {
    auto* view = qobject_cast<QAbstractItemView*>(control);
    if (!view)
        throw std::runtime_error(control->objectName().toStdString() + " is no grid, list or tree");
    return view;
}

/// The index of an item by text or "#N" among `count` texts.
template <class TextAt>
int FindItem(const QString& item, int count, TextAt textAt) {
    bool number = false;
    const int index = item.startsWith('#') ? item.mid(1).toInt(&number) : -1;
    if (number && index >= 0 && index < count) return index;
    for (int i = 0; i < count; ++i)
        if (textAt(i) == item) return i;
    throw std::runtime_error("there is no item \"" + item.toStdString() + "\"");
}

void ChooseInView(QAbstractItemView* view, const QString& item) {
    QAbstractItemModel* model = view->model();
    QModelIndex at;
    const QStringList steps = qobject_cast<QTreeView*>(view) ? item.split('/') : QStringList{item};
    for (const QString& step : steps) {
        const QModelIndex parent = at;
        at = model->index(
            FindItem(step, model->rowCount(parent),
                     [&](int i) { return model->index(i, 0, parent).data().toString(); }),
            0, parent);
    }
    view->scrollTo(at);
    view->setCurrentIndex(at);
    ClickAt(view->viewport(), view->visualRect(at).center(), Click::Single);
}

}  // namespace

void SettleEvents() {
    for (int i = 0; i < 4; ++i) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void FocusControl(QWidget* control) {
    MustBeUsable(control);
    BringForward(control);
    control->setFocus(Qt::TabFocusReason);
    SettleEvents();
}

void LeaveField() {
    if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
    SettleEvents();
}

void TypeText(QWidget* control, const QString& text) {
    FocusControl(control);
    if (auto* edit = qobject_cast<QLineEdit*>(control)) edit->selectAll();
    if (auto* combo = qobject_cast<QComboBox*>(control); combo && combo->isEditable())
        combo->lineEdit()->selectAll();
    if (auto* memo = qobject_cast<QPlainTextEdit*>(control)) memo->selectAll();
    if (auto* rich = qobject_cast<QTextEdit*>(control)) rich->selectAll();
    if (text.isEmpty()) SendKey(control, Qt::Key_Delete, Qt::NoModifier, "\x7f");
    for (const QChar character : text) {
        const QString one(character);
        SendKey(control, QKeySequence(one.toUpper())[0].key(), Qt::NoModifier, one);
    }
}

void PressKeys(QWidget* control, const std::vector<std::string>& sequence) {
    if (!control->hasFocus()) FocusControl(control);
    for (const std::string& name : sequence) {
        const QKeySequence keys = QKeySequence::fromString(QString::fromStdString(name));
        if (keys.isEmpty() || keys[0].key() == Qt::Key_unknown)
            throw std::runtime_error("no such key: " + name);
        const QKeyCombination key = keys[0];
        QString text;
        if (name.size() == 1) text = QString::fromStdString(name);
        if (key.key() == Qt::Key_Space) text = " ";
        if (key.key() == Qt::Key_Return) text = "\r";
        SendKey(control, key.key(), key.keyboardModifiers(), text);
        SettleEvents();
    }
}

void PlaceCaret(QWidget* control, int position, int length) {
    if (!control->hasFocus()) FocusControl(control);
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->setCursorPosition(position);
        if (length > 0) edit->setSelection(position, length);
        return;
    }
    QTextCursor cursor;
    auto* memo = qobject_cast<QPlainTextEdit*>(control);
    auto* rich = qobject_cast<QTextEdit*>(control);
    if (!memo && !rich) throw std::runtime_error("the control has no caret");
    cursor = memo ? memo->textCursor() : rich->textCursor();
    cursor.setPosition(position);
    cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    memo ? memo->setTextCursor(cursor) : rich->setTextCursor(cursor);
}

void SetControlText(QWidget* control, const QString& text) {
    if (auto* edit = qobject_cast<QLineEdit*>(control)) return edit->setText(text);
    if (auto* memo = qobject_cast<QPlainTextEdit*>(control)) return memo->setPlainText(text);
    if (auto* rich = qobject_cast<QTextEdit*>(control)) return rich->setPlainText(text);
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->isEditable()) return combo->setEditText(text);
        return combo->setCurrentIndex(
            FindItem(text, combo->count(), [&](int i) { return combo->itemText(i); }));
    }
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && button->isCheckable())
        return button->setChecked(text == "1" || text == "true");
    throw std::runtime_error(control->objectName().toStdString() + " holds no text");
}

void ClickControl(QWidget* control, Click kind) {
    MustBeUsable(control);
    BringForward(control);
    if (control->focusPolicy() & Qt::ClickFocus) control->setFocus(Qt::MouseFocusReason);
    QPoint at = control->rect().center();
    if (auto* button = qobject_cast<QAbstractButton*>(control); button && button->isCheckable())
        at = QPoint(std::min(12, control->width() / 2), control->height() / 2);
    ClickAt(control, at, kind);
    SettleEvents();
}

void ChooseItem(QWidget* control, const QString& item) {
    MustBeUsable(control);
    BringForward(control);
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        const int index = FindItem(item, combo->count(), [&](int i) { return combo->itemText(i); });
        if (!(combo->model()->flags(combo->model()->index(index, 0)) & Qt::ItemIsEnabled))
            throw std::runtime_error("the item \"" + item.toStdString() + "\" is disabled");
        combo->setFocus(Qt::MouseFocusReason);
        combo->setCurrentIndex(index);
        Q_EMIT combo->activated(index);
        Q_EMIT combo->textActivated(combo->itemText(index));
        return SettleEvents();
    }
    QTabBar* bar = qobject_cast<QTabBar*>(control);
    if (auto* tabs = qobject_cast<QTabWidget*>(control)) bar = tabs->tabBar();
    if (bar) {
        const int index =
            FindItem(item, bar->count(), [&](int i) { return bar->tabText(i).remove('&'); });
        if (!bar->isTabVisible(index)) throw std::runtime_error("the tab is not visible");
        ClickAt(bar, bar->tabRect(index).center(), Click::Single);
        if (bar->currentIndex() != index) bar->setCurrentIndex(index);
        return SettleEvents();
    }
    ChooseInView(ViewOf(control), item);
    SettleEvents();
}

void ClickRow(QWidget* grid, int row, int column) {
    MustBeUsable(grid);
    BringForward(grid);
    QAbstractItemView* view = ViewOf(grid);
    const QModelIndex index = view->model()->index(row, column);
    if (!index.isValid()) throw std::runtime_error("the grid has no such row");
    view->setFocus(Qt::MouseFocusReason);
    view->scrollTo(index);
    ClickAt(view->viewport(), view->visualRect(index).center(), Click::Single);
    SettleEvents();
}

void ClickHead(QWidget* grid, int column) {
    MustBeUsable(grid);
    auto* view = qobject_cast<QTableView*>(grid);
    if (!view || column < 0 || column >= view->model()->columnCount())
        throw std::runtime_error("the grid has no such column");
    view->scrollTo(view->model()->index(0, column));
    QHeaderView* head = view->horizontalHeader();
    const int x = head->sectionViewportPosition(column) + head->sectionSize(column) / 2;
    ClickAt(head->viewport(), QPoint(x, head->height() / 2), Click::Single);
    SettleEvents();
}

void EditCell(QWidget* grid, int row, int column, const QString& text) {
    ClickRow(grid, row, column);
    QAbstractItemView* view = ViewOf(grid);
    const QModelIndex index = view->model()->index(row, column);
    if (!(index.flags() & Qt::ItemIsEditable)) throw std::runtime_error("the cell can't be edited");
    view->setCurrentIndex(index);
    view->edit(index);
    SettleEvents();
    QWidget* editor = QApplication::focusWidget();
    if (!editor || editor == view) throw std::runtime_error("the cell did not open for editing");
    TypeText(editor, text);
    SendKey(editor, Qt::Key_Return, Qt::NoModifier, "\r");
    SettleEvents();
}

}  // namespace tendo::driver
