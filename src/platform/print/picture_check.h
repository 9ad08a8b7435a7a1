#pragma once

#include <string_view>

namespace tendo {

/// Whether the bytes of a picture file are all there: everything that its head and its records
/// promise lies within the file. What the pixels themselves are is the decoder's to judge. A
/// drawing (SVG) is passed: its reader knows.
bool PictureIsWhole(std::string_view bytes);

/// Whether a JPEG file is stored in passes over the whole picture, which must be held in memory
/// at its full size, or a PNG file in interlaced passes.
bool PictureIsInPasses(std::string_view bytes);

}  // namespace tendo
