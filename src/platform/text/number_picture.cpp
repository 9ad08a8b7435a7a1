#include <charconv>
#include <cmath>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

/// What a picture asks for, counted once before a number is written by it.
struct Picture {
    std::string_view text;
    int wholePlaces = 0;       // digit places before the point
    int fractionPlaces = 0;    // and behind it
    int fractionRequired = 0;  // up to the last `0` behind the point
    int percents = 0;
    bool grouped = false;
    bool hasPoint = false;
};

bool IsPlace(char c) {
    return c == '#' || c == '0';
}

Picture ReadPicture(std::string_view text) {
    Picture picture;
    picture.text = text;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\\') {
            ++at;
        } else if (c == '%') {
            ++picture.percents;
        } else if (c == ',' && !picture.hasPoint) {
            picture.grouped = true;
        } else if (c == '.') {
            picture.hasPoint = true;
        } else if (IsPlace(c) && picture.hasPoint) {
            ++picture.fractionPlaces;
            if (c == '0') picture.fractionRequired = picture.fractionPlaces;
        } else if (IsPlace(c)) {
            ++picture.wholePlaces;
        }
    }
    return picture;
}

/// A magnitude as decimal digits: the value is 0.DIGITS times ten to the power `point`. No zeros at
/// the ends; no digits at all for zero.
struct Decimal {
    char digits[24];
    int count = 0;
    int point = 0;

    /// The digit of a place: 0 is the ones, -1 the tenths.
    char Digit(int place) const {
        const int index = point - 1 - place;
        return index >= 0 && index < count ? digits[index] : '0';
    }
};

/// The shortest decimal form that reads back as the same number.
template <typename Number>
Decimal ShortestDecimal(Number magnitude) {
    Decimal decimal;
    if (magnitude == 0) return decimal;
    char text[40];
    const char* const end =
        std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific).ptr;
    const char* at = text;
    for (; *at != 'e'; ++at) {
        if (*at != '.') decimal.digits[decimal.count++] = *at;
    }
    while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '0')
        --decimal.count;
    ++at;
    if (*at == '+') ++at;
    std::from_chars(at, end, decimal.point);
    ++decimal.point;
    return decimal;
}

/// Rounds to `places` digits behind the point, half away from zero.
void Round(Decimal& decimal, int places) {
    const int kept = decimal.point + places;
    if (kept >= decimal.count) return;
    if (kept < 0) {
        decimal.count = 0;
        return;
    }
    const bool up = decimal.digits[kept] >= '5';
    decimal.count = kept;
    if (up) {
        while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '9')
            --decimal.count;
        if (decimal.count > 0) {
            ++decimal.digits[decimal.count - 1];
            return;
        }
        decimal.digits[decimal.count++] = '1';  // all nines, or nothing was kept
        ++decimal.point;
        return;
    }
    while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '0')
        --decimal.count;
}

/// Writes one number by one picture, walking the picture from left to right.
class PictureWriter {
  public:
    PictureWriter(const Picture& picture, const Decimal& decimal)
        : picture_(picture),
          decimal_(decimal),
          place_(picture.wholePlaces - 1),
          wholeDigits_(decimal.count > 0 && decimal.point > 0 ? decimal.point : 0),
          fractionDigits_(decimal.count > decimal.point ? decimal.count - decimal.point : 0) {
        if (decimal.count == 0) fractionDigits_ = 0;
        if (fractionDigits_ < picture.fractionRequired) fractionDigits_ = picture.fractionRequired;
    }

    void WriteTo(std::string& result) {
        const std::string_view text = picture_.text;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const char c = text[at];
            if (IsPlace(c)) {
                WritePlace(result, c);
            } else if (c == '.') {
                WritePoint(result);
            } else if (c == '\\') {
                if (++at < text.size()) result += text[at];
            } else if (c != ',' || behindPoint_) {
                result += c;
            }
        }
    }

  private:
    void WritePlace(std::string& result, char c) {
        if (behindPoint_) {
            if (-place_ <= fractionDigits_) result += decimal_.Digit(place_);
            --place_;
            return;
        }
        if (!begun_) WriteDigitsAbove(result, place_);
        if (place_ < wholeDigits_ || c == '0' || written_) WriteWhole(result, place_);
        --place_;
    }

    void WritePoint(std::string& result) {
        if (behindPoint_) {
            result += '.';
            return;
        }
        if (!begun_) WriteDigitsAbove(result, -1);
        behindPoint_ = true;
        place_ = -1;
        result += '.';
    }

    /// A number with more digits than the picture has places writes them all at the first place.
    void WriteDigitsAbove(std::string& result, int place) {
        begun_ = true;
        for (int above = wholeDigits_ - 1; above > place; --above)
            WriteWhole(result, above);
    }

    void WriteWhole(std::string& result, int place) {
        result += decimal_.Digit(place);
        written_ = true;
        if (picture_.grouped && place > 0 && place % 3 == 0) result += ',';
    }

    const Picture& picture_;
    const Decimal& decimal_;
    int place_;
    int wholeDigits_;
    int fractionDigits_;
    bool begun_ = false;
    bool written_ = false;
    bool behindPoint_ = false;
};

template <typename Number>
std::string Formatted(Number value, std::string_view text) {
    if (!std::isfinite(value)) ThrowError(error_number::Overflow);
    const Picture picture = ReadPicture(text);
    Decimal decimal = ShortestDecimal(std::fabs(value));
    decimal.point += 2 * picture.percents;
    Round(decimal, picture.fractionPlaces);
    std::string result;
    if (value < 0 && decimal.count > 0) result += '-';
    PictureWriter(picture, decimal).WriteTo(result);
    return result;
}

}  // namespace

std::string FormatNumber(float value, std::string_view picture) {
    return Formatted(value, picture);
}

std::string FormatNumber(double value, std::string_view picture) {
    return Formatted(value, picture);
}

}  // namespace tendo
