#include <QFile>
#include <QPainter>

#include "picture_fixture.h"

namespace tendo {
namespace {

using PictureKinds = PictureTest;

TEST_F(PictureKinds, ABitmapOfOneBit) {
    const std::string file =
        IndexedBitmap(1, 10, 4, {Qt::green, Qt::magenta}, [](int x, int) { return x < 5 ? 0 : 1; });
    const QImage image = Painted("one.bmp", file, 10, 4);
    ExpectColor(image, 1, 1, Qt::green);
    ExpectColor(image, 8, 3, Qt::magenta);
}

TEST_F(PictureKinds, ABitmapOfFourBits) {
    const std::string file = IndexedBitmap(
        4, 7, 4, {Qt::black, Qt::red, Qt::green, Qt::blue, Qt::yellow}, [](int x, int y) {
            return y < 2 ? 4 : x < 4 ? 1 : 3;
        });
    const QImage image = Painted("four.bmp", file, 7, 4);
    ExpectColor(image, 3, 0, Qt::yellow);
    ExpectColor(image, 1, 3, Qt::red);
    ExpectColor(image, 5, 3, Qt::blue);
}

TEST_F(PictureKinds, ABitmapOfEightBits) {
    std::vector<QColor> colors(256, Qt::black);
    colors[200] = QColor(10, 20, 30);
    const std::string file =
        IndexedBitmap(8, 5, 5, colors, [](int x, int) { return x < 3 ? 200 : 0; });
    const QImage image = Painted("eight.bmp", file, 5, 5);
    ExpectColor(image, 0, 0, QColor(10, 20, 30));
    ExpectColor(image, 4, 4, Qt::black);
}

TEST_F(PictureKinds, ABitmapWithTheHeaderOfItsOldestKind) {
    const std::string file = IndexedBitmap(
        4, 8, 4, std::vector<QColor>(16, Qt::red), [](int, int) { return 7; }, true);
    const auto picture = Load("os2.bmp", file);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->size, QSizeF(8, 4));
    ExpectColor(Painted(Path("os2.bmp"), 8, 4), 4, 2, Qt::red);
}

TEST_F(PictureKinds, ABitmapWithoutAFilesHeader) {
    const std::string file =
        IndexedBitmap(8, 6, 3, {Qt::red, Qt::blue}, [](int x, int) { return x < 3 ? 0 : 1; });
    const QImage image = Painted("bare.dib", file.substr(14), 6, 3);
    ExpectColor(image, 0, 1, Qt::red);
    ExpectColor(image, 5, 1, Qt::blue);
    ExpectColor(Painted("whole.dib", file, 6, 3), 5, 1, Qt::blue);
}

TEST_F(PictureKinds, AnInterlacedGif) {
    const std::string file =
        GifFile(16, 16, {Qt::white, Qt::red, Qt::blue, Qt::black}, {{1, 2}}, true);
    const QImage image = Painted("interlaced.gif", file, 16, 16);
    for (int y = 0; y < 16; ++y)
        ExpectColor(image, 5, y, y < 8 ? Qt::red : Qt::blue);
}

TEST_F(PictureKinds, OfAMovingGifTheFirstPictureIsShown) {
    const std::string file =
        GifFile(8, 8, {Qt::white, Qt::red, Qt::blue, Qt::black}, {{1, 1}, {2, 2}, {3, 3}});
    ExpectColor(Painted("moving.gif", file, 8, 8), 4, 4, Qt::red);
}

TEST_F(PictureKinds, APngOfSixteenBitsAColor) {
    QImage image(4, 4, QImage::Format_RGBX64);
    image.fill(QColor::fromRgba64(0x1234, 0x8000, 0xFFFF));
    // The upper eight bits of each: 0x12, 0x80 and 0xFF.
    ExpectColor(Painted("deep.png", Encoded(image, "PNG"), 4, 4), 2, 2, QColor(0x12, 0x80, 0xFF),
                1);
}

TEST_F(PictureKinds, AClearPngStandsOnThePaper) {
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(3, 3, QColor(0, 0, 255, 128));
    const QImage painted = Painted("clear.png", Encoded(image, "PNG"), 4, 4);
    ExpectColor(painted, 0, 0, Qt::red);
    ExpectColor(painted, 2, 1, Qt::white);
    // Half of blue over white: 255 - 128 = 127 for red and green.
    ExpectColor(painted, 3, 3, QColor(127, 127, 255), 1);
}

TEST_F(PictureKinds, AGreyJpeg) {
    QImage image(16, 16, QImage::Format_Grayscale8);
    image.fill(0x80);
    ExpectColor(Painted("grey.jpg", Encoded(image, "JPG", 95), 16, 16), 8, 8,
                QColor(0x80, 0x80, 0x80), 2);
}

TEST_F(PictureKinds, AJpegOfFourInks) {
    // 16 by 8 pixels: the left half of full magenta and yellow, which is red; the right half of
    // full cyan.
    QFile file(QStringLiteral(TENDO_TEST_DATA "/pictures/cmyk.jpg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QImage image = Painted("inks.jpg", file.readAll().toStdString(), 16, 8);
    ExpectColor(image, 3, 4, Qt::red, 40);
    ExpectColor(image, 12, 4, Qt::cyan, 40);
}

TEST_F(PictureKinds, AJpegThatItsCameraMarkedAsTurned) {
    // Mark 6: held with its right side down; a quarter turn to the right puts the red left half on
    // top.
    const std::string file = WithOrientation(Encoded(RedAndBlue(32, 16), "JPG", 95), 6);
    const auto picture = Load("turned.jpg", file);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->size, QSizeF(16, 32));
    const QImage image = Painted(Path("turned.jpg"), 16, 32);
    ExpectColor(image, 8, 5, Qt::red, 40);
    ExpectColor(image, 8, 27, Qt::blue, 40);
}

TEST_F(PictureKinds, OfAnIconTheLargestPictureIsShown) {
    const std::string file = IconFile({{16, Qt::red}, {48, Qt::green}, {32, Qt::blue}});
    const auto picture = Load("sizes.ico", file);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->pixels.size(), QSize(48, 48));
    ExpectColor(Painted(Path("sizes.ico"), 48, 48), 20, 20, Qt::green);
}

TEST_F(PictureKinds, AnIconMayHoldPngFiles) {
    // One entry of 64 by 64 that is a whole PNG file, behind a header of 6 and an entry of 16
    // bytes.
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const std::string png = Encoded(image, "PNG");
    const std::string file = Little(0, 2) + Little(1, 2) + Little(1, 2) + Little(64, 1) +
                             Little(64, 1) + Little(0, 2) + Little(1, 2) + Little(32, 2) +
                             Little(static_cast<std::uint32_t>(png.size()), 4) + Little(22, 4) +
                             png;
    ExpectColor(Painted("new.ico", file, 64, 64), 30, 30, Qt::magenta);
}

TEST_F(PictureKinds, ADrawing) {
    const QImage image = Painted("logo.svg",
                                 R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 10">
                                    <rect width="10" height="10" fill="#f00"/></svg>)",
                                 200, 100);
    ExpectColor(image, 50, 50, Qt::red);
    ExpectColor(image, 150, 50, Qt::white);
}

TEST_F(PictureKinds, APlaceableMetafile) {
    // (10, 10) to (50, 30) of 100 by 50, painted at two pixels a unit.
    const QImage image = Painted("logo.wmf", RedMetafile(true), 200, 100);
    ExpectColor(image, 30, 30, Qt::red);
    ExpectColor(image, 90, 50, Qt::red);
    ExpectColor(image, 10, 50, Qt::white);
    ExpectColor(image, 110, 50, Qt::white);
}

TEST_F(PictureKinds, AMetafileWithoutASizeTakesThatOfItsWindow) {
    const auto picture = Load("window.wmf", RedMetafile(false));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->size, QSizeF(100, 50));
    const QImage image = Painted(Path("window.wmf"), 200, 100);
    ExpectColor(image, 30, 30, Qt::red);
    ExpectColor(image, 110, 50, Qt::white);
}

TEST_F(PictureKinds, TheContentCountsAndNotTheEnding) {
    ExpectColor(Painted("png.jpg", Encoded(RedAndBlue(8, 8), "PNG"), 8, 8), 1, 1, Qt::red);
    ExpectColor(Painted("metafile.bmp", RedMetafile(true), 200, 100), 50, 50, Qt::red);
    ExpectColor(Painted("drawing.png",
                        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1 1">
                           <rect width="1" height="1" fill="#00f"/></svg>)",
                        8, 8),
                4, 4, Qt::blue);
    const std::string gif = GifFile(8, 8, {Qt::green}, {{0, 0}});
    ExpectColor(Painted("GIF IN CAPITALS.PNG", gif, 8, 8), 4, 4, Qt::green);
}

TEST_F(PictureKinds, ManyPixelsAreAveragedOnACoarseDevice) {
    QImage lines(400, 4, QImage::Format_RGB32);  // one white column, three black ones
    lines.fill(Qt::black);
    for (int x = 0; x < 400; x += 4)
        for (int y = 0; y < 4; ++y)
            lines.setPixelColor(x, y, Qt::white);
    // A quarter of 255 everywhere, where a painter that drops pixels gives black or white.
    const QImage image = Painted("lines.png", Encoded(lines, "PNG"), 100, 1);
    for (int x = 10; x < 90; x += 7)
        ExpectColor(image, x, 0, QColor(64, 64, 64), 24);
}

}  // namespace
}  // namespace tendo
