#include "platform/jet/table_writer.h"

#include <algorithm>

#include "platform/jet/column_size.h"
#include "platform/jet/definition_writer.h"
#include "platform/jet/index_key.h"
#include "platform/jet/index_writer.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo::jet {
namespace {

constexpr std::size_t MaximumColumns = 255;
constexpr std::size_t MaximumIndexes = 32;
constexpr std::uint8_t RequiredFlag = 8;
constexpr std::size_t MaximumKeyColumns = 10;
constexpr std::size_t MapsPerPage = 57;   // of 69 bytes each
constexpr std::size_t LongestKey = 1700;  // a node must hold two entries at least
constexpr int NullInKey = 3058, RecordTooLarge = 3047;

std::size_t ColumnPlace(const TableDefinition& definition, const std::string& name) {
    for (std::size_t i = 0; i < definition.columns.size(); ++i)
        if (EqualsNoCase(definition.columns[i].name, name)) return i;
    throw RuntimeError(error_number::ItemNotFound,
                       "the index of " + definition.name + " names no column: " + name);
}

PlannedIndex PlanIndex(const TableDefinition& definition, const Index& index) {
    if (index.columns.empty() || index.columns.size() > MaximumKeyColumns)
        throw RuntimeError(error_number::UnrecognizedFormat,
                           "the index " + index.name + " has too many columns or none");
    PlannedIndex planned;
    planned.name = index.name;
    for (std::size_t i = 0; i < index.columns.size(); ++i) {
        planned.columns.push_back(ColumnPlace(definition, index.columns[i]));
        planned.descending.push_back(i < index.descending.size() && index.descending[i]);
    }
    planned.flags = static_cast<std::uint8_t>(0x80 | (index.unique || index.primary ? 1 : 0) |
                                              (index.ignoreNulls ? 2 : 0) |
                                              (index.required || index.primary ? RequiredFlag : 0));
    planned.type = index.primary ? 1 : 0;
    return planned;
}

/// The data pages and those with room, two for each long column, one for each index.
std::size_t MapCount(const TablePlan& plan) {
    const auto longColumns =
        std::count_if(plan.columns.begin(), plan.columns.end(),
                      [](const PlannedColumn& column) { return column.IsLong(); });
    return 2 + 2 * static_cast<std::size_t>(longColumns) + plan.indexes.size();
}

void PlanColumns(const TableDefinition& definition, TablePlan& plan) {
    std::uint16_t number = 0;
    for (const Column& column : definition.columns) {
        PlannedColumn planned;
        planned.column = column;
        planned.number = number++;
        planned.flags = IsFixedType(column.type) ? 3 : 2;
        if (column.autoNumber) planned.flags |= 4;
        plan.columns.push_back(std::move(planned));
    }
    PlaceColumns(plan.columns);
}

/// The rows of one table on their way to pages.
class RowWriter {
  public:
    RowWriter(FileBuilder& file, const TablePlan& plan)
        : file_(file), plan_(plan), page_(plan.definitionPage) {
        for (const PlannedColumn& column : plan.columns)
            if (column.IsLong()) longValues_.emplace_back(file);
        entries_.resize(plan.indexes.size());
    }

    void Add(std::span<const ValueView> values) {
        const std::string row = RowBytes(plan_.columns, values, longValues_, plan_.name);
        if (number_ == 0 || !page_.HasRoom(row.size())) OpenPage();
        const std::uint32_t place = number_ << 8 | page_.Add(row);
        for (std::size_t i = 0; i < plan_.indexes.size(); ++i)
            AddEntry(i, values, place);
        NoteAutoNumber(values);
        ++count_;
    }

    TableMaps Finish() {
        if (plan_.firstDataPage != 0 && number_ == 0) OpenPage();
        if (number_ != 0) file_.Put(number_, 0, page_.Bytes());
        TableMaps maps = {pages_, {}};
        if (!pages_.empty()) maps[1] = {pages_.back()};
        for (LongValueWriter& writer : longValues_) {
            writer.Finish();
            maps.push_back(writer.Pages());
            maps.push_back(writer.Pages().empty()
                               ? writer.Pages()
                               : std::vector<std::uint32_t>{writer.Pages().back()});
        }
        DefinitionFigures figures{
            .rows = count_, .lastAutoNumber = lastAutoNumber_, .differentKeys = {}};
        for (std::size_t i = 0; i < plan_.indexes.size(); ++i) {
            const PlannedIndex& index = plan_.indexes[i];
            WrittenIndex written =
                WriteIndexPages(file_, plan_.definitionPage, index.root, entries_[i]);
            CheckUnique(index, entries_[i]);
            figures.differentKeys.push_back(written.differentKeys);
            maps.push_back(std::move(written.pages));
        }
        WriteDefinition(file_, plan_, figures);
        return maps;
    }

  private:
    void OpenPage() {
        if (number_ != 0) file_.Put(number_, 0, page_.Bytes());
        page_ = DataPage(plan_.definitionPage);
        number_ =
            pages_.empty() && plan_.firstDataPage != 0 ? plan_.firstDataPage : file_.AddPage();
        pages_.push_back(number_);
    }

    void AddEntry(std::size_t at, std::span<const ValueView> values, std::uint32_t place) {
        const PlannedIndex& index = plan_.indexes[at];
        IndexEntry entry{.key = {}, .row = place, .holdsNull = false};
        bool allNull = true;
        for (std::size_t i = 0; i < index.columns.size(); ++i) {
            const ValueView& value = values[index.columns[i]];
            const bool isNull = std::holds_alternative<std::monostate>(value) &&
                                plan_.columns[index.columns[i]].column.type != ColumnType::Boolean;
            allNull = allNull && isNull;
            entry.holdsNull = entry.holdsNull || isNull;
            AppendIndexKey(value, plan_.columns[index.columns[i]].column, index.descending[i],
                           entry.key);
        }
        if (entry.holdsNull && (index.flags & RequiredFlag))
            throw RuntimeError(
                NullInKey, "the index " + index.name + " of " + plan_.name + " can't hold a null");
        if (entry.key.size() > LongestKey)
            throw RuntimeError(RecordTooLarge, "the key of a record in the index " + index.name +
                                                   " of " + plan_.name + " is too long");
        if (!(allNull && (index.flags & 2))) entries_[at].push_back(std::move(entry));
    }

    void NoteAutoNumber(std::span<const ValueView> values) {
        for (std::size_t i = 0; i < plan_.columns.size(); ++i) {
            const auto* number = std::get_if<std::int64_t>(&values[i]);
            if (number && (plan_.columns[i].flags & 4) && *number > 0)
                lastAutoNumber_ = std::max(lastAutoNumber_, static_cast<std::uint32_t>(*number));
        }
    }

    /// Rows may share a null in an index that is unique, but no value.
    void CheckUnique(const PlannedIndex& index, const std::vector<IndexEntry>& entries) const {
        if (!(index.flags & 1)) return;
        for (std::size_t i = 1; i < entries.size(); ++i) {
            if (entries[i].key != entries[i - 1].key || entries[i].holdsNull) continue;
            throw RuntimeError(error_number::DuplicateKey, "the index " + index.name + " of " +
                                                               plan_.name + " holds a value twice");
        }
    }

    FileBuilder& file_;
    const TablePlan& plan_;
    DataPage page_;
    std::uint32_t number_ = 0;
    std::vector<std::uint32_t> pages_;
    std::vector<LongValueWriter> longValues_;
    std::vector<std::vector<IndexEntry>> entries_;
    std::uint32_t count_ = 0;
    std::uint32_t lastAutoNumber_ = 0;
};

}  // namespace

TablePlan PlanTable(FileBuilder& file, const TableDefinition& definition) {
    if (definition.columns.empty() || definition.columns.size() > MaximumColumns ||
        definition.indexes.size() > MaximumIndexes)
        throw RuntimeError(error_number::UnrecognizedFormat,
                           "the table " + definition.name + " has too many columns or none");
    TablePlan plan;
    plan.name = definition.name;
    PlanColumns(definition, plan);
    for (const Index& index : definition.indexes)
        plan.indexes.push_back(PlanIndex(definition, index));
    plan.definitionPage = file.AddPage();
    for (std::size_t i = 0; i < MapCount(plan); i += MapsPerPage)
        plan.mapPages.push_back(file.AddPage());
    for (PlannedIndex& index : plan.indexes)
        index.root = file.AddPage();
    return plan;
}

TableMaps WriteTable(FileBuilder& file, const TablePlan& plan, const RowSource& rows) {
    RowWriter writer(file, plan);
    if (rows) rows([&](std::span<const ValueView> values) { writer.Add(values); });
    return writer.Finish();
}

std::uint32_t TablePlan::MapPointer(std::size_t map) const {
    const std::size_t place = firstMap + map;
    return mapPages.at(place / MapsPerPage) << 8 | static_cast<std::uint32_t>(place % MapsPerPage);
}

void WriteMapPages(FileBuilder& file, const std::vector<std::uint32_t>& pages,
                   const std::vector<TableMaps>& tables) {
    std::vector<DataPage> written(pages.size(), DataPage(0));
    std::size_t place = 0;
    for (const TableMaps& table : tables)
        for (const auto& map : table)
            written.at(place++ / MapsPerPage).Add(UsageMapRow(file, map));
    for (std::size_t i = 0; i < pages.size(); ++i)
        file.Put(pages[i], 0, written[i].Bytes());
}

}  // namespace tendo::jet
