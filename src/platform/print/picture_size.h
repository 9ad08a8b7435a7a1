#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tendo {

/// The size of a picture in its own units; only the ratio of the two counts.
struct PictureSize {
    int width = 0;
    int height = 0;
};

/// Reads the size from the head of a picture file: PNG, JPEG, GIF, BMP, icon, SVG, placeable and
/// enhanced metafile. Nothing when the file is missing or none of these.
std::optional<PictureSize> ReadPictureSize(const std::string& path);
/// The same from the file's bytes.
std::optional<PictureSize> PictureSizeOf(std::string_view bytes);

}  // namespace tendo
