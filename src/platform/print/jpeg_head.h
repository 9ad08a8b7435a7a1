#pragma once

#include "platform/print/picture_bytes.h"

namespace tendo {

/// What the segments ahead of a JPEG file's picture tell.
struct JpegHead {
    int width = 0, height = 0;  // pixels as stored; 0 when no frame was found
    bool progressive = false;   // stored in passes, each over the whole picture
    int orientation = 1;        // the camera's mark, 1 to 8; from 5 on the sides change over
    std::size_t scan = 0;       // where the picture itself begins; 0 when it doesn't
};

JpegHead ReadJpegHead(const PictureBytes& bytes);

}  // namespace tendo
