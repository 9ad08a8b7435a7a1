#include "platform/print/picture_check.h"

#include <cstdint>

#include "platform/print/jpeg_head.h"
#include "platform/print/picture_bytes.h"
#include "platform/print/picture_kind.h"
#include "platform/print/picture_size.h"

namespace tendo {

namespace {

using namespace std::string_view_literals;

/// The chunks up to the one that ends the picture.
bool PngIsWhole(const PictureBytes& bytes) {
    constexpr std::size_t Signature = 8, Frame = 12;
    constexpr std::uint32_t End = 0x49454E44;  // IEND
    for (std::size_t at = Signature; at + Frame <= bytes.Size();) {
        if (bytes.UnsignedBig32(at + 4) == End) return true;
        at += Frame + bytes.UnsignedBig32(at);
    }
    return false;
}

/// A file that was cut has no end mark behind its picture.
bool JpegIsWhole(const PictureBytes& bytes) {
    const JpegHead head = ReadJpegHead(bytes);
    return head.scan != 0 && bytes.All().find("\xFF\xD9"sv, head.scan) != std::string_view::npos;
}

std::size_t ColorTableSize(std::uint32_t flags) {
    return (flags & 0x80) ? 3U << ((flags & 7) + 1) : 0;
}

/// Behind blocks of data, each led by its length; 0 when the closing empty one is missing.
std::size_t BehindBlocks(const PictureBytes& bytes, std::size_t at) {
    while (at < bytes.Size()) {
        const std::size_t length = bytes.At(at);
        at += 1 + length;
        if (length == 0) return at;
    }
    return 0;
}

/// The first of the pictures, which is the one that is shown.
bool GifIsWhole(const PictureBytes& bytes) {
    constexpr std::uint32_t Extension = 0x21, Image = 0x2C;
    constexpr std::size_t Header = 13, ImageHead = 10;
    std::size_t at = Header + ColorTableSize(bytes.At(10));
    while (at < bytes.Size() && bytes.At(at) == Extension) {
        at = BehindBlocks(bytes, at + 2);
        if (at == 0) return false;
    }
    if (at >= bytes.Size() || bytes.At(at) != Image) return false;
    const std::size_t codeSize = 1;
    return BehindBlocks(bytes, at + ImageHead + ColorTableSize(bytes.At(at + 9)) + codeSize) != 0;
}

/// Where the pixels of a bitmap without a file's header begin.
std::size_t PixelsBehindHeader(const PictureBytes& bytes, std::uint64_t bits) {
    constexpr std::size_t Header = 40, Masks = 3, MasksSize = 12;
    if (bits > 8) return Header + (bytes.UnsignedLittle32(16) == Masks ? MasksSize : 0);
    const std::uint32_t used = bytes.UnsignedLittle32(32);
    return Header + std::size_t{4} * (used > 0 ? used : 1U << bits);
}

/// `header`: where the bitmap's own header begins. Rows are padded to four bytes; packed ones end
/// where they like.
bool BitmapIsWhole(const PictureBytes& bytes, std::size_t header) {
    constexpr std::uint32_t OldHeader = 12, Plain = 0, Masks = 3;
    const bool old = bytes.UnsignedLittle32(header) == OldHeader;
    const PictureSize size = PictureSizeOf(bytes.All()).value_or(PictureSize{});
    const auto bits = static_cast<std::uint64_t>(bytes.Little16(header + (old ? 10 : 14)));
    const std::uint32_t packing = old ? Plain : bytes.UnsignedLittle32(header + 16);
    const std::size_t pixels =
        header == 0 ? PixelsBehindHeader(bytes, bits) : bytes.UnsignedLittle32(10);
    if (packing != Plain && packing != Masks) return pixels < bytes.Size();
    const std::uint64_t row = (static_cast<std::uint64_t>(size.width) * bits + 31) / 32 * 4;
    return pixels + row * static_cast<std::uint64_t>(size.height) <= bytes.Size();
}

bool IconIsWhole(const PictureBytes& bytes) {
    constexpr std::size_t Header = 6, Entry = 16;
    const int count = bytes.Little16(4);
    for (int i = 0; i < count; ++i) {
        const std::size_t entry = Header + Entry * static_cast<std::size_t>(i);
        const std::uint64_t length = bytes.UnsignedLittle32(entry + 8);
        if (entry + Entry > bytes.Size() || length == 0 ||
            bytes.UnsignedLittle32(entry + 12) + length > bytes.Size())
            return false;
    }
    return count > 0;
}

/// The records up to the one that ends the picture.
bool MetafileIsWhole(const PictureBytes& bytes, std::size_t header) {
    constexpr std::size_t FileHeader = 18, RecordHead = 6;
    for (std::size_t at = header + FileHeader; at + RecordHead <= bytes.Size();) {
        const std::size_t size = std::size_t{2} * bytes.UnsignedLittle32(at);
        if (size < RecordHead || size > bytes.Size() - at) return false;
        if (bytes.Little16(at + 4) == 0) return true;
        at += size;
    }
    return false;
}

bool EnhancedMetafileIsWhole(const PictureBytes& bytes) {
    constexpr std::uint32_t End = 14;
    constexpr std::size_t RecordHead = 8;
    for (std::size_t at = 0; at + RecordHead <= bytes.Size();) {
        const std::size_t size = bytes.UnsignedLittle32(at + 4);
        if (size < RecordHead || size > bytes.Size() - at) return false;
        if (bytes.UnsignedLittle32(at) == End) return true;
        at += size;
    }
    return false;
}

}  // namespace

bool PictureIsWhole(std::string_view data) {
    constexpr std::size_t BitmapHeader = 14, PlaceableHeader = 22;
    const PictureBytes bytes(data);
    switch (PictureKindOf(data)) {
        case PictureKind::Png:
            return PngIsWhole(bytes);
        case PictureKind::Jpeg:
            return JpegIsWhole(bytes);
        case PictureKind::Gif:
            return GifIsWhole(bytes);
        case PictureKind::Bitmap:
            return BitmapIsWhole(bytes, BitmapHeader);
        case PictureKind::BareBitmap:
            return BitmapIsWhole(bytes, 0);
        case PictureKind::Icon:
            return IconIsWhole(bytes);
        case PictureKind::PlaceableMetafile:
            return MetafileIsWhole(bytes, PlaceableHeader);
        case PictureKind::Metafile:
            return MetafileIsWhole(bytes, 0);
        case PictureKind::EnhancedMetafile:
            return EnhancedMetafileIsWhole(bytes);
        case PictureKind::Drawing:
            return true;
        case PictureKind::None:
            break;
    }
    return false;
}

bool PictureIsInPasses(std::string_view data) {
    constexpr std::size_t InterlaceOfPng = 28;
    const PictureBytes bytes(data);
    if (PictureKindOf(data) == PictureKind::Png) return bytes.At(InterlaceOfPng) != 0;
    return PictureKindOf(data) == PictureKind::Jpeg && ReadJpegHead(bytes).progressive;
}

}  // namespace tendo
