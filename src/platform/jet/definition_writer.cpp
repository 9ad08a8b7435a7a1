#include "platform/jet/definition_writer.h"

#include <algorithm>
#include <numeric>

#include "platform/jet/table_plan.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo::jet {
namespace {

constexpr std::uint32_t Magic = 1625;
constexpr std::uint32_t IndexMagic = 1923;
constexpr std::size_t ContinuationHead = 8;

void AppendName(const std::string& name, std::string& block) {
    const std::string stored = ToUtf16(name);
    AppendWord(block, static_cast<std::uint16_t>(stored.size()));
    block += stored;
}

/// Places sorted by name without regard to case.
template <class Items, class NameOf>
std::vector<std::size_t> ByName(const Items& items, NameOf nameOf) {
    std::vector<std::size_t> order(items.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return UpperCase(nameOf(items[a])) < UpperCase(nameOf(items[b]));
    });
    return order;
}

/// The order in which columns stand: by number, those of system tables by name.
std::vector<std::size_t> ColumnOrder(const TablePlan& plan) {
    if (plan.system)
        return ByName(plan.columns, [](const PlannedColumn& column) { return column.column.name; });
    std::vector<std::size_t> order(plan.columns.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

std::string Head(const TablePlan& plan, const DefinitionFigures& figures) {
    const auto variable =
        std::count_if(plan.columns.begin(), plan.columns.end(),
                      [](const PlannedColumn& column) { return !column.IsFixed(); });
    const auto columns = static_cast<std::uint16_t>(plan.columns.size());
    std::string block("\x02\x01", 2);
    block.append(10, '\0');  // free bytes, next page and length come later
    AppendDword(block, Magic);
    AppendDword(block, figures.rows);
    AppendDword(block, figures.lastAutoNumber);
    block += '\1';
    block.append(15, '\0');
    block += plan.system ? '\x53' : '\x4e';
    AppendWord(block, columns);
    AppendWord(block, static_cast<std::uint16_t>(variable));
    AppendWord(block, columns);
    AppendDword(block, static_cast<std::uint32_t>(plan.indexes.size()));
    AppendDword(block, static_cast<std::uint32_t>(plan.indexes.size()));
    AppendDword(block, plan.MapPointer(0));
    AppendDword(block, plan.MapPointer(1));
    for (const std::uint32_t keys : figures.differentKeys) {
        AppendDword(block, 0);
        AppendDword(block, keys);
        AppendDword(block, 0);
    }
    return block;
}

void AppendColumn(const TablePlan& plan, const PlannedColumn& column, std::string& block) {
    block += static_cast<char>(column.column.type);
    AppendDword(block, Magic);
    AppendWord(block, column.number);
    AppendWord(block, column.variable);
    AppendWord(block, plan.system ? std::uint16_t{0} : column.number);
    if (column.column.type == ColumnType::Numeric) {
        block += static_cast<char>(column.column.precision);
        block += static_cast<char>(column.column.scale);
        block.append(2, '\0');
    } else {
        AppendDword(block, 0x0409);
    }
    block += static_cast<char>(column.flags);
    block.append(5, '\0');
    AppendWord(block, column.offset);
    AppendWord(block, column.bytes);
}

void AppendRealIndex(const TablePlan& plan, const PlannedIndex& index, std::size_t map,
                     std::string& block) {
    AppendDword(block, IndexMagic);
    for (std::size_t i = 0; i < 10; ++i) {
        const bool used = i < index.columns.size();
        AppendWord(block, used ? plan.columns[index.columns[i]].number : std::uint16_t{0xffff});
        block += used && index.descending[i] ? '\0' : '\1';
    }
    AppendDword(block, plan.MapPointer(map));
    AppendDword(block, index.root);
    AppendDword(block, 0);
    block += static_cast<char>(index.flags);
    block.append(5, '\0');
}

void AppendLogicalIndex(std::uint32_t number, std::uint32_t real, std::uint8_t type,
                        std::string& block) {
    AppendDword(block, Magic);
    AppendDword(block, number);
    AppendDword(block, real);
    block += '\0';
    AppendDword(block, 0xffffffff);
    AppendDword(block, 0);
    block += "\x04\x04";
    block += static_cast<char>(type);
    AppendDword(block, 0);
}

void AppendIndexes(const TablePlan& plan, std::size_t firstMap, std::string& block) {
    for (std::size_t i = 0; i < plan.indexes.size(); ++i)
        AppendRealIndex(plan, plan.indexes[i], firstMap + i, block);
    const auto order = ByName(plan.indexes, [](const PlannedIndex& index) { return index.name; });
    for (const std::size_t real : order)
        AppendLogicalIndex(static_cast<std::uint32_t>(real), static_cast<std::uint32_t>(real),
                           plan.indexes[real].type, block);
    for (const std::size_t real : order)
        AppendName(plan.indexes[real].name, block);
}

/// Puts a block on its page and on new ones behind it.
void PutBlock(FileBuilder& file, std::uint32_t page, std::string block) {
    PutDword(block, 8, static_cast<std::uint32_t>(block.size()));
    const auto freeBytes = [](std::size_t used) {
        return static_cast<std::uint16_t>(
            used + 8 > FileBuilder::PageSize ? 0 : FileBuilder::PageSize - used - 8);
    };
    std::string part = block.substr(0, FileBuilder::PageSize);
    std::size_t at = part.size();
    while (true) {
        const std::uint32_t next = at < block.size() ? file.AddPage() : 0;
        PutWord(part, 2, freeBytes(part.size()));
        PutDword(part, 4, next);
        file.Put(page, 0, part);
        if (next == 0) return;
        page = next;
        part = std::string("\x02\x01", 2) + std::string(6, '\0') +
               block.substr(at, FileBuilder::PageSize - ContinuationHead);
        at += part.size() - ContinuationHead;
    }
}

}  // namespace

void WriteDefinition(FileBuilder& file, const TablePlan& plan, const DefinitionFigures& figures) {
    std::string block = Head(plan, figures);
    const auto order = ColumnOrder(plan);
    for (const std::size_t at : order)
        AppendColumn(plan, plan.columns[at], block);
    for (const std::size_t at : order)
        AppendName(plan.columns[at].column.name, block);
    std::size_t map = 2;
    std::string longColumns;
    for (const PlannedColumn& column : plan.columns) {
        if (!column.IsLong()) continue;
        AppendWord(longColumns, column.number);
        AppendDword(longColumns, plan.MapPointer(map));
        AppendDword(longColumns, plan.MapPointer(map + 1));
        map += 2;
    }
    AppendIndexes(plan, map, block);
    block += longColumns;
    block += "\xff\xff";
    PutBlock(file, plan.definitionPage, std::move(block));
}

std::string PropertyBlock(const TablePlan& plan) {
    const std::string names[] = {"AllowZeroLength", "Required"};
    std::string nameBlock;
    for (const std::string& name : names)
        AppendName(name, nameBlock);
    std::string block("MR2\0", 4);
    AppendDword(block, static_cast<std::uint32_t>(6 + nameBlock.size()));
    AppendWord(block, 0x80);
    block += nameBlock;
    for (const PlannedColumn& column : plan.columns) {
        std::string part, name;
        AppendName(column.column.name, name);
        AppendDword(part, static_cast<std::uint32_t>(4 + name.size()));
        part += name;
        const auto property = [&part](std::uint16_t index, bool on) {
            AppendWord(part, 9);
            part += '\1';
            part += '\1';
            AppendWord(part, index);
            AppendWord(part, 1);
            part += on ? '\xff' : '\0';
        };
        const ColumnType type = column.column.type;
        if (type == ColumnType::Text || type == ColumnType::Memo)
            property(0, column.column.allowZeroLength);
        property(1, column.column.required);
        AppendDword(block, static_cast<std::uint32_t>(6 + part.size()));
        AppendWord(block, 1);
        block += part;
    }
    return block;
}

}  // namespace tendo::jet
