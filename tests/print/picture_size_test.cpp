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

TEST(PictureSizes, OfDamagedFilesAreNothingOrZero) {
    EXPECT_FALSE(PictureSizeOf("").has_value());
    EXPECT_FALSE(PictureSizeOf("no picture").has_value());
    EXPECT_FALSE(PictureSizeOf("<svg>").has_value());
    EXPECT_FALSE(ReadPictureSize("no such file.png").has_value());
    ExpectSize("\x89PNG\r\n\x1A\n"s, 0, 0);
    ExpectSize("\xFF\xD8\xFF"s, 0, 0);
}

}  // namespace
}  // namespace tendo
