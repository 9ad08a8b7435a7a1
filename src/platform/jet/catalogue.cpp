#include "platform/jet/catalogue.h"

#include <set>

#include "platform/jet/row_reader.h"
#include "platform/jet/row_scan.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::uint32_t CataloguePage = 2;
constexpr std::uint32_t SystemFlags = 0x80000002;

struct CatalogueColumns {
    std::size_t id = SIZE_MAX, name = SIZE_MAX, type = SIZE_MAX, flags = SIZE_MAX,
                properties = SIZE_MAX;
};

CatalogueColumns FindColumns(const StoredTable& table) {
    CatalogueColumns at;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const Column& column = table.columns[i].column;
        if (column.name == "Id" && column.type == ColumnType::Long) at.id = i;
        if (column.name == "Name" && column.type == ColumnType::Text) at.name = i;
        if (column.name == "Type" && column.type == ColumnType::Integer) at.type = i;
        if (column.name == "Flags" && column.type == ColumnType::Long) at.flags = i;
        if (column.name == "LvProp" && column.type == ColumnType::Ole) at.properties = i;
    }
    if (at.id == SIZE_MAX || at.name == SIZE_MAX || at.type == SIZE_MAX || at.flags == SIZE_MAX)
        Damaged("the catalogue lacks a column");
    return at;
}

std::int64_t NumberOf(const ValueView& value) {
    const auto* number = std::get_if<std::int64_t>(&value);
    return number ? *number : 0;
}

std::string_view TextOf(const ValueView& value) {
    const auto* text = std::get_if<std::string_view>(&value);
    return text ? *text : std::string_view{};
}

/// A kind of object that isn't kept on a write.
void Note(std::int64_t type, NotKept& notKept) {
    if (type == 4 || type == 6) notKept.linkedTables = true;
    if (type == 5) notKept.queries = true;
    // Forms, macros, reports and modules. Documents of the file's own properties (-32757) stand in
    // every file of the desktop database program and say nothing that its users would miss.
    if (type == -32768 || type == -32766 || type == -32764 || type == -32761)
        notKept.otherObjects = true;
}

}  // namespace

Catalogue ReadCatalogue(const PageFile& file) {
    Catalogue catalogue;
    const StoredTable objects = ReadDefinition(file, CataloguePage);
    const CatalogueColumns at = FindColumns(objects);
    RowReader reader(file, objects);
    std::set<std::uint32_t> pages;
    ForEachRow(file, objects, [&](std::string_view row, const RowPlace&) {
        const auto values = reader.Read(row);
        const std::int64_t type = NumberOf(values[at.type]);
        const auto flags = static_cast<std::uint32_t>(NumberOf(values[at.flags]));
        const std::string name(TextOf(values[at.name]));
        const bool system = (flags & SystemFlags) || name.starts_with("MSys");
        if (!system) Note(type, catalogue.notKept);
        if (type != 1) return true;
        CatalogueTable table{
            name, static_cast<std::uint32_t>(NumberOf(values[at.id])) & 0xffffff, {}, {}};
        // A page serves one table: a file can't make us read one definition a thousand times.
        if (!pages.insert(table.page).second) {
            table.fault = "its definition belongs to another table";
        } else if (at.properties != SIZE_MAX) {
            table.properties = TextOf(values[at.properties]);
        }
        (system ? catalogue.systems : catalogue.tables).push_back(std::move(table));
        return true;
    });
    return catalogue;
}

namespace {

std::string NameAt(const PageFile& file, std::string_view block, std::size_t at, std::size_t& end) {
    const std::size_t length = Word(block, at);
    end = at + 2 + length;
    return StoredText(file, Part(block, at + 2, length));
}

std::vector<std::string> PropertyNames(const PageFile& file, std::string_view block) {
    std::vector<std::string> names;
    for (std::size_t at = 0; at + 2 <= block.size();)
        names.push_back(NameAt(file, block, at, at));
    return names;
}

void ReadColumnBlock(const PageFile& file, std::string_view block,
                     const std::vector<std::string>& names,
                     std::map<std::string, ColumnProperties>& columns) {
    const std::size_t head = Dword(block, 0);
    std::size_t end = 0;
    const std::string column = NameAt(file, block, 4, end);
    if (head < 6 || head > block.size()) Damaged("a property block is broken");
    for (std::size_t at = head; at + 8 <= block.size();) {
        const std::size_t length = Word(block, at);
        if (length < 8) Damaged("a property is broken");
        const std::string_view property = Part(block, at, length);
        const std::size_t name = Word(property, 4), size = Word(property, 6);
        const bool on = size >= 1 && Byte(property, 8) != 0;
        if (name < names.size() && names[name] == "AllowZeroLength")
            columns[column].allowZeroLength = on;
        if (name < names.size() && names[name] == "Required") columns[column].required = on;
        at += length;
    }
}

}  // namespace

std::map<std::string, ColumnProperties> ReadProperties(const PageFile& file,
                                                       std::string_view block) {
    std::map<std::string, ColumnProperties> columns;
    std::vector<std::string> names;
    if (block.size() < 4) return columns;
    try {
        for (std::size_t at = 4; at + 6 <= block.size();) {
            const std::size_t length = Dword(block, at);
            if (length < 6) break;
            const std::string_view part = Part(block, at, length).substr(6);
            const std::uint16_t kind = Word(block, at + 4);
            if (kind == 0x80) names = PropertyNames(file, part);
            if (kind == 1) ReadColumnBlock(file, part, names, columns);
            at += length;
        }
    } catch (const RuntimeError&) {
        // Properties are a help, not the data: what was read before the fault counts.
    }
    return columns;
}

}  // namespace tendo::jet
