#include "picture_fixture.h"

#include <QFile>
#include <QPainter>
#include <cstdlib>

#include "platform/qt/painter_picture.h"

namespace tendo {

std::string PictureTest::Path(const std::string& name) const {
    return folder.filePath(QString::fromStdString(name)).toStdString();
}

std::string PictureTest::Write(const std::string& name, const std::string& bytes) const {
    QFile file(folder.filePath(QString::fromStdString(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())),
              static_cast<qint64>(bytes.size()));
    return Path(name);
}

std::shared_ptr<const LoadedPicture> PictureTest::Load(const std::string& name,
                                                       const std::string& bytes) const {
    QFile::remove(QString::fromStdString(Path(name)));
    return LoadPicture(Write(name, bytes));
}

std::string PictureTest::Problem(const std::string& name, const std::string& bytes) const {
    const auto picture = Load(name, bytes);
    return picture ? picture->problem.toStdString() : "no file";
}

QImage PictureTest::Painted(const std::string& path, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPicture(painter, path, QRectF(0, 0, width, height), 96 / 72.0);
    return image;
}

QImage PictureTest::Painted(const std::string& name, const std::string& bytes, int width,
                            int height) const {
    const auto picture = Load(name, bytes);
    EXPECT_EQ(picture ? picture->problem.toStdString() : "no file", "");
    return Painted(Path(name), width, height);
}

void ExpectColor(const QImage& image, int x, int y, const QColor& color, int tolerance) {
    const QColor got = image.pixelColor(x, y);
    const bool near = std::abs(got.red() - color.red()) <= tolerance &&
                      std::abs(got.green() - color.green()) <= tolerance &&
                      std::abs(got.blue() - color.blue()) <= tolerance;
    EXPECT_TRUE(near) << "(" << x << ", " << y << ") is " << got.name().toStdString() << " and not "
                      << color.name().toStdString();
}

}  // namespace tendo
