#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/print/picture_check.h"
#include "platform/print/picture_kind.h"
#include "platform/print/picture_size.h"

/// Reads the size of any bytes as a picture, and checks them. The first byte may put a signature
/// in front, so that each kind is reached at once.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace std::string_view_literals;
    static constexpr std::string_view signatures[] = {
        "",           "\x89PNG\r\n\x1A\n", "\xFF\xD8\xFF",     "GIF89a",           "BM",
        "\0\0\1\0"sv, "\x28\0\0\0"sv,      "\xD7\xCD\xC6\x9A", "\1\0\x09\0\0\3"sv, "\1\0\0\0"sv,
        "<svg "};
    if (size == 0) return 0;
    std::string bytes(signatures[data[0] % std::size(signatures)]);
    bytes.append(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto picture = tendo::PictureSizeOf(bytes);
    if (picture && (picture->width < 0 || picture->height < 0)) __builtin_trap();
    const bool whole = tendo::PictureIsWhole(bytes);
    if (whole && tendo::PictureKindOf(bytes) == tendo::PictureKind::None) __builtin_trap();
    tendo::PictureIsInPasses(bytes);
    return 0;
}
