#include "platform/print/jpeg_head.h"

#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr int StartOfScan = 0xDA, EndOfPicture = 0xD9, CameraSegment = 0xE1;

bool IsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// Progressive frames: 2, 6, 10 and 14 of the sixteen.
bool IsProgressive(int marker) {
    return (marker & 3) == 2;
}

/// The mark in the first directory of a camera's segment, whose content begins at `at`.
int Orientation(const PictureBytes& bytes, std::size_t at) {
    constexpr int OrientationTag = 0x0112;
    if (!StartsWith(bytes.All().substr(at), std::string_view("Exif\0\0", 6))) return 1;
    const std::size_t start = at + 6;
    const bool little = bytes.At(start) == 'I';
    const auto number16 = [&](std::size_t place) {
        return little ? bytes.Little16(place) : bytes.Big16(place);
    };
    const std::size_t directory =
        start + (little ? bytes.UnsignedLittle32(start + 4) : bytes.UnsignedBig32(start + 4));
    const int entries = number16(directory);
    for (int i = 0; i < entries; ++i) {
        const std::size_t entry = directory + 2 + 12 * static_cast<std::size_t>(i);
        if (entry >= bytes.Size()) return 1;
        const int value = number16(entry + 8);
        if (number16(entry) == OrientationTag) return value >= 1 && value <= 8 ? value : 1;
    }
    return 1;
}

}  // namespace

JpegHead ReadJpegHead(const PictureBytes& bytes) {
    JpegHead head;
    std::size_t at = 2;
    while (at + 4 <= bytes.Size() && bytes.At(at) == 0xFF) {
        const int marker = static_cast<int>(bytes.At(at + 1));
        if (marker == 0xFF) {  // filler
            ++at;
            continue;
        }
        if (marker == EndOfPicture) break;
        if (marker == StartOfScan) {
            head.scan = at;
            break;
        }
        if (marker == CameraSegment && head.orientation == 1)
            head.orientation = Orientation(bytes, at + 4);
        if (IsFrame(marker)) {
            head.width = bytes.Big16(at + 7);
            head.height = bytes.Big16(at + 5);
            head.progressive = IsProgressive(marker);
        }
        at += 2 + static_cast<std::size_t>(bytes.Big16(at + 2));
    }
    return head;
}

}  // namespace tendo
