#include "equipment/model_rows.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <utility>

#include "equipment/model_database.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr std::string_view selectAll = "Select *";
constexpr int modelColumn = 1;  // on every tab

std::string PlainCell(const Recordset& rows, const std::string& field) {
    for (const jet::Column& column : rows.Fields())
        if (EqualsNoCase(column.name, field)) return TextOfValue(rows.Get(field), column.type);
    return "";
}

std::string_view PictureOf(CellFormat format) {
    switch (format) {
        case CellFormat::Money:
            return MoneyPicture;
        case CellFormat::Capacity:
            return "##0.0";
        case CellFormat::Efficiency:
            return "##0.00";
        default:
            return "";
    }
}

/// Empty where the database lacks the column or the row has no value in it; a text in a column of
/// numbers stands as it is.
std::string CellOf(const Recordset& rows, const std::string& field, CellFormat format) {
    if (field.empty()) return "";
    const jet::Value value = rows.Get(field);
    if (std::holds_alternative<std::string>(value)) return PlainCell(rows, field);
    if (format == CellFormat::YesNo) return rows.Boolean(field) ? "Yes" : "No";
    if (std::holds_alternative<std::monostate>(value)) return "";
    const std::string_view picture = PictureOf(format);
    if (picture.empty()) return PlainCell(rows, field);
    const double number = rows.Double(field);
    if (!(std::abs(number) <= static_cast<double>(FLT_MAX))) return PlainNumberText(number);
    if (format == CellFormat::Money) return FormatNumber(number, picture);
    return FormatNumber(static_cast<float>(number), picture);
}

/// The keys of all rows of a row set; the current row is not kept.
std::vector<std::int64_t> BookmarksOf(Recordset& rows) {
    std::vector<std::int64_t> bookmarks;
    const int count = rows.RecordCount();
    bookmarks.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        rows.MoveTo(row);
        bookmarks.push_back(rows.Bookmark());
    }
    return bookmarks;
}

}  // namespace

ModelRows::ModelRows(Database& database, const std::string& source, int tab)
    : rows_(database.OpenRecordset(source)),
      source_(source.starts_with(selectAll) ? source
                                            : std::string(selectAll) + " from [" + source + "]"),
      tab_(tab) {
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

/// The tab's query with other columns than all.
std::string ModelRows::QueryOf(std::string_view columns) const {
    return "Select " + std::string(columns) + source_.substr(selectAll.size());
}

void ModelRows::SortBy(Database& database, const std::optional<ModelSort>& sort) {
    order_.clear();
    places_.clear();
    if (!sort || Count() == 0) return;
    const std::string& field = fields_.at(static_cast<std::size_t>(sort->column));
    if (field.empty()) return;
    const std::string name = "[" + field + "]";
    Recordset sorted = database.OpenRecordset(QueryOf(name) + " order by " + name +
                                              (sort->descending ? " desc" : ""));
    const int current = CurrentRow();
    const std::vector<std::int64_t> keys = BookmarksOf(*rows_);  // ascending: rows in table order
    rows_->MoveTo(current);
    places_.resize(keys.size());
    for (const std::int64_t key : BookmarksOf(sorted)) {
        const auto row = std::lower_bound(keys.begin(), keys.end(), key) - keys.begin();
        places_[static_cast<std::size_t>(row)] = static_cast<int>(order_.size());
        order_.push_back(static_cast<int>(row));
    }
}

int ModelRows::RowAt(int place) const {
    if (!HasRow(place)) return -1;
    return order_.empty() ? place : order_[static_cast<std::size_t>(place)];
}

int ModelRows::PlaceOf(int row) const {
    if (!HasRow(row)) return -1;
    return places_.empty() ? row : places_[static_cast<std::size_t>(row)];
}

void ModelRows::ReadModelNumbers(Database& database) {
    const std::string& field = fields_[modelColumn];
    if (field.empty() || static_cast<int>(modelNumbers_.size()) == Count()) return;
    Recordset numbers = database.OpenRecordset(QueryOf("[" + field + "]"));
    for (; !numbers.EOF_(); numbers.MoveNext())
        modelNumbers_.push_back(LowerCase(numbers.Text(field)));
}

int ModelRows::FindTyped(Database& database, std::string_view text, int fromPlace) {
    if (Count() == 0 || text.empty()) return -1;
    ReadModelNumbers(database);
    const std::string wanted = LowerCase(text);
    const int count = static_cast<int>(modelNumbers_.size());
    int holding = -1;
    for (int step = 0; step < count; ++step) {
        const int row = RowAt((std::max(fromPlace, 0) + step) % count);
        const std::size_t at = modelNumbers_[static_cast<std::size_t>(row)].find(wanted);
        if (at == 0) return row;
        if (at != std::string::npos && holding < 0) holding = row;
    }
    return holding;
}

}  // namespace tendo
