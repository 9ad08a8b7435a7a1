#include "pricing/screens/system_card_button.h"

#include <QPainter>
#include <QPainterPath>

#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int margin = 11;
constexpr int lineGap = 3;
constexpr int dotSize = 8;
constexpr int mostModels = 3;  // cooling, heating, water heater
constexpr qreal radius = 6;

QFont NumberFont() {
    QFont font = HeadingFont();
    font.setWeight(QFont::Bold);
    return font;
}

QFont ModelFont() {
    QFont font = HeadingFont();
    font.setWeight(QFont::Normal);
    return font;
}

QColor ColorOf(SystemCard::Side side) {
    switch (side) {
        case SystemCard::Side::Cooling:
            return Theme().cooling;
        case SystemCard::Side::Heating:
            return Theme().heating;
        default:
            return Theme().water;
    }
}

}  // namespace

SystemCardButton::SystemCardButton(int system, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(QString("cardSystem(%1)").arg(system));
    setText(QString("System %1").arg(system + 1));
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SystemCardButton::ShowCard(const SystemCard& card) {
    card_ = card;
    QStringList told{text(), QString::fromStdString(card.price)};
    for (const SystemCard::Line& line : card.models)
        told << QString::fromStdString(line.text);
    setAccessibleName(told.join(", "));
    setToolTip(told.join("\n"));
    update();
}

QSize SystemCardButton::sizeHint() const {
    const QFontMetrics head(NumberFont()), body(ModelFont());
    const int height =
        2 * margin + head.height() + 4 + mostModels * body.height() + (mostModels - 1) * lineGap;
    return {minimumSizeHint().width(), height};
}

QSize SystemCardButton::minimumSizeHint() const {
    const QFontMetrics head(NumberFont());
    const int width = head.horizontalAdvance("System 5  $999,999.99") + 2 * margin;
    return {width, 60};
}

void SystemCardButton::DrawFrame(QPainter& painter) const {
    const ThemeColors& colors = Theme();
    const bool strong = isChecked() || hasFocus();
    const qreal width = strong ? 2 : 1;
    if (hasFocus()) {
        QColor soft = colors.accent;
        soft.setAlphaF(0.25F);
        painter.setPen(QPen(soft, 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), radius + 1,
                                radius + 1);
    }
    const qreal inset = hasFocus() ? 3 + width / 2 : width / 2;
    painter.setPen(QPen(strong || underMouse() ? colors.accent : colors.line, width));
    painter.setBrush(isDown() ? colors.figure : colors.field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

void SystemCardButton::DrawModels(QPainter& painter, int top) const {
    painter.setFont(ModelFont());
    const QFontMetrics metrics(ModelFont());
    for (const SystemCard::Line& line : card_.models) {
        const QRect box(margin, top, width() - 2 * margin, metrics.height());
        painter.setPen(Qt::NoPen);
        painter.setBrush(ColorOf(line.side));
        painter.drawEllipse(
            QRectF(box.left(), box.center().y() - dotSize / 2.0 + 0.5, dotSize, dotSize));
        painter.setPen(Theme().secondary);
        const QRect words = box.adjusted(dotSize + 6, 0, 0, 0);
        painter.drawText(
            words, Qt::AlignLeft | Qt::AlignVCenter,
            metrics.elidedText(QString::fromStdString(line.text), Qt::ElideRight, words.width()));
        top += metrics.height() + lineGap;
    }
}

void SystemCardButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawFrame(painter);
    const QFontMetrics metrics(NumberFont());
    const QRect head(margin, margin, width() - 2 * margin, metrics.height());
    painter.setFont(NumberFont());
    painter.setPen(Theme().text);
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter, text());
    const bool empty = card_.models.empty();
    painter.setPen(empty ? Theme().secondary : Theme().text);
    if (empty) painter.setFont(ModelFont());
    painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(card_.price));
    DrawModels(painter, head.bottom() + 1 + 4);
}

void SystemCardButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void SystemCardButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

}  // namespace tendo
