#pragma once

#include <cstddef>
#include <span>

namespace tendo::jet {

/// The part of a file's first page that is masked: 128 bytes from 0x18 on; in Jet 3 two fewer.
constexpr std::size_t MaskedFrom = 0x18;
constexpr std::size_t HeaderMaskSize = 128;

/// Masks that part or bares it again: both are the same XOR. `header` begins at `MaskedFrom` and
/// is at most `HeaderMaskSize` long.
void MaskHeader(std::span<char> header);

}  // namespace tendo::jet
