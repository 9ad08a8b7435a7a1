#include "platform/text/code_page.h"

#include <iconv.h>

#include <array>
#include <cerrno>

#include "platform/text/text.h"
#include "platform/text/utf8.h"

namespace tendo {

namespace {

/// Code points of the bytes 0x80 to 0x9F; every other byte is its own number. The five open places
/// keep the control character of their number.
constexpr char16_t HighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    for (int i = 0; i < 32; ++i) {
        if (HighControls[i] == codePoint) return static_cast<char>(0x80 + i);
    }
    return '?';
}

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

char32_t UnitAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) |
           static_cast<char32_t>(static_cast<unsigned char>(bytes[at + 1])) << 8;
}

void AppendUnit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

/// Big endian units turned into little endian ones.
std::string BytesSwapped(std::string_view bytes) {
    std::string swapped;
    swapped.reserve(bytes.size());
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        swapped += bytes[at + 1];
        swapped += bytes[at];
    }
    return swapped;
}

constexpr int MacintoshPage = 10000;

/// The conversion's own name of a page.
std::string NameOfPage(int page) {
    return page == MacintoshPage ? "MACINTOSH" : "CP" + std::to_string(page);
}

/// A conversion of the system's, from one page to UTF-8.
class PageConversion {
  public:
    explicit PageConversion(int page)
        : conversion_(::iconv_open("UTF-8", NameOfPage(page).c_str())) {}
    ~PageConversion() {
        if (IsKnown()) ::iconv_close(conversion_);
    }
    PageConversion(const PageConversion&) = delete;
    PageConversion& operator=(const PageConversion&) = delete;

    // The system marks an unknown page by this value.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    bool IsKnown() const { return conversion_ != reinterpret_cast<iconv_t>(-1); }

    std::string Convert(std::string_view bytes) {
        std::string input(bytes);
        std::string text;
        char* from = input.data();
        std::size_t left = input.size();
        while (left > 0) {
            std::array<char, 256> piece{};
            char* to = piece.data();
            std::size_t room = piece.size();
            const std::size_t result = ::iconv(conversion_, &from, &left, &to, &room);
            text.append(piece.data(), piece.size() - room);
            if (result != static_cast<std::size_t>(-1) || errno == E2BIG) continue;
            AppendUtf8(text, 0xFFFD);
            ++from;
            --left;
        }
        return text;
    }

  private:
    iconv_t conversion_;
};

}  // namespace

bool IsLeadByte(unsigned char byte, int page) {
    if (page == 932)  // half-width Katakana stand between the leads
        return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    const bool wide = page == 936 || page == 949 || page == 950;
    return wide && byte >= 0x81 && byte <= 0xFE;
}

std::string FromCodePage(std::string_view bytes, int page) {
    if (page == 1252) return FromWindows1252(bytes);
    PageConversion conversion(page);
    return conversion.IsKnown() ? conversion.Convert(bytes) : FromWindows1252(bytes);
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80] : byte);
    }
    return text;
}

std::string ToWindows1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Step step = Utf8At(text, at);
        bytes += ByteOf(step.codePoint);
        at += step.length;
    }
    return bytes;
}

std::string FromTextFileBytes(std::string_view bytes) {
    std::string text;
    if (bytes.starts_with("\xFF\xFE")) {
        text = FromUtf16(bytes.substr(2));
    } else if (bytes.starts_with("\xFE\xFF")) {
        text = FromUtf16(BytesSwapped(bytes.substr(2)));
    } else {
        const std::string_view content = bytes.substr(bytes.starts_with(Utf8Mark) ? 3 : 0);
        text = IsUtf8(content) ? std::string(content) : FromWindows1252(content);
    }
    // A file that was put together from others has a second mark; what is read is text only.
    while (text.starts_with(Utf8Mark))
        text.erase(0, Utf8Mark.size());
    return text;
}

std::string FromUtf16(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t codePoint = UnitAt(bytes, at);
        if (IsHighSurrogate(codePoint) && at + 3 < bytes.size() &&
            IsLowSurrogate(UnitAt(bytes, at + 2))) {
            at += 2;
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (UnitAt(bytes, at) - 0xDC00);
        }
        AppendUtf8(text, codePoint);  // a lone surrogate becomes U+FFFD there
    }
    return text;
}

std::string ToUtf16(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Step step = Utf8At(text, at);
        at += step.length;
        if (step.codePoint < 0x10000) {
            AppendUnit(bytes, step.codePoint);
            continue;
        }
        const char32_t offset = step.codePoint - 0x10000;
        AppendUnit(bytes, 0xD800 + (offset >> 10));
        AppendUnit(bytes, 0xDC00 + (offset & 0x3FF));
    }
    return bytes;
}

}  // namespace tendo
