#include "platform/qt/fields.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMetaMethod>

#include "platform/qt/theme.h"

namespace tendo {
namespace {

std::function<void(TextField*)> entryObserver;

bool IsNumberKind(EntryKind kind) {
    return kind == EntryKind::Money || kind == EntryKind::Percent || kind == EntryKind::Count;
}

/// The keys of the numeric kinds: digits; one point; one minus sign where negative numbers may be
/// typed.
bool NumberKeyAllowed(EntryKind kind, QChar key, const QString& rest) {
    if (key.isDigit()) return true;
    if (key == '.') return kind != EntryKind::Count && !rest.contains('.');
    if (key == '-') return kind == EntryKind::Percent && !rest.contains('-');
    return false;
}

}  // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
    Prepare();
}

TextField::TextField(const FieldSpec& spec, QWidget* parent) : QLineEdit(parent), kind_(spec.kind) {
    setObjectName(spec.name);
    setMaxLength(spec.maxLength);
    QString spoken = *spec.accessibleName ? spec.accessibleName : spec.label;
    setAccessibleName(spoken.remove('&').remove(':'));
    RangeText = spec.range;
    UnitText = spec.unit;
    if (spec.width > 0) {
        const int width = fontMetrics().averageCharWidth() * spec.width + 24;
        setMinimumWidth(width);
        if (kind_ != EntryKind::Text && kind_ != EntryKind::Label) setMaximumWidth(width * 2);
    }
    const bool computed = kind_ == EntryKind::Figure || kind_ == EntryKind::Label;
    if (kind_ != EntryKind::Text && kind_ != EntryKind::Label)
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (computed) {
        setReadOnly(true);
        setProperty("figure", true);
        setFocusPolicy(Qt::ClickFocus);
    }
    if (IsNumberKind(kind_)) {
        KeyFilter = [this](QChar key, const QString& rest) {
            return NumberKeyAllowed(kind_, key, rest);
        };
    }
    Prepare();
}

void TextField::Prepare() {
    setProperty("fresh", false);
    freshTimer_.setParent(this);
    freshTimer_.setObjectName(objectName() + "_Fresh");
    freshTimer_.setSingleShot(true);
    freshTimer_.setInterval(2000);
    connect(&freshTimer_, &QTimer::timeout, this, [this] { SetStyleFlag(this, "fresh", false); });
    connect(this, &QLineEdit::textChanged, this, [this] { ShowSigns(); });
}

void TextField::ShowSigns() {
    if (kind_ == EntryKind::Text || kind_ == EntryKind::Label) return;
    SetStyleFlag(this, "negative", text().startsWith('-'));
    SetStyleFlag(this, "word", text() == "same");
}

void TextField::Commit() {
    if (committing_ || isReadOnly()) return;
    if (!CommitAlways && !isModified()) return;
    committing_ = true;
    setModified(false);
    Q_EMIT Committed();
    committing_ = false;
}

void TextField::ShowText(const QString& value) {
    if (text() == value) return;
    const bool all = hasFocus() && !text().isEmpty() && selectedText() == text();
    setText(value);
    if (all) selectAll();
    if (!hasFocus()) setCursorPosition(0);
}

void TextField::MarkFresh() {
    SetStyleFlag(this, "fresh", true);
    freshTimer_.start();
}

void TextField::SetEntryObserver(std::function<void(TextField*)> observer) {
    entryObserver = std::move(observer);
}

void TextField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) return Ask(event);
    const QString typed = event->text();
    const bool printable = !typed.isEmpty() && typed.at(0).isPrint() &&
                           !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (printable && KeyFilter && !isReadOnly() && !KeyFilter(typed.at(0), Rest())) return;
    QLineEdit::keyPressEvent(event);
}

QString TextField::Rest() const {
    QString rest = text();
    if (hasSelectedText()) rest.remove(selectionStart(), selectionLength());
    return rest;
}

QString TextField::Accepted(const QString& text) const {
    if (!KeyFilter) return text;
    QString accepted;
    const QString rest = Rest();
    for (const QChar key : text)
        if (KeyFilter(key, rest + accepted)) accepted += key;
    return accepted;
}

/// Without an answer of its own the key goes on to the screen's page of the guide.
void TextField::Ask(QKeyEvent* event) {
    const bool why = event->modifiers() & Qt::ShiftModifier;
    const auto signal = why ? &TextField::WhyWanted : &TextField::HelpWanted;
    event->setAccepted(isSignalConnected(QMetaMethod::fromSignal(signal)));
    Q_EMIT(this->*signal)();
}

void TextField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!isReadOnly()) return QLineEdit::mouseDoubleClickEvent(event);
    Q_EMIT WhyWanted();
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (passTo_ && passTo_->isVisible() && passTo_->isEnabled()) {
        passTo_->setFocus(event->reason());
        return;
    }
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        QTimer::singleShot(0, this, [this] {
            if (hasFocus()) selectAll();
        });
    if (entryObserver) entryObserver(this);
}

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    if (event->reason() != Qt::ActiveWindowFocusReason) deselect();
    if (!passTo_) Commit();
    if (entryObserver) entryObserver(nullptr);
}

QToolButton* MakeHelpButton(const QString& name, const QString& accessibleName, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText("?");
    button->setProperty("help", true);
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLabel* MakeHeading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setProperty("heading", true);
    return label;
}

QLabel* MakeLabel(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setProperty("quiet", true);
    label->setBuddy(buddy);
    return label;
}

QFrame* MakeRule(QWidget* parent) {
    auto* rule = new QFrame(parent);
    rule->setProperty("rule", true);
    return rule;
}

TextField* AddFieldRow(QGridLayout* grid, int row, const FieldSpec& spec, QWidget* parent,
                       int column) {
    auto* field = new TextField(spec, parent);
    grid->addWidget(MakeLabel(spec.label, field, parent), row, column);
    grid->addWidget(field, row, column + 1);
    return field;
}

}  // namespace tendo
