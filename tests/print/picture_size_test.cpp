#include "platform/print/picture_size.h"

#include <gtest/gtest.h>

namespace tendo {
namespace {

using namespace std::string_literals;

void ExpectSize(const std::string& bytes, int width, int height) {
    const std::optional<PictureSize> size = PictureSizeOf(bytes);
    ASSERT_TRUE(size.has_value());
    EXPECT_EQ(size->width, width);
    EXPECT_EQ(size->height, height);
}

TEST(PictureSizes, AreReadFromTheHeadOfEachKindOfFile) {
    ExpectSize("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\x40\0\0\0\xC8"s, 320, 200);
    ExpectSize("GIF89a\x40\1\xC8\0"s, 320, 200);
    ExpectSize("BM"s + std::string(16, '\0') + "\x40\1\0\0\xC8\0\0\0"s, 320, 200);
    ExpectSize("\0\0\1\0\1\0\x20\0"s, 32, 256);
    ExpectSize("<?xml version='1.0'?><svg viewBox=\"0 0 640 160\">", 640, 160);
}

TEST(PictureSizes, OfAPlaceableMetafileAreTheDistanceOfItsCorners) {
    // Corners (-10, 20) and (310, 220): 320 by 200.
    ExpectSize("\xD7\xCD\xC6\x9A\0\0\xF6\xFF\x14\0\x36\1\xDC\0"s, 320, 200);
}

TEST(PictureSizes, OfAJpegStandInItsFrame) {
    const std::string jpeg = "\xFF\xD8\xFF\xE0\0\4ab\xFF\xC0\0\x11\x08\0\xC8\1\x40\3"s;
    ExpectSize(jpeg, 320, 200);
}

TEST(PictureSizes, OfABottomUpBitmapHaveNoSign) {
    ExpectSize("BM"s + std::string(16, '\0') + "\x40\1\0\0\x38\xFF\xFF\xFF"s, 320, 200);
}

TEST(PictureSizes, OfABitmapWithTheOldestHeaderHaveTwoBytesASide) {
    // A header of 12 bytes; 320 by 200.
    ExpectSize("BM"s + std::string(12, '\0') + "\x0C\0\0\0\x40\1\xC8\0"s, 320, 200);
}

TEST(PictureSizes, OfABitmapWithoutAFilesHeaderAreRead) {
    // A header of 40 bytes; 320 by 200, one plane.
    ExpectSize("\x28\0\0\0\x40\1\0\0\xC8\0\0\0\1\0"s, 320, 200);
}

TEST(PictureSizes, OfAnIconAreThoseOfItsLargestPicture) {
    const std::string rest(14, '\0');
    // 16 by 16, then 0 by 0, which stands for 256, then 32 by 32.
    ExpectSize("\0\0\1\0\3\0\x10\x10"s + rest + "\0\0"s + rest + "\x20\x20"s + rest, 256, 256);
}

TEST(PictureSizes, OfAMetafileWithoutASizeAreThoseOfItsWindow) {
    // A file's header of 18 bytes, a record of 4 words (map mode), then the window's extent: 5
    // words, function 0x020C, height 50, width -100.
    ExpectSize("\1\0\x09\0\0\3"s + std::string(12, '\0') + "\4\0\0\0\3\1\x08\0"s +
                   "\5\0\0\0\x0C\2\x32\0\x9C\xFF"s,
               100, 50);
}

TEST(PictureSizes, OfAnEnhancedMetafileAreThoseOfItsFrame) {
    // The frame from (-10, 20) to (310, 220), the mark behind it.
    ExpectSize("\1\0\0\0"s + std::string(20, '\0') +
                   "\xF6\xFF\xFF\xFF\x14\0\0\0\x36\1\0\0\xDC\0\0\0"s + " EMF",
               320, 200);
}

TEST(PictureSizes, OfAJpegThatWasTurnedChangeOver) {
    // The camera's segment: 34 bytes, numbers with the highest byte first, one entry: tag 0x0112,
    // one number of 16 bits, 6 or 3.
    const auto turned = [](char mark) {
        return "\xFF\xD8\xFF\xE1\0\x22"s + "Exif\0\0"s + "MM\0\x2A\0\0\0\x08"s +
               "\0\1\1\x12\0\3\0\0\0\1\0"s + mark + "\0\0\0\0\0\0"s +
               "\xFF\xC0\0\x11\x08\0\xC8\1\x40\3"s;
    };
    ExpectSize(turned(6), 200, 320);
    ExpectSize(turned(3), 320, 200);
    ExpectSize(turned(99), 320, 200);
}

TEST(PictureSizes, OfADrawingWithoutAViewBoxAreItsWidthAndHeight) {
    ExpectSize("<svg width='320' height=\"200\">", 320, 200);
    ExpectSize("<svg height=\"2.5in\" stroke-width='9' width='4in'/>", 4000, 2500);
    ExpectSize("<!-- made by hand -->\n<svg\n viewBox=\"0,0,\n640,160\"\nwidth='1'>", 640, 160);
}

TEST(PictureSizes, OfADrawingMayStandBehindALongComment) {
    ExpectSize("<!--" + std::string(20000, ' ') + "--><svg viewBox='0 0 320 200'>", 320, 200);
}

TEST(PictureSizes, OfDamagedFilesAreNothingOrZero) {
    EXPECT_FALSE(PictureSizeOf("").has_value());
    EXPECT_FALSE(PictureSizeOf("no picture").has_value());
    EXPECT_FALSE(PictureSizeOf("<svg>").has_value());
    EXPECT_FALSE(PictureSizeOf("<svg").has_value());
    EXPECT_FALSE(PictureSizeOf("<svg width=").has_value());
    EXPECT_FALSE(PictureSizeOf("<svg viewBox='0 0 0 0'>").has_value());
    ExpectSize("<svg width='1e300' height='1'>", 0xFFFFFF, 1);
    ExpectSize("\xFF\xD8\xFF\xE1\0\x08"s + "Exif\0\0"s, 0, 0);
    ExpectSize("\0\0\1\0\xFF\xFF"s, 0, 0);
    ExpectSize("\1\0\x09\0\0\3"s + std::string(40, '\0'), 0, 0);
    EXPECT_FALSE(ReadPictureSize("no such file.png").has_value());
    ExpectSize("\x89PNG\r\n\x1A\n"s, 0, 0);
    ExpectSize("\xFF\xD8\xFF"s, 0, 0);
}

}  // namespace
}  // namespace tendo
