#pragma once

#include <QRectF>
#include <string_view>

class QPainter;

namespace tendo {

/// Paints a placeable Windows metafile, the kind of picture in which logos of old were kept,
/// stretched into a box. False, with nothing painted, when the bytes are something else. Records
/// that aren't understood or are damaged are passed over.
bool PaintMetafile(QPainter& painter, std::string_view bytes, const QRectF& box);

}  // namespace tendo
