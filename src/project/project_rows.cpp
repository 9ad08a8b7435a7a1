#include "project/project_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

/// Places that a character takes in a column: two when its UTF-8 has four bytes.
std::size_t ColumnPlaces(std::string_view text) {
    std::size_t places = CharacterCount(text);
    for (const char byte : text)
        places += static_cast<unsigned char>(byte) >= 0xF0 ? 1 : 0;
    return places;
}

double NumberOf(const jet::Value& value) {
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
    if (const auto* truth = std::get_if<bool>(&value)) return *truth ? -1 : 0;
    ThrowError(error_number::TypeMismatch);
}

bool IsNull(const jet::Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

}  // namespace

std::string StoredText(std::string_view text, std::size_t width) {
    std::string_view kept = FirstCharacters(text, width);
    while (ColumnPlaces(kept) > width)
        kept = FirstCharacters(kept, CharacterCount(kept) - 1);
    std::string stored(kept);
    stored.append(width - ColumnPlaces(kept), ' ');
    return stored;
}

void Store(const jet::Value& value, std::string& field) {
    if (IsNull(value)) return;
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) ThrowError(error_number::TypeMismatch);
    field = *text;
}

void Store(const jet::Value& value, std::int16_t& field) {
    if (IsNull(value)) return;
    const double number = std::nearbyint(NumberOf(value));
    using Limits = std::numeric_limits<std::int16_t>;
    if (!(number >= Limits::min() && number <= Limits::max())) ThrowError(error_number::Overflow);
    field = static_cast<std::int16_t>(number);
}

void Store(const jet::Value& value, float& field) {
    if (IsNull(value)) return;
    const double number = NumberOf(value);
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        ThrowError(error_number::Overflow);
    }
    field = static_cast<float>(number);
}

void Store(const jet::Value& value, bool& field) {
    if (!IsNull(value)) field = NumberOf(value) != 0;
}

const jet::TableDefinition& ProjectTable(std::string_view name) {
    for (const jet::TableDefinition& table : ProjectTables()) {
        if (table.name == name) return table;
    }
    ThrowColumnMissing(name);
}

int PlaceOf(const std::vector<jet::Column>& columns, std::string_view name) {
    // Nearly every file spells its columns as this program does; the slower comparison is for the
    // others.
    const auto exact = std::find_if(columns.begin(), columns.end(),
                                    [&](const jet::Column& column) { return column.name == name; });
    const auto found =
        exact != columns.end()
            ? exact
            : std::find_if(columns.begin(), columns.end(), [&](const jet::Column& column) {
                  return EqualsNoCase(column.name, name);
              });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

void ThrowColumnMissing(std::string_view column) {
    throw RuntimeError(error_number::ItemNotFound, ErrorDescription(error_number::ItemNotFound) +
                                                       " (" + std::string(column) + ")");
}

}  // namespace tendo
