#include "platform/jet/file_builder.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::size_t BitmapBytes = 64;
constexpr std::size_t MapPointers = 17;
constexpr std::size_t MapPageHead = 4;
constexpr std::size_t PagesPerMapPage = (FileBuilder::PageSize - MapPageHead) * 8;
constexpr std::uint32_t MaximumPages = 0x7ffff;  // 2 GB

void SetBit(std::string& bytes, std::size_t at, std::size_t bit) {
    bytes[at + bit / 8] = static_cast<char>(bytes[at + bit / 8] | 1 << bit % 8);
}

}  // namespace

void PutWord(std::string& bytes, std::size_t at, std::uint16_t value) {
    std::memcpy(bytes.data() + at, &value, sizeof value);
}
void PutDword(std::string& bytes, std::size_t at, std::uint32_t value) {
    std::memcpy(bytes.data() + at, &value, sizeof value);
}
void AppendWord(std::string& bytes, std::uint16_t value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}
void AppendDword(std::string& bytes, std::uint32_t value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

std::uint32_t FileBuilder::AddPage() {
    if (PageCount() >= MaximumPages)
        throw RuntimeError(error_number::DiskFull, "a database file can't be larger than 2 GB");
    bytes_.append(PageSize, '\0');
    return PageCount() - 1;
}

void FileBuilder::Put(std::uint32_t page, std::size_t at, std::string_view bytes) {
    std::memcpy(bytes_.data() + page * PageSize + at, bytes.data(),
                std::min(bytes.size(), PageSize - at));
}

bool DataPage::HasRoom(std::size_t rowSize) const {
    return rows_.size() < MaximumRows &&
           Head + 2 * (rows_.size() + 1) + used_ + rowSize <= FileBuilder::PageSize;
}

std::uint8_t DataPage::Add(std::string_view row) {
    rows_.emplace_back(row);
    used_ += row.size();
    return static_cast<std::uint8_t>(rows_.size() - 1);
}

std::string DataPage::Bytes() const {
    std::string page(FileBuilder::PageSize, '\0');
    page[0] = page[1] = 1;
    PutWord(page, 2,
            static_cast<std::uint16_t>(FileBuilder::PageSize - Head - 2 * rows_.size() - used_));
    PutDword(page, 4, owner_);
    PutWord(page, 12, static_cast<std::uint16_t>(rows_.size()));
    std::size_t end = FileBuilder::PageSize;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        end -= rows_[i].size();
        std::memcpy(page.data() + end, rows_[i].data(), rows_[i].size());
        PutWord(page, Head + 2 * i, static_cast<std::uint16_t>(end));
    }
    return page;
}

std::string UsageMapRow(FileBuilder& file, const std::vector<std::uint32_t>& pages) {
    std::string row(5 + BitmapBytes, '\0');
    if (pages.empty()) return row;
    const auto [least, most] = std::minmax_element(pages.begin(), pages.end());
    const std::uint32_t first = *least / 8 * 8;
    if (*most - first < BitmapBytes * 8) {
        PutDword(row, 1, first);
        for (const std::uint32_t page : pages)
            SetBit(row, 5, page - first);
        return row;
    }
    row.assign(1 + 4 * MapPointers, '\0');
    row[0] = 1;
    std::map<std::size_t, std::string> maps;
    for (const std::uint32_t page : pages) {
        std::string& map = maps[page / PagesPerMapPage];
        if (map.empty()) {
            map.assign(FileBuilder::PageSize, '\0');
            map[0] = 5;
            map[1] = 1;
        }
        SetBit(map, MapPageHead, page % PagesPerMapPage);
    }
    for (const auto& [place, map] : maps) {
        const std::uint32_t number = file.AddPage();
        file.Put(number, 0, map);
        PutDword(row, 1 + 4 * place, number);
    }
    return row;
}

}  // namespace tendo::jet
