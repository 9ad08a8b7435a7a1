#pragma once

#include <cstdint>
#include <cstring>
#include <string>

namespace tendo::jet3 {

/// Puts a number into bytes, little-endian as on this machine.
template <class Number>
void Put(std::string& bytes, std::size_t at, Number value) {
    std::memcpy(bytes.data() + at, &value, sizeof value);
}

template <class Number>
void Append(std::string& bytes, Number value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

inline void AppendByte(std::string& bytes, std::size_t value) {
    bytes += static_cast<char>(static_cast<unsigned char>(value));
}

}  // namespace tendo::jet3
