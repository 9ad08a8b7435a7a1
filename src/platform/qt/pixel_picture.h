#pragma once

#include <QImage>
#include <string_view>

namespace tendo {

/// The picture of a file made of pixels (PNG, JPEG, GIF, bitmap, icon): the first one of a moving
/// picture, the largest one of an icon, upright as its camera says. At most eight million pixels:
/// a larger one is read scaled down. Null when it can't be read within bounded memory.
QImage DecodePixels(std::string_view bytes);

/// A bitmap without a file's header, as metafiles and some .dib files hold it.
QImage DecodeBareBitmap(std::string_view bytes);

/// True when a picture has so many pixels that it isn't read at all.
bool HasTooManyPixels(std::string_view bytes);

}  // namespace tendo
