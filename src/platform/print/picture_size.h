#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tendo {

/// The size of a picture in its own units; only the ratio of the two counts. Pixels for pictures
/// made of them.
struct PictureSize {
    int width = 0;
    int height = 0;
};

/// Reads the size from the head of a picture file of any kind, as it stands upright: a photograph
/// that its camera marked as turned has its sides changed over. Nothing when the file is missing or
/// no picture.
std::optional<PictureSize> ReadPictureSize(const std::string& path);
/// The same from the file's bytes.
std::optional<PictureSize> PictureSizeOf(std::string_view bytes);

}  // namespace tendo
