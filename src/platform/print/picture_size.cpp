#include "platform/print/picture_size.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <fstream>

#include "platform/print/jpeg_head.h"
#include "platform/print/picture_bytes.h"
#include "platform/print/picture_kind.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::streamsize MostBytes = 1 << 20;  // a JPEG may carry a preview ahead of its size
constexpr int LargestSide = 0xFFFFFF;

/// A distance between two corners read from a file.
int Distance(std::int64_t from, std::int64_t to) {
    const std::int64_t distance = to > from ? to - from : from - to;
    return distance > LargestSide ? LargestSide : static_cast<int>(distance);
}

int Side(std::int32_t value) {
    return Distance(0, value);
}

PictureSize JpegSize(const PictureBytes& bytes) {
    const JpegHead head = ReadJpegHead(bytes);
    if (head.orientation >= 5) return {head.height, head.width};
    return {head.width, head.height};
}

/// `header`: where the bitmap's own header begins. The oldest has sides of 16 bits.
PictureSize BitmapSize(const PictureBytes& bytes, std::size_t header) {
    constexpr int OldHeader = 12;
    if (bytes.Little32(header) == OldHeader)
        return {bytes.Little16(header + 4), bytes.Little16(header + 6)};
    return {Side(bytes.Little32(header + 4)), Side(bytes.Little32(header + 8))};
}

/// The largest of an icon's pictures.
PictureSize IconSize(const PictureBytes& bytes) {
    const auto side = [&](std::size_t at) {  // 0 stands for 256
        return bytes.At(at) == 0 ? 256 : static_cast<int>(bytes.At(at));
    };
    PictureSize largest;
    for (int i = 0; i < bytes.Little16(4); ++i) {
        const std::size_t entry = 6 + 16 * static_cast<std::size_t>(i);
        if (entry + 2 > bytes.Size()) break;
        const PictureSize size{side(entry), side(entry + 1)};
        if (size.width * size.height > largest.width * largest.height) largest = size;
    }
    return largest;
}

/// The first record that sets the extent of the window; its height stands ahead of its width.
PictureSize MetafileSize(const PictureBytes& bytes) {
    constexpr int SetWindowExtent = 0x020C;
    constexpr std::size_t Header = 18, Smallest = 3;
    for (std::size_t at = Header; at + 10 <= bytes.Size();) {
        const std::size_t words = bytes.UnsignedLittle32(at);
        if (bytes.Little16(at + 4) == SetWindowExtent)
            return {Side(bytes.Signed16(at + 8)), Side(bytes.Signed16(at + 6))};
        if (words < Smallest) break;
        at += words * 2;
    }
    return {};
}

bool IsInName(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) || letter == '-' || letter == ':';
}

/// The value of an attribute of a tag; empty without it.
std::string_view Attribute(std::string_view tag, const std::string& name) {
    for (std::size_t at = tag.find(name + "="); at != std::string_view::npos;
         at = tag.find(name + "=", at + 1)) {
        const std::size_t open = at + name.size() + 1;
        if (at == 0 || IsInName(tag[at - 1]) || open >= tag.size()) continue;
        const std::string_view value = tag.substr(open + 1);
        return value.substr(0, value.find(tag[open]));
    }
    return {};
}

/// The numbers of "0 0 640 160" or "0,0,640,160"; false when there are fewer than four.
bool FourNumbers(std::string text, std::array<double, 4>& numbers) {
    for (char& letter : text)
        if (letter == ',' || std::isspace(static_cast<unsigned char>(letter))) letter = ' ';
    std::size_t count = 0;
    for (const std::string& number : Split(text, ' '))
        if (!number.empty() && count < numbers.size()) numbers[count++] = LeadingNumber(number);
    return count == numbers.size();
}

/// Sides of a drawing that aren't whole count in thousandths: only the ratio of the two is of use.
PictureSize DrawnSize(double width, double height) {
    const bool whole = width == std::floor(width) && height == std::floor(height);
    const auto side = [&](double length) {
        const double units = std::fabs(length) * (whole ? 1 : 1000);
        return units < LargestSide ? static_cast<int>(units) : LargestSide;
    };
    return {side(width), side(height)};
}

/// The extent of a drawing's view box, else its width and height.
std::optional<PictureSize> DrawingSize(std::string_view text) {
    std::string_view tag = text.substr(text.find("<svg"));
    tag = tag.substr(0, tag.find('>'));
    std::array<double, 4> box{};
    if (!FourNumbers(std::string(Attribute(tag, "viewBox")), box)) {
        box[2] = LeadingNumber(Attribute(tag, "width"));
        box[3] = LeadingNumber(Attribute(tag, "height"));
    }
    const PictureSize size = DrawnSize(box[2], box[3]);
    if (size.width == 0 || size.height == 0) return std::nullopt;
    return size;
}

}  // namespace

std::optional<PictureSize> PictureSizeOf(std::string_view data) {
    const PictureBytes bytes(data);
    switch (PictureKindOf(data)) {
        case PictureKind::Png:
            return PictureSize{Side(bytes.Big32(16)), Side(bytes.Big32(20))};
        case PictureKind::Jpeg:
            return JpegSize(bytes);
        case PictureKind::Gif:
            return PictureSize{bytes.Little16(6), bytes.Little16(8)};
        case PictureKind::Bitmap:
            return BitmapSize(bytes, 14);
        case PictureKind::BareBitmap:
            return BitmapSize(bytes, 0);
        case PictureKind::Icon:
            return IconSize(bytes);
        case PictureKind::PlaceableMetafile:
            return PictureSize{Distance(bytes.Signed16(6), bytes.Signed16(10)),
                               Distance(bytes.Signed16(8), bytes.Signed16(12))};
        case PictureKind::Metafile:
            return MetafileSize(bytes);
        case PictureKind::EnhancedMetafile:  // its frame, in hundredths of a millimetre
            return PictureSize{Distance(bytes.Little32(24), bytes.Little32(32)),
                               Distance(bytes.Little32(28), bytes.Little32(36))};
        case PictureKind::Drawing:
            return DrawingSize(data);
        case PictureKind::None:
            break;
    }
    return std::nullopt;
}

std::optional<PictureSize> ReadPictureSize(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(MostBytes), '\0');
    file.read(bytes.data(), MostBytes);
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return PictureSizeOf(bytes);
}

}  // namespace tendo
