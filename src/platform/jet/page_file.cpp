#include "platform/jet/page_file.h"

#include <cstring>

#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::size_t HeaderMaskSize = 128;
constexpr std::size_t MaskedFrom = 0x18;
/// XORed onto the header from 0x18 on; Jet 3 uses the first 126 bytes.
constexpr unsigned char headerMask[HeaderMaskSize] = {
    0xb5, 0x6f, 0x03, 0x62, 0x61, 0x08, 0xc2, 0x55, 0xeb, 0xa9, 0x67, 0x72, 0x43, 0x3f, 0x00, 0x9c,
    0x7a, 0x9f, 0x90, 0xff, 0x80, 0x9a, 0x31, 0xc5, 0x79, 0xba, 0xed, 0x30, 0xbc, 0xdf, 0xcc, 0x9d,
    0x63, 0xd9, 0xe4, 0xc3, 0x7b, 0x42, 0xfb, 0x8a, 0xbc, 0x4e, 0x86, 0xfb, 0xec, 0x37, 0x5d, 0x44,
    0x9c, 0xfa, 0xc6, 0x5e, 0x28, 0xe6, 0x13, 0xb6, 0x8a, 0x60, 0x54, 0x94, 0x7b, 0x36, 0xf5, 0x72,
    0xdf, 0xb1, 0x77, 0xf4, 0x13, 0x43, 0xcf, 0xaf, 0xb1, 0x33, 0x34, 0x61, 0x79, 0x5b, 0x92, 0xb5,
    0x7c, 0x2a, 0x05, 0xf1, 0x7c, 0x99, 0x01, 0x1b, 0x98, 0xfd, 0x12, 0x4f, 0x4a, 0x94, 0x6c, 0x3e,
    0x60, 0x26, 0x5f, 0x95, 0xf8, 0xd0, 0x89, 0x24, 0x85, 0x67, 0xc6, 0x1f, 0x27, 0x44, 0xd2, 0xee,
    0xcf, 0x65, 0xed, 0xff, 0x07, 0xc7, 0x46, 0xa1, 0x78, 0x16, 0x0c, 0xed, 0xe9, 0x2d, 0x62, 0xd4};

}  // namespace

Layout LayoutOf(int generation) {
    if (generation == 4) return {};
    return {.jet4 = false,
            .page = 2048,
            .rowsAt = 8,
            .slotsAt = 10,
            .tableRows = 12,
            .tableType = 20,
            .tableCounts = 21,
            .tableIndexes = 27,
            .tableHead = 43,
            .realHead = 8,
            .column = 18,
            .realIndex = 39,
            .logicalIndex = 20};
}

std::string_view Part(std::string_view bytes, std::size_t at, std::size_t size) {
    if (at > bytes.size() || bytes.size() - at < size) Damaged("a part lies outside its page");
    return bytes.substr(at, size);
}

void Damaged(const std::string& what) {
    throw RuntimeError(error_number::UnrecognizedFormat, what);
}

PageFile::PageFile(std::string bytes, std::string name)
    : bytes_(std::move(bytes)), name_(std::move(name)) {
    const std::string refuse = name_ + " is no database of a kind that can be read here: ";
    if (bytes_.size() < MaskedFrom + HeaderMaskSize ||
        std::string_view(bytes_).substr(0, 4) != std::string_view("\0\1\0\0", 4) ||
        std::string_view(bytes_).substr(4, 15) != "Standard Jet DB")
        Damaged(refuse + "it does not begin as one");
    const std::uint8_t version = Byte(bytes_, 0x14);
    if (version > 1) Damaged(refuse + "it was written by a later program");
    layout_ = LayoutOf(version == 1 ? 4 : 3);
    pageCount_ = static_cast<std::uint32_t>(bytes_.size() / layout_.page);
    if (pageCount_ < 6) Damaged(refuse + "it is cut short");
    header_ = bytes_.substr(MaskedFrom, layout_.jet4 ? HeaderMaskSize : HeaderMaskSize - 2);
    for (std::size_t i = 0; i < header_.size(); ++i)
        header_[i] = static_cast<char>(static_cast<unsigned char>(header_[i]) ^ headerMask[i]);
    if (Dword(header_, 0x3e - MaskedFrom) != 0)
        throw RuntimeError(error_number::PasswordNotValid,
                           name_ + " is encrypted and can't be read");
}

bool PageFile::HasPassword() const {
    const std::size_t size = layout_.jet4 ? 40 : 20;
    unsigned char mask[4] = {};
    if (layout_.jet4) {
        double created = 0;
        std::memcpy(&created, header_.data() + (0x72 - MaskedFrom), sizeof created);
        if (created > -2147483648.0 && created < 2147483648.0) {
            const auto whole = static_cast<std::int32_t>(created);
            std::memcpy(mask, &whole, sizeof mask);
        }
    }
    for (std::size_t i = 0; i < size; ++i)
        if ((static_cast<unsigned char>(header_[0x42 - MaskedFrom + i]) ^ mask[i % 4]) != 0)
            return true;
    return false;
}

std::string_view PageFile::Page(std::uint32_t number) const {
    if (number < 1 || number >= pageCount_)
        Damaged("page " + std::to_string(number) + " is not in the file");
    return std::string_view(bytes_).substr(number * layout_.page, layout_.page);
}

std::string_view PageFile::Page(std::uint32_t number, std::uint8_t type) const {
    const std::string_view page = Page(number);
    if (static_cast<std::uint8_t>(page[0]) != type)
        Damaged("page " + std::to_string(number) + " is not of the kind it should be");
    return page;
}

std::size_t PageFile::RowCount(std::string_view page) const {
    const std::size_t count = Word(page, layout_.rowsAt);
    if (layout_.slotsAt + 2 * count > layout_.page) Damaged("a page claims too many rows");
    return count;
}

PageFile::RowBytes PageFile::Row(std::string_view page, std::size_t row) const {
    const std::size_t count = RowCount(page);
    if (row >= count) Damaged("a row pointer leads nowhere");
    const auto start = [&](std::size_t i) { return Word(page, layout_.slotsAt + 2 * i); };
    const std::uint16_t slot = start(row);
    const std::size_t begin = slot & 0x1fff;
    const std::size_t end = row == 0 ? layout_.page : start(row - 1) & 0x1fffU;
    if (begin < layout_.slotsAt + 2 * count || begin > end || end > layout_.page)
        Damaged("the rows of a page overlap");
    return {page.substr(begin, end - begin), static_cast<std::uint16_t>(slot & 0xe000)};
}

std::string_view PageFile::RowAt(std::uint32_t pointer) const {
    return Row(Page(pointer >> 8, 1), pointer & 0xff).bytes;
}

}  // namespace tendo::jet
