#include "platform/jet/jet_reader.h"

#include <algorithm>
#include <unordered_map>

#include "platform/files/safe_file.h"
#include "platform/jet/catalogue.h"
#include "platform/jet/file_check.h"
#include "platform/jet/row_reader.h"
#include "platform/jet/row_scan.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo::jet {
namespace {

/// One table, its definition read; or why it can't be.
struct OpenTable {
    StoredTable stored;
    TableDefinition definition;
    std::vector<std::size_t> order;  // for each shown column its place in `stored.columns`
    std::string fault;
};

TableDefinition DefinitionOf(const PageFile& file, const CatalogueTable& entry, OpenTable& table) {
    TableDefinition definition;
    definition.name = entry.name;
    const auto properties = ReadProperties(file, entry.properties);
    for (std::size_t i = 0; i < table.stored.columns.size(); ++i)
        table.order.push_back(i);
    std::stable_sort(table.order.begin(), table.order.end(), [&](std::size_t a, std::size_t b) {
        return table.stored.columns[a].ordinal < table.stored.columns[b].ordinal;
    });
    for (const std::size_t at : table.order) {
        Column column = table.stored.columns[at].column;
        const auto found = properties.find(column.name);
        column.allowZeroLength = found != properties.end() && found->second.allowZeroLength;
        column.required = found != properties.end() && found->second.required;
        definition.columns.push_back(std::move(column));
    }
    definition.indexes = table.stored.indexes;
    return definition;
}

OpenTable Open(const PageFile& file, const CatalogueTable& entry) {
    OpenTable table;
    table.definition.name = entry.name;
    table.fault = entry.fault;
    if (!table.fault.empty()) return table;
    try {
        table.stored = ReadDefinition(file, entry.page);
        table.definition = DefinitionOf(file, entry, table);
    } catch (const RuntimeError& error) {
        table.fault = error.Description();
    }
    return table;
}

}  // namespace

struct Reader::File {
    PageFile pages;
    std::vector<std::string> names;
    std::vector<OpenTable> tables;
    std::unordered_map<std::string, std::size_t> places;  // by name in lower case
    Catalogue catalogue;
    NotKept notKept;

    File(std::string bytes, std::string_view name) : pages(std::move(bytes), std::string(name)) {
        try {
            catalogue = ReadCatalogue(pages);
        } catch (const RuntimeError& error) {
            Damaged(pages.Name() + ": the database is damaged, its catalogue can't be read: " +
                    error.Description());
        }
        notKept = catalogue.notKept;
        notKept.password = pages.HasPassword();
        for (const CatalogueTable& entry : catalogue.tables) {
            names.push_back(entry.name);
            places.emplace(LowerCase(entry.name), tables.size());
            tables.push_back(Open(pages, entry));
            notKept.relations = notKept.relations || tables.back().stored.hasRelations;
        }
    }

    const OpenTable* Find(std::string_view name) const {
        const auto found = places.find(LowerCase(name));
        return found == places.end() ? nullptr : &tables[found->second];
    }

    /// A table that can be read; throws otherwise.
    const OpenTable& Get(std::string_view name) const {
        const OpenTable* table = Find(name);
        if (!table)
            throw RuntimeError(error_number::TableNotFound,
                               pages.Name() + " has no table \"" + std::string(name) + "\"");
        if (!table->fault.empty()) Damaged(Fault(*table, table->fault));
        return *table;
    }

    std::string Fault(const OpenTable& table, const std::string& what) const {
        return pages.Name() + ": the table \"" + table.definition.name + "\" is damaged: " + what;
    }
};

Reader Reader::OpenFile(std::string_view path) {
    try {
        return OpenBytes(ReadWholeFile(path), path);
    } catch (const RuntimeError& error) {
        if (error.Number() != error_number::FileNotFound &&
            error.Number() != error_number::PathNotFound)
            throw;
        throw RuntimeError(error_number::CouldNotFindFile, error.Description());
    }
}

Reader Reader::OpenBytes(std::string bytes, std::string_view name) {
    return Reader(std::make_unique<File>(std::move(bytes), name));
}

Reader::Reader(std::unique_ptr<File> file) : file_(std::move(file)) {}
Reader::Reader(Reader&&) noexcept = default;
Reader& Reader::operator=(Reader&&) noexcept = default;
Reader::~Reader() = default;

int Reader::Generation() const {
    return file_->pages.Offsets().jet4 ? 4 : 3;
}
const std::vector<std::string>& Reader::TableNames() const {
    return file_->names;
}
bool Reader::HasTable(std::string_view name) const {
    return file_->Find(name) != nullptr;
}
const TableDefinition& Reader::Table(std::string_view name) const {
    return file_->Get(name).definition;
}
NotKept Reader::NotKeptOnWrite() const {
    return file_->notKept;
}

std::size_t Reader::ReadRows(std::string_view name,
                             const std::function<bool(std::span<const ValueView>)>& row) const {
    const OpenTable& table = file_->Get(name);
    const bool inOrder = std::is_sorted(table.order.begin(), table.order.end());
    std::vector<ValueView> shown(table.order.size());
    RowReader reader(file_->pages, table.stored);
    std::size_t count = 0;
    const auto take = [&](std::string_view bytes, const RowPlace&) {
        std::span<const ValueView> values = reader.Read(bytes);
        if (!inOrder) {
            for (std::size_t i = 0; i < shown.size(); ++i)
                shown[i] = values[table.order[i]];
            values = shown;
        }
        ++count;
        return row(values);
    };
    try {
        ForEachRow(file_->pages, table.stored, take);
    } catch (const RuntimeError& error) {
        if (error.Number() != error_number::UnrecognizedFormat) throw;
        Damaged(file_->Fault(table, error.Description()));
    }
    return count;
}

std::vector<std::string> Reader::Check() const {
    std::vector<std::string> faults = CheckFile(file_->pages, file_->catalogue);
    for (std::string& fault : faults)
        fault = file_->pages.Name() + ": " + fault;
    return faults;
}

}  // namespace tendo::jet
