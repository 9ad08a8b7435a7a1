#pragma once

#include <cstddef>
#include <string>

namespace tendo {

/// Numbers as a workbook keeps them, lowest byte first.
inline std::string U16(std::size_t value) {
    return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

inline std::string U32(std::size_t value) {
    return U16(value & 0xFFFF) + U16(value >> 16 & 0xFFFF);
}

/// A record of a workbook's stream.
inline std::string Record(std::size_t type, const std::string& body) {
    return U16(type) + U16(body.size()) + body;
}

}  // namespace tendo
