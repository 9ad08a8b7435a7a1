#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/expression.h"

namespace tendo::query {

/// One column that a row set shows.
struct OutputColumn {
    jet::Column column;
    std::string qualifiedName;  // "Table.Column"; the name alone for a calculated column
    std::string sql;
    int source = -1;  // of a plain column
    int place = -1;
};

/// A translated SELECT, in pieces from which the queries of a row set are put together.
struct Select {
    std::vector<Source> sources;
    std::string from;
    std::string where;  // empty: all rows
    std::string order;  // empty: table order
    bool distinct = false;
    std::vector<OutputColumn> outputs;
    std::vector<Parameter> parameters;

    /// The keys of all rows: one column for each source.
    std::string KeyQuery() const;
    /// The outputs of the row whose keys are bound to ?1, ?2 ...
    std::string RowQuery() const;
    /// A row when the row of these keys fulfils the condition.
    std::string TestQuery(std::string_view condition) const;

  private:
    std::string FromKeys() const;
};

/// Finds a table by its name; RuntimeError 3078.
using FindTable = std::function<Source(std::string_view)>;

/// Translates a SELECT text: columns or *, tables with INNER, LEFT and RIGHT JOIN, WHERE, ORDER BY.
/// RuntimeError 3075, 3061, 3078, 3079, 3464.
Select ReadSelect(std::string_view text, const FindTable& findTable);

/// All rows and columns of one table.
Select SelectAll(const Source& source);

/// True when the text begins as a SELECT does.
bool IsSelect(std::string_view text);

/// A criterion on the row of a Select; its parameters follow those of `parameters`. RuntimeError
/// 3077, 3070.
std::string ReadCriteria(std::string_view text, const std::vector<Source>& sources,
                         std::vector<Parameter>& parameters);

}  // namespace tendo::query
