#include "platform/jet/file_check.h"

#include <algorithm>

#include "platform/jet/page_owners.h"
#include "platform/jet/table_check.h"
#include "platform/jet/usage_map.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

const std::string FreePagesName = "the map of free pages";

/// Checks that pages in use are not also free.
void CheckFree(const std::vector<std::uint32_t>& free, const PageOwners& owners,
               FaultList& faults) {
    for (const std::uint32_t page : free)
        if (owners.IsOwned(page))
            faults.Add("page " + std::to_string(page) + " is free and belongs to " +
                       owners.OwnerOf(page));
}

/// Rows on a page that no map names would be lost to every reader.
void CheckLostRows(const PageFile& file, const std::vector<std::uint32_t>& free,
                   const PageOwners& owners, const std::vector<std::uint32_t>& definitions,
                   FaultList& faults) {
    for (std::uint32_t number = 1; number < file.PageCount(); ++number) {
        if (owners.IsOwned(number) || std::binary_search(free.begin(), free.end(), number))
            continue;
        const std::string_view page = file.Page(number);
        if (page[0] != 1 || Word(page, file.Offsets().rowsAt) == 0) continue;
        if (std::binary_search(definitions.begin(), definitions.end(), Dword(page, 4)))
            faults.Add("page " + std::to_string(number) +
                       " holds rows of a table whose map doesn't name it");
    }
}

/// Runs a part of the check; what stops it becomes a fault.
template <class Part>
void Guarded(const std::string& what, FaultList& faults, Part part) {
    try {
        part();
    } catch (const RuntimeError& error) {
        faults.Add(what + ": " + error.Description());
    }
}

}  // namespace

std::vector<std::string> CheckFile(const PageFile& file, const Catalogue& catalogue) {
    FaultList faults;
    PageOwners owners(file.PageCount(), faults);
    if (file.Size() % file.Offsets().page != 0) faults.Add("the last page is cut short");
    owners.Own({0}, "the header");
    std::vector<std::uint32_t> free;
    TableCheck check(file, owners, faults);
    Guarded(FreePagesName, faults, [&] {
        std::vector<std::uint32_t> mapPages;
        free = FreePages(file, mapPages);
        owners.Own({1}, FreePagesName);
        owners.Own(mapPages, FreePagesName);
    });
    std::vector<std::uint32_t> definitions;
    for (const auto* tables : {&catalogue.systems, &catalogue.tables}) {
        for (const CatalogueTable& table : *tables) {
            const std::string name = "table \"" + table.name + "\"";
            definitions.push_back(table.page);
            if (!table.fault.empty())
                faults.Add(name + ": " + table.fault);
            else
                Guarded(name, faults, [&] { check.Table(table, tables == &catalogue.tables); });
        }
    }
    std::sort(definitions.begin(), definitions.end());
    if (!std::binary_search(definitions.begin(), definitions.end(), 2U))
        faults.Add("the catalogue doesn't list itself");
    check.MapRowPages();
    CheckFree(free, owners, faults);
    Guarded("lost pages", faults, [&] { CheckLostRows(file, free, owners, definitions, faults); });
    return faults.Take();
}

}  // namespace tendo::jet
