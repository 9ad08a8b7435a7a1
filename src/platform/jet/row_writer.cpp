#include "platform/jet/row_writer.h"

#include <cstring>

#include "platform/jet/column_size.h"
#include "platform/jet/value_text.h"
#include "platform/text/code_page.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::size_t LongestRow = 4060;
constexpr std::size_t LongestInline = 64;
constexpr std::size_t LongestSingle = 4076;
constexpr std::size_t LongestPiece = 4072;
constexpr int RecordTooLarge = 3047;
constexpr std::string_view CompressedMark = "\xff\xfe";

template <class Number>
std::string Raw(Number value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

[[noreturn]] void WrongType(const Column& column) {
    throw RuntimeError(error_number::TypeMismatch,
                       "a value of the wrong type for the column " + column.name);
}

std::string FixedBytes(const ValueView& value, const Column& column) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        switch (column.type) {
            case ColumnType::Byte:
                return Raw(static_cast<std::uint8_t>(*whole));
            case ColumnType::Integer:
                return Raw(static_cast<std::int16_t>(*whole));
            case ColumnType::Long:
                return Raw(static_cast<std::int32_t>(*whole));
            case ColumnType::Currency:
                return Raw(*whole);
            default:
                WrongType(column);
        }
    }
    if (const auto* number = std::get_if<double>(&value)) {
        if (column.type == ColumnType::Single) return Raw(static_cast<float>(*number));
        if (column.type == ColumnType::Double || column.type == ColumnType::Date)
            return Raw(*number);
        WrongType(column);
    }
    const auto* text = std::get_if<std::string_view>(&value);
    std::string bytes;
    if (text && column.type == ColumnType::Guid && GuidBytes(*text, bytes)) return bytes;
    if (text && column.type == ColumnType::Numeric && NumericBytes(*text, column.scale, bytes))
        return bytes;
    WrongType(column);
}

/// A plain text that begins with U+FEFF has the bytes of the mark of compressed text. It is stored
/// as compressed, switched to plain mode at once; if a character in it would switch back (its low
/// byte is zero), the invisible U+FEFF is left out.
std::string Unmistaken(std::string utf16) {
    if (!utf16.starts_with(CompressedMark)) return utf16;
    for (std::size_t at = 0; at < utf16.size(); at += 2)
        if (utf16[at] == '\0') return Unmistaken(utf16.substr(CompressedMark.size()));
    return std::string(CompressedMark) + '\0' + utf16;
}

/// The bytes of a Text or Binary value; RuntimeError 3163 when there are more than the column
/// takes.
std::string Fitting(std::string bytes, const PlannedColumn& planned) {
    if (bytes.size() > planned.bytes)
        throw RuntimeError(error_number::FieldTooSmall,
                           "the value is too long for the column " + planned.column.name);
    return planned.column.type == ColumnType::Text ? Unmistaken(std::move(bytes)) : bytes;
}

std::string VariableBytes(const ValueView& value, const PlannedColumn& planned,
                          LongValueWriter* longValues) {
    const auto* text = std::get_if<std::string_view>(&value);
    if (!text) WrongType(planned.column);
    switch (planned.column.type) {
        case ColumnType::Text:
            return Fitting(ToUtf16(*text), planned);
        case ColumnType::Memo:
            return longValues->Write(Unmistaken(ToUtf16(*text)));
        case ColumnType::Ole:
            return longValues->Write(*text);
        case ColumnType::Binary:
            return Fitting(std::string(*text), planned);
        default:
            WrongType(planned.column);
    }
}

bool IsNull(const ValueView& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// Mask bit of a value: a Boolean's is the value itself.
bool MaskBit(const ValueView& value) {
    const auto* flag = std::get_if<bool>(&value);
    return flag ? *flag : !IsNull(value);
}

}  // namespace

void PlaceColumns(std::vector<PlannedColumn>& columns) {
    std::uint16_t offset = 0, variable = 0;
    for (PlannedColumn& column : columns) {
        column.bytes = SizeOfType(column.column.type, column.column.size);
        column.variable = variable;
        if (!column.IsFixed()) {
            ++variable;
        } else if (column.column.type != ColumnType::Boolean) {
            column.offset = offset;
            offset = static_cast<std::uint16_t>(offset + column.bytes);
        }
    }
}

std::uint32_t LongValueWriter::WriteRow(std::string_view row) {
    if (number_ == 0 || !page_.HasRoom(row.size())) {
        Finish();
        page_ = DataPage(Owner);
        number_ = file_->AddPage();
        pages_.push_back(number_);
    }
    return number_ << 8 | page_.Add(row);
}

void LongValueWriter::Finish() {
    if (number_ != 0) file_->Put(number_, 0, page_.Bytes());
    number_ = 0;
}

std::string LongValueWriter::Write(std::string_view bytes) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    std::string field(12, '\0');
    if (bytes.size() <= LongestInline) {
        PutDword(field, 0, length | 0x80000000U);
        return field.append(bytes);
    }
    if (bytes.size() <= LongestSingle) {
        PutDword(field, 0, length | 0x40000000U);
        PutDword(field, 4, WriteRow(bytes));
        return field;
    }
    // The chain is written from its end, so that each piece knows the next.
    std::uint32_t next = 0;
    for (std::size_t at = (bytes.size() - 1) / LongestPiece * LongestPiece;; at -= LongestPiece) {
        std::string row;
        AppendDword(row, next);
        row += bytes.substr(at, LongestPiece);
        Finish();
        next = WriteRow(row);
        if (at == 0) break;
    }
    Finish();
    PutDword(field, 0, length);
    PutDword(field, 4, next);
    return field;
}

std::string RowBytes(const std::vector<PlannedColumn>& columns, std::span<const ValueView> values,
                     std::vector<LongValueWriter>& longValues, const std::string& table) {
    std::size_t fixedSize = 0, variableCount = 0;
    for (const PlannedColumn& column : columns) {
        if (column.IsFixed() && column.column.type != ColumnType::Boolean)
            fixedSize = std::max<std::size_t>(fixedSize, column.offset + std::size_t{column.bytes});
        if (!column.IsFixed()) ++variableCount;
    }
    std::string row;
    AppendWord(row, static_cast<std::uint16_t>(columns.size()));
    row.append(fixedSize, '\0');
    std::string mask((columns.size() + 7) / 8, '\0');
    std::vector<std::uint16_t> starts;
    std::size_t longAt = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const PlannedColumn& column = columns[i];
        LongValueWriter* writer = column.IsLong() ? &longValues[longAt++] : nullptr;
        if (MaskBit(values[i]))
            mask[column.number / 8] =
                static_cast<char>(mask[column.number / 8] | 1 << column.number % 8);
        if (!column.IsFixed()) {
            starts.push_back(static_cast<std::uint16_t>(row.size()));
            if (!IsNull(values[i])) row += VariableBytes(values[i], column, writer);
        } else if (column.column.type != ColumnType::Boolean && !IsNull(values[i])) {
            const std::string bytes = FixedBytes(values[i], column.column);
            std::memcpy(row.data() + 2 + column.offset, bytes.data(), bytes.size());
        }
        if (row.size() > LongestRow) break;
    }
    if (variableCount > 0 && starts.size() == variableCount) {
        AppendWord(row, static_cast<std::uint16_t>(row.size()));
        for (std::size_t i = starts.size(); i-- > 0;)
            AppendWord(row, starts[i]);
        AppendWord(row, static_cast<std::uint16_t>(variableCount));
    }
    row += mask;
    if (row.size() > LongestRow)
        throw RuntimeError(RecordTooLarge, "a record of the table " + table +
                                               " is too large: its texts do not fit together");
    return row;
}

}  // namespace tendo::jet
