#include "jet3_file.h"

#include <array>
#include <numeric>
#include <stdexcept>

#include "jet3_bytes.h"
#include "jet3_row.h"
#include "platform/text/code_page.h"

namespace tendo::jet3 {
namespace {

constexpr std::size_t pageSize = 2048;
constexpr std::size_t pageHead = 10;   // of a data page
constexpr std::size_t mapBytes = 128;  // of bits: a map covers 1024 pages
constexpr std::size_t mapsOnPage = 15;
constexpr std::uint32_t cataloguePage = 2;
constexpr std::uint16_t english = 0x0409;
constexpr std::uint16_t codePage = 1252;

/// The first bytes of the RC4 stream of a key that all files share; they hide the header.
std::string HeaderMask(std::size_t size) {
    constexpr std::array<unsigned char, 4> key = {0xc7, 0xda, 0x39, 0x6b};
    std::array<unsigned char, 256> state;
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    unsigned mixed = 0;
    for (unsigned i = 0; i < 256; ++i) {
        mixed = (mixed + state[i] + key[i % key.size()]) % 256;
        std::swap(state[i], state[mixed]);
    }
    std::string mask;
    mixed = 0;
    for (unsigned i = 1; mask.size() < size; ++i) {
        mixed = (mixed + state[i % 256]) % 256;
        std::swap(state[i % 256], state[mixed]);
        AppendByte(mask, state[(state[i % 256] + state[mixed]) % 256]);
    }
    return mask;
}

std::string HeaderPage() {
    constexpr std::size_t maskedFrom = 0x18, maskedSize = 126;
    std::string page(pageSize, '\0');
    page.replace(0, 20, std::string("\0\1\0\0Standard Jet DB\0", 20));
    std::size_t at = maskedFrom;
    for (const std::uint32_t pointer : {0x100U, 0x101U, 2U, 3U, 4U, 5U}) {
        Put(page, at, pointer);
        at += 4;
    }
    Put(page, 0x3a, english);
    Put(page, 0x3c, codePage);
    const std::string mask = HeaderMask(maskedSize);
    for (std::size_t i = 0; i < maskedSize; ++i)
        page[maskedFrom + i] = static_cast<char>(page[maskedFrom + i] ^ mask[i]);
    return page;
}

/// Rows packed from the end of pages downwards.
class DataPages {
  public:
    explicit DataPages(std::uint32_t owner) : owner_(owner) {}

    void Add(const std::string& row) {
        if (row.size() + pageHead + 2 > pageSize) throw std::invalid_argument("a row too long");
        if (pages_.empty() || start_ < pageHead + 2 * (count_ + 1) + row.size()) Begin();
        start_ -= row.size();
        std::string& page = pages_.back();
        page.replace(start_, row.size(), row);
        Put(page, pageHead + 2 * count_, static_cast<std::uint16_t>(start_));
        ++count_;
        Put(page, 8, static_cast<std::uint16_t>(count_));
        Put(page, 2, static_cast<std::uint16_t>(start_ - pageHead - 2 * count_));
    }
    const std::vector<std::string>& Pages() const { return pages_; }

  private:
    void Begin() {
        pages_.emplace_back(pageSize, '\0');
        start_ = pageSize;
        count_ = 0;
        Put(pages_.back(), 0, std::uint16_t{0x0101});
        Put(pages_.back(), 4, owner_);
    }

    std::uint32_t owner_;
    std::vector<std::string> pages_;
    std::size_t start_ = pageSize;
    std::size_t count_ = 0;
};

std::string MapOf(std::uint32_t firstPage, std::size_t count) {
    std::string map(5 + mapBytes, '\0');
    for (std::size_t page = firstPage; page < firstPage + count; ++page)
        map.at(5 + page / 8) = static_cast<char>(map.at(5 + page / 8) | 1 << page % 8);
    return map;
}

std::string ColumnEntry(const PlacedColumn& placed) {
    std::string entry(18, '\0');
    entry[0] = static_cast<char>(placed.column.type);
    Put(entry, 1, static_cast<std::uint16_t>(placed.number));
    Put(entry, 3, static_cast<std::uint16_t>(placed.variable));
    Put(entry, 5, static_cast<std::uint16_t>(placed.number));
    Put(entry, 9, english);
    Put(entry, 11, codePage);
    entry[13] = placed.fixed ? 3 : 2;
    Put(entry, 14, static_cast<std::uint16_t>(placed.offset));
    const bool truth = placed.column.type == jet::ColumnType::Boolean;
    Put(entry, 16, static_cast<std::uint16_t>(truth ? 1 : placed.bytes));
    return entry;
}

/// One table on its way into the file.
struct Plan {
    const Table* table;
    bool system;
    std::vector<PlacedColumn> columns;
    std::uint32_t definition;  // page
    DataPages data;
    std::uint32_t firstData = 0;
};

std::string DefinitionPage(const Plan& plan, std::uint32_t dataMap, std::uint32_t roomMap) {
    std::string block(43, '\0');
    std::size_t variable = 0;
    for (const PlacedColumn& placed : plan.columns)
        variable += placed.fixed ? 0 : 1;
    Put(block, 0, std::uint32_t{0x43560102});
    Put(block, 12, static_cast<std::uint32_t>(plan.table->rows.size()));
    block[20] = plan.system ? 0x53 : 0x4e;
    Put(block, 21, static_cast<std::uint16_t>(plan.columns.size()));
    Put(block, 23, static_cast<std::uint16_t>(variable));
    Put(block, 25, static_cast<std::uint16_t>(plan.columns.size()));
    Put(block, 35, dataMap);
    Put(block, 39, roomMap);
    for (const PlacedColumn& placed : plan.columns)
        block += ColumnEntry(placed);
    for (const PlacedColumn& placed : plan.columns) {
        const std::string name = ToWindows1252(placed.column.name);
        AppendByte(block, name.size());
        block += name;
    }
    for (const PlacedColumn& placed : plan.columns) {
        if (placed.column.type != jet::ColumnType::Ole) continue;
        Append(block, static_cast<std::uint16_t>(placed.number));
        block.append(8, '\0');  // it has no pages of its own
    }
    block += "\xff\xff";
    if (block.size() > pageSize) throw std::invalid_argument("a definition too long");
    Put(block, 8, static_cast<std::uint32_t>(block.size()));
    block.resize(pageSize);
    return block;
}

/// The catalogue: which table has its definition where.
Table Catalogue(const std::vector<Table>& tables, std::uint32_t firstDefinition) {
    Table catalogue;
    catalogue.definition.name = "MSysObjects";
    catalogue.definition.columns = {{.name = "Id", .type = jet::ColumnType::Long},
                                    {.name = "ParentId", .type = jet::ColumnType::Long},
                                    {.name = "Name", .type = jet::ColumnType::Text, .size = 64},
                                    {.name = "Type", .type = jet::ColumnType::Integer},
                                    {.name = "Flags", .type = jet::ColumnType::Long},
                                    {.name = "LvProp", .type = jet::ColumnType::Ole}};
    constexpr std::int64_t tablesContainer = 0x0f000001, system = -0x80000000LL;
    const auto add = [&](std::int64_t id, const std::string& name, std::int64_t flags) {
        catalogue.rows.push_back({id, tablesContainer, name, std::int64_t{1}, flags, {}});
    };
    add(cataloguePage, catalogue.definition.name, system);
    for (const Table& table : tables)
        add(firstDefinition++, table.definition.name, 0);
    return catalogue;
}

Plan PlanOf(const Table& table, bool system, std::uint32_t definition) {
    Plan plan{&table, system, PlaceColumns(table.definition.columns), definition,
              DataPages(definition)};
    for (const jet::Row& row : table.rows)
        plan.data.Add(RowBytes(plan.columns, row));
    return plan;
}

}  // namespace

/// Header, free page maps, the catalogue's definition, pages of maps, the other definitions, data.
std::string FileBytes(const std::vector<Table>& tables) {
    const std::size_t mapPages = (2 * (tables.size() + 1) + mapsOnPage - 1) / mapsOnPage;
    std::uint32_t next = cataloguePage + 1 + static_cast<std::uint32_t>(mapPages);
    const Table catalogue = Catalogue(tables, next);
    std::vector<Plan> plans = {PlanOf(catalogue, true, cataloguePage)};
    for (const Table& table : tables)
        plans.push_back(PlanOf(table, false, next++));
    DataPages freeMaps(1), maps(0);
    freeMaps.Add(MapOf(0, 0));
    freeMaps.Add(MapOf(0, 0));
    std::string definitions, data;
    std::uint32_t map = 0;
    for (Plan& plan : plans) {
        const std::size_t count = plan.data.Pages().size();
        if (next + count > 8 * mapBytes) throw std::invalid_argument("a file too long");
        const auto pointer = [](std::uint32_t at) {
            return (cataloguePage + 1 + at / mapsOnPage) << 8 | at % mapsOnPage;
        };
        maps.Add(MapOf(next, count));
        maps.Add(MapOf(count == 0 ? 0 : next + static_cast<std::uint32_t>(count) - 1,
                       count == 0 ? 0 : 1));
        definitions += DefinitionPage(plan, static_cast<std::uint32_t>(pointer(map)),
                                      static_cast<std::uint32_t>(pointer(map + 1)));
        map += 2;
        for (const std::string& page : plan.data.Pages())
            data += page;
        next += static_cast<std::uint32_t>(count);
    }
    std::string file = HeaderPage() + freeMaps.Pages().front() + definitions.substr(0, pageSize);
    for (const std::string& page : maps.Pages())
        file += page;
    return file + definitions.substr(pageSize) + data;
}

}  // namespace tendo::jet3
