#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tendo::jet {

/// Column types by their number in the file.
enum class ColumnType : std::uint8_t {
    Boolean = 1,
    Byte = 2,
    Integer = 3,   // 16 bits
    Long = 4,      // 32 bits
    Currency = 5,  // 64 bits, ten-thousandths
    Single = 6,
    Double = 7,
    Date = 8,  // days since 30 December 1899
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16
};

/// One column as defined in a file.
struct Column {
    std::string name;  // UTF-8
    ColumnType type = ColumnType::Text;
    int size = 0;  // characters of a Text column (1 to 255), bytes of a Binary one; else 0
    bool allowZeroLength = true;
    bool required = false;
    bool autoNumber = false;
    int precision = 0;  // Numeric
    int scale = 0;      // Numeric
};

/// An index over columns of its table.
struct Index {
    std::string name;
    std::vector<std::string> columns;
    std::vector<bool> descending;  // as many as columns; empty: all ascending
    bool unique = false;
    bool primary = false;
    bool ignoreNulls = false;
    bool required = false;
};

struct TableDefinition {
    std::string name;
    std::vector<Column> columns;  // in their order as shown
    std::vector<Index> indexes;
};

/// A value: null, Boolean, whole number (Byte, Integer, Long; Currency in ten-thousandths),
/// floating number (Single, Double, Date), or text and bytes (Text and Memo as UTF-8; Binary and
/// Ole as bytes; Guid as
/// "{...}" in capitals; Numeric as decimal text). The views live until the next row.
using ValueView = std::variant<std::monostate, bool, std::int64_t, double, std::string_view>;
using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string>;
using Row = std::vector<Value>;

}  // namespace tendo::jet
