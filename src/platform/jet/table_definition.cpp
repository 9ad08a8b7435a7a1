#include "platform/jet/table_definition.h"

#include <algorithm>

#include "platform/jet/column_size.h"
#include "platform/text/code_page.h"

namespace tendo::jet {
namespace {

constexpr std::size_t MaximumPages = 512;
constexpr std::size_t MaximumLength = std::size_t{1}
                                      << 18;  // all columns and indexes, longest names
constexpr std::size_t MaximumColumns = 255;
constexpr std::size_t MaximumIndexes = 255;
constexpr std::size_t MaximumNameBytes = 256;
constexpr std::size_t ContinuationHead = 8;

/// The block of a definition, put together from its pages.
std::string Block(const PageFile& file, StoredTable& table) {
    std::string block(file.Page(table.page, 2));
    table.pages = {table.page};
    table.length = Dword(block, 8);
    if (table.length < file.Offsets().tableHead || table.length > MaximumLength)
        Damaged("a table definition claims a length it can't have");
    for (std::uint32_t next = Dword(block, 4); next != 0;) {
        if (std::find(table.pages.begin(), table.pages.end(), next) != table.pages.end() ||
            table.pages.size() > MaximumPages)
            Damaged("a table definition runs in a circle");
        if (block.size() >= table.length) Damaged("a table definition goes on behind its end");
        const std::string_view page = file.Page(next, 2);
        table.pages.push_back(next);
        block += page.substr(ContinuationHead);
        next = Dword(page, 4);
    }
    if (table.length > block.size()) Damaged("a table definition is cut short");
    block.resize(table.length);
    return block;
}

/// Walks the block from one part to the next.
class Walk {
  public:
    Walk(const PageFile& file, std::string_view block, std::size_t at)
        : file_(file), block_(block), at_(at) {}
    std::string_view Take(std::size_t size) {
        const std::string_view part = Part(block_, at_, size);
        at_ += size;
        return part;
    }
    std::string Name() {
        const bool jet4 = file_.Offsets().jet4;
        const std::size_t length = jet4 ? Word(Take(2), 0) : Byte(Take(1), 0);
        if (length > MaximumNameBytes) Damaged("a name in a table definition is too long");
        return StoredText(file_, Take(length));
    }
    std::size_t At() const { return at_; }
    std::size_t Left() const { return block_.size() - at_; }

  private:
    const PageFile& file_;
    std::string_view block_;
    std::size_t at_;
};

StoredColumn ReadColumn(const Layout& layout, std::string_view bytes) {
    StoredColumn column;
    column.column.type = static_cast<ColumnType>(Byte(bytes, 0));
    if (layout.jet4) {
        column.number = Word(bytes, 5);
        column.variable = Word(bytes, 7);
        column.ordinal = Word(bytes, 9);
        column.order = Dword(bytes, 11);
        column.column.precision = Byte(bytes, 11);
        column.column.scale = Byte(bytes, 12);
        column.flags = Byte(bytes, 15);
        column.offset = Word(bytes, 21);
        column.bytes = Word(bytes, 23);
    } else {
        column.number = Word(bytes, 1);
        column.variable = Word(bytes, 3);
        column.ordinal = Word(bytes, 5);
        column.flags = Byte(bytes, 13);
        column.offset = Word(bytes, 14);
        column.bytes = Word(bytes, 16);
    }
    const ColumnType type = column.column.type;
    if (type == ColumnType::Text)
        column.column.size = layout.jet4 ? column.bytes / 2 : column.bytes;
    if (type == ColumnType::Binary) column.column.size = column.bytes;
    if (type != ColumnType::Numeric) column.column.precision = column.column.scale = 0;
    column.column.autoNumber = column.flags & 4;
    return column;
}

RealIndex ReadRealIndex(const Layout& layout, std::string_view bytes) {
    RealIndex index;
    const std::size_t fields = layout.jet4 ? 4 : 0;
    for (std::size_t i = 0; i < 10; ++i) {
        const std::uint16_t number = Word(bytes, fields + 3 * i);
        if (number != 0xffff)
            index.columns.emplace_back(number, Byte(bytes, fields + 3 * i + 2) == 0);
    }
    index.map = Dword(bytes, fields + 30);
    index.root = Dword(bytes, fields + 34);
    index.flags = Byte(bytes, layout.jet4 ? 46 : 38);
    return index;
}

Index NamedIndex(const StoredTable& table, const RealIndex& real, std::string name,
                 std::uint8_t type) {
    Index index;
    index.name = std::move(name);
    for (const auto& [number, descending] : real.columns) {
        const auto column =
            std::find_if(table.columns.begin(), table.columns.end(),
                         [n = number](const StoredColumn& c) { return c.number == n; });
        if (column == table.columns.end()) continue;
        index.columns.push_back(column->column.name);
        index.descending.push_back(descending);
    }
    index.unique = real.flags & 1;
    index.ignoreNulls = real.flags & 2;
    index.required = real.flags & 8;
    index.primary = type == 1;
    return index;
}

void ReadColumns(const PageFile& file, Walk& walk, std::size_t count, StoredTable& table) {
    for (std::size_t i = 0; i < count; ++i)
        table.columns.push_back(ReadColumn(file.Offsets(), walk.Take(file.Offsets().column)));
    for (StoredColumn& column : table.columns)
        column.column.name = walk.Name();
    std::sort(table.columns.begin(), table.columns.end(),
              [](const StoredColumn& a, const StoredColumn& b) { return a.number < b.number; });
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].number >= table.maximumColumns ||
            (i > 0 && table.columns[i].number == table.columns[i - 1].number))
            Damaged("a table definition numbers its columns wrongly");
    }
}

void ReadIndexes(const PageFile& file, Walk& walk, std::size_t logical, std::size_t real,
                 StoredTable& table) {
    const Layout& layout = file.Offsets();
    std::vector<RealIndex>& reals = table.realIndexes;
    for (std::size_t i = 0; i < real; ++i)
        reals.push_back(ReadRealIndex(layout, walk.Take(layout.realIndex)));
    std::vector<std::pair<std::uint32_t, std::uint8_t>> logicals;  // real index, type
    for (std::size_t i = 0; i < logical; ++i) {
        const std::string_view bytes = walk.Take(layout.logicalIndex);
        logicals.emplace_back(Dword(bytes, layout.jet4 ? 8 : 4),
                              Byte(bytes, layout.jet4 ? 23 : 19));
    }
    for (const auto& [at, type] : logicals) {
        std::string name = walk.Name();
        if (at >= reals.size()) Damaged("an index names one that is not there");
        if (type == 2)
            table.hasRelations = true;
        else
            table.indexes.push_back(NamedIndex(table, reals[at], std::move(name), type));
    }
}

/// The maps of the long columns, up to a mark.
void ReadLongColumns(Walk& walk, StoredTable& table) {
    while (walk.Left() >= 2) {
        LongColumn column;
        column.number = Word(walk.Take(2), 0);
        if (column.number == 0xffff) break;
        column.map = Dword(walk.Take(4), 0);
        column.roomMap = Dword(walk.Take(4), 0);
        table.longColumns.push_back(column);
    }
    table.end = walk.At();
}

/// Overlapping fixed columns would let a small row claim any amount of data.
void CheckFixedPart(const Layout& layout, const StoredTable& table) {
    std::size_t bytes = 0;
    for (const StoredColumn& column : table.columns)
        if (column.IsFixed()) bytes += column.FixedBytes();
    if (bytes > layout.page) Damaged("a table definition claims rows longer than a page");
}

}  // namespace

std::size_t StoredColumn::FixedBytes() const {
    if (column.type == ColumnType::Boolean) return 0;  // it stands in the row's mask
    const std::size_t ofType = SizeOfType(column.type, 0);
    return ofType != 0 ? ofType : bytes;
}

std::string StoredText(const PageFile& file, std::string_view bytes) {
    return file.Offsets().jet4 ? FromUtf16(bytes) : FromWindows1252(bytes);
}

StoredTable ReadDefinition(const PageFile& file, std::uint32_t page) {
    const Layout& layout = file.Offsets();
    StoredTable table;
    table.page = page;
    const std::string block = Block(file, table);
    table.rows = Dword(block, layout.tableRows);
    table.maximumColumns = Word(block, layout.tableCounts);
    table.variableColumns = Word(block, layout.tableCounts + 2);
    const std::size_t columns = Word(block, layout.tableCounts + 4);
    const std::size_t logical = Dword(block, layout.tableIndexes);
    const std::size_t real = Dword(block, layout.tableIndexes + 4);
    table.dataMap = Dword(block, layout.tableIndexes + 8);
    table.roomMap = Dword(block, layout.tableIndexes + 12);
    if (columns > MaximumColumns || columns > table.maximumColumns || logical > MaximumIndexes ||
        real > MaximumIndexes)
        Damaged("a table definition claims too much");
    Walk walk(file, block, layout.tableHead + real * layout.realHead);
    ReadColumns(file, walk, columns, table);
    CheckFixedPart(layout, table);
    ReadIndexes(file, walk, logical, real, table);
    ReadLongColumns(walk, table);
    return table;
}

}  // namespace tendo::jet
