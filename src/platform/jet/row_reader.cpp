#include "platform/jet/row_reader.h"

#include <array>
#include <cstring>
#include <set>

#include "platform/jet/value_text.h"
#include "platform/text/code_page.h"

namespace tendo::jet {

/// The parts of one row.
struct RowReader::Parts {
    std::size_t stored = 0;  // columns stored
    std::string_view mask;
    std::string_view head;  // everything before the variable data
    std::string_view row;
};

namespace {

constexpr std::size_t LargestLongValue = std::size_t{64} << 20;

/// Bytes of a fixed column by its type; 0 for types that are variable or of declared size.
std::size_t FixedSize(ColumnType type) {
    switch (type) {
        case ColumnType::Byte:
            return 1;
        case ColumnType::Integer:
            return 2;
        case ColumnType::Long:
        case ColumnType::Single:
            return 4;
        case ColumnType::Currency:
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        case ColumnType::Guid:
            return 16;
        case ColumnType::Numeric:
            return 17;
        default:
            return 0;
    }
}

/// Offsets of the variable columns in a Jet 3 row: low bytes, with a table of the columns from
/// which on 256 more count.
void ReadShortOffsets(std::string_view row, std::size_t count, std::size_t tail,
                      std::vector<std::size_t>& starts) {
    const std::size_t jumps = (row.size() - 1) / 256;
    if (tail < jumps + count + 1) Damaged("a row's offsets lie outside it");
    const std::size_t table = tail - jumps;  // jump table from here to `tail`
    std::size_t more = 0, jump = 0;
    for (std::size_t i = 0; i <= count; ++i) {
        while (jump < jumps && Byte(row, tail - 1 - jump) == i) {
            more += 256;
            ++jump;
        }
        starts.push_back(Byte(row, table - 1 - i) + more);
    }
}

}  // namespace

RowReader::RowReader(const PageFile& file, const StoredTable& table)
    : file_(file), table_(table), values_(table.columns.size()) {}

std::string& RowReader::Scratch() {
    if (used_ == scratch_.size()) scratch_.emplace_back();
    std::string& text = scratch_[used_++];
    text.clear();
    return text;
}

RowReader::Parts RowReader::PartsOf(std::string_view row) {
    const bool jet4 = file_.Offsets().jet4;
    const std::size_t width = jet4 ? 2 : 1;
    Parts parts;
    parts.row = row;
    parts.stored = jet4 ? Word(row, 0) : Byte(row, 0);
    if (parts.stored > table_.maximumColumns) Damaged("a row claims too many columns");
    const std::size_t maskSize = (parts.stored + 7) / 8;
    if (row.size() < width + maskSize) Damaged("a row is cut short");
    std::size_t tail = row.size() - maskSize;
    parts.mask = row.substr(tail);
    starts_.clear();
    if (table_.variableColumns == 0) {
        starts_.push_back(tail);
    } else {
        if (tail < width + width) Damaged("a row is cut short");
        tail -= width;
        const std::size_t count = jet4 ? Word(row, tail) : Byte(row, tail);
        if (count > table_.variableColumns) Damaged("a row claims too many variable columns");
        if (jet4) {
            if (tail < 2 + 2 * (count + 1)) Damaged("a row's offsets lie outside it");
            for (std::size_t i = 0; i <= count; ++i)
                starts_.push_back(Word(row, tail - 2 - 2 * i));
            tail -= 2 * (count + 1);
        } else {
            ReadShortOffsets(row, count, tail, starts_);
            tail -= (row.size() - 1) / 256 + count + 1;
        }
        std::size_t before = width;
        for (const std::size_t start : starts_) {
            if (start < before || start > tail) Damaged("a row's offsets are out of order");
            before = start;
        }
    }
    parts.head = row.substr(0, starts_.front());
    return parts;
}

std::span<const ValueView> RowReader::Read(std::string_view row) {
    used_ = 0;
    const Parts parts = PartsOf(row);
    const std::size_t headSize = file_.Offsets().jet4 ? 2 : 1;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
        const StoredColumn& column = table_.columns[i];
        const bool present = column.number < parts.stored;
        const bool bit =
            present &&
            (static_cast<unsigned char>(parts.mask[column.number / 8]) >> (column.number % 8) & 1);
        if (column.column.type == ColumnType::Boolean) {
            values_[i] = bit;
        } else if (!bit) {
            values_[i] = std::monostate{};
        } else if (column.IsFixed()) {
            const std::size_t size = FixedSize(column.column.type);
            values_[i] = ValueOf(
                column, Part(parts.head, headSize + column.offset, size ? size : column.bytes));
        } else if (column.variable + std::size_t{1} >= starts_.size()) {
            values_[i] = std::monostate{};
        } else {
            const std::size_t start = starts_[column.variable];
            values_[i] = ValueOf(column, row.substr(start, starts_[column.variable + 1U] - start));
        }
    }
    return values_;
}

ValueView RowReader::ValueOf(const StoredColumn& column, std::string_view bytes) {
    float single = 0;
    switch (column.column.type) {
        case ColumnType::Byte:
            return std::int64_t{Byte(bytes, 0)};
        case ColumnType::Integer:
            return std::int64_t{static_cast<std::int16_t>(Word(bytes, 0))};
        case ColumnType::Long:
            return std::int64_t{static_cast<std::int32_t>(Dword(bytes, 0))};
        case ColumnType::Currency:
            return static_cast<std::int64_t>(Qword(bytes, 0));
        case ColumnType::Single:
            std::memcpy(&single, Part(bytes, 0, 4).data(), sizeof single);
            return static_cast<double>(single);
        case ColumnType::Double:
        case ColumnType::Date: {
            double value = 0;
            std::memcpy(&value, Part(bytes, 0, 8).data(), sizeof value);
            return value;
        }
        case ColumnType::Text:
            return TextOf(bytes);
        case ColumnType::Memo:
            return TextOf(LongValue(bytes));
        case ColumnType::Ole:
            return LongValue(bytes);
        case ColumnType::Guid:
            return std::string_view(Scratch() = GuidText(Part(bytes, 0, 16)));
        case ColumnType::Numeric:
            return std::string_view(Scratch() =
                                        NumericText(Part(bytes, 0, 17), column.column.scale));
        default:
            return bytes;
    }
}

std::string_view RowReader::TextOf(std::string_view bytes) {
    std::string& text = Scratch();
    if (!file_.Offsets().jet4)
        text = FromWindows1252(bytes);
    else
        AppendJetText(bytes, text);
    return text;
}

std::string_view RowReader::LongValue(std::string_view field) {
    const std::uint32_t first = Dword(Part(field, 0, 12), 0);
    const std::size_t length = first & 0x3fffffff;
    std::uint32_t pointer = Dword(field, 4);
    switch (first >> 30) {
        case 2:
            return Part(field, 12, length);
        case 1: {
            const std::string_view row = file_.RowAt(pointer);
            return Part(row, 0, length);
        }
        case 0:
            break;
        default:
            Damaged("a long value is of an unknown kind");
    }
    if (length > LargestLongValue) Damaged("a long value claims too many bytes");
    std::string& value = Scratch();
    for (std::size_t steps = 0; value.size() < length; ++steps) {
        if (pointer == 0 || steps > std::size_t{4} * file_.PageCount())
            Damaged("the chain of a long value is broken");
        const std::string_view row = file_.RowAt(pointer);
        if (row.size() <= 4) Damaged("the chain of a long value is broken");
        value += row.substr(4, length - value.size());
        pointer = Dword(row, 0);
    }
    return value;
}

}  // namespace tendo::jet
