#include "platform/qt/enhanced_input.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOption>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <map>

#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr int invalidProcedureCall = 5;

std::optional<MoveKey> MoveKeyOf(int key) {
    static const std::map<int, MoveKey> keys = {
        {Qt::Key_Left, MoveKey::Left},     {Qt::Key_Up, MoveKey::Up},
        {Qt::Key_Right, MoveKey::Right},   {Qt::Key_Down, MoveKey::Down},
        {Qt::Key_Return, MoveKey::Return}, {Qt::Key_Enter, MoveKey::Return}};
    const auto found = keys.find(key);
    if (found == keys.end()) return std::nullopt;
    return found->second;
}

/// The screen that holds a control; its window when there is none.
QWidget* ScreenOf(QWidget* control) {
    for (QWidget* widget = control; widget; widget = widget->parentWidget())
        if (qobject_cast<Form*>(widget)) return widget;
    return control ? control->window() : nullptr;
}

bool TakesFocus(const QWidget* control) {
    return control && control->isEnabled() && control->isVisible();
}

bool IsOpenPopup(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

int Length(const QString& text) {
    return static_cast<int>(text.length());
}

}  // namespace

EnhancedInput::EnhancedInput(QWidget* owner, std::shared_ptr<tendo::InputValidator> validator)
    : QObject(owner), InputValidator(std::move(validator)), owner_(owner) {
    owner_->installEventFilter(this);
    WatchText();
    if (!InputValidator) return;
    if (QLineEdit* line = Line(); line && !InputValidator->NumberField)
        line->setMaxLength(std::min(line->maxLength(), InputValidator->MaxTextLength));
    if (auto* field = qobject_cast<TextField*>(owner_)) {
        if (field->RangeText.isEmpty())
            field->RangeText = QString::fromStdString(InputValidator->Range());
        if (field->UnitText.isEmpty())
            field->UnitText = QString::fromStdString(InputValidator->Units);
    }
}

void EnhancedInput::WatchText() {
    const auto changed = [this] {
        if (adjustsFont_) FitFont();
        Q_EMIT Change();
    };
    if (auto* combo = qobject_cast<QComboBox*>(owner_))
        connect(combo, &QComboBox::currentTextChanged, this, changed);
    else if (QLineEdit* line = Line())
        connect(line, &QLineEdit::textChanged, this, changed);
    else if (QPlainTextEdit* memo = Memo())
        connect(memo, &QPlainTextEdit::textChanged, this, changed);
}

QLineEdit* EnhancedInput::Line() const {
    if (auto* combo = qobject_cast<QComboBox*>(owner_)) return combo->lineEdit();
    return qobject_cast<QLineEdit*>(owner_);
}

QPlainTextEdit* EnhancedInput::Memo() const {
    return qobject_cast<QPlainTextEdit*>(owner_);
}

bool EnhancedInput::IsATextThing() const {
    return Line() || Memo();
}

QString EnhancedInput::Text() const {
    if (const auto* label = qobject_cast<const QLabel*>(owner_)) return label->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(owner_)) return combo->currentText();
    if (const QPlainTextEdit* memo = Memo()) return memo->toPlainText();
    return Line() ? Line()->text() : QString();
}

CaretState EnhancedInput::Caret() const {
    CaretState state{.textField = IsATextThing(), .length = Length(Text())};
    if (const QLineEdit* line = Line()) {
        state.caret = line->cursorPosition();
        state.selected = Length(line->selectedText());
    } else if (const QPlainTextEdit* memo = Memo()) {
        const QTextCursor cursor = memo->textCursor();
        state.caret = cursor.position();
        state.selected = cursor.selectionEnd() - cursor.selectionStart();
    }
    return state;
}

std::vector<std::string> EnhancedInput::ListItems() const {
    std::vector<std::string> items;
    if (ComboFormListBox) {
        for (int i = 0; i < ComboFormListBox->count(); ++i)
            items.push_back(ComboFormListBox->item(i)->text().toStdString());
    } else if (const auto* combo = qobject_cast<const QComboBox*>(owner_)) {
        for (int i = 0; i < combo->count(); ++i)
            items.push_back(combo->itemText(i).toStdString());
    }
    return items;
}

bool EnhancedInput::eventFilter(QObject* watched, QEvent* event) {
    if (watched != owner_) {
        ButtonEvent(watched, event->type());
        return false;
    }
    switch (event->type()) {
        case QEvent::FocusIn:
            FieldEntered(static_cast<QFocusEvent*>(event)->reason());
            break;
        case QEvent::FocusOut:
            FieldLeft(static_cast<QFocusEvent*>(event)->reason());
            break;
        case QEvent::Resize:
            if (adjustsFont_) FitFont();
            break;
        case QEvent::KeyPress:
            return KeyWasHandled(static_cast<QKeyEvent&>(*event));
        default:
            break;
    }
    return false;
}

void EnhancedInput::FieldEntered(Qt::FocusReason reason) {
    if (ScrollControl) ScrollControl->ensureWidgetVisible(owner_);
    // A click places the caret after the focus has come; the selection waits for that. In a memo it
    // is the place that was meant.
    if (!IsOpenPopup(reason) && !(Memo() && reason == Qt::MouseFocusReason)) {
        QTimer::singleShot(0, this, [this] {
            if (!owner_->hasFocus()) return;
            if (QLineEdit* line = Line()) line->selectAll();
            if (QPlainTextEdit* memo = Memo()) memo->selectAll();
        });
    }
    ShowRangeAndUnits(true);
    Q_EMIT GotFocus();
}

void EnhancedInput::FieldLeft(Qt::FocusReason reason) {
    if (IsOpenPopup(reason)) return;
    if (QLineEdit* line = Line()) line->deselect();
    if (QPlainTextEdit* memo = Memo()) {
        QTextCursor cursor = memo->textCursor();
        cursor.clearSelection();
        memo->setTextCursor(cursor);
    }
    ShowRangeAndUnits(false);
    Q_EMIT LostFocus();
}

void EnhancedInput::ShowRangeAndUnits(bool shown) const {
    if (!InputValidator || !InputValidator->OwnerApplication) return;
    const InputApplication& application = *InputValidator->OwnerApplication;
    if (application.ShowRange) application.ShowRange(shown ? InputValidator->Range() : "");
    if (application.ShowUnits) application.ShowUnits(shown ? InputValidator->Units : "");
}

bool EnhancedInput::KeyWasHandled(const QKeyEvent& event) {
    Q_EMIT KeyDown(event.key(), event.modifiers());
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier && event.key() == Qt::Key_Down) return OpenHelpList();
    if (modifiers == Qt::NoModifier)
        if (const auto key = MoveKeyOf(event.key())) return Move(*key);
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    const QString typed = event.text();
    if (typed.isEmpty() || !typed.at(0).isPrint()) return false;
    Q_EMIT KeyPress(typed);
    return FilterTyped(typed);
}

EntryText EnhancedInput::Entry() const {
    const QString text = Text();
    qsizetype from = 0;
    qsizetype to = 0;
    if (const QLineEdit* line = Line()) {
        from = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
        to = from + line->selectedText().length();
    } else if (const QPlainTextEdit* memo = Memo()) {
        from = memo->textCursor().selectionStart();
        to = memo->textCursor().selectionEnd();
    }
    return {text.left(from).toStdU32String(), text.mid(to).toStdU32String()};
}

std::optional<char32_t> EnhancedInput::Filter(const EntryText& entry, char32_t key) const {
    return FilterKey(
        *InputValidator, entry, key,
        InputValidator->AllowOnlyComboFormListItems ? ListItems() : std::vector<std::string>());
}

bool EnhancedInput::FilterTyped(const QString& typed) {
    QLineEdit* line = Line();
    QPlainTextEdit* memo = Memo();
    if (!InputValidator || (!line && !memo)) return false;
    if (line ? line->isReadOnly() : memo->isReadOnly()) return false;
    const char32_t key = typed.toUcs4().value(0);
    const auto kept = Filter(Entry(), key);
    if (!kept) return true;
    if (*kept == key) return false;
    const QString turned = QString::fromUcs4(&*kept, 1);
    line ? line->insert(turned) : memo->insertPlainText(turned);
    return true;
}

QString EnhancedInput::Accepted(const QString& text) const {
    if (!InputValidator || !IsATextThing()) return text;
    EntryText entry = Entry();
    std::u32string accepted;
    for (const char32_t key : text.toStdU32String()) {
        const auto kept = Filter(entry, key);
        if (!kept) continue;
        accepted += *kept;
        entry.left += *kept;
    }
    return QString::fromStdU32String(accepted);
}

bool EnhancedInput::LeavesField(MoveKey key) const {
    // Within a memo Up and Down move by lines, and leave it from its first and last one.
    if (const QPlainTextEdit* memo = Memo();
        memo && (key == MoveKey::Up || key == MoveKey::Down) && !memo->isReadOnly()) {
        QTextCursor cursor = memo->textCursor();
        if (cursor.hasSelection() && Caret().selected == Caret().length) return true;
        return !cursor.movePosition(key == MoveKey::Up ? QTextCursor::Up : QTextCursor::Down);
    }
    return KeyLeavesField(key, Caret());
}

bool EnhancedInput::Move(MoveKey key) {
    if (!LeavesField(key)) return false;
    QWidget* target = Target(key);
    if (!target) return false;
    target->setFocus(key == MoveKey::Left || key == MoveKey::Up ? Qt::BacktabFocusReason
                                                                : Qt::TabFocusReason);
    return true;
}

QWidget* EnhancedInput::NextElement(int step) const {
    const auto name = ReadArrayName(owner_->objectName().toStdString());
    if (!name || step == 0) return nullptr;
    for (int index = name->index + step; index >= 0; index += step) {
        const std::string next = name->array + "(" + std::to_string(index) + ")";
        auto* control = ScreenOf(owner_)->findChild<QWidget*>(QString::fromStdString(next));
        if (!control || TakesFocus(control)) return control;
    }
    return nullptr;
}

bool EnhancedInput::IsLastElement() const {
    return ReadArrayName(owner_->objectName().toStdString()) && !NextElement(1);
}

QWidget* EnhancedInput::Target(MoveKey key) const {
    const int step = StepInArray(key, HorizontalControlArray, GoToNextIndexDownOnReturn);
    if (QWidget* next = NextElement(step)) return next;
    QWidget* named = nullptr;
    switch (key) {
        case MoveKey::Left:
            named = LeftControl;
            break;
        case MoveKey::Up:
            named = UpControl;
            break;
        case MoveKey::Right:
            named = RightControl;
            break;
        case MoveKey::Down:
            named = DownControl;
            break;
        case MoveKey::Return:
            named = ReturnControlOnMaxIndex && IsLastElement() ? ReturnControlOnMaxIndex
                                                               : ReturnControl;
    }
    return TakesFocus(named) ? named : nullptr;
}

bool EnhancedInput::OpenHelpList() {
    QWidget* form = ComboHelpForm ? ComboHelpForm : GroupComboHelpForm;
    if (!form) form = ComboFormListBox;
    if (!form) {
        auto* combo = qobject_cast<QComboBox*>(owner_);
        if (combo) combo->showPopup();
        return combo;
    }
    if (HelpFormUsesASpecialFillUpList) Q_EMIT HelpListWanted();
    if (ComboFormListBox) {
        if (watchedList_ != ComboFormListBox) {
            watchedList_ = ComboFormListBox;
            connect(ComboFormListBox, &QListWidget::itemActivated, this,
                    &EnhancedInput::TakeFromList);
            connect(ComboFormListBox, &QListWidget::itemClicked, this,
                    &EnhancedInput::TakeFromList);
        }
        SelectInList();
    }
    form->setWindowFlag(Qt::Popup);
    form->setMinimumWidth(owner_->width());
    form->move(owner_->mapToGlobal(QPoint(0, owner_->height())));
    form->show();
    if (ComboFormListBox) ComboFormListBox->setFocus();
    return true;
}

void EnhancedInput::SelectInList() const {
    const auto found = ComboFormListBox->findItems(Text(), Qt::MatchFixedString);
    ComboFormListBox->setCurrentItem(found.isEmpty() ? nullptr : found.first());
}

void EnhancedInput::TakeFromList(QListWidgetItem* item) {
    QWidget* form = ComboFormListBox ? ComboFormListBox->window() : nullptr;
    if (!form || !form->isVisible() || !(form->windowFlags() & Qt::Popup)) return;
    form->hide();
    if (auto* combo = qobject_cast<QComboBox*>(owner_))
        combo->setCurrentText(item->text());
    else if (QLineEdit* line = Line()) {
        // By insertion, so that it can be undone.
        line->selectAll();
        line->insert(item->text());
    }
    owner_->setFocus();
}

void EnhancedInput::SetHelpButtonControl(QAbstractButton* button) {
    help_ = button;
    WatchButton(button, &EnhancedInput::HelpButtonClick);
    if (auto* field = qobject_cast<TextField*>(owner_))
        connect(field, &TextField::HelpWanted, button, &QAbstractButton::click);
    SetHelpButtonDisabled(helpDisabled_);
}

void EnhancedInput::SetGroupHelpButtonControl(QAbstractButton* button) {
    groupHelp_ = button;
    WatchButton(button, &EnhancedInput::GroupHelpButtonClick);
}

void EnhancedInput::WatchButton(QAbstractButton* button, void (EnhancedInput::*click)()) {
    if (!button) return;
    button->setMouseTracking(true);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, click);
}

void EnhancedInput::ButtonEvent(const QObject* button, QEvent::Type type) {
    const bool own = button == help_;
    if (type == QEvent::MouseButtonPress) {
        if (own) ShowButtonPicture(true);
        own ? Q_EMIT HelpButtonMouseDown() : Q_EMIT GroupHelpButtonMouseDown();
    } else if (type == QEvent::MouseMove) {
        own ? Q_EMIT HelpButtonMouseMove() : Q_EMIT GroupHelpButtonMouseMove();
    } else if (type == QEvent::MouseButtonRelease) {
        if (own) ShowButtonPicture(false);
        own ? Q_EMIT HelpButtonMouseUp() : Q_EMIT GroupHelpButtonMouseUp();
    }
}

void EnhancedInput::SetHelpButtonDisabled(bool disabled) {
    helpDisabled_ = disabled;
    if (!help_) return;
    help_->setEnabled(!disabled);
    ShowButtonPicture(false);
}

void EnhancedInput::ShowButtonPicture(bool down) const {
    const QIcon& picture = helpDisabled_ ? HelpButtonDisabledImageControl
                           : down        ? HelpButtonDownImageControl
                                         : HelpButtonUpImageControl;
    if (!picture.isNull()) help_->setIcon(picture);
}

void EnhancedInput::SetAdjustFontForBigNumbers(bool adjusts) {
    const bool fits = qobject_cast<QLineEdit*>(owner_) || qobject_cast<QLabel*>(owner_) ||
                      qobject_cast<QComboBox*>(owner_);
    if (adjusts && !fits) throw RuntimeError(invalidProcedureCall, "Wrong kind of control.");
    adjustsFont_ = adjusts;
    if (!adjusts) return;
    designFont_ = owner_->font();
    FitFont();
}

/// What borders and padding leave of the owner's width.
int EnhancedInput::RoomForText() const {
    constexpr int inset = 4;  // a line of text keeps two pixels on both sides
    if (const auto* combo = qobject_cast<QComboBox*>(owner_); combo && !combo->isEditable()) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const auto part = QStyle::SC_ComboBoxEditField;
        return combo->style()->subControlRect(QStyle::CC_ComboBox, &option, part, combo).width() -
               inset;
    }
    const QLineEdit* line = Line();
    if (!line) return owner_->contentsRect().width();
    QStyleOptionFrame option;
    option.initFrom(line);
    if (line->hasFrame())
        option.lineWidth = line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, line);
    return line->style()->subElementRect(QStyle::SE_LineEditContents, &option, line).width() -
           inset;
}

void EnhancedInput::FitFont() const {
    const int room = RoomForText();
    const QString text = Text();
    const auto fontOf = [this](const FittingFont& fitting) {
        QFont font = designFont_;
        // These families are the program's own choice where the desktop has them.
        font.setFamilies({QString::fromStdString(fitting.family), QApplication::font().family()});
        font.setPointSize(fitting.size);
        return font;
    };
    const auto textWidth = [&](const FittingFont& fitting) {
        return QFontMetrics(fontOf(fitting)).horizontalAdvance(text);
    };
    const int designSize = std::max(1, QFontInfo(designFont_).pointSize());
    const bool fits = QFontMetrics(designFont_).horizontalAdvance(text) <= room;
    const QFont font = fits ? designFont_ : fontOf(FontForWidth(room, designSize, textWidth));
    if (owner_->font() != font) owner_->setFont(font);
}

void ChainFields(const std::vector<EnhancedInput*>& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) {
            fields[i]->UpControl = fields[i - 1]->OwnerControl();
            fields[i]->LeftControl = fields[i - 1]->OwnerControl();
        }
        if (i + 1 == fields.size()) continue;
        QWidget* next = fields[i + 1]->OwnerControl();
        fields[i]->DownControl = next;
        fields[i]->RightControl = next;
        // Return makes a new line in a memo.
        if (!qobject_cast<QPlainTextEdit*>(fields[i]->OwnerControl()))
            fields[i]->ReturnControl = next;
    }
}

namespace {

class WheelGuard : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel) return false;
        auto* field = qobject_cast<QWidget*>(watched);
        if (field && qobject_cast<QComboBox*>(field->parentWidget())) field = field->parentWidget();
        if (field && qobject_cast<QAbstractSpinBox*>(field->parentWidget()))
            field = field->parentWidget();
        if (!qobject_cast<QComboBox*>(field) && !qobject_cast<QAbstractSpinBox*>(field))
            return false;
        if (field->hasFocus()) return false;
        event->ignore();
        // An event that a filter takes isn't passed on to the parents by itself.
        if (QWidget* around = field->parentWidget()) QApplication::sendEvent(around, event);
        return true;
    }
};

}  // namespace

void GuardFieldsFromWheel() {
    static QPointer<WheelGuard> guard;
    if (guard) return;
    guard = new WheelGuard(qApp);
    qApp->installEventFilter(guard);
}

}  // namespace tendo
