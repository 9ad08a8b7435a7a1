#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// One record of a workbook stream with the CONTINUE records behind it, read from front to back.
/// Reading past its end throws RuntimeError 3343 with the record's place.
class BiffRecord {
  public:
    std::uint16_t type = 0;
    std::size_t at = 0;  // of its header in the stream

    BiffRecord(std::string_view fileName) : fileName_(fileName) {}

    void AddSegment(std::string_view bytes) { segments_.push_back(bytes); }
    /// Bytes left, over all segments.
    std::size_t Left() const;

    std::uint8_t U8();
    std::uint16_t U16();
    std::uint32_t U32();
    double Double();
    void Skip(std::size_t count);
    /// A text of `count` characters behind its flags; runs and phonetic parts are passed over.
    std::string Text(std::size_t count);

    [[noreturn]] void Fail(std::string_view what) const;

  private:
    std::string_view Rest();
    void TakeCharacters(std::size_t count, bool wide, std::string& utf16);

    std::string_view fileName_;
    std::vector<std::string_view> segments_;
    std::size_t segment_ = 0;
    std::size_t offset_ = 0;
};

/// The records of a stream, one behind another.
class BiffStream {
  public:
    BiffStream(std::string_view bytes, std::string_view fileName)
        : bytes_(bytes), fileName_(fileName) {}

    void Seek(std::size_t at) { at_ = at; }
    /// False at the end of the stream.
    bool AtEnd() const { return at_ + 4 > bytes_.size(); }
    BiffRecord Next();

  private:
    std::string_view Body();

    std::string_view bytes_;
    std::string_view fileName_;
    std::size_t at_ = 0;
};

/// The record types in use.
namespace biff {
inline constexpr std::uint16_t Formula = 0x0006;
inline constexpr std::uint16_t Eof = 0x000A;
inline constexpr std::uint16_t DateMode = 0x0022;
inline constexpr std::uint16_t FilePass = 0x002F;
inline constexpr std::uint16_t Continue = 0x003C;
inline constexpr std::uint16_t BoundSheet = 0x0085;
inline constexpr std::uint16_t MulRk = 0x00BD;
inline constexpr std::uint16_t RString = 0x00D6;
inline constexpr std::uint16_t Xf = 0x00E0;
inline constexpr std::uint16_t Sst = 0x00FC;
inline constexpr std::uint16_t LabelSst = 0x00FD;
inline constexpr std::uint16_t Number = 0x0203;
inline constexpr std::uint16_t Label = 0x0204;
inline constexpr std::uint16_t BoolErr = 0x0205;
inline constexpr std::uint16_t String = 0x0207;
inline constexpr std::uint16_t Rk = 0x027E;
inline constexpr std::uint16_t Format = 0x041E;
inline constexpr std::uint16_t Bof = 0x0809;
}  // namespace biff

}  // namespace tendo
