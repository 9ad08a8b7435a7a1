#include "platform/office/cell_grid.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include "platform/office/local_number.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr std::size_t MaximumText = std::size_t{1} << 30;

}  // namespace

TextPlace CellGrid::AddText(std::string_view text) {
    if (text.size() > MaximumText - text_.size()) ThrowError(error_number::OutOfMemory);
    const TextPlace place{static_cast<std::uint32_t>(text_.size()),
                          static_cast<std::uint32_t>(text.size())};
    text_.append(text);
    return place;
}

std::string_view CellGrid::TextAt(TextPlace place) const {
    return std::string_view(text_).substr(place.at, place.length);
}

bool CellGrid::Put(std::size_t row, std::size_t column, CellKind kind, double number,
                   TextPlace text) {
    if (row >= MaximumRows || column >= MaximumColumns) return false;
    entries_.push_back(
        {static_cast<std::uint32_t>(row), static_cast<std::uint16_t>(column), kind, text, number});
    return true;
}

bool CellGrid::PutText(std::size_t row, std::size_t column, std::string_view text) {
    if (text.empty()) return Put(row, column, CellKind::Empty, 0);
    return Put(row, column, CellKind::Text, 0, AddText(text));
}

bool CellGrid::PutReadText(std::size_t row, std::size_t column, std::string_view text) {
    double number = 0;
    if (!ReadPlainNumber(text, number)) return PutText(row, column, text);
    return Put(row, column, CellKind::Number, number, AddText(text));
}

void CellGrid::Sort() {
    auto place = [](const Entry& entry) { return std::tie(entry.row, entry.column); };
    std::stable_sort(entries_.begin(), entries_.end(),
                     [&](const Entry& a, const Entry& b) { return place(a) < place(b); });
    // From the back, so that the last value put into a cell is the one that stays.
    const auto last =
        std::unique(entries_.rbegin(), entries_.rend(),
                    [&](const Entry& a, const Entry& b) { return place(a) == place(b); });
    entries_.erase(entries_.begin(), last.base());
    std::erase_if(entries_, [](const Entry& entry) { return entry.kind == CellKind::Empty; });
    rows_ = entries_.empty() ? 0 : entries_.back().row + std::size_t{1};
    columns_ = 0;
    for (const Entry& entry : entries_)
        columns_ = std::max<std::size_t>(columns_, entry.column + 1);
}

std::vector<CellGrid::Entry>::const_iterator CellGrid::From(std::size_t row,
                                                            std::size_t column) const {
    return std::lower_bound(entries_.begin(), entries_.end(), std::pair(row, column),
                            [](const Entry& entry, const auto& wanted) {
                                return std::pair<std::size_t, std::size_t>(entry.row,
                                                                           entry.column) < wanted;
                            });
}

std::size_t CellGrid::ColumnCountOf(std::size_t row) const {
    const auto behind = From(row + 1, 0);
    if (behind == entries_.begin()) return 0;
    const Entry& last = *std::prev(behind);
    return last.row == row ? last.column + std::size_t{1} : 0;
}

CellValue CellGrid::Cell(std::size_t row, std::size_t column) const {
    const auto found = From(row, column);
    if (found == entries_.end() || found->row != row || found->column != column) return {};
    return {found->kind, found->number, TextAt(found->text)};
}

std::vector<std::size_t> CellGrid::UsedRows() const {
    std::vector<std::size_t> rows;
    for (const Entry& entry : entries_)
        if (rows.empty() || rows.back() != entry.row) rows.push_back(entry.row);
    return rows;
}

}  // namespace tendo
