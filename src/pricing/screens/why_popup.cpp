#include "pricing/screens/why_popup.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr const char* popupName = "popWhy";
constexpr int valueColumn = 1;
constexpr int textWidth = 62;  // average characters; a comfortable line

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QLabel* MakeText(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QWidget* FormOf(QWidget* field) {
    QWidget* widget = field;
    while (widget->parentWidget() && !qobject_cast<Form*>(widget))
        widget = widget->parentWidget();
    return widget;
}

}  // namespace

WhyPopup::WhyPopup(QWidget* form)
    : QFrame(form, Qt::Popup | Qt::FramelessWindowHint),
      column_(new QVBoxLayout(this)),
      before_(QApplication::focusWidget()) {
    setObjectName(popupName);
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("popup", true);
    column_->setContentsMargins(16, 12, 16, 14);
    column_->setSpacing(6);
}

void WhyPopup::ShowAt(QWidget* field, const PriceReason& reason) {
    auto* popup = new WhyPopup(FormOf(field));
    popup->Fill(reason);
    popup->PlaceAt(field);
    popup->show();
    popup->setFocus(Qt::PopupFocusReason);
}

void WhyPopup::Fill(const PriceReason& reason) {
    setAccessibleName(Q(reason.title));
    setAccessibleDescription(Q(PlainText(reason)));
    AddHead(reason);
    AddText("lblWhyRule", reason.rule, false);
    AddText("lblWhyWorked", reason.worked, false);
    AddText("lblWhyNote", reason.note, true);
    if (!reason.parts.empty()) AddParts(reason);
}

void WhyPopup::AddHead(const PriceReason& reason) {
    auto* head = new QHBoxLayout;
    head->setSpacing(24);
    QLabel* title = MakeText("lblWhyTitle", Q(reason.title), this);
    QLabel* figure = MakeText("lblWhyFigure", Q(reason.figure), this);
    QFont bold = BodyFont();
    bold.setBold(true);
    title->setFont(bold);
    figure->setFont(bold);
    head->addWidget(title, 1);
    head->addWidget(figure);
    column_->addLayout(head);
}

void WhyPopup::AddText(const char* name, const std::string& text, bool quiet) {
    if (text.empty()) return;
    QLabel* label = MakeText(name, Q(text), this);
    label->setWordWrap(true);
    label->setFixedWidth(fontMetrics().averageCharWidth() * textWidth);
    label->setProperty("quiet", quiet);
    column_->addWidget(label);
}

void WhyPopup::AddParts(const PriceReason& reason) {
    column_->addWidget(MakeRule(this));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(2, 1);
    const auto add = [&](const char* name, int row, int column, const std::string& text) {
        QLabel* label = MakeText(QString("%1(%2)").arg(name).arg(row), Q(text), this);
        label->setProperty("quiet", column != valueColumn);
        grid->addWidget(label, row, column, column == valueColumn ? Qt::AlignRight : Qt::AlignLeft);
    };
    for (int row = 0; const PriceReason::Part& part : reason.parts) {
        add("lblWhyName", row, 0, part.name);
        add("lblWhyValue", row, valueColumn, part.value);
        add("lblWhySource", row, 2, part.source);
        ++row;
    }
    column_->addLayout(grid);
}

void WhyPopup::PlaceAt(const QWidget* field) {
    constexpr int gap = 4;
    adjustSize();
    const QRect room = field->screen()->availableGeometry();
    const QPoint below = field->mapToGlobal(QPoint(0, field->height() + gap));
    const QPoint above = field->mapToGlobal(QPoint(0, -gap - height()));
    const bool fitsBelow = below.y() + height() <= room.bottom();
    const int x = std::clamp(below.x(), room.left(), std::max(room.left(), room.right() - width()));
    move(x, fitsBelow ? below.y() : std::max(room.top(), above.y()));
}

void WhyPopup::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    if (!before_) return;
    before_->activateWindow();
    before_->setFocus(Qt::PopupFocusReason);
}

/// Any key closes it, Esc among them, but those that only accompany others.
void WhyPopup::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_Meta:
            return;
        default:
            close();
    }
}

}  // namespace tendo
