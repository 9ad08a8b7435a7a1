#include "jet3_row.h"

#include <stdexcept>

#include "jet3_bytes.h"
#include "platform/text/code_page.h"

namespace tendo::jet3 {
namespace {

std::size_t FixedSize(jet::ColumnType type) {
    switch (type) {
        case jet::ColumnType::Boolean:
            return 0;
        case jet::ColumnType::Byte:
            return 1;
        case jet::ColumnType::Integer:
            return 2;
        case jet::ColumnType::Long:
        case jet::ColumnType::Single:
            return 4;
        case jet::ColumnType::Currency:
        case jet::ColumnType::Double:
        case jet::ColumnType::Date:
            return 8;
        default:
            throw std::invalid_argument("a column of a type that isn't made here");
    }
}

template <class Kind>
const Kind& As(const jet::Value& value, const jet::Column& column) {
    if (const Kind* held = std::get_if<Kind>(&value)) return *held;
    throw std::invalid_argument(column.name + ": a value of another type");
}

bool IsSet(const jet::Value& value) {
    if (const bool* truth = std::get_if<bool>(&value)) return *truth;
    return !std::holds_alternative<std::monostate>(value);
}

std::string FixedBytes(const PlacedColumn& placed, const jet::Value& value) {
    std::string bytes;
    const jet::Column& column = placed.column;
    if (!IsSet(value) || column.type == jet::ColumnType::Boolean)
        return std::string(placed.bytes, '\0');
    if (column.type == jet::ColumnType::Single)
        Append(bytes, static_cast<float>(As<double>(value, column)));
    else if (column.type == jet::ColumnType::Double || column.type == jet::ColumnType::Date)
        Append(bytes, As<double>(value, column));
    else
        Append(bytes, As<std::int64_t>(value, column));  // the low bytes of shorter numbers
    return bytes.substr(0, placed.bytes);
}

std::string Mask(const std::vector<PlacedColumn>& columns, const jet::Row& row) {
    std::string mask((columns.size() + 7) / 8, '\0');
    for (const PlacedColumn& placed : columns)
        if (IsSet(row.at(placed.number)))
            mask[placed.number / 8] =
                static_cast<char>(mask[placed.number / 8] | 1 << placed.number % 8);
    return mask;
}

std::string TextBytes(const PlacedColumn& placed, const jet::Value& value) {
    if (!IsSet(value)) return "";
    std::string text = ToWindows1252(As<std::string>(value, placed.column));
    if (text.size() > placed.bytes)
        throw std::invalid_argument(placed.column.name + ": a text too long");
    return text;
}

/// Behind the data: the starts of the variable columns and the end, last first, one byte each; then
/// the numbers of the columns from which on 256 more count, again last first.
void AppendOffsets(std::string& bytes, const std::vector<std::size_t>& starts,
                   std::size_t maskSize) {
    for (std::size_t i = starts.size(); i-- > 0;)
        AppendByte(bytes, starts[i] % 256);
    const std::size_t rest = 1 + maskSize;  // the count and the mask follow the jumps
    std::size_t jumps = 0;
    while (jumps != (bytes.size() + jumps + rest - 1) / 256)
        ++jumps;
    for (std::size_t jump = jumps; jump > 0; --jump) {
        std::size_t column = 0;
        while (column < starts.size() && starts[column] < 256 * jump)
            ++column;
        AppendByte(bytes, column == starts.size() ? 0xff : column);  // 0xff: not in use
    }
    AppendByte(bytes, starts.size() - 1);
}

}  // namespace

std::vector<PlacedColumn> PlaceColumns(const std::vector<jet::Column>& columns) {
    std::vector<PlacedColumn> placed;
    std::size_t variable = 0;
    std::size_t offset = 0;
    for (const jet::Column& column : columns) {
        PlacedColumn next{.column = column, .number = placed.size(), .variable = variable};
        next.fixed = column.type != jet::ColumnType::Text && column.type != jet::ColumnType::Ole;
        next.offset = offset;
        next.bytes = next.fixed ? FixedSize(column.type) : static_cast<std::size_t>(column.size);
        next.fixed ? offset += next.bytes : ++variable;
        placed.push_back(next);
    }
    return placed;
}

std::string RowBytes(const std::vector<PlacedColumn>& columns, const jet::Row& row) {
    std::string bytes;
    AppendByte(bytes, columns.size());
    for (const PlacedColumn& placed : columns)
        if (placed.fixed) bytes += FixedBytes(placed, row.at(placed.number));
    std::vector<std::size_t> starts;
    for (const PlacedColumn& placed : columns) {
        if (placed.fixed) continue;
        starts.push_back(bytes.size());
        bytes += TextBytes(placed, row.at(placed.number));
    }
    const std::string mask = Mask(columns, row);
    if (!starts.empty()) {
        starts.push_back(bytes.size());
        AppendOffsets(bytes, starts, mask.size());
    }
    return bytes + mask;
}

}  // namespace tendo::jet3
