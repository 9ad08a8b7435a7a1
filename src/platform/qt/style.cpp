#include "platform/qt/style.h"

#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "platform/qt/alt_letters.h"
#include "platform/qt/icons.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

/// The sign of a title bar button, in the middle of its box.
void DrawSign(QPainter* painter, QStyle::SubControl button, const QRect& box) {
    const QRectF sign(QRectF(box).center() - QPointF(4, 4), QSizeF(9, 9));
    switch (button) {
        case QStyle::SC_TitleBarMinButton:
            painter->drawLine(QPointF(sign.left(), sign.center().y()),
                              QPointF(sign.right(), sign.center().y()));
            break;
        case QStyle::SC_TitleBarMaxButton:
            painter->drawRect(sign);
            break;
        case QStyle::SC_TitleBarNormalButton:
            painter->drawRect(sign.adjusted(0, 2.5, -2.5, 0));
            painter->drawPolyline(QPolygonF({sign.topLeft() + QPointF(2.5, 0), sign.topRight(),
                                             sign.bottomRight() - QPointF(0, 2.5)}));
            break;
        default:
            painter->drawLine(sign.topLeft(), sign.bottomRight());
            painter->drawLine(sign.topRight(), sign.bottomLeft());
    }
}

void DrawTitleBar(const QStyle* style, const QStyleOptionTitleBar& option, QPainter* painter,
                  const QWidget* widget) {
    const ThemeColors& colors = Theme();
    const bool active = option.titleBarState & QStyle::State_Active;
    painter->save();
    painter->fillRect(option.rect, colors.field);
    painter->setPen(colors.line);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    const QRect label =
        style->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, widget);
    QFont font = BodyFont();
    font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen(active ? colors.text : colors.secondary);
    // The label's own place leaves room for an icon that these bars don't have.
    const QRect text(option.rect.left() + 14, label.top(), label.right() - option.rect.left() - 18,
                     label.height());
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(option.text, Qt::ElideRight, text.width()));
    painter->setRenderHint(QPainter::Antialiasing);
    for (const auto button : {QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarMaxButton,
                              QStyle::SC_TitleBarNormalButton, QStyle::SC_TitleBarCloseButton}) {
        const QRect box = style->subControlRect(QStyle::CC_TitleBar, &option, button, widget);
        if (!box.isValid() || box.isEmpty()) continue;
        const bool hovered =
            (option.activeSubControls & button) && (option.state & QStyle::State_MouseOver);
        if (hovered) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(colors.figure);
            painter->drawRoundedRect(box, 4, 4);
        }
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(hovered ? colors.text : colors.secondary, 1.3));
        DrawSign(painter, button, box);
    }
    painter->restore();
}

}  // namespace

TendoStyle::TendoStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void TendoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    if (control == CC_TitleBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option)) {
            DrawTitleBar(this, *bar, painter, widget);
            return;
        }
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void TendoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameWindow) {
        painter->save();
        painter->setPen(Theme().line);
        painter->setBrush(Theme().window);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int TendoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
        case PM_TitleBarHeight:
            return std::max(34, QFontMetrics(BodyFont()).height() + 16);
        case PM_MdiSubWindowFrameWidth:
            return 3;
        case PM_TitleBarButtonSize:
            return 26;
        case PM_ToolBarIconSize:
            return 20;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon TendoStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) return LineIcon("chevrons-right");
    if (icon == SP_ToolBarVerticalExtensionButton) return LineIcon("chevrons-down");
    return QProxyStyle::standardIcon(icon, option, widget);
}

int TendoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    if (hint == SH_TitleBar_NoBorder) return 1;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_TabBar_AllowWheelScrolling) return 0;
    if (hint == SH_UnderlineShortcut)
        return AltIsHeld() || !widget || qobject_cast<const QMenuBar*>(widget) ||
               qobject_cast<const QMenu*>(widget);
    return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace tendo
