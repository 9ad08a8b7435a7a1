#pragma once

#include <string_view>

namespace tendo {

/// The kinds of picture files. The content tells the kind, never the ending of the name.
enum class PictureKind {
    None,
    Png,
    Jpeg,
    Gif,
    Bitmap,             // with a file's header
    BareBitmap,         // without one, as some .dib files
    Icon,               // also cursors
    Drawing,            // SVG
    PlaceableMetafile,  // 16-bit Windows metafile with a header that tells its size
    Metafile,           // the same without that header
    EnhancedMetafile
};

PictureKind PictureKindOf(std::string_view bytes);

}  // namespace tendo
