#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/database.h"

namespace tendo {

/// A table of named lists: the list's name stands in each of its rows, and a list is there as long
/// as one row carries its name. Names are compared trimmed, and exactly.
struct ListTable {
    std::string database;  // the file
    const char* table;
};

/// Opens the database, runs the step and writes what it changed, which stays also when the step
/// fails half-way. False after a failure; it was told by a message ("Unable to Access TABLE Table
/// in tendo.mdb. Error: ", number and text).
bool WithListTable(const ListTable& lists, const std::function<void(Database&)>& step);

/// The names of all lists, trimmed, in the order of the table. A database that has no such table
/// has no lists yet.
std::vector<std::string> ListNames(const ListTable& lists);

/// Visits the rows of a list in the order of the table.
void ForEachListRow(Database& database, const char* table, std::string_view name,
                    const std::function<void(Recordset&)>& visit);

/// Deletes the rows of a list.
void DeleteListRows(Database& database, const char* table, std::string_view name);
bool DeleteList(const ListTable& lists, std::string_view name);

}  // namespace tendo
