#include "platform/jet/index_key.h"

#include <algorithm>
#include <cstring>

#include "platform/jet/general_order.h"
#include "platform/jet/value_text.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

void AppendBigEndian(std::uint64_t value, int bytes, std::string& key) {
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        key += static_cast<char>(value >> shift & 0xff);
}

/// Whole numbers: big-endian with the top bit flipped.
void AppendWhole(std::int64_t value, int bytes, std::string& key) {
    AppendBigEndian(static_cast<std::uint64_t>(value) ^ std::uint64_t{1} << (8 * bytes - 1), bytes,
                    key);
}

/// Floating numbers: big-endian, negative ones inverted, others with the top bit set.
void AppendFloating(double value, int bytes, std::string& key) {
    std::uint64_t bits = 0;
    if (bytes == 4) {
        const auto single = static_cast<float>(value);
        std::uint32_t word = 0;
        std::memcpy(&word, &single, sizeof word);
        bits = word;
    } else {
        std::memcpy(&bits, &value, sizeof bits);
    }
    const std::uint64_t top = std::uint64_t{1} << (8 * bytes - 1);
    AppendBigEndian(bits & top ? ~bits : bits | top, bytes, key);
}

/// GUID and binary: pieces of eight bytes, each followed by 09, the last by its length.
void AppendPieces(std::string_view bytes, std::string& key) {
    while (true) {
        const std::string_view piece = bytes.substr(0, 8);
        bytes.remove_prefix(piece.size());
        key += piece;
        key.append(8 - piece.size(), '\0');
        key += static_cast<char>(bytes.empty() ? piece.size() : 9);
        if (bytes.empty()) return;
    }
}

std::string PrintedGuid(std::string_view text) {
    std::string stored;
    if (!GuidBytes(text, stored))
        throw RuntimeError(error_number::UnrecognizedFormat, "a GUID is broken");
    std::reverse(stored.begin(), stored.begin() + 4);
    std::reverse(stored.begin() + 4, stored.begin() + 6);
    std::reverse(stored.begin() + 6, stored.begin() + 8);
    return stored;
}

void AppendNumeric(std::string_view text, int scale, std::string& key) {
    std::string stored;
    if (!NumericBytes(text, scale, stored))
        throw RuntimeError(error_number::UnrecognizedFormat, "a number is out of range");
    const bool negative = stored[0] != 0;
    key += static_cast<char>(negative ? 0 : 0xff);
    for (std::size_t part = 0; part < 4; ++part)
        for (std::size_t i = 4; i-- > 0;) {
            const char byte = stored[1 + 4 * part + i];
            key += negative ? static_cast<char>(~byte) : byte;
        }
}

/// The value's bytes, ascending.
void AppendValue(const ValueView& value, const Column& column, std::string& key) {
    switch (column.type) {
        case ColumnType::Boolean:
            key += std::get<bool>(value) ? '\0' : '\xff';
            return;
        case ColumnType::Byte:
            key += static_cast<char>(std::get<std::int64_t>(value));
            return;
        case ColumnType::Integer:
            return AppendWhole(std::get<std::int64_t>(value), 2, key);
        case ColumnType::Long:
            return AppendWhole(std::get<std::int64_t>(value), 4, key);
        case ColumnType::Currency:
            return AppendWhole(std::get<std::int64_t>(value), 8, key);
        case ColumnType::Single:
            return AppendFloating(std::get<double>(value), 4, key);
        case ColumnType::Double:
        case ColumnType::Date:
            return AppendFloating(std::get<double>(value), 8, key);
        case ColumnType::Text:
        case ColumnType::Memo:
            key += GeneralSortKey(std::get<std::string_view>(value));
            return;
        case ColumnType::Guid:
            return AppendPieces(PrintedGuid(std::get<std::string_view>(value)), key);
        case ColumnType::Binary:
            return AppendPieces(std::get<std::string_view>(value), key);
        case ColumnType::Numeric:
            return AppendNumeric(std::get<std::string_view>(value), column.scale, key);
        default:
            throw RuntimeError(error_number::UnrecognizedFormat,
                               "a column of this type can't be indexed");
    }
}

/// The marks behind whole pieces of a GUID or of bytes are not inverted in a descending key.
void RestorePieceMarks(std::size_t start, std::string& key) {
    for (std::size_t at = start + 1 + 8; at + 1 < key.size(); at += 9)
        key[at] = 9;
}

bool IsInPieces(ColumnType type) {
    return type == ColumnType::Guid || type == ColumnType::Binary;
}
bool IsText(ColumnType type) {
    return type == ColumnType::Text || type == ColumnType::Memo;
}

}  // namespace

void AppendIndexKey(const ValueView& value, const Column& column, bool descending,
                    std::string& key) {
    const std::size_t start = key.size();
    if (std::holds_alternative<std::monostate>(value) && column.type == ColumnType::Boolean) {
        key += "\x7f\xff";  // a truth value is never null: not given, it counts as false
    } else if (std::holds_alternative<std::monostate>(value)) {
        key += '\0';
    } else {
        key += '\x7f';
        AppendValue(value, column, key);
    }
    if (!descending) return;
    for (std::size_t i = start; i < key.size(); ++i)
        key[i] = static_cast<char>(~key[i]);
    if (IsInPieces(column.type)) RestorePieceMarks(start, key);
    if (IsText(column.type) && key.size() > start + 1) key += '\0';
}

}  // namespace tendo::jet
