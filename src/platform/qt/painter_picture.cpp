#include "platform/qt/painter_picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/qt/painter_metafile.h"
#include "platform/qt/picture_store.h"
#include "platform/qt/text_measurer_qt.h"

namespace tendo {

namespace {

constexpr QColor PlaceGround(0xF3, 0xF5, 0xF7), PlaceBorder(0xB4, 0xBE, 0xC8),
    PlaceText(0x3F, 0x4A, 0x56);

/// The pixels of the device that a box covers.
QSize DeviceSize(const QPainter& painter, const QRectF& box) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QSizeF size = painter.worldTransform().mapRect(box).size() * ratio;
    return QSize(std::max(1, static_cast<int>(std::ceil(size.width()))),
                 std::max(1, static_cast<int>(std::ceil(size.height()))));
}

/// A picture as it was averaged for a size. A screen asks for the same few again and again.
struct ScaledPicture {
    qint64 from = 0;  // the cache key of the pixels
    QImage pixels;
};
constexpr std::size_t MostScaled = 6;
constexpr qsizetype MostScaledBytes = 8 << 20;  // larger ones are for paper, asked for once

QImage Scaled(const QImage& pixels, QSize size) {
    static std::vector<ScaledPicture> held;
    for (const ScaledPicture& one : held)
        if (one.from == pixels.cacheKey() && one.pixels.size() == size) return one.pixels;
    QImage scaled = pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (scaled.sizeInBytes() > MostScaledBytes) return scaled;
    if (held.size() == MostScaled) held.erase(held.begin());
    held.push_back({pixels.cacheKey(), scaled});
    return scaled;
}

/// More pixels than the device has are averaged, for a painter would drop them.
QImage ForDevice(const QImage& pixels, QSize device) {
    const bool dense =
        pixels.width() > device.width() * 3 / 2 || pixels.height() > device.height() * 3 / 2;
    return dense ? Scaled(pixels, device.boundedTo(pixels.size())) : pixels;
}

void PaintPixels(QPainter& painter, const LoadedPicture& picture, const QRectF& box) {
    const QPainter::RenderHints hints = painter.renderHints();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Flat colours and edges, as logos have them, stay clean; photographs stay small.
    painter.setRenderHint(QPainter::LosslessImageRendering, !picture.photograph);
    painter.drawImage(box, ForDevice(picture.pixels, DeviceSize(painter, box)));
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(hints);
}

QFont PlaceFont(const QRectF& box, double points, double unitsPerPoint, bool bold) {
    const double fitting = std::min(box.width() / 10, box.height() / 5);
    FontSpec font;
    font.family = "Arial";
    font.sizeTwips = std::max(1, static_cast<int>(std::min(points * unitsPerPoint, fitting)));
    font.bold = bold;
    return DocumentFont(font);
}

/// A light box in place of a picture: the file's name, and below it what is wrong.
void PaintPlace(QPainter& painter, const LoadedPicture& picture, const QRectF& box,
                double unitsPerPoint) {
    painter.save();
    painter.setPen(QPen(PlaceBorder, 0.75 * unitsPerPoint));
    painter.setBrush(PlaceGround);
    painter.drawRect(box);
    painter.setPen(PlaceText);
    painter.setClipRect(box, Qt::IntersectClip);
    const QFont bold = PlaceFont(box, 9, unitsPerPoint, true);
    const QFont plain = PlaceFont(box, 8, unitsPerPoint, false);
    const double lineHeight = QFontMetricsF(bold).height();
    const double edge = lineHeight / 3;
    const QRectF inner = box.adjusted(edge, edge, -edge, -edge);
    painter.setFont(bold);
    const QString name =
        QFontMetricsF(bold).elidedText(picture.name, Qt::ElideMiddle, inner.width());
    const QRectF lower(inner.left(), inner.center().y(), inner.width(), inner.height() / 2);
    painter.drawText(
        QRectF(inner.left(), inner.center().y() - lineHeight, inner.width(), lineHeight),
        Qt::AlignCenter, name);
    painter.setFont(plain);
    painter.drawText(lower, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, picture.problem);
    painter.restore();
}

}  // namespace

void PaintPicture(QPainter& painter, const std::string& path, const QRectF& box,
                  double unitsPerPoint) {
    const std::shared_ptr<const LoadedPicture> picture = LoadPicture(path);
    if (!picture || box.isEmpty()) return;
    if (!picture->problem.isEmpty())
        PaintPlace(painter, *picture, box, unitsPerPoint);
    else if (picture->drawing)
        picture->drawing->render(&painter, box);
    else if (!picture->metafile.empty())
        PaintMetafile(painter, picture->metafile, box);
    else
        PaintPixels(painter, *picture, box);
}

}  // namespace tendo
