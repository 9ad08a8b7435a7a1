#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/database.h"
#include "platform/text/runtime_error.h"

namespace tendo {

jet::Column ColumnOf(std::string name, jet::ColumnType type, int size = 0);
jet::TableDefinition TableOf(std::string name, std::vector<jet::Column> columns);

/// A price book in memory: Materials of seven rows (in table order A to G) and Categories.
///
///   Description         UnitCst  ListCst  Part Number  Category
///   copper pipe 1/2     1.5      3        CP-12        Pipe
///   Elbow               .25      null     EL-1         pipe
///   Apron               12       20       null         null
///   O'Brien valve       7        9.5      OB[1]        Valve
///   null                0        1        N-0          Valve
///   Zone board #4       99.9     150      ZB-4*        Controls
///   copper pipe 3/4     2        4        CP-34        Pipe
Database PriceBook();

/// The named column of all rows as text, joined by "|".
std::string Column(Recordset& rows, std::string_view field);
/// The same of the rows a source gives.
std::string Column(Database& database, std::string_view source, std::string_view field);

/// The error number that a call raises; 0 when it raises none.
template <class Call>
int ErrorOf(Call call) {
    try {
        call();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

}  // namespace tendo
