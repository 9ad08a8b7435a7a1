// Texts that become numbers, dates and text of another code; numbers that become text by a picture.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/text/code_page.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

void ReadNumbers(std::string_view text) {
    Require(std::isfinite(tendo::ValueOfText(text)));
    double value = 0;
    if (tendo::ReadNumber(text, value)) Require(std::isfinite(value));
    Require(std::isfinite(tendo::LeadingNumber(text)));
    Require(std::isfinite(tendo::LeadingSingle(text)));
    tendo::LeadingInteger(text);
    tendo::LeadingLong(text);
}

template <typename Number>
void WriteNumber(const std::uint8_t* data, std::size_t size, std::string_view picture) {
    Number number = 0;
    std::memcpy(&number, data, std::min(size, sizeof number));
    tendo::PlainNumberText(number);
    try {
        tendo::FormatNumber(number, picture);
        const std::string shown = tendo::FormatNumber(number, tendo::MoneyPicture);
        double read = 0;
        Require(tendo::ReadNumber(shown, read));
        const double shift = std::fabs(read - static_cast<double>(number));
        Require(shift <= 0.005001 + std::fabs(static_cast<double>(number)) * 1e-6);
    } catch (const tendo::RuntimeError& error) {
        Require(error.Number() == tendo::error_number::Overflow && !std::isfinite(number));
    }
}

void ReadDates(std::string_view text) {
    if (const auto date = tendo::ReadDate(text)) {
        Require(tendo::DateOfSerial(tendo::SerialOfDate(*date)) == *date);
        Require(tendo::ReadDate(tendo::LongDateText(*date)).has_value());
    }
    if (const auto date = tendo::ReadIsoDate(text)) {
        Require(tendo::ReadIsoDate(tendo::IsoText(*date)) == date);
    }
}

void ChangeCodes(std::string_view bytes) {
    Require(tendo::IsUtf8(tendo::FromTextFileBytes(bytes)));
    Require(tendo::IsUtf8(tendo::FromUtf16(bytes)));
    Require(tendo::ToWindows1252(tendo::FromWindows1252(bytes)) == bytes);
    if (tendo::IsUtf8(bytes)) {
        Require(tendo::FromUtf16(tendo::ToUtf16(bytes)) == bytes);
        Require(tendo::FromCodePoints(tendo::ToCodePoints(bytes)) == bytes);
        Require(tendo::EqualsNoCase(tendo::UpperCase(bytes), bytes));
    }
    const std::size_t count = tendo::CharacterCount(bytes);
    Require(tendo::FirstCharacters(bytes, count) == bytes);
    Require(tendo::LastCharacters(bytes, count / 2).size() <= bytes.size());
    Require(tendo::CharacterCount(tendo::UpperCase(bytes)) == count);
    Require(tendo::CharacterCount(tendo::LowerCase(bytes)) == count);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    ReadNumbers(text);
    ReadDates(text);
    ChangeCodes(text);
    const std::string_view picture = text.substr(std::min<std::size_t>(size, 8));
    WriteNumber<float>(data, size, picture);
    WriteNumber<double>(data, size, picture);
    double serial = 0;
    std::memcpy(&serial, data, std::min(size, sizeof serial));
    tendo::LongDateText(tendo::DateOfSerial(serial));
    return 0;
}
