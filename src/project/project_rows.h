#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/database.h"
#include "platform/text/fixed_text.h"
#include "project/project_file.h"

namespace tendo {

/// How the fields of a record meet the columns of a table: by name, whatever their order.

/// The text of a field as a file keeps it: with its blanks, and never wider than its column. A
/// character outside the basic plane takes two places of a column.
std::string StoredText(std::string_view text, std::size_t width);

template <std::size_t Width>
jet::Value ValueOf(const FixedText<Width>& field) {
    return StoredText(field.WithoutPadding(), Width);
}
inline jet::Value ValueOf(const std::string& field) {
    return field;
}
inline jet::Value ValueOf(std::int16_t field) {
    return std::int64_t{field};
}
inline jet::Value ValueOf(float field) {
    return double{field};
}
inline jet::Value ValueOf(bool field) {
    return field;
}

/// Puts a value into a field; null leaves it as it was. RuntimeError 13 for the wrong type, 6 out
/// of range.
void Store(const jet::Value& value, std::string& field);
void Store(const jet::Value& value, std::int16_t& field);
void Store(const jet::Value& value, float& field);
void Store(const jet::Value& value, bool& field);
template <std::size_t Width>
void Store(const jet::Value& value, FixedText<Width>& field) {
    std::string text = field.WithoutPadding();
    Store(value, text);
    field = text;
}

/// The definition of a project table as this program makes it.
const jet::TableDefinition& ProjectTable(std::string_view name);

/// The place of a column; -1 without one. Names do not depend on case.
int PlaceOf(const std::vector<jet::Column>& columns, std::string_view name);

/// RuntimeError 3265 that names the column.
[[noreturn]] void ThrowColumnMissing(std::string_view column);

/// The places of a record's fields among the columns of a file's table.
template <class Record>
class FieldPlaces {
  public:
    /// `table` names the table whose layout says which fields are stored at all.
    FieldPlaces(const std::vector<jet::Column>& columns, std::string_view table) {
        const std::vector<jet::Column>& stored = ProjectTable(table).columns;
        const Record record{};
        Record::ForEachField(record, [&](const char* name, const auto&) {
            const bool isStored = PlaceOf(stored, name) >= 0;
            places_.push_back(isStored ? PlaceOf(columns, name) : NotStored);
        });
    }

    /// Calls `visit(name, field, place)` for each stored field; `place` is -1 when the file lacks
    /// the column.
    template <class Self, class Visit>
    void ForEach(Self& record, Visit&& visit) const {
        std::size_t i = 0;
        Record::ForEachField(record, [&](const char* name, auto& field) {
            const int place = places_[i++];
            if (place != NotStored) visit(name, field, place);
        });
    }

  private:
    static constexpr int NotStored = -2;
    std::vector<int> places_;  // in the order of the record's fields
};

}  // namespace tendo
