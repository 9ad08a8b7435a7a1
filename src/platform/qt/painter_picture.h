#pragma once

#include <QRectF>
#include <string>

class QPainter;

namespace tendo {

/// Paints a picture file of any kind stretched into a box: drawings and metafiles as lines and
/// faces, pixels at their own resolution where the device has room for them. A file that can't be
/// shown leaves a light box with its name and the reason; one that isn't there leaves nothing.
/// `unitsPerPoint`: the painter's units in a point of type, 1/72 inch.
void PaintPicture(QPainter& painter, const std::string& path, const QRectF& box,
                  double unitsPerPoint);

}  // namespace tendo
