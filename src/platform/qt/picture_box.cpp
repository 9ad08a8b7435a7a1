#include "platform/qt/picture_box.h"

#include <QPainter>

#include "platform/qt/painter_picture.h"
#include "platform/qt/picture_store.h"
#include "platform/qt/theme.h"

namespace tendo {

namespace {

constexpr int Edge = 4;

/// The largest place of a picture's proportions within a room; all of it when they are unknown.
QRectF PlaceIn(const QRectF& room, const LoadedPicture& picture) {
    if (picture.size.isEmpty() || !picture.problem.isEmpty()) return room;
    QRectF place(QPointF(0, 0), picture.size.scaled(room.size(), Qt::KeepAspectRatio));
    place.moveCenter(room.center());
    return place;
}

}  // namespace

PictureBox::PictureBox(const QString& name, const QString& spoken, QSize largest, QWidget* parent)
    : QLabel(parent), largest_(largest) {
    setObjectName(name);
    setAccessibleName(spoken);
    setProperty("pictureBox", true);
    setAlignment(Qt::AlignCenter);
    setFixedSize(largest);
    ShowFile({});
}

void PictureBox::ShowFile(const std::string& path) {
    const auto picture = LoadPicture(path);
    SetStyleFlag(this, "vacant", !picture);
    if (!picture) {
        setPixmap({});
        setText(path.empty() ? QStringLiteral("No picture") : QStringLiteral("No such file"));
        setToolTip({});
        return;
    }
    const double ratio = devicePixelRatioF();
    const QSize inner = largest_ - QSize(2, 2);
    QPixmap paper(inner * ratio);
    paper.setDevicePixelRatio(ratio);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF room(Edge, Edge, inner.width() - 2 * Edge, inner.height() - 2 * Edge);
    PaintPicture(painter, path, PlaceIn(room, *picture), logicalDpiY() / 72.0);
    painter.end();
    setPixmap(paper);
    setToolTip(picture->problem.isEmpty() ? picture->name
                                          : picture->name + QLatin1Char(' ') + picture->problem);
}

}  // namespace tendo
