#include "platform/jet/stored_text.h"

#include <cstdint>
#include <cstring>

#include "platform/text/utf8.h"

namespace tendo::jet {

namespace {

/// Code points of the bytes 0x80 to 0x9F.
constexpr std::uint16_t HighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char* PutUtf8(char* out, std::uint32_t c) {
    if (c < 0x80) {
        *out++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *out++ = static_cast<char>(0xC0 | c >> 6);
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        *out++ = static_cast<char>(0xE0 | c >> 12);
        *out++ = static_cast<char>(0x80 | (c >> 6 & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else {
        *out++ = static_cast<char>(0xF0 | c >> 18);
        *out++ = static_cast<char>(0x80 | (c >> 12 & 0x3F));
        *out++ = static_cast<char>(0x80 | (c >> 6 & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

std::uint32_t Unit(const char* bytes) {
    std::uint16_t unit = 0;
    std::memcpy(&unit, bytes, sizeof unit);
    return unit;
}

/// One character of UTF-16, which may be a pair.
char* PutCharacter(const char*& in, const char* end, char* out) {
    std::uint32_t c = Unit(in);
    in += 2;
    if (c < 0xD800 || c > 0xDFFF) return PutUtf8(out, c);
    const bool pair = c < 0xDC00 && end - in >= 2 && (Unit(in) & 0xFC00) == 0xDC00;
    if (!pair) return PutUtf8(out, ReplacementCharacter);
    c = 0x10000 + ((c - 0xD800) << 10) + (Unit(in) - 0xDC00);
    in += 2;
    return PutUtf8(out, c);
}

char* PutUtf16(std::string_view stored, char* out) {
    constexpr std::uint64_t notAscii = 0xFF80FF80FF80FF80u;
    const char* in = stored.data();
    const char* const end = in + (stored.size() & ~std::size_t{1});
    while (in < end) {
        std::uint64_t four = 0;
        if (end - in >= 8) {
            std::memcpy(&four, in, sizeof four);
            if ((four & notAscii) == 0) {  // four ASCII characters, packed in two shifts
                four = (four | four >> 8) & 0x0000FFFF0000FFFFu;
                four |= four >> 16;
                std::memcpy(out, &four, 4);
                in += 8;
                out += 4;
                continue;
            }
        }
        out = PutCharacter(in, end, out);
    }
    return out;
}

char* PutAsciiRun(const char*& in, const char* end, char* out) {
    constexpr std::uint64_t ones = 0x0101010101010101u, highs = 0x8080808080808080u;
    while (end - in >= 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, in, sizeof eight);
        const std::uint64_t zeroOrHigh = ((eight - ones) | eight) & highs;
        if (zeroOrHigh != 0) break;
        std::memcpy(out, &eight, sizeof eight);
        in += 8;
        out += 8;
    }
    return out;
}

/// Bytes in compressed mode stand for U+0001 to U+00FF; a zero changes the mode.
char* PutCompressed(std::string_view stored, char* out) {
    const char* in = stored.data();
    const char* const end = in + stored.size();
    while (in < end) {
        out = PutAsciiRun(in, end, out);
        while (in < end && *in != 0)
            out = PutUtf8(out, static_cast<unsigned char>(*in++));
        if (in == end) break;
        ++in;
        const char* const start = in;
        while (end - in >= 2 && *in != 0)
            in += 2;
        out = PutUtf16({start, static_cast<std::size_t>(in - start)}, out);
        if (end - in < 1 || *in != 0) break;  // half a character at the end
        ++in;
    }
    return out;
}

}  // namespace

char* PutJet4Text(std::string_view stored, char* out) {
    if (stored.starts_with("\xFF\xFE")) return PutCompressed(stored.substr(2), out);
    return PutUtf16(stored, out);
}

char* PutJet3Text(std::string_view stored, char* out) {
    const char* in = stored.data();
    const char* const end = in + stored.size();
    while (in < end) {
        const auto byte = static_cast<unsigned char>(*in++);
        out = PutUtf8(out, byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80] : byte);
    }
    return out;
}

}  // namespace tendo::jet
