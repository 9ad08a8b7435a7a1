#include "platform/qt/icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/qt/theme.h"

namespace tendo {

QPixmap LinePixmap(const QString& name, const QColor& color, int size, double ratio) {
    QFile file(":/tendo/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(drawing);
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor opaque = color;
    painter.setOpacity(opaque.alphaF());
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixmap.size())));
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QIcon LineIcon(const QString& name) {
    QIcon icon;
    const ThemeColors& colors = Theme();
    QColor faded = colors.secondary;
    faded.setAlphaF(0.4F);
    for (const double ratio : {1.0, 2.0, 3.0}) {
        const QPixmap plain = LinePixmap(name, colors.secondary, 20, ratio);
        if (plain.isNull()) return {};
        icon.addPixmap(plain, QIcon::Normal, QIcon::Off);
        icon.addPixmap(LinePixmap(name, colors.accent, 20, ratio), QIcon::Normal, QIcon::On);
        icon.addPixmap(LinePixmap(name, faded, 20, ratio), QIcon::Disabled, QIcon::Off);
    }
    return icon;
}

}  // namespace tendo
