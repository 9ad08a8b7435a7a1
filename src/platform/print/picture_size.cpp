#include "platform/print/picture_size.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::streamsize MostBytes = 1 << 20;  // a JPEG may carry a preview ahead of its size

/// Bytes by offset; 0 beyond the end.
class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
    std::uint32_t At(std::size_t offset) const {
        return offset < bytes_.size() ? static_cast<unsigned char>(bytes_[offset]) : 0;
    }
    int Little16(std::size_t at) const { return static_cast<int>(At(at) | At(at + 1) << 8); }
    int Big16(std::size_t at) const { return static_cast<int>(At(at) << 8 | At(at + 1)); }
    std::int32_t Little32(std::size_t at) const {
        return static_cast<std::int32_t>(At(at) | At(at + 1) << 8 | At(at + 2) << 16 |
                                         At(at + 3) << 24);
    }
    std::int32_t Big32(std::size_t at) const {
        return static_cast<std::int32_t>(At(at) << 24 | At(at + 1) << 16 | At(at + 2) << 8 |
                                         At(at + 3));
    }
    std::size_t Size() const { return bytes_.size(); }

  private:
    std::string_view bytes_;
};

PictureSize JpegSize(const Bytes& bytes) {
    std::size_t at = 2;
    while (at + 9 < bytes.Size()) {
        const std::uint32_t marker = bytes.At(at + 1);
        const bool frame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (bytes.At(at) != 0xFF) return {};
        if (frame) return {bytes.Big16(at + 7), bytes.Big16(at + 5)};
        at += 2 + static_cast<std::size_t>(bytes.Big16(at + 2));
    }
    return {};
}

std::int16_t Signed16(int value) {
    return static_cast<std::int16_t>(value);
}

/// A distance between two corners read from a file, held within 24 bits.
int Distance(std::int64_t from, std::int64_t to) {
    const std::int64_t distance = to > from ? to - from : from - to;
    return distance > 0xFFFFFF ? 0xFFFFFF : static_cast<int>(distance);
}

int Dimension(std::int32_t value) {
    return Distance(0, value);
}

/// The extent of a vector picture's view box, "0 0 640 160"; an SVG without one has no size.
std::optional<PictureSize> SvgSize(std::string_view text) {
    const std::size_t at = text.find("viewBox=");
    if (at == std::string_view::npos || at + 9 >= text.size()) return std::nullopt;
    const std::string_view rest = text.substr(at + 9);
    const std::vector<std::string> numbers = Split(rest.substr(0, rest.find_first_of("\"'")), ' ');
    if (numbers.size() != 4) return std::nullopt;
    return PictureSize{Dimension(LeadingLong(numbers[2])), Dimension(LeadingLong(numbers[3]))};
}

}  // namespace

std::optional<PictureSize> PictureSizeOf(std::string_view data) {
    const Bytes bytes(data);
    if (StartsWith(data, "\x89PNG\r\n\x1A\n"))
        return PictureSize{Dimension(bytes.Big32(16)), Dimension(bytes.Big32(20))};
    if (StartsWith(data, "\xFF\xD8")) return JpegSize(bytes);
    if (StartsWith(data, "GIF8")) return PictureSize{bytes.Little16(6), bytes.Little16(8)};
    if (StartsWith(data, "BM"))
        return PictureSize{Dimension(bytes.Little32(18)), Dimension(bytes.Little32(22))};
    if (StartsWith(data, std::string_view("\0\0\1\0", 4))) {
        const auto side = [&](std::size_t at) {  // 0 stands for 256
            return bytes.At(at) == 0 ? 256 : static_cast<int>(bytes.At(at));
        };
        return PictureSize{side(6), side(7)};
    }
    if (StartsWith(data, "\xD7\xCD\xC6\x9A"))
        return PictureSize{Distance(Signed16(bytes.Little16(6)), Signed16(bytes.Little16(10))),
                           Distance(Signed16(bytes.Little16(8)), Signed16(bytes.Little16(12)))};
    if (bytes.Little32(0) == 1 && bytes.Little32(40) == 0x464D4520)
        return PictureSize{Distance(bytes.Little32(24), bytes.Little32(32)),
                           Distance(bytes.Little32(28), bytes.Little32(36))};
    if (Contains(data.substr(0, 4096), "<svg")) return SvgSize(data.substr(0, 4096));
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
