#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "picture_files.h"
#include "platform/qt/picture_store.h"

namespace tendo {

/// Writes picture files into a folder of its own, loads and paints them.
class PictureTest : public testing::Test {
  protected:
    /// The path of a file of the folder.
    std::string Path(const std::string& name) const;
    /// Writes a file and gives its path.
    std::string Write(const std::string& name, const std::string& bytes) const;
    std::shared_ptr<const LoadedPicture> Load(const std::string& name,
                                              const std::string& bytes) const;
    /// Why it can't be painted; empty when it can, "no file" when there is none.
    std::string Problem(const std::string& name, const std::string& bytes) const;
    /// Painted over all of a white picture of this size.
    static QImage Painted(const std::string& path, int width, int height);
    QImage Painted(const std::string& name, const std::string& bytes, int width, int height) const;

    QTemporaryDir folder;
};

/// Expects a colour within a tolerance of each of its parts.
void ExpectColor(const QImage& image, int x, int y, const QColor& color, int tolerance = 0);

}  // namespace tendo
