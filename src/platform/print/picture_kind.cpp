#include "platform/print/picture_kind.h"

#include <array>

#include "platform/print/picture_bytes.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t DrawingHead = 65536;  // a drawing's tag may stand behind a long comment

struct Signature {
    std::string_view bytes;
    PictureKind kind;
};
constexpr std::array Signatures = {
    Signature{"\x89PNG\r\n\x1A\n"sv, PictureKind::Png},
    Signature{"\xFF\xD8"sv, PictureKind::Jpeg},
    Signature{"GIF8"sv, PictureKind::Gif},
    Signature{"BM"sv, PictureKind::Bitmap},
    Signature{"\0\0\1\0"sv, PictureKind::Icon},
    Signature{"\0\0\2\0"sv, PictureKind::Icon},
    Signature{"\xD7\xCD\xC6\x9A"sv, PictureKind::PlaceableMetafile},
    Signature{"\1\0\x09\0\0\1"sv, PictureKind::Metafile},
    Signature{"\1\0\x09\0\0\3"sv, PictureKind::Metafile},
};

bool IsEnhancedMetafile(const PictureBytes& bytes) {
    constexpr std::int32_t EnhancedMark = 0x464D4520;
    return bytes.Little32(0) == 1 && bytes.Little32(40) == EnhancedMark;
}

bool IsBareBitmap(const PictureBytes& bytes) {
    constexpr int HeaderSize = 40, Planes = 1;
    return bytes.Little32(0) == HeaderSize && bytes.Little16(12) == Planes;
}

}  // namespace

PictureKind PictureKindOf(std::string_view data) {
    for (const Signature& signature : Signatures)
        if (StartsWith(data, signature.bytes)) return signature.kind;
    const PictureBytes bytes(data);
    if (IsEnhancedMetafile(bytes)) return PictureKind::EnhancedMetafile;
    if (IsBareBitmap(bytes)) return PictureKind::BareBitmap;
    return Contains(data.substr(0, DrawingHead), "<svg") ? PictureKind::Drawing : PictureKind::None;
}

}  // namespace tendo
