#include "platform/qt/pixel_picture.h"

#include <QBuffer>
#include <QImageReader>
#include <cmath>

#include "platform/print/picture_bytes.h"
#include "platform/print/picture_check.h"
#include "platform/print/picture_kind.h"
#include "platform/print/picture_size.h"

namespace tendo {

namespace {

// At print a logo of 6 by 2 inches takes 4.3 million pixels at 600 dots an inch.
constexpr double MostPixels = 8 << 20;
// What may be decoded at full size before it is scaled down, and what may be read at all.
constexpr double MostHeldPixels = 32 << 20, MostReadPixels = 128 << 20;
constexpr int LargestAllocation = 128;  // megabytes

const char* FormatOf(PictureKind kind) {
    switch (kind) {
        case PictureKind::Png:
            return "png";
        case PictureKind::Jpeg:
            return "jpg";
        case PictureKind::Gif:
            return "gif";
        case PictureKind::Bitmap:
            return "bmp";
        case PictureKind::Icon:
            return "ico";
        default:
            return nullptr;
    }
}

double Pixels(QSize size) {
    return static_cast<double>(size.width()) * size.height();
}

QSize StoredSize(std::string_view bytes) {
    const PictureSize size = PictureSizeOf(bytes).value_or(PictureSize{});
    return {size.width, size.height};
}

/// JPEG and PNG files are scaled while they are read, row by row, unless they come in passes.
bool IsReadInRows(std::string_view bytes) {
    const PictureKind kind = PictureKindOf(bytes);
    const bool known = kind == PictureKind::Png || kind == PictureKind::Jpeg;
    return known && !PictureIsInPasses(bytes);
}

void GoToLargest(QImageReader& reader) {
    int best = 0;
    double most = 0;
    for (int i = 0; i < reader.imageCount(); ++i) {
        if (!reader.jumpToImage(i)) break;
        const double pixels = Pixels(reader.size());
        if (pixels > most) best = i;
        most = std::max(most, pixels);
    }
    reader.jumpToImage(best);
}

void LimitSize(QImageReader& reader) {
    const QSize size = reader.size();
    const double pixels = Pixels(size);
    if (pixels <= MostPixels) return;
    const double scale = std::sqrt(MostPixels / pixels);
    reader.setScaledSize(QSize(std::max(1, static_cast<int>(size.width() * scale)),
                               std::max(1, static_cast<int>(size.height() * scale))));
}

}  // namespace

bool HasTooManyPixels(std::string_view bytes) {
    return Pixels(StoredSize(bytes)) > (IsReadInRows(bytes) ? MostReadPixels : MostHeldPixels);
}

QImage DecodePixels(std::string_view bytes) {
    if (PictureKindOf(bytes) == PictureKind::BareBitmap) return DecodeBareBitmap(bytes);
    const char* format = FormatOf(PictureKindOf(bytes));
    if (!format || StoredSize(bytes).isEmpty() || HasTooManyPixels(bytes)) return {};
    QImageReader::setAllocationLimit(LargestAllocation);
    QByteArray held = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&held);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (PictureKindOf(bytes) == PictureKind::Icon) GoToLargest(reader);
    LimitSize(reader);
    const QImage image = reader.read();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

QImage DecodeBareBitmap(std::string_view bytes) {
    constexpr std::uint32_t HeaderSize = 40, FileHeader = 14, Masks = 3, MasksSize = 12;
    const PictureBytes head(bytes);
    if (head.UnsignedLittle32(0) != HeaderSize || bytes.size() < HeaderSize) return {};
    const int bits = head.Little16(14);
    const std::uint32_t used = head.UnsignedLittle32(32);
    const std::uint32_t colors = bits > 8 ? 0 : used > 0 ? used : 1U << bits;
    const std::uint32_t masks = head.UnsignedLittle32(16) == Masks ? MasksSize : 0;
    if (colors > bytes.size()) return {};
    const auto size = static_cast<std::uint32_t>(bytes.size()) + FileHeader;
    std::string file("BM");
    for (const std::uint32_t value : {size, 0U, FileHeader + HeaderSize + masks + colors * 4})
        for (int shift = 0; shift < 32; shift += 8)
            file += static_cast<char>(value >> shift & 0xFF);
    file.append(bytes);
    return DecodePixels(file);
}

}  // namespace tendo
