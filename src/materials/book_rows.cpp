#include "materials/book_rows.h"

#include <cmath>
#include <limits>
#include <utility>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr const char* emptyCost = "$0.00";

const BookColumn& ColumnAt(int column) {
    return BookColumns.at(static_cast<std::size_t>(column));
}

/// Nothing for null and for what is no cost: files of others may hold an infinity or a text there.
std::optional<float> StoredCost(const Recordset& rows, const char* field) {
    if (rows.IsNull(field)) return std::nullopt;
    try {
        const float cost = rows.Single(field);
        return std::isfinite(cost) ? std::optional(cost) : std::nullopt;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::string TextOfCell(const Recordset& rows, const BookColumn& column) {
    if (!column.money) return rows.Text(column.field);
    const auto cost = StoredCost(rows, column.field);
    return cost ? FormatNumber(*cost, MoneyPicture) : rows.Text(column.field);
}

}  // namespace

float CostOfText(std::string_view text) {
    double cost = 0;
    if (!ReadNumber(text, cost) || std::abs(cost) > std::numeric_limits<float>::max())
        throw RuntimeError(error_number::TypeMismatch,
                           "\"" + std::string(text) + "\" is not a cost.  Please enter a number.");
    return static_cast<float>(cost);
}

BookRows::BookRows(Recordset rows) : rows_(std::move(rows)) {
    for (const BookColumn& column : BookColumns)
        if (!rows_->HasField(column.field)) ThrowError(error_number::ItemNotFound);
}

int BookRows::Count() const {
    return rows_ ? rows_->RecordCount() : 0;
}

int BookRows::CurrentRow() const {
    return rows_ ? rows_->AbsolutePosition() : -1;
}

void BookRows::MoveTo(int row) {
    if (HasRow(row)) rows_->MoveTo(row);
}

Recordset& BookRows::Rows() {
    cachedRow_ = -1;
    return rows_.value();
}

std::int64_t BookRows::BookmarkOf(int row) const {
    const int current = rows_->AbsolutePosition();
    rows_->MoveTo(row);
    const std::int64_t bookmark = rows_->Bookmark();
    if (current >= 0) rows_->MoveTo(current);
    return bookmark;
}

std::string BookRows::StoredText(int row, int column) const {
    if (row != cachedRow_) {
        const int current = rows_->AbsolutePosition();
        rows_->MoveTo(row);
        for (std::size_t i = 0; i < BookColumns.size(); ++i)
            cachedCells_[i] = TextOfCell(*rows_, BookColumns[i]);
        cachedRow_ = row;
        if (current >= 0) rows_->MoveTo(current);
    }
    return cachedCells_.at(static_cast<std::size_t>(column));
}

std::string BookRows::CellText(int row, int column) const {
    if (!HasRow(row) || column < 0 || column >= BookColumnCount) return "";
    const auto typed = typed_.find(column);
    if (typed == typed_.end() || row != CurrentRow()) return StoredText(row, column);
    if (!ColumnAt(column).money) return typed->second;
    return FormatNumber(CostOfText(typed->second), MoneyPicture);
}

std::string BookRows::EditText(int row, int column) const {
    const std::string shown = CellText(row, column);
    if (shown.empty() || !ColumnAt(column).money) return shown;
    const auto typed = typed_.find(column);
    if (typed != typed_.end() && row == CurrentRow()) return typed->second;
    const int current = rows_->AbsolutePosition();
    rows_->MoveTo(row);
    const auto cost = StoredCost(*rows_, ColumnAt(column).field);
    if (current >= 0) rows_->MoveTo(current);
    return !cost || CostOfText(shown) == *cost ? shown : PlainNumberText(*cost);
}

void BookRows::SetCell(int column, const std::string& text) {
    if (CurrentRow() < 0) ThrowError(error_number::NoCurrentRecord);
    const bool money = ColumnAt(column).money;
    const std::string value = money && Trimmed(text).empty() ? emptyCost : text;
    if (money) CostOfText(value);
    if (value != EditText(CurrentRow(), column)) typed_[column] = value;
}

void BookRows::WriteEdits() {
    if (typed_.empty()) return;
    Recordset& rows = Rows();
    rows.Edit();
    for (const auto& [column, text] : typed_) {
        const BookColumn& target = ColumnAt(column);
        rows.Set(target.field, target.money ? jet::Value(double{CostOfText(text)}) : text);
    }
    rows.Update();
    typed_.clear();
}

}  // namespace tendo
