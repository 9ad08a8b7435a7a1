#pragma once

#include <QImage>
#include <QSizeF>
#include <QSvgRenderer>
#include <memory>
#include <string>

namespace tendo {

/// A picture file made ready to be painted: pixels, a drawing or a metafile; or nothing but a
/// problem.
struct LoadedPicture {
    QString name;     // of the file, without its folder
    QString problem;  // why it can't be painted, for people; empty when it can
    QSizeF size;      // in its own units; only the ratio counts
    QImage pixels;
    std::shared_ptr<QSvgRenderer> drawing;
    std::string metafile;  // bytes of a placeable metafile
    bool photograph = false;
};

/// The picture of a file; null when there is no such file. A file is read and decoded once and kept
/// at hand until it changes on disk or newer pictures need the room.
std::shared_ptr<const LoadedPicture> LoadPicture(const std::string& path);

}  // namespace tendo
