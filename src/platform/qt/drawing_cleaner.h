#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <string_view>

namespace tendo {

/// A drawing (SVG) made safe to be painted: without references to files or the net, scripts,
/// style sheets of other files, and declarations of a document type. Its own entities are
/// resolved, within a bound. Empty when the text isn't whole XML, is nested too deep, or repeats
/// its parts so often that painting it would never end.
///
/// `fileContent` may give the bytes of a picture that the drawing names, where the drawing was made
/// together with its pictures; without it such pictures are left out.
QByteArray CleanDrawing(std::string_view text,
                        const std::function<QByteArray(const QString& name)>& fileContent = {});

}  // namespace tendo
