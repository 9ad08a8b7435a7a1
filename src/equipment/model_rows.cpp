#include "equipment/model_rows.h"

#include <utility>

#include "equipment/model_database.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

std::string PlainCell(const Recordset& rows, const std::string& field) {
    for (const jet::Column& column : rows.Fields())
        if (EqualsNoCase(column.name, field)) return TextOfValue(rows.Get(field), column.type);
    return "";
}

/// Empty where the database lacks the column or the row has no value in it.
std::string CellOf(const Recordset& rows, const std::string& field, CellFormat format) {
    if (field.empty()) return "";
    if (format == CellFormat::YesNo) return rows.Boolean(field) ? "Yes" : "No";
    if (rows.IsNull(field)) return "";
    switch (format) {
        case CellFormat::Money:
            return FormatNumber(rows.Double(field), MoneyPicture);
        case CellFormat::Capacity:
            return FormatNumber(rows.Single(field), "##0.0");
        case CellFormat::Efficiency:
            return FormatNumber(rows.Single(field), "##0.00");
        default:
            return PlainCell(rows, field);
    }
}

}  // namespace

ModelRows::ModelRows(Recordset rows, int tab) : rows_(std::move(rows)), tab_(tab) {
    for (const ModelGridColumn& column : ModelTabAt(tab).columns)
        fields_.push_back(ColumnIn(*rows_, column.field));
}

int ModelRows::Count() const {
    return rows_ ? rows_->RecordCount() : 0;
}

int ModelRows::CurrentRow() const {
    return rows_ ? rows_->AbsolutePosition() : -1;
}

void ModelRows::MoveTo(int row) {
    if (HasRow(row)) rows_->MoveTo(row);
}

void ModelRows::ReadCells(int row) const {
    const int current = rows_->AbsolutePosition();
    rows_->MoveTo(row);
    cachedCells_.clear();
    const auto& columns = ModelTabAt(tab_).columns;
    for (std::size_t i = 0; i < columns.size(); ++i)
        cachedCells_.push_back(CellOf(*rows_, fields_[i], columns[i].format));
    cachedRow_ = row;
    if (current >= 0) rows_->MoveTo(current);
}

std::string ModelRows::CellText(int row, int column) const {
    if (!HasRow(row) || column < 0 || static_cast<std::size_t>(column) >= fields_.size()) return "";
    if (row != cachedRow_) ReadCells(row);
    return cachedCells_[static_cast<std::size_t>(column)];
}

bool ModelRows::MoveToBookmark(std::int64_t bookmark) {
    const int current = CurrentRow();
    for (int row = 0; row < Count(); ++row) {
        rows_->MoveTo(row);
        if (rows_->Bookmark() == bookmark) return true;
    }
    MoveTo(current);
    return false;
}

bool ModelRows::FindFirst(const std::string& criteria) {
    if (Count() == 0) return false;
    rows_->FindFirst(criteria);
    return !rows_->NoMatch();
}

bool ModelRows::FindNext(const std::string& criteria) {
    if (Count() == 0) return false;
    rows_->FindNext(criteria);
    return !rows_->NoMatch();
}

}  // namespace tendo
