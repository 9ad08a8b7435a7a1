#include "platform/office/biff_record.h"

#include <algorithm>
#include <bit>

#include "platform/office/little_endian.h"
#include "platform/office/office_error.h"
#include "platform/text/code_page.h"

namespace tendo {

namespace {

namespace text_flag {
constexpr unsigned Wide = 1;
constexpr unsigned Phonetic = 4;
constexpr unsigned Rich = 8;
}  // namespace text_flag

constexpr std::size_t RunSize = 4;

}  // namespace

void BiffRecord::Fail(std::string_view what) const {
    ThrowDamage(fileName_, "record at " + ByteText(at), what);
}

std::size_t BiffRecord::Left() const {
    std::size_t left = 0;
    for (std::size_t i = segment_; i < segments_.size(); ++i)
        left += segments_[i].size();
    return left - std::min(left, offset_);
}

/// What is left of the present segment; at its end the next one.
std::string_view BiffRecord::Rest() {
    while (segment_ < segments_.size() && offset_ >= segments_[segment_].size()) {
        ++segment_;
        offset_ = 0;
    }
    if (segment_ == segments_.size()) Fail("it ends early");
    return segments_[segment_].substr(offset_);
}

std::uint8_t BiffRecord::U8() {
    const auto value = static_cast<std::uint8_t>(Rest().front());
    ++offset_;
    return value;
}

std::uint16_t BiffRecord::U16() {
    const unsigned low = U8();
    return static_cast<std::uint16_t>(low | (unsigned{U8()} << 8));
}

std::uint32_t BiffRecord::U32() {
    const std::uint32_t low = U16();
    return low | (std::uint32_t{U16()} << 16);
}

double BiffRecord::Double() {
    const std::uint64_t low = U32();
    return std::bit_cast<double>(low | (std::uint64_t{U32()} << 32));
}

void BiffRecord::Skip(std::size_t count) {
    while (count > 0) {
        const std::size_t step = std::min(count, Rest().size());
        offset_ += step;
        count -= step;
    }
}

void BiffRecord::TakeCharacters(std::size_t count, bool wide, std::string& utf16) {
    const std::string_view bytes = segments_[segment_].substr(offset_, wide ? 2 * count : count);
    offset_ += bytes.size();
    if (wide) {
        utf16 += bytes;
        return;
    }
    for (char c : bytes)
        utf16 += {c, '\0'};
}

std::string BiffRecord::Text(std::size_t count) {
    unsigned flags = U8();
    const std::size_t runs = (flags & text_flag::Rich) != 0 ? U16() : 0;
    const std::size_t phonetic = (flags & text_flag::Phonetic) != 0 ? U32() : 0;
    std::string utf16;
    while (utf16.size() < 2 * count) {
        const std::size_t segmentBefore = segment_;
        Rest();
        // A text that runs on in the next segment begins there with new flags.
        if (segment_ != segmentBefore) flags = U8();
        const bool wide = (flags & text_flag::Wide) != 0;
        if (wide && Rest().size() < 2) Fail("a character is cut in two");
        const std::size_t left = Rest().size() / (wide ? 2 : 1);
        TakeCharacters(std::min(left, count - utf16.size() / 2), wide, utf16);
    }
    Skip(runs * RunSize + phonetic);
    return FromUtf16(utf16);
}

std::string_view BiffStream::Body() {
    const std::size_t length = little_endian::U16(bytes_, at_ + 2);
    if (length > bytes_.size() - at_ - 4)
        ThrowDamage(fileName_, "record at " + ByteText(at_), "the file ends within it");
    const std::string_view body = bytes_.substr(at_ + 4, length);
    at_ += 4 + length;
    return body;
}

BiffRecord BiffStream::Next() {
    BiffRecord record(fileName_);
    record.at = at_;
    record.type = little_endian::U16(bytes_, at_);
    record.AddSegment(Body());
    while (!AtEnd() && little_endian::U16(bytes_, at_) == biff::Continue)
        record.AddSegment(Body());
    return record;
}

}  // namespace tendo
