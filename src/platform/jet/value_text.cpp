#include "platform/jet/value_text.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace tendo::jet {
namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";
/// Order in which a GUID's bytes are printed.
constexpr std::array<int, 16> guidOrder = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};

int HexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

}  // namespace

std::string GuidText(std::string_view bytes) {
    std::string text = "{";
    for (std::size_t i = 0; i < guidOrder.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
        const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(guidOrder[i])]);
        text += hexDigits[byte >> 4];
        text += hexDigits[byte & 15];
    }
    return text + "}";
}

bool GuidBytes(std::string_view text, std::string& bytes) {
    bytes.assign(16, '\0');
    std::size_t at = 0;
    for (std::size_t i = 0; i < guidOrder.size(); ++i) {
        while (at < text.size() && (text[at] == '{' || text[at] == '-'))
            ++at;
        if (at + 1 >= text.size()) return false;
        const int high = HexValue(text[at]), low = HexValue(text[at + 1]);
        if (high < 0 || low < 0) return false;
        bytes[static_cast<std::size_t>(guidOrder[i])] = static_cast<char>(high * 16 + low);
        at += 2;
    }
    return true;
}

std::string NumericText(std::string_view bytes, int scale) {
    std::array<std::uint32_t, 4> parts{};  // the most significant first
    for (std::size_t i = 0; i < 4; ++i)
        std::memcpy(&parts[i], bytes.data() + 1 + 4 * i, 4);
    std::string digits;
    for (bool more = true; more;) {
        std::uint64_t rest = 0;
        more = false;
        for (std::uint32_t& part : parts) {
            const std::uint64_t value = rest << 32 | part;
            part = static_cast<std::uint32_t>(value / 10);
            rest = value % 10;
            more = more || part != 0;
        }
        digits.insert(digits.begin(), static_cast<char>('0' + rest));
    }
    const auto places = static_cast<std::size_t>(scale < 0 ? 0 : scale);
    if (places > 0) {
        if (digits.size() <= places) digits = std::string(places + 1 - digits.size(), '0') + digits;
        digits =
            digits.substr(0, digits.size() - places) + "." + digits.substr(digits.size() - places);
    }
    return (bytes[0] != 0 ? "-" : "") + digits;
}

bool NumericBytes(std::string_view text, int scale, std::string& bytes) {
    const bool negative = !text.empty() && text[0] == '-';
    if (negative) text.remove_prefix(1);
    std::array<std::uint32_t, 4> parts{};
    const auto add = [&](std::uint32_t digit) {
        std::uint64_t carry = digit;
        for (std::size_t i = 4; i-- > 0;) {
            const std::uint64_t value = std::uint64_t{parts[i]} * 10 + carry;
            parts[i] = static_cast<std::uint32_t>(value);
            carry = value >> 32;
        }
        return carry == 0;
    };
    int places = -1;
    for (const char c : text) {
        if (c == '.' && places < 0) {
            places = 0;
        } else if (c >= '0' && c <= '9') {
            if (places >= 0 && places++ >= scale) return false;
            if (!add(static_cast<std::uint32_t>(c - '0'))) return false;
        } else {
            return false;
        }
    }
    for (int i = places < 0 ? 0 : places; i < scale; ++i)
        if (!add(0)) return false;
    bytes.assign(1, negative ? '\1' : '\0');
    for (const std::uint32_t part : parts)
        bytes.append(reinterpret_cast<const char*>(&part), 4);
    return true;
}

}  // namespace tendo::jet
