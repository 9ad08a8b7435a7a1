#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// Numbers of a file, lowest byte first. The caller has made sure that the bytes are there.
namespace tendo::little_endian {

template <typename Number>
inline Number Read(std::string_view bytes, std::size_t at) {
    Number value = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;)
        value = static_cast<Number>((value << 8) | static_cast<std::uint8_t>(bytes[at + i]));
    return value;
}

inline std::uint16_t U16(std::string_view bytes, std::size_t at) {
    return Read<std::uint16_t>(bytes, at);
}

inline std::uint32_t U32(std::string_view bytes, std::size_t at) {
    return Read<std::uint32_t>(bytes, at);
}

inline double Double(std::string_view bytes, std::size_t at) {
    return std::bit_cast<double>(Read<std::uint64_t>(bytes, at));
}

}  // namespace tendo::little_endian
