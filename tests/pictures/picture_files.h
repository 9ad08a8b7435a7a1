#pragma once

#include <QColor>
#include <QImage>
#include <functional>
#include <string>
#include <vector>

namespace tendo {

/// Picture files of all kinds, made byte by byte where no library writes what a test needs.

/// `value` in `count` bytes, the lowest first.
std::string Little(std::uint32_t value, int count);

/// An image file by the library's writer: "PNG", "JPG", "BMP".
std::string Encoded(const QImage& image, const char* format, int quality = -1);

/// Left half red, right half blue.
QImage RedAndBlue(int width, int height);

/// A bitmap with a table of colours, pixels given as places in it; its rows run from the lowest up.
/// `bits`: 1, 4 or 8. With the header of its oldest kind, of 12 bytes, when `old`.
std::string IndexedBitmap(int bits, int width, int height, const std::vector<QColor>& colors,
                          const std::function<int(int x, int y)>& pixel, bool old = false);

/// A GIF of several pictures over one table of four colours; each picture is of one colour above
/// and of another in its lower half.
struct GifPicture {
    int upper, lower;  // places in the table
};
std::string GifFile(int width, int height, const std::vector<QColor>& colors,
                    const std::vector<GifPicture>& pictures, bool interlaced = false);

/// An icon of squares, each of one colour.
struct IconSquare {
    int side;
    QColor color;
};
std::string IconFile(const std::vector<IconSquare>& squares);

/// A JPEG file with a camera's mark of how it was held, 1 to 8.
std::string WithOrientation(const std::string& jpeg, int orientation);
/// A JPEG file that claims another size.
std::string WithJpegSize(std::string jpeg, int width, int height);
/// A PNG file that claims another size, its check sum made good.
std::string WithPngSize(std::string png, int width, int height);

/// A red rectangle (10, 10) to (50, 30) in a window of 100 by 50, as a 16-bit metafile with or
/// without the header that tells its size, and as an enhanced one.
std::string RedMetafile(bool placeable);
std::string RedEnhancedMetafile();

}  // namespace tendo
