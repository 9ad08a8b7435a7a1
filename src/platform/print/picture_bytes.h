#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tendo {

/// The bytes of a picture file by offset; 0 beyond the end.
class PictureBytes {
  public:
    explicit PictureBytes(std::string_view bytes) : bytes_(bytes) {}
    std::size_t Size() const { return bytes_.size(); }
    std::uint32_t At(std::size_t offset) const {
        return offset < bytes_.size() ? static_cast<unsigned char>(bytes_[offset]) : 0;
    }
    int Little16(std::size_t at) const { return static_cast<int>(At(at) | At(at + 1) << 8); }
    int Big16(std::size_t at) const { return static_cast<int>(At(at) << 8 | At(at + 1)); }
    std::uint32_t UnsignedLittle32(std::size_t at) const {
        return At(at) | At(at + 1) << 8 | At(at + 2) << 16 | At(at + 3) << 24;
    }
    std::uint32_t UnsignedBig32(std::size_t at) const {
        return At(at) << 24 | At(at + 1) << 16 | At(at + 2) << 8 | At(at + 3);
    }
    std::int32_t Little32(std::size_t at) const {
        return static_cast<std::int32_t>(UnsignedLittle32(at));
    }
    std::int32_t Big32(std::size_t at) const {
        return static_cast<std::int32_t>(UnsignedBig32(at));
    }
    std::int16_t Signed16(std::size_t at) const { return static_cast<std::int16_t>(Little16(at)); }
    std::string_view All() const { return bytes_; }

  private:
    std::string_view bytes_;
};

}  // namespace tendo
