#include "platform/jet/table_check.h"

#include <algorithm>
#include <cstring>

#include "platform/jet/index_check.h"
#include "platform/jet/row_scan.h"
#include "platform/jet/usage_map.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::uint32_t DefinitionMark = 1625;
constexpr std::size_t ContinuationHead = 8;
constexpr std::size_t MostListed = 5;

std::string RowName(std::uint32_t pointer) {
    return "page " + std::to_string(pointer >> 8) + " row " + std::to_string(pointer & 0xff);
}

std::string OwnerBytes(std::uint32_t page) {
    std::string bytes(sizeof page, '\0');
    std::memcpy(bytes.data(), &page, sizeof page);
    return bytes;
}

}  // namespace

/// What was found of a table's rows and of its pages.
struct TableCheck::Rows {
    std::vector<std::uint32_t> dataPages;
    std::vector<std::uint32_t> hidden, moved;        // targets that are there, targets pointed to
    std::vector<std::uint32_t> longThere, longUsed;  // long value rows
    std::size_t count = 0;
    bool whole = true;
};

void TableCheck::Table(const CatalogueTable& entry, bool user) {
    name_ = "table \"" + entry.name + "\"";
    const StoredTable table = ReadDefinition(file_, entry.page);
    Definition(table);
    Rows rows;
    DataPages(table, rows);
    LongPages(table, rows);
    ReadRows(table, rows);
    if (user && rows.count != table.rows)
        Fault("it tells of " + std::to_string(table.rows) + " rows and holds " +
              std::to_string(rows.count));
    CompareUse("moved row", rows.hidden, rows.moved);
    CompareUse("long value", rows.longThere, rows.longUsed);
    for (std::size_t i = 0; i < table.realIndexes.size(); ++i)
        Index(table, i, rows);
}

void TableCheck::Definition(const StoredTable& table) {
    owners_.Own(table.pages, "the definition of " + name_);
    if (!file_.Offsets().jet4) return;
    if (Dword(file_.Page(table.page), 12) != DefinitionMark)
        Fault("its definition lacks the mark of one");
    if (table.end != table.length) Fault("its definition ends elsewhere than it tells");
    const std::size_t page = file_.Offsets().page;
    std::size_t before = 0;  // bytes of the block on the pages before
    for (std::size_t i = 0; i < table.pages.size(); ++i) {
        const std::size_t used = table.length - std::min<std::size_t>(table.length, before) +
                                 (i == 0 ? 0 : ContinuationHead);
        const std::size_t free =
            page > used + ContinuationHead ? page - used - ContinuationHead : 0;
        if (Word(file_.Page(table.pages[i]), 2) != free)
            Fault("its definition page " + std::to_string(table.pages[i]) +
                  " tells of wrong free bytes");
        before += i == 0 ? page : page - ContinuationHead;
    }
}

std::vector<std::uint32_t> TableCheck::MapPages(std::uint32_t map, const std::string& owner) {
    std::vector<std::uint32_t> mapPages;
    const auto pages = PagesOfMap(file_, map, &mapPages);
    if (map != 0) mapRowPages_.insert(map >> 8);
    owners_.Own(mapPages, "the map of " + owner);
    return pages;
}

void TableCheck::RoomMap(std::uint32_t room, const std::vector<std::uint32_t>& pages,
                         const std::string& owner) {
    const auto some = MapPages(room, owner);
    if (!std::includes(pages.begin(), pages.end(), some.begin(), some.end()))
        Fault("a page with room is none of its pages");
}

/// The head of a data page: its owner and its free bytes; the offsets of its rows must fall.
void TableCheck::DataPage(std::uint32_t number, std::string_view owner, const std::string& name) {
    const std::string_view page = file_.Page(number, 1);
    const std::size_t count = file_.RowCount(page);
    if (page.substr(4, 4) != owner)
        faults_.Add(name + ": page " + std::to_string(number) + " names another owner");
    std::size_t lowest = file_.Offsets().page;
    for (std::size_t i = 0; i < count; ++i)
        lowest -= file_.Row(page, i).bytes.size();
    const std::size_t free = lowest - file_.Offsets().slotsAt - 2 * count;
    if (Word(page, 2) != free)
        faults_.Add(name + ": page " + std::to_string(number) + " tells of " +
                    std::to_string(Word(page, 2)) + " free bytes and has " + std::to_string(free));
}

void TableCheck::DataPages(const StoredTable& table, Rows& rows) {
    rows.dataPages = MapPages(table.dataMap, name_);
    owners_.Own(rows.dataPages, name_);
    RoomMap(table.roomMap, rows.dataPages, name_);
    const std::string owner = OwnerBytes(table.page);
    for (const std::uint32_t number : rows.dataPages) {
        DataPage(number, owner, name_);
        const std::string_view page = file_.Page(number, 1);
        for (std::uint32_t i = 0; i < file_.RowCount(page); ++i)
            if ((file_.Row(page, i).flags & 0xc000) == 0x8000)
                rows.hidden.push_back(number << 8 | i);
    }
}

void TableCheck::LongPages(const StoredTable& table, Rows& rows) {
    for (const LongColumn& column : table.longColumns) {
        const std::string owner = "the long values of " + name_;
        const auto pages = MapPages(column.map, owner);
        owners_.Own(pages, owner);
        RoomMap(column.roomMap, pages, owner);
        for (const std::uint32_t number : pages) {
            DataPage(number, "LVAL", name_);
            const std::string_view page = file_.Page(number, 1);
            for (std::uint32_t i = 0; i < file_.RowCount(page); ++i) {
                const PageFile::RowBytes row = file_.Row(page, i);
                if (!(row.flags & 0x8000) && !row.bytes.empty())
                    rows.longThere.push_back(number << 8 | i);
            }
        }
    }
}

void TableCheck::ReadRows(const StoredTable& table, Rows& rows) {
    RowReader reader(file_, table);
    reader.NoteLongRows(rows.longUsed);
    ForEachRow(file_, table, [&](std::string_view bytes, const RowPlace& place) {
        if (place.target != 0) rows.moved.push_back(place.target);
        ++rows.count;
        try {
            reader.Read(bytes);
        } catch (const RuntimeError& error) {
            rows.whole = false;
            Fault(RowName(place.row) + ": " + error.Description());
        }
        return true;
    });
}

/// Each hidden row and each long value row serves once.
void TableCheck::CompareUse(const char* what, std::vector<std::uint32_t> there,
                            std::vector<std::uint32_t> used) {
    std::sort(there.begin(), there.end());
    std::sort(used.begin(), used.end());
    std::size_t told = 0;
    const auto tell = [&](std::uint32_t pointer, const char* fault) {
        if (told++ < MostListed)
            Fault(std::string("the ") + what + " on " + RowName(pointer) + fault);
    };
    for (std::size_t i = 1; i < used.size(); ++i)
        if (used[i] == used[i - 1]) tell(used[i], " serves twice");
    for (const std::uint32_t pointer : used)
        if (!std::binary_search(there.begin(), there.end(), pointer))
            tell(pointer, " is not on a page of the table");
    for (const std::uint32_t pointer : there)
        if (!std::binary_search(used.begin(), used.end(), pointer))
            tell(pointer, " serves nowhere");
}

void TableCheck::Index(const StoredTable& table, std::size_t at, const Rows& rows) {
    const RealIndex& index = table.realIndexes[at];
    const std::string owner = "index " + std::to_string(at + 1) + " of " + name_;
    try {
        const auto pages = MapPages(index.map, owner);
        owners_.Own(pages, owner);
        for (const std::string& fault : CheckIndex(file_, table, index, pages, rows.whole))
            faults_.Add(owner + ": " + fault);
    } catch (const RuntimeError& error) {
        faults_.Add(owner + ": " + error.Description());
    }
}

void TableCheck::MapRowPages() {
    for (const std::uint32_t number : mapRowPages_) {
        if (number == 1) continue;
        owners_.Own({number}, "the usage maps");
        try {
            DataPage(number, OwnerBytes(0), "usage maps");
        } catch (const RuntimeError& error) {
            faults_.Add("usage maps: " + error.Description());
        }
    }
}

}  // namespace tendo::jet
