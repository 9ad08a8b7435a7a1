#pragma once

#include <functional>
#include <set>

#include "platform/jet/catalogue.h"
#include "platform/jet/page_owners.h"
#include "platform/jet/row_reader.h"

namespace tendo::jet {

/// Checks the tables of a file, one by one.
class TableCheck {
  public:
    TableCheck(const PageFile& file, PageOwners& owners, FaultList& faults)
        : file_(file), owners_(owners), faults_(faults) {}

    /// `user`: a table of the user, whose definition tells its rows exactly. Throws RuntimeError
    /// 3343 where the check of this table can't go on.
    void Table(const CatalogueTable& entry, bool user);
    /// The data pages on which usage maps stand; many tables may share one, so they come last.
    void MapRowPages();

  private:
    struct Rows;
    void Definition(const StoredTable& table);
    std::vector<std::uint32_t> MapPages(std::uint32_t map, const std::string& owner);
    void RoomMap(std::uint32_t room, const std::vector<std::uint32_t>& pages,
                 const std::string& owner);
    void DataPage(std::uint32_t number, std::string_view owner, const std::string& name);
    void LongPages(const StoredTable& table, Rows& rows);
    void DataPages(const StoredTable& table, Rows& rows);
    void ReadRows(const StoredTable& table, Rows& rows);
    void CompareUse(const char* what, std::vector<std::uint32_t> there,
                    std::vector<std::uint32_t> used);
    void Index(const StoredTable& table, std::size_t at, const Rows& rows);
    void Fault(const std::string& what) { faults_.Add(name_ + ": " + what); }

    const PageFile& file_;
    PageOwners& owners_;
    FaultList& faults_;
    std::string name_;  // of the table being checked
    std::set<std::uint32_t> mapRowPages_;
};

}  // namespace tendo::jet
