#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "platform/qt/painter_metafile.h"

namespace tendo {
namespace {

/// Builds a placeable metafile whose window is (0, 0) to (100, 50), word by word.
class Metafile {
  public:
    Metafile() {
        bytes_ = std::string("\xD7\xCD\xC6\x9A", 4);
        for (const int word : {0, 0, 0, 100, 50, 1440, 0, 0, 0})  // handle, box, inch, checksum
            Add(word);
        for (const int word : {1, 9, 0x300, 0, 0, 4, 0, 0, 0})
            Add(word);
    }
    Metafile& Record(int function, const std::vector<int>& words) {
        Add(static_cast<int>(words.size()) + 3);
        Add(0);
        Add(function);
        for (const int word : words)
            Add(word);
        return *this;
    }
    std::string Bytes() const { return bytes_; }
    /// Painted into (10, 10) to (210, 110) of a white picture: two pixels for a unit.
    QImage Painted() const {
        QImage image(220, 120, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        EXPECT_TRUE(PaintMetafile(painter, bytes_, QRectF(10, 10, 200, 100)));
        return image;
    }

  private:
    void Add(int word) {
        bytes_ += static_cast<char>(word & 0xFF);
        bytes_ += static_cast<char>(word >> 8 & 0xFF);
    }
    std::string bytes_;
};

constexpr int CreatePen = 0x02FA, CreateBrush = 0x02FC, Select = 0x012D, Rectangle = 0x041B,
              Polygon = 0x0324, PolyPolygon = 0x0538, WindowOrigin = 0x020B, WindowExtent = 0x020C,
              Ellipse = 0x0418, StretchBitmap = 0x0F43, MoveTo = 0x0214, LineTo = 0x0213,
              SaveState = 0x001E, RestoreState = 0x0127, IntersectClip = 0x0416,
              MoveWindowOrigin = 0x020F, SetPixel = 0x041F, FillBlock = 0x061D, CopyBlock = 0x0940,
              CopyBitmap = 0x0D33;
constexpr int NoPen = 5;

/// A metafile with a red brush and no pen in use.
Metafile RedFill() {
    return Metafile()
        .Record(CreatePen, {NoPen, 0, 0, 0, 0})
        .Record(CreateBrush, {0, 0x00FF, 0, 0})
        .Record(Select, {0})
        .Record(Select, {1});
}

TEST(Metafiles, ARectangleIsStretchedIntoTheBox) {
    // Bottom, right, top, left: (10, 10) to (50, 30) of the window, (30, 30) to (110, 70) of the
    // picture.
    const QImage image = RedFill().Record(Rectangle, {30, 50, 10, 10}).Painted();
    EXPECT_EQ(image.pixelColor(31, 31), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(109, 69), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(28, 50), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(112, 50), QColor(Qt::white));
}

TEST(Metafiles, TheWindowRecordsReplaceTheBoundsOfTheHeader) {
    const QImage image = RedFill()
                             .Record(WindowOrigin, {-100, -100})
                             .Record(WindowExtent, {200, 200})
                             .Record(Rectangle, {0, 0, -100, -100})
                             .Painted();
    EXPECT_EQ(image.pixelColor(108, 58), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(113, 58), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(108, 63), QColor(Qt::white));
}

TEST(Metafiles, PolygonsAndEllipsesAreFilled) {
    const QImage triangle = RedFill().Record(Polygon, {3, 0, 0, 100, 0, 0, 50}).Painted();
    EXPECT_EQ(triangle.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(triangle.pixelColor(200, 100), QColor(Qt::white));
    const QImage ellipse = RedFill().Record(Ellipse, {50, 100, 0, 0}).Painted();
    EXPECT_EQ(ellipse.pixelColor(110, 60), QColor(Qt::red));
    EXPECT_EQ(ellipse.pixelColor(12, 12), QColor(Qt::white));
}

TEST(Metafiles, ASecondPolygonCutsAHole) {
    const QImage image = RedFill()
                             .Record(PolyPolygon, {2, 4, 4, 0, 0, 100, 0, 100, 50, 0, 50, 25, 10,
                                                   75, 10, 75, 40, 25, 40})
                             .Painted();
    EXPECT_EQ(image.pixelColor(20, 60), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(110, 60), QColor(Qt::white));
}

TEST(Metafiles, LinesTakeThePenInUse) {
    const QImage image = Metafile()
                             .Record(CreatePen, {0, 4, 0, 0, 0x00FF})  // four units of blue
                             .Record(Select, {0})
                             .Record(MoveTo, {25, 0})
                             .Record(LineTo, {25, 100})
                             .Painted();
    EXPECT_EQ(image.pixelColor(110, 60), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(110, 70), QColor(Qt::white));
}

TEST(Metafiles, ABitmapFillsItsPlace) {
    // One red pixel of 24 bits: a head of 40 bytes, then blue, green, red and a filler.
    const QImage image = Metafile()
                             .Record(StretchBitmap, {0x20, 0xCC, 0, 1, 1, 0, 0, 50, 50, 0, 0,  //
                                                     40,   0,    1, 0, 1, 0, 1, 24, 0,  0, 0,
                                                     0,    0,    0, 0, 0, 0, 0, 0,  0,  0, 0x00FF})
                             .Painted();
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(150, 50), QColor(Qt::white));
}

TEST(Metafiles, ABitmapIsCopiedAtItsPlace) {
    // One red pixel as above; (0, 0) to (50, 50), a hundred pixels square from (10, 10).
    const std::vector<int> red = {40, 0, 1, 0, 1, 0, 1, 24, 0, 0, 0,
                                  0,  0, 0, 0, 0, 0, 0, 0,  0, 0, 0x00FF};
    std::vector<int> block = {0x20, 0xCC, 0, 0, 50, 50, 0, 0};
    block.insert(block.end(), red.begin(), red.end());
    std::vector<int> bitmap = {0, 1, 0, 0, 0, 50, 50, 0, 0};
    bitmap.insert(bitmap.end(), red.begin(), red.end());
    for (const QImage& image : {Metafile().Record(CopyBlock, block).Painted(),
                                Metafile().Record(CopyBitmap, bitmap).Painted()}) {
        EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(150, 50), QColor(Qt::white));
    }
}

TEST(Metafiles, ABlockTakesTheBrushInUse) {
    // Height 20, width 40, at y 10 and x 10: (30, 30) to (110, 70) of the picture.
    const QImage image = RedFill().Record(FillBlock, {0x21, 0xF0, 20, 40, 10, 10}).Painted();
    EXPECT_EQ(image.pixelColor(31, 31), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(109, 69), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(112, 50), QColor(Qt::white));
}

TEST(Metafiles, APixelIsAUnitOfTheWindow) {
    // Blue at y 20 and x 30: two pixels square from (70, 50).
    const QImage image = Metafile().Record(SetPixel, {0, 0x00FF, 20, 30}).Painted();
    EXPECT_EQ(image.pixelColor(70, 50), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(71, 51), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(73, 51), QColor(Qt::white));
}

TEST(Metafiles, ASavedStateComesBack) {
    // The clip and the moved window hold until the state comes back; then the whole is red again.
    const auto between = RedFill()
                             .Record(SaveState, {})
                             .Record(IntersectClip, {50, 50, 0, 0})
                             .Record(MoveWindowOrigin, {0, -20});
    Metafile clipped = between, restored = between;
    const QImage within = clipped.Record(Rectangle, {50, 100, 0, 0}).Painted();
    EXPECT_EQ(within.pixelColor(30, 60), QColor(Qt::white)) << "moved by 20 to the right";
    EXPECT_EQ(within.pixelColor(100, 60), QColor(Qt::red));
    EXPECT_EQ(within.pixelColor(150, 60), QColor(Qt::white)) << "clipped at 50";
    for (const int state : {-1, 1}) {
        Metafile all = restored;
        const QImage image =
            all.Record(RestoreState, {state}).Record(Rectangle, {50, 100, 0, 0}).Painted();
        EXPECT_EQ(image.pixelColor(30, 60), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(190, 60), QColor(Qt::red));
    }
}

TEST(Metafiles, NothingIsPaintedOutsideTheBox) {
    const QImage image = RedFill().Record(Rectangle, {500, 500, -500, -500}).Painted();
    EXPECT_EQ(image.pixelColor(100, 60), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(215, 60), QColor(Qt::white));
}

TEST(Metafiles, AnotherFileIsRefused) {
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    EXPECT_FALSE(PaintMetafile(painter, "GIF89a", QRectF(0, 0, 10, 10)));
    EXPECT_FALSE(PaintMetafile(painter, "", QRectF(0, 0, 10, 10)));
    EXPECT_FALSE(PaintMetafile(painter, "\xD7\xCD\xC6\x9A", QRectF(0, 0, 10, 10)));
}

TEST(Metafiles, DamagedRecordsArePassedOver) {
    const QImage image = RedFill()
                             .Record(Select, {99})
                             .Record(RestoreState, {-1})
                             .Record(RestoreState, {7})
                             .Record(Polygon, {32767, 1})
                             .Record(PolyPolygon, {32767, 32767})
                             .Record(StretchBitmap, {0, 0, 0})
                             .Record(0x7777, {1, 2, 3})
                             .Record(WindowExtent, {0, 0})
                             .Record(Ellipse, {})
                             .Record(WindowExtent, {50, 100})
                             .Record(Rectangle, {30, 50, 10, 10})
                             .Painted();
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
}

TEST(Metafiles, ARecordLongerThanTheFileEndsThePicture) {
    std::string bytes = RedFill().Record(Rectangle, {30, 50, 10, 10}).Bytes();
    bytes += std::string("\xFF\xFF\xFF\x7F\x1B\x04", 6);
    QImage image(220, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    EXPECT_TRUE(PaintMetafile(painter, bytes, QRectF(10, 10, 200, 100)));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
}

}  // namespace
}  // namespace tendo
