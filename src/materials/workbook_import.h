#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/database/database.h"
#include "platform/office/workbook.h"

namespace tendo {

/// Told what is being done and how far of the whole (0: unknown); false stops the work.
using ImportProgress = std::function<bool(const std::string& text, int done, int whole)>;

/// A cell that could not be taken as it stands.
struct UnconvertedCell {
    std::size_t row = 0;  // as the sheet counts, from 1
    std::string text;     // "unit cost \"call\" is no number: $0.00"
};

/// RuntimeError 3265, told in a sentence, when a database isn't one that materials can be imported
/// into.
void CheckPriceBook(Database& database);

/// The import of a price book from the first sheet of a workbook: row 1 is a heading; from row 2
/// on, until a row whose first four cells are empty, each row is a material with part number,
/// description, unit cost and list cost. The workbook must outlive it.
class WorkbookImport {
  public:
    /// The most materials that a takeoff can load.
    static constexpr int MostForTakeoff = 32767;

    explicit WorkbookImport(const Workbook& workbook) : workbook_(workbook) {}

    /// The first pass: counts the rows and looks at their costs. False when it was stopped.
    bool Count(const ImportProgress& progress);
    int RowCount() const { return rowCount_; }
    /// Costs that don't convert and become 0, in the order of the rows.
    const std::vector<UnconvertedCell>& Unconverted() const { return unconverted_; }

    /// What the import would do to a price book of so many materials, for the user to see before
    /// anything happens.
    std::string Preview(int materialsNow) const;

    /// The second pass: appends the rows to `Materials`. Nothing is on disk before the database is
    /// closed. False when it was stopped; the database is to be given up then.
    bool Convert(Database& database, const ImportProgress& progress);

    /// The rows that were not taken as they stand, at most `most` of them by number; empty when all
    /// were.
    std::string Summary(std::size_t most = 10) const;

  private:
    bool RowIsEmpty(std::size_t row) const;
    void CheckCosts(std::size_t row);
    std::size_t RowsBehind() const;
    jet::Row MaterialOf(std::size_t row, const jet::TableDefinition& table);
    std::string TextFor(std::size_t row, std::size_t column, const jet::Column& target);

    const Workbook& workbook_;
    int rowCount_ = 0;
    std::vector<UnconvertedCell> unconverted_;
    std::vector<UnconvertedCell> cut_;
};

}  // namespace tendo
