#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tendo::jet {

/// The offsets that differ between the two generations.
struct Layout {
    bool jet4 = true;
    std::size_t page = 4096;
    std::size_t rowsAt = 12;        // data page: number of rows
    std::size_t slotsAt = 14;       // data page: first row offset
    std::size_t tableRows = 16;     // definition: number of rows
    std::size_t tableType = 40;     // definition: type byte
    std::size_t tableCounts = 41;   // definition: maximum columns, variable columns, columns
    std::size_t tableIndexes = 47;  // definition: logical and real indexes, then two map pointers
    std::size_t tableHead = 63;     // definition: end of the head
    std::size_t realHead = 12;      // per real index, in front
    std::size_t column = 25;
    std::size_t realIndex = 52;
    std::size_t logicalIndex = 28;
};
Layout LayoutOf(int generation);

/// Damage: RuntimeError 3343 with what is wrong.
[[noreturn]] void Damaged(const std::string& what);

/// A number of the file's bytes as they stand, little-endian.
template <class Number>
Number ReadNumber(std::string_view bytes, std::size_t at) {
    if (at > bytes.size() || bytes.size() - at < sizeof(Number))
        Damaged("a number lies outside its page");
    Number value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

/// Little-endian numbers at a place; throw RuntimeError 3343 when it lies outside. Inline, for
/// every row is made of them.
inline std::uint8_t Byte(std::string_view bytes, std::size_t at) {
    return ReadNumber<std::uint8_t>(bytes, at);
}
inline std::uint16_t Word(std::string_view bytes, std::size_t at) {
    return ReadNumber<std::uint16_t>(bytes, at);
}
inline std::uint32_t Dword(std::string_view bytes, std::size_t at) {
    return ReadNumber<std::uint32_t>(bytes, at);
}
inline std::uint64_t Qword(std::string_view bytes, std::size_t at) {
    return ReadNumber<std::uint64_t>(bytes, at);
}

/// A part of bytes, checked alike.
std::string_view Part(std::string_view bytes, std::size_t at, std::size_t size);

/// The bytes of a file by pages, with the rows of data pages.
class PageFile {
  public:
    PageFile(std::string bytes, std::string name);

    const std::string& Name() const { return name_; }
    const Layout& Offsets() const { return layout_; }
    std::uint32_t PageCount() const { return pageCount_; }
    std::size_t Size() const { return bytes_.size(); }
    bool HasPassword() const;

    /// A page from 1; throws when there is none of the number.
    std::string_view Page(std::uint32_t number) const;
    /// A page of a type (1 data, 2 definition, 5 map).
    std::string_view Page(std::uint32_t number, std::uint8_t type) const;

    std::size_t RowCount(std::string_view page) const;
    /// A row's bytes with its flags (0x4000 moved, 0x8000 hidden, both deleted).
    struct RowBytes {
        std::string_view bytes;
        std::uint16_t flags = 0;
    };
    RowBytes Row(std::string_view page, std::size_t row) const;
    /// The row of a pointer: page << 8 | row.
    std::string_view RowAt(std::uint32_t pointer) const;

  private:
    std::string bytes_;
    std::string name_;
    std::string header_;  // unmasked bytes 0x18 to 0x97
    Layout layout_;
    std::uint32_t pageCount_ = 0;
};

}  // namespace tendo::jet
