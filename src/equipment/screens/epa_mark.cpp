#include "equipment/screens/epa_mark.h"

#include <QPainter>

#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int size = 16;

void DrawCompliant(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme().water);
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setPen(QPen(Theme().field, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{4.6, 8.3}, {7.1, 10.8}, {11.6, 5.6}}));
}

void DrawOther(QPainter& painter) {
    painter.setPen(QPen(Theme().secondary, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(1.75, 1.75, 12.5, 12.5));
    painter.drawLine(QPointF(4.2, 11.8), QPointF(11.8, 4.2));
}

}  // namespace

QIcon EPAMark(bool compliant) {
    QIcon icon;
    for (const int ratio : {1, 2, 3}) {
        QPixmap pixmap(size * ratio, size * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        compliant ? DrawCompliant(painter) : DrawOther(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace tendo
