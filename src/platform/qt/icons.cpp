#include "platform/qt/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QMap>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <utility>

#include "platform/qt/theme.h"

// Must stand outside any namespace.
static void InitResources() {
    Q_INIT_RESOURCE(platform_qt);
}

namespace tendo {
namespace {

QString FileOf(const QString& name) {
    return ":/tendo/icons/" + name + ".svg";
}

/// Draws an icon when it is seen and at the size it is seen at: a start of the program needs few of
/// all. The colours are those of the theme in use at that time.
class LineIconEngine : public QIconEngine {
  public:
    explicit LineIconEngine(QString name) : name_(std::move(name)) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QColor color = ColorOf(mode, state);
        const int side = std::min(size.width(), size.height());
        QPixmap& drawn = drawn_[{side, color.rgba()}];
        if (drawn.isNull()) drawn = LinePixmap(name_, color, side);
        return drawn;
    }

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap((QSizeF(box.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        QRectF place(QPointF(0, 0), drawn.deviceIndependentSize());
        place.moveCenter(QRectF(box).center());
        painter->drawPixmap(place.topLeft(), drawn);
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        return {side, side};
    }

    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new LineIconEngine(name_); }

  private:
    static QColor ColorOf(QIcon::Mode mode, QIcon::State state) {
        QColor color = state == QIcon::On ? Theme().accent : Theme().secondary;
        if (mode == QIcon::Disabled) color.setAlphaF(0.4F);
        return color;
    }

    QString name_;
    QMap<std::pair<int, QRgb>, QPixmap> drawn_;
};

}  // namespace

QByteArray LineDrawing(const QString& name, const QColor& color) {
    InitResources();  // a program without screens has put no theme in use
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    return drawing;
}

QPixmap LinePixmap(const QString& name, const QColor& color, int size, double ratio) {
    const QByteArray drawing = LineDrawing(name, color);
    if (drawing.isEmpty()) return {};
    QSvgRenderer renderer(drawing);
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixmap.size())));
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QIcon LineIcon(const QString& name) {
    return QFile::exists(FileOf(name)) ? QIcon(new LineIconEngine(name)) : QIcon();
}

}  // namespace tendo
