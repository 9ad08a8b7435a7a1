#include "platform/jet/page_file.h"

#include <cstring>

#include "platform/jet/header_mask.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {

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
    MaskHeader(header_);
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
