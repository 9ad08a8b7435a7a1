#include "platform/jet/system_tables.h"

#include <cstring>
#include <span>

#include "platform/jet/header_mask.h"
namespace tendo::jet {
namespace {

constexpr std::uint32_t SystemPages = 16;
constexpr std::uint32_t MapPage = 6;

struct ColumnSpec {
    const char* name;
    ColumnType type;
    std::uint8_t flags;
};
struct IndexSpec {
    const char* name;
    std::vector<std::size_t> columns;
    std::uint8_t flags;
    std::uint8_t type;
    std::uint32_t root;
};

using enum ColumnType;

const ColumnSpec objectColumns[] = {
    {"Id", Long, 0x13},         {"ParentId", Long, 0x13},    {"Name", Text, 0x12},
    {"Type", Integer, 0x13},    {"DateCreate", Date, 0x13},  {"DateUpdate", Date, 0x13},
    {"Owner", Binary, 0x32},    {"Flags", Long, 0x13},       {"Database", Memo, 0x12},
    {"Connect", Memo, 0x12},    {"ForeignName", Text, 0x12}, {"RmtInfoShort", Binary, 0x12},
    {"RmtInfoLong", Ole, 0x12}, {"Lv", Ole, 0x12},           {"LvProp", Ole, 0x12},
    {"LvModule", Ole, 0x12},    {"LvExtra", Ole, 0x12}};
const ColumnSpec aceColumns[] = {{"ObjectId", Long, 0x13},
                                 {"SID", Binary, 0x32},
                                 {"ACM", Long, 0x13},
                                 {"FInheritable", Boolean, 0x13}};
const ColumnSpec queryColumns[] = {{"ObjectId", Long, 0x13}, {"Attribute", Byte, 0x13},
                                   {"Order", Binary, 0x12},  {"Name1", Text, 0x12},
                                   {"Name2", Text, 0x12},    {"Expression", Memo, 0x12},
                                   {"Flag", Integer, 0x13},  {"LvExtra", Long, 0x13}};
const ColumnSpec relationColumns[] = {{"szRelationship", Text, 0x12},
                                      {"grbit", Long, 0x13},
                                      {"ccolumn", Long, 0x13},
                                      {"icolumn", Long, 0x13},
                                      {"szObject", Text, 0x12},
                                      {"szColumn", Text, 0x12},
                                      {"szReferencedObject", Text, 0x12},
                                      {"szReferencedColumn", Text, 0x12}};

TablePlan Plan(const char* name, std::span<const ColumnSpec> columns,
               const std::vector<IndexSpec>& indexes, std::uint32_t page, std::uint32_t dataPage,
               std::uint8_t firstMap) {
    TablePlan plan;
    plan.name = name;
    plan.system = true;
    plan.definitionPage = page;
    plan.firstDataPage = dataPage;
    plan.mapPages = {MapPage};
    plan.firstMap = firstMap;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        PlannedColumn column;
        column.column.name = columns[i].name;
        column.column.type = columns[i].type;
        column.column.size = columns[i].type == Text ? 255 : columns[i].type == Binary ? 510 : 0;
        column.number = static_cast<std::uint16_t>(i);
        column.flags = columns[i].flags;
        plan.columns.push_back(std::move(column));
    }
    PlaceColumns(plan.columns);
    for (const IndexSpec& index : indexes)
        plan.indexes.push_back({index.name, index.columns, std::vector<bool>(index.columns.size()),
                                index.flags, index.type, index.root});
    return plan;
}

/// Users and engine, as rows name them.
constexpr std::string_view Admin = "\x4c\xb1", Engine = "\x4d\xb3", Users = "\x4d\xb1",
                           Creator = "\x4d\xb4";

struct ObjectSpec {
    std::uint32_t id, parent;
    const char* name;
    std::int16_t type;
    std::string_view owner;
};
constexpr std::uint32_t TablesContainer = 0x0F000001;
const ObjectSpec fixedObjects[] = {{0x0F000001, 0x0F000000, "Tables", 3, Engine},
                                   {0x0F000002, 0x0F000000, "Databases", 3, Engine},
                                   {0x0F000003, 0x0F000000, "Relationships", 3, Engine},
                                   {0x10000000, 0x0F000002, "MSysDb", 2, Admin},
                                   {2, TablesContainer, "MSysObjects", 1, Engine},
                                   {3, TablesContainer, "MSysACEs", 1, Engine},
                                   {4, TablesContainer, "MSysQueries", 1, Engine},
                                   {5, TablesContainer, "MSysRelationships", 1, Engine}};
constexpr std::uint32_t SystemObject = 0x80000000;

struct AceSpec {
    std::uint32_t object;
    std::string_view sid;
    std::uint32_t access;
    bool inheritable;
};
const AceSpec fixedAces[] = {
    {2, Admin, 0x60000, false},           {3, Admin, 0x60000, false},
    {4, Admin, 0x60000, false},           {5, Admin, 0xE0000, false},
    {0x0F000001, Creator, 0xF00FE, true}, {0x0F000001, Admin, 0x60001, false},
    {0x0F000003, Creator, 0xF00FE, true}, {0x0F000003, Admin, 0x60001, false},
    {0x0F000002, Admin, 0x60000, false},  {0x10000000, Admin, 0x6000E, false},
    {0x10000000, Users, 0x0000E, false},  {4, Users, 0x00014, false},
    {5, Users, 0x00014, false},           {2, Users, 0x00014, false},
    {0x0F000001, Users, 0xFFEFF, true},   {0x0F000003, Users, 0xFFFFF, true}};

ValueView Signed(std::uint32_t value) {
    return std::int64_t{static_cast<std::int32_t>(value)};
}

RowSource ObjectRows(const std::vector<CatalogueRow>& tables, double made) {
    return [&tables, made](const auto& add) {
        const auto row = [&](std::uint32_t id, std::uint32_t parent, std::string_view name,
                             std::int16_t type, std::string_view owner, std::uint32_t flags,
                             std::string_view properties) {
            std::vector<ValueView> values(std::size(objectColumns));
            values[0] = Signed(id);
            values[1] = Signed(parent);
            values[2] = name;
            values[3] = std::int64_t{type};
            values[4] = values[5] = made;
            values[6] = owner;
            values[7] = Signed(flags);
            if (!properties.empty()) values[14] = properties;
            add(values);
        };
        for (const ObjectSpec& object : fixedObjects)
            row(object.id, object.parent, object.name, object.type, object.owner, SystemObject, {});
        for (const CatalogueRow& table : tables)
            row(table.definitionPage, TablesContainer, table.name, 1, Admin, 0, table.properties);
    };
}

RowSource AceRows(const std::vector<CatalogueRow>& tables) {
    return [&tables](const auto& add) {
        const auto row = [&](const AceSpec& ace) {
            add(std::vector<ValueView>{Signed(ace.object), ace.sid, Signed(ace.access),
                                       ace.inheritable});
        };
        for (const AceSpec& ace : fixedAces)
            row(ace);
        for (const CatalogueRow& table : tables) {
            row({table.definitionPage, Admin, 0xF00FE, false});
            row({table.definitionPage, Users, 0xFFEFF, false});
        }
    };
}

std::string HeaderPage() {
    std::string page(FileBuilder::PageSize, '\0');
    PutDword(page, 0, 0x100);
    page.replace(4, 16, std::string("Standard Jet DB\0", 16));
    page[0x14] = 1;
    PutDword(page, MaskedFrom, 0x100);
    PutDword(page, 0x1c, 0x101);
    for (std::uint32_t i = 0; i < 4; ++i)
        PutDword(page, 0x20 + 4 * i, 2 + i);
    PutWord(page, 0x3c, 1252);
    for (std::size_t i = 0; i < 10; ++i)
        PutDword(page, 0x42 + 4 * i, 0xb107);  // no password, under the date's mask
    PutDword(page, 0x6a, 9801);
    PutDword(page, 0x6e, 0x0409);
    // This date belongs to the user names above; the tables' own dates stand in the catalogue.
    page.replace(0x72, 8, std::string("\x75\x67\x3b\x03\xf7\x20\xe6\x40", 8));
    MaskHeader(std::span(page).subspan(MaskedFrom, HeaderMaskSize));
    PutDword(page, 0x98, 0x654);
    page.replace(0x9c, 3, "4.0");
    PutWord(page, 0xe00, 0x0101);
    for (std::size_t i = 1; i < 256; ++i)
        PutWord(page, 0xe00 + 2 * i, 0x0100);
    return page;
}

/// Two bitmaps of this many pages still fit on page 1.
constexpr std::uint32_t LargestBitmap = 16000;

/// Bits for the pages from the end of the file to the end of the bitmap: they are free.
std::string FreeMap(std::uint32_t pages) {
    if (pages > LargestBitmap)
        return std::string("\1", 1) + std::string(4 * 17, '\0');  // no page known as free
    const std::size_t bytes = pages <= 512 ? 64 : (pages + 31) / 32 * 4;
    std::string row(5 + bytes, '\0');
    for (std::size_t page = pages; page < bytes * 8; ++page)
        row[5 + page / 8] = static_cast<char>(row[5 + page / 8] | 1 << page % 8);
    return row;
}

}  // namespace

void AddSystemPages(FileBuilder& file) {
    while (file.PageCount() < SystemPages)
        file.AddPage();
}

void WriteSystemTables(FileBuilder& file, const std::vector<CatalogueRow>& tables, double made) {
    const TablePlan objects =
        Plan("MSysObjects", objectColumns,
             {{"ParentIdName", {1, 2}, 0x81, 0, 7}, {"Id", {0}, 0x81, 1, 8}}, 2, 14, 0);
    const TablePlan aces = Plan("MSysACEs", aceColumns, {{"ObjectId", {0}, 0x88, 0, 9}}, 3, 15, 18);
    const TablePlan queries = Plan("MSysQueries", queryColumns,
                                   {{"ObjectIdAttribute", {0, 1, 2}, 0x81, 1, 10}}, 4, 0, 21);
    const TablePlan relations = Plan("MSysRelationships", relationColumns,
                                     {{"szRelationship", {0}, 0x82, 0, 11},
                                      {"szObject", {4}, 0x82, 0, 12},
                                      {"szReferencedObject", {6}, 0x82, 0, 13}},
                                     5, 0, 26);
    WriteMapPages(file, {MapPage},
                  {WriteTable(file, objects, ObjectRows(tables, made)),
                   WriteTable(file, aces, AceRows(tables)), WriteTable(file, queries, {}),
                   WriteTable(file, relations, {})});
}

void WriteHeaderPages(FileBuilder& file) {
    const std::string freeMap = FreeMap(file.PageCount());
    DataPage page(1);
    page.Add(freeMap);
    page.Add(std::string(freeMap.size(), '\0'));
    file.Put(1, 0, page.Bytes());
    file.Put(0, 0, HeaderPage());
}

}  // namespace tendo::jet
