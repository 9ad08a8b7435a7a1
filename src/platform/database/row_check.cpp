#include "platform/database/row_check.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "platform/database/database.h"
#include "platform/database/expression.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int WrongType = 3421;
constexpr int RequiredMissing = 3314;
constexpr int KeyIsNull = 3058;
constexpr double CurrencyUnits = 10000;

struct WholeRange {
    double lowest;
    double highest;
};

WholeRange RangeOf(jet::ColumnType type) {
    switch (type) {
        case jet::ColumnType::Byte:
            return {0, 255};
        case jet::ColumnType::Integer:
            return {-32768, 32767};
        case jet::ColumnType::Long:
            return {-2147483648.0, 2147483647.0};
        default:  // Currency, in ten-thousandths: the doubles that a 64-bit number holds
            return {-9223372036854775808.0, 9223372036854774784.0};
    }
}

/// Checks the values of one table; knows what to name in messages.
class ValueCheck {
  public:
    ValueCheck(const jet::TableDefinition& table, const jet::Column& column)
        : table_(table), column_(column) {}

    jet::Value Checked(const jet::Value& value) const {
        if (std::holds_alternative<std::monostate>(value)) return OfNull();
        switch (column_.type) {
            case jet::ColumnType::Boolean:
                return OfBoolean(value);
            case jet::ColumnType::Byte:
            case jet::ColumnType::Integer:
            case jet::ColumnType::Long:
            case jet::ColumnType::Currency:
                return OfWhole(value);
            case jet::ColumnType::Single:
            case jet::ColumnType::Double:
            case jet::ColumnType::Date:
                return OfFloating(value);
            default:
                return OfText(value);
        }
    }

  private:
    [[noreturn]] void Throw(int number, const std::string& text) const {
        throw RuntimeError(
            number, text + " (column \"" + column_.name + "\" of table \"" + table_.name + "\")");
    }

    jet::Value OfNull() const {
        if (column_.type == jet::ColumnType::Boolean) return false;
        if (column_.required) Throw(RequiredMissing, "The field needs a value.");
        return std::monostate{};
    }

    double Number(const jet::Value& value) const {
        if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
        if (const auto* whole = std::get_if<std::int64_t>(&value))
            return static_cast<double>(*whole);
        if (const auto* number = std::get_if<double>(&value)) return *number;
        double number = 0;
        if (!ReadNumber(std::get<std::string>(value), number))
            Throw(WrongType, "Data type conversion error: the text \"" +
                                 std::get<std::string>(value) + "\" is no number.");
        return number;
    }

    jet::Value OfBoolean(const jet::Value& value) const {
        if (const auto* text = std::get_if<std::string>(&value)) {
            if (EqualsNoCase(*text, "true") || EqualsNoCase(*text, "yes")) return true;
            if (EqualsNoCase(*text, "false") || EqualsNoCase(*text, "no")) return false;
        }
        return Number(value) != 0;
    }

    jet::Value OfWhole(const jet::Value& value) const {
        const bool isCurrency = column_.type == jet::ColumnType::Currency;
        const auto* whole = std::get_if<std::int64_t>(&value);
        if (isCurrency && whole) return *whole;  // ten-thousandths already
        // Halves go to the even neighbour, as the engine rounds.
        const double number = std::nearbyint(Number(value) * (isCurrency ? CurrencyUnits : 1));
        const WholeRange range = RangeOf(column_.type);
        if (!(number >= range.lowest && number <= range.highest))
            Throw(error_number::Overflow, "Overflow: the number does not fit the field.");
        return static_cast<std::int64_t>(number);
    }

    jet::Value OfFloating(const jet::Value& value) const {
        const auto* text = std::get_if<std::string>(&value);
        if (column_.type == jet::ColumnType::Date && text) {
            const auto date = ReadDate(*text);
            if (!date)
                Throw(WrongType, "Data type conversion error: \"" + *text + "\" is no date.");
            return SerialOfDate(*date);
        }
        const double number = Number(value);
        const bool isSingle = column_.type == jet::ColumnType::Single;
        if (!std::isfinite(number) || (isSingle && std::abs(number) > FLT_MAX))
            Throw(error_number::Overflow, "Overflow: the number does not fit the field.");
        return isSingle ? static_cast<double>(static_cast<float>(number)) : number;
    }

    jet::Value OfText(const jet::Value& value) const {
        const std::string text = TextOfValue(value, jet::ColumnType::Double);
        if (text.empty() && !column_.allowZeroLength && column_.type != jet::ColumnType::Binary)
            Throw(error_number::FieldNotZeroLength, "Field cannot be a zero-length string.");
        if (Length(text) > Width())
            Throw(error_number::FieldTooSmall,
                  "The field is too small to accept the amount of data you attempted to add.  Try "
                  "inserting or pasting less data.");
        return text;
    }

    std::size_t Width() const {
        const bool hasWidth =
            column_.type == jet::ColumnType::Text || column_.type == jet::ColumnType::Binary;
        return hasWidth && column_.size > 0 ? static_cast<std::size_t>(column_.size)
                                            : std::numeric_limits<std::size_t>::max();
    }

    /// Characters; those outside the basic plane take two places, as in the file.
    std::size_t Length(std::string_view text) const {
        if (column_.type != jet::ColumnType::Text) return text.size();
        if (text.size() <= Width()) return text.size();
        std::size_t length = 0;
        for (const char32_t character : ToCodePoints(text))
            length += character > 0xffff ? 2 : 1;
        return length;
    }

    const jet::TableDefinition& table_;
    const jet::Column& column_;
};

void CheckKeys(const jet::TableDefinition& table, const jet::Row& row) {
    for (const jet::Index& index : table.indexes) {
        if (!index.primary && !index.required) continue;
        for (const std::string& name : index.columns) {
            const int place = query::PlaceOfColumn(table, name);
            if (place >= 0 &&
                std::holds_alternative<std::monostate>(row[static_cast<std::size_t>(place)]))
                throw RuntimeError(KeyIsNull, "The index \"" + index.name + "\" of table \"" +
                                                  table.name + "\" needs a value in column \"" +
                                                  name + "\".");
        }
    }
}

}  // namespace

jet::Row CheckedRow(const jet::TableDefinition& table, const jet::Row& row) {
    if (row.size() != table.columns.size())
        throw RuntimeError(error_number::ItemNotFound,
                           "A row of " + std::to_string(row.size()) + " values for table \"" +
                               table.name + "\", which has " +
                               std::to_string(table.columns.size()) + " columns.");
    jet::Row checked;
    checked.reserve(row.size());
    for (std::size_t i = 0; i < row.size(); ++i)
        checked.push_back(ValueCheck(table, table.columns[i]).Checked(row[i]));
    CheckKeys(table, checked);
    return checked;
}

}  // namespace tendo
