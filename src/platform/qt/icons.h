#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>

namespace tendo {

/// A line icon of the program's one set by its name ("save"), in the secondary colour, in the
/// accent colour when on, faded when disabled. An unknown name gives an empty icon.
QIcon LineIcon(const QString& name);
/// The icon's SVG text in one colour; empty for an unknown name.
QByteArray LineDrawing(const QString& name, const QColor& color);
/// The same in one colour.
QPixmap LinePixmap(const QString& name, const QColor& color, int size, double ratio = 1.0);

}  // namespace tendo
