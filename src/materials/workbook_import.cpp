#include "materials/workbook_import.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/office/local_number.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr std::size_t headingRows = 1;
constexpr int stepsBetweenTells = 250;

/// Where the sheet's columns go.
struct ImportColumn {
    const char* field;
    const char* name;
    bool isCost;
};
constexpr std::array<ImportColumn, 4> importColumns = {{{"Part Number", "part number", false},
                                                        {"Description", "description", false},
                                                        {"UnitCst", "unit cost", true},
                                                        {"ListCst", "list cost", true}}};

/// A text of no length is what a formula leaves that shows nothing.
bool IsEmpty(const CellValue& cell) {
    return cell.kind == CellKind::Empty || (cell.kind == CellKind::Text && cell.text.empty());
}

std::string TextOfCell(const CellValue& cell) {
    switch (cell.kind) {
        case CellKind::Number:
            return cell.text.empty() ? PlainNumberText(cell.number) : std::string(cell.text);
        case CellKind::Boolean:
            return cell.number != 0 ? "True" : "False";
        case CellKind::Date:
            return ShortDateText(DateOfSerial(cell.number));
        default:
            return std::string(cell.text);
    }
}

bool FitsSingle(double number) {
    return std::abs(number) <= std::numeric_limits<float>::max();
}

/// A cell as a Single: a truth value counts as -1 or 0, a date as its day, a text as a number is
/// written in any country. False, with 0, for what doesn't convert.
bool CostOfCell(const CellValue& cell, float& cost) {
    double number = cell.number;
    cost = 0;
    if (cell.kind == CellKind::Boolean) number = number != 0 ? -1 : 0;
    if (cell.kind == CellKind::Text && !ReadLocalNumber(Trimmed(cell.text), number)) return false;
    if (cell.kind == CellKind::Error || !FitsSingle(number)) return false;
    cost = static_cast<float>(number);
    return true;
}

std::string Counted(std::size_t count, const char* one, const char* many) {
    return FormatNumber(static_cast<double>(count), "###,##0") + " " + (count == 1 ? one : many);
}

std::string ListOf(const std::vector<UnconvertedCell>& cells, std::size_t most) {
    std::string list;
    for (std::size_t i = 0; i < std::min(most, cells.size()); ++i)
        list += "\nRow " + std::to_string(cells[i].row) + ": " + cells[i].text;
    if (cells.size() > most) list += "\nand " + Counted(cells.size() - most, "more", "more") + ".";
    return list;
}

}  // namespace

void CheckPriceBook(Database& database) {
    std::string missing;
    for (const char* table : {"Materials", "Categories"})
        if (!database.HasTable(table) && missing.empty())
            missing = std::string("it has no table ") + table;
    if (missing.empty()) {
        const Recordset rows = database.OpenRecordset("Materials");
        for (const ImportColumn& column : importColumns)
            if (!rows.HasField(column.field) && missing.empty())
                missing = std::string("its materials have no column ") + column.field;
    }
    if (!missing.empty())
        throw RuntimeError(error_number::ItemNotFound,
                           "\"" + database.Name() + "\" is no price book: " + missing + ".");
}

bool WorkbookImport::RowIsEmpty(std::size_t row) const {
    for (std::size_t column = 0; column < importColumns.size(); ++column)
        if (!IsEmpty(workbook_.Cell(row, column))) return false;
    return true;
}

void WorkbookImport::CheckCosts(std::size_t row) {
    for (std::size_t column = 0; column < importColumns.size(); ++column) {
        const CellValue cell = workbook_.Cell(row, column);
        float cost = 0;
        if (!importColumns[column].isCost || IsEmpty(cell) || CostOfCell(cell, cost)) continue;
        unconverted_.push_back({row + 1, std::string(importColumns[column].name) + " \"" +
                                             TextOfCell(cell) + "\" is no number: $0.00"});
    }
}

bool WorkbookImport::Count(const ImportProgress& progress) {
    rowCount_ = 0;
    unconverted_.clear();
    for (std::size_t row = headingRows; row < workbook_.RowCount() && !RowIsEmpty(row); ++row) {
        CheckCosts(row);
        ++rowCount_;
        if (rowCount_ % stepsBetweenTells == 1 &&
            !progress("Processing records..." + std::to_string(row + 1), 0, 0))
            return false;
    }
    return true;
}

/// Rows that hold something behind the one that ended the import.
std::size_t WorkbookImport::RowsBehind() const {
    const std::size_t end = headingRows + static_cast<std::size_t>(rowCount_);
    const std::vector<std::size_t> used = workbook_.cells.UsedRows();
    return static_cast<std::size_t>(std::count_if(
        used.begin(), used.end(), [&](std::size_t row) { return row > end && !RowIsEmpty(row); }));
}

std::string WorkbookImport::Preview(int materialsNow) const {
    std::string text = workbook_.remark.empty() ? "" : workbook_.remark + "\n";
    text += "In the price book now: " +
            Counted(static_cast<std::size_t>(materialsNow), "material", "materials") +
            "\nTo be imported: " + Counted(static_cast<std::size_t>(rowCount_), "row", "rows");
    if (!unconverted_.empty())
        text +=
            "\nCosts that are no number and become $0.00: " + std::to_string(unconverted_.size()) +
            ListOf(unconverted_, 3);
    if (const std::size_t behind = RowsBehind())
        text += "\nNot imported, because they stand behind the empty row " +
                std::to_string(rowCount_ + 2) + ": " + Counted(behind, "row", "rows");
    if (materialsNow + rowCount_ > MostForTakeoff)
        text += "\nA takeoff can load " + Counted(MostForTakeoff, "material", "materials") +
                " at most.";
    return text;
}

std::string WorkbookImport::TextFor(std::size_t row, std::size_t column,
                                    const jet::Column& target) {
    const std::string text = TextOfCell(workbook_.Cell(row, column));
    const auto width = static_cast<std::size_t>(std::max(target.size, 0));
    if (width == 0 || CharacterCount(text) <= width) return text;
    cut_.push_back({row + 1, std::string(importColumns[column].name) + " cut to " +
                                 std::to_string(width) + " letters"});
    return std::string(FirstCharacters(text, width));
}

jet::Row WorkbookImport::MaterialOf(std::size_t row, const jet::TableDefinition& table) {
    jet::Row values(table.columns.size());
    for (std::size_t place = 0; place < table.columns.size(); ++place)
        for (std::size_t column = 0; column < importColumns.size(); ++column) {
            if (!EqualsNoCase(table.columns[place].name, importColumns[column].field)) continue;
            float cost = 0;
            if (importColumns[column].isCost) {
                CostOfCell(workbook_.Cell(row, column), cost);
                values[place] = double{cost};
            } else {
                values[place] = TextFor(row, column, table.columns[place]);
            }
        }
    return values;
}

bool WorkbookImport::Convert(Database& database, const ImportProgress& progress) {
    const jet::TableDefinition& table = database.Table("Materials");
    cut_.clear();
    for (int done = 0; done < rowCount_;) {
        const std::string percent =
            std::to_string(static_cast<std::int64_t>(done) * 100 / rowCount_);
        if (!progress("Converting Material Database from Excel to Tendo..." + percent + "%", done,
                      rowCount_))
            return false;
        std::vector<jet::Row> rows;
        for (int i = 0; i < stepsBetweenTells && done < rowCount_; ++i, ++done)
            rows.push_back(MaterialOf(headingRows + static_cast<std::size_t>(done), table));
        database.AppendRows("Materials", rows);
    }
    return progress("Converting Material Database from Excel to Tendo...100%", rowCount_,
                    rowCount_);
}

std::string WorkbookImport::Summary(std::size_t most) const {
    std::string text;
    if (!unconverted_.empty())
        text += Counted(unconverted_.size(), "cost is no number", "costs are no numbers") + ":" +
                ListOf(unconverted_, most);
    if (!cut_.empty())
        text += std::string(text.empty() ? "" : "\n") +
                Counted(cut_.size(), "text was too long", "texts were too long") + ":" +
                ListOf(cut_, most);
    return text;
}

}  // namespace tendo
