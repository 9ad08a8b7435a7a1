#include "picture_files.h"

#include <QBuffer>

namespace tendo {
namespace {

std::string Big(std::uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}

/// The check sum of PNG chunks.
std::uint32_t CheckSum(const std::string& bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int i = 0; i < 8; ++i)
            sum = (sum & 1) ? sum >> 1 ^ 0xEDB88320U : sum >> 1;
    }
    return ~sum;
}

std::string Rgb3(const QColor& color) {
    return {static_cast<char>(color.red()), static_cast<char>(color.green()),
            static_cast<char>(color.blue())};
}

std::string Bgr3(const QColor& color) {
    return {static_cast<char>(color.blue()), static_cast<char>(color.green()),
            static_cast<char>(color.red())};
}

/// Codes of a GIF, three bits each, lowest bit first.
class GifCodes {
  public:
    void Add(std::uint32_t code) {
        held_ |= code << count_;
        for (count_ += 3; count_ >= 8; count_ -= 8, held_ >>= 8)
            bytes_ += static_cast<char>(held_ & 0xFF);
    }
    /// In blocks, with the empty one behind.
    std::string Blocks() {
        if (count_ > 0) bytes_ += static_cast<char>(held_ & 0xFF);
        std::string blocks;
        for (std::size_t at = 0; at < bytes_.size(); at += 255) {
            const std::string block = bytes_.substr(at, 255);
            blocks += static_cast<char>(block.size());
            blocks += block;
        }
        return blocks + '\0';
    }

  private:
    std::string bytes_;
    std::uint32_t held_ = 0;
    int count_ = 0;
};

/// The order in which the rows of a picture are stored.
std::vector<int> RowOrder(int height, bool interlaced) {
    std::vector<int> order;
    const int passes[][2] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    if (interlaced) {
        for (const auto& pass : passes)
            for (int y = pass[0]; y < height; y += pass[1])
                order.push_back(y);
    } else {
        for (int y = 0; y < height; ++y)
            order.push_back(y);
    }
    return order;
}

std::string GifImage(int width, int height, const GifPicture& picture, bool interlaced) {
    constexpr std::uint32_t Clear = 4, End = 5;
    std::string bytes = std::string("\x2C\0\0\0\0", 5) +
                        Little(static_cast<std::uint32_t>(width), 2) +
                        Little(static_cast<std::uint32_t>(height), 2);
    bytes += static_cast<char>(interlaced ? 0x40 : 0);
    bytes += '\2';  // bits of a pixel
    GifCodes codes;
    int written = 0;
    for (const int y : RowOrder(height, interlaced))
        for (int x = 0; x < width; ++x) {
            if (written++ % 2 == 0) codes.Add(Clear);  // so that codes stay of three bits
            codes.Add(static_cast<std::uint32_t>(y < height / 2 ? picture.upper : picture.lower));
        }
    codes.Add(End);
    return bytes + codes.Blocks();
}

/// A record of a 16-bit metafile.
std::string Record16(int function, const std::vector<int>& words) {
    std::string bytes = Little(static_cast<std::uint32_t>(words.size() + 3), 4) +
                        Little(static_cast<std::uint32_t>(function), 2);
    for (const int word : words)
        bytes += Little(static_cast<std::uint32_t>(word), 2);
    return bytes;
}

/// A record of an enhanced metafile.
std::string Record32(std::uint32_t kind, const std::vector<std::uint32_t>& values) {
    std::string bytes =
        Little(kind, 4) + Little(static_cast<std::uint32_t>(8 + values.size() * 4), 4);
    for (const std::uint32_t value : values)
        bytes += Little(value, 4);
    return bytes;
}

}  // namespace

std::string Little(std::uint32_t value, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string Encoded(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes.toStdString();
}

QImage RedAndBlue(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < height; ++y)
        for (int x = width / 2; x < width; ++x)
            image.setPixelColor(x, y, Qt::blue);
    return image;
}

std::string IndexedBitmap(int bits, int width, int height, const std::vector<QColor>& colors,
                          const std::function<int(int x, int y)>& pixel, bool old) {
    std::string table;
    for (const QColor& color : colors)
        table += Bgr3(color) + (old ? std::string() : std::string(1, '\0'));
    std::string rows;
    for (int y = height - 1; y >= 0; --y) {
        std::string row(static_cast<std::size_t>((width * bits + 31) / 32 * 4), '\0');
        for (int x = 0; x < width; ++x) {
            const int shift = 8 - bits - x * bits % 8;
            auto& byte = row[static_cast<std::size_t>(x * bits / 8)];
            byte = static_cast<char>(byte | pixel(x, y) << shift);
        }
        rows += row;
    }
    const auto wide = static_cast<std::uint32_t>(width), high = static_cast<std::uint32_t>(height);
    const std::string header =
        old ? Little(12, 4) + Little(wide, 2) + Little(high, 2) + Little(1, 2) +
                  Little(static_cast<std::uint32_t>(bits), 2)
            : Little(40, 4) + Little(wide, 4) + Little(high, 4) + Little(1, 2) +
                  Little(static_cast<std::uint32_t>(bits), 2) + std::string(16, '\0') +
                  Little(static_cast<std::uint32_t>(colors.size()), 4) + std::string(4, '\0');
    const std::size_t pixels = 14 + header.size() + table.size();
    return "BM" + Little(static_cast<std::uint32_t>(pixels + rows.size()), 4) + Little(0, 4) +
           Little(static_cast<std::uint32_t>(pixels), 4) + header + table + rows;
}

std::string GifFile(int width, int height, const std::vector<QColor>& colors,
                    const std::vector<GifPicture>& pictures, bool interlaced) {
    std::string bytes = "GIF89a" + Little(static_cast<std::uint32_t>(width), 2) +
                        Little(static_cast<std::uint32_t>(height), 2) +
                        std::string("\x81\0\0", 3);  // a table of four colours
    for (std::size_t i = 0; i < 4; ++i)
        bytes += Rgb3(i < colors.size() ? colors[i] : QColor(Qt::black));
    for (const GifPicture& picture : pictures) {
        if (pictures.size() > 1) bytes += std::string("\x21\xF9\x04\0\x0A\0\0\0", 8);  // a tenth
        bytes += GifImage(width, height, picture, interlaced);
    }
    return bytes + ";";
}

std::string IconFile(const std::vector<IconSquare>& squares) {
    std::string entries, pictures;
    const std::size_t behind = 6 + 16 * squares.size();
    for (const IconSquare& square : squares) {
        const auto side = static_cast<std::uint32_t>(square.side);
        std::string picture = Little(40, 4) + Little(side, 4) + Little(side * 2, 4) + Little(1, 2) +
                              Little(32, 2) + std::string(24, '\0');
        for (std::uint32_t i = 0; i < side * side; ++i)
            picture += Bgr3(square.color) + '\xFF';
        picture += std::string((side + 31) / 32 * 4 * side, '\0');  // nothing is masked out
        entries += Little(side, 1) + Little(side, 1) + Little(0, 2) + Little(1, 2) + Little(32, 2) +
                   Little(static_cast<std::uint32_t>(picture.size()), 4) +
                   Little(static_cast<std::uint32_t>(behind + pictures.size()), 4);
        pictures += picture;
    }
    return Little(0, 2) + Little(1, 2) + Little(static_cast<std::uint32_t>(squares.size()), 2) +
           entries + pictures;
}

std::string WithOrientation(const std::string& jpeg, int orientation) {
    const std::string directory = Little(1, 2) + Little(0x0112, 2) + Little(3, 2) + Little(1, 4) +
                                  Little(static_cast<std::uint32_t>(orientation), 4) + Little(0, 4);
    const std::string content =
        std::string("Exif\0\0", 6) + "II" + Little(42, 2) + Little(8, 4) + directory;
    const auto length = static_cast<std::uint32_t>(content.size() + 2);
    return jpeg.substr(0, 2) + "\xFF\xE1" + Big(length).substr(2) + content + jpeg.substr(2);
}

std::string WithJpegSize(std::string jpeg, int width, int height) {
    for (std::size_t at = 2; at + 9 < jpeg.size();) {
        const auto byte = [&](std::size_t place) {
            return static_cast<std::size_t>(static_cast<unsigned char>(jpeg[place]));
        };
        if (byte(at + 1) >= 0xC0 && byte(at + 1) <= 0xC2) {
            jpeg.replace(at + 5, 2, Big(static_cast<std::uint32_t>(height)).substr(2));
            jpeg.replace(at + 7, 2, Big(static_cast<std::uint32_t>(width)).substr(2));
            break;
        }
        at += 2 + byte(at + 2) * 256 + byte(at + 3);
    }
    return jpeg;
}

std::string WithPngSize(std::string png, int width, int height) {
    png.replace(16, 4, Big(static_cast<std::uint32_t>(width)));
    png.replace(20, 4, Big(static_cast<std::uint32_t>(height)));
    png.replace(29, 4, Big(CheckSum(png.substr(12, 17))));
    return png;
}

std::string RedMetafile(bool placeable) {
    constexpr int NoPen = 5;
    const std::string records = Record16(0x0103, {8}) + Record16(0x020B, {0, 0}) +
                                Record16(0x020C, {50, 100}) +
                                Record16(0x02FA, {NoPen, 0, 0, 0, 0}) + Record16(0x012D, {0}) +
                                Record16(0x02FC, {0, 0x00FF, 0, 0}) + Record16(0x012D, {1}) +
                                Record16(0x041B, {30, 50, 10, 10}) + Record16(0, {});
    const std::string file = Little(1, 2) + Little(9, 2) + Little(0x300, 2) +
                             Little(static_cast<std::uint32_t>((18 + records.size()) / 2), 4) +
                             Little(2, 2) + Little(8, 4) + Little(0, 2) + records;
    if (!placeable) return file;
    std::string header("\xD7\xCD\xC6\x9A");
    for (const std::uint32_t word : {0U, 0U, 0U, 100U, 50U, 1440U, 0U, 0U})
        header += Little(word, 2);
    std::uint32_t sum = 0;  // of the ten words ahead of it
    for (std::size_t at = 0; at < header.size(); at += 2)
        sum ^= static_cast<std::uint32_t>(static_cast<unsigned char>(header[at]) |
                                          static_cast<unsigned char>(header[at + 1]) << 8);
    return header + Little(sum, 2) + file;
}

std::string RedEnhancedMetafile() {
    constexpr std::uint32_t NullPen = 0x80000008, Red = 0x0000FF;
    const std::vector<std::string> records = {Record32(17, {8}),        // any scale
                                              Record32(9, {100, 50}),   // window
                                              Record32(11, {100, 50}),  // view port
                                              Record32(39, {1, 0, Red, 0}),
                                              Record32(37, {1}),
                                              Record32(37, {NullPen}),
                                              Record32(43, {10, 10, 50, 30}),
                                              Record32(14, {0, 16, 20})};
    std::string all;
    for (const std::string& record : records)
        all += record;
    constexpr std::uint32_t HeaderSize = 88, Mark = 0x464D4520, Version = 0x10000;
    const std::string handles = Little(2, 2) + Little(0, 2);
    std::string header = Record32(1, {0, 0, 100, 50, 0, 0, 2646, 1323, Mark, Version,
                                      HeaderSize + static_cast<std::uint32_t>(all.size()),
                                      static_cast<std::uint32_t>(records.size() + 1)});
    header += handles + Little(0, 4) + Little(0, 4) + Little(0, 4) + Little(1000, 4) +
              Little(1000, 4) + Little(264, 4) + Little(264, 4);
    header.replace(4, 4, Little(HeaderSize, 4));
    return header + all;
}

}  // namespace tendo
