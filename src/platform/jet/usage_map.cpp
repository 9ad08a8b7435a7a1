#include "platform/jet/usage_map.h"

#include <algorithm>

namespace tendo::jet {
namespace {

constexpr std::size_t MapPageHead = 4;

enum class BeyondEnd { Damage, LeaveOut };

void AddBits(const PageFile& file, std::string_view bitmap, std::uint64_t first, BeyondEnd beyond,
             std::vector<std::uint32_t>& pages) {
    for (std::size_t i = 0; i < bitmap.size(); ++i) {
        for (unsigned bits = static_cast<unsigned char>(bitmap[i]); bits != 0; bits &= bits - 1) {
            const std::uint64_t page = first + i * 8 + static_cast<unsigned>(__builtin_ctz(bits));
            if (page >= file.PageCount() && beyond == BeyondEnd::LeaveOut) continue;
            if (page < 1 || page >= file.PageCount())
                Damaged("a page map names a page that is not in the file");
            pages.push_back(static_cast<std::uint32_t>(page));
        }
    }
}

std::vector<std::uint32_t> Pages(const PageFile& file, std::uint32_t pointer, BeyondEnd beyond,
                                 std::vector<std::uint32_t>& mapPages) {
    std::vector<std::uint32_t> pages;
    const std::string_view row = file.RowAt(pointer);
    if (row.size() < 5) Damaged("a page map is cut short");
    if (row[0] == 0) {
        AddBits(file, row.substr(5), Dword(row, 1), beyond, pages);
        return pages;
    }
    if (row[0] != 1) Damaged("a page map is of an unknown kind");
    const std::size_t pointers =
        std::min<std::size_t>(file.Offsets().jet4 ? 17 : 33, (row.size() - 1) / 4);
    const std::uint64_t perPage = (file.Offsets().page - MapPageHead) * 8;
    for (std::size_t i = 0; i < pointers; ++i) {
        const std::uint32_t number = Dword(row, 1 + 4 * i);
        if (number == 0) continue;
        if (std::find(mapPages.begin(), mapPages.end(), number) != mapPages.end())
            Damaged("a map page serves twice");
        mapPages.push_back(number);
        AddBits(file, file.Page(number, 5).substr(MapPageHead), i * perPage, beyond, pages);
    }
    return pages;
}

constexpr std::uint32_t FreeMap = 0x100;  // page 1, row 0

}  // namespace

std::vector<std::uint32_t> PagesOfMap(const PageFile& file, std::uint32_t pointer,
                                      std::vector<std::uint32_t>* mapPages) {
    if (pointer == 0) return {};
    std::vector<std::uint32_t> own;
    std::vector<std::uint32_t> pages = Pages(file, pointer, BeyondEnd::Damage, own);
    if (mapPages) *mapPages = std::move(own);
    return pages;
}

std::vector<std::uint32_t> FreePages(const PageFile& file, std::vector<std::uint32_t>& mapPages) {
    mapPages.clear();
    return Pages(file, FreeMap, BeyondEnd::LeaveOut, mapPages);
}

}  // namespace tendo::jet
