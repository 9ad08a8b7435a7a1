#include "platform/jet/row_reader.h"

#include <algorithm>
#include <cstring>

#include "platform/jet/stored_text.h"
#include "platform/jet/value_text.h"

namespace tendo::jet {

/// The parts of one row.
struct RowReader::Parts {
    std::size_t stored = 0;  // columns stored
    std::string_view mask;
    std::string_view head;  // everything before the variable data
};

namespace {

constexpr std::size_t LargestLongValue = std::size_t{64} << 20;

constexpr std::size_t LongFieldSize = 12;
constexpr std::size_t ChainHead = 4;  // the pointer to the next piece
constexpr std::size_t KeptScratch = std::size_t{1} << 16;
constexpr double FirstDate = -657434, BehindLastDate = 2958466;  // the years 100 to 9999

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
    : file_(file),
      table_(table),
      values_(table.columns.size()),
      texts_(TextRoom(2 * file.Offsets().page) + table.columns.size() * TextRoom(0)),
      longBytesLeft_(file.Size()) {}

std::string& RowReader::LongScratch() {
    if (longsUsed_ == longs_.size()) longs_.emplace_back();
    std::string& text = longs_[longsUsed_++];
    text.clear();
    if (text.capacity() > KeptScratch) text.shrink_to_fit();
    return text;
}

/// Reads the starts of the variable columns from the end of the row; returns where their table
/// begins.
std::size_t RowReader::ReadOffsets(std::string_view row, std::size_t tail) {
    const bool jet4 = file_.Offsets().jet4;
    const std::size_t width = jet4 ? 2 : 1;
    if (tail < 2 * width) Damaged("a row is cut short");
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
    return tail;
}

RowReader::Parts RowReader::PartsOf(std::string_view row) {
    const bool jet4 = file_.Offsets().jet4;
    Parts parts;
    parts.stored = jet4 ? Word(row, 0) : Byte(row, 0);
    if (parts.stored > table_.maximumColumns) Damaged("a row claims too many columns");
    const std::size_t maskSize = (parts.stored + 7) / 8;
    if (row.size() < (jet4 ? 2 : 1) + maskSize) Damaged("a row is cut short");
    const std::size_t tail = row.size() - maskSize;
    parts.mask = row.substr(tail);
    starts_.clear();
    if (table_.variableColumns == 0)
        starts_.push_back(tail);
    else
        ReadOffsets(row, tail);
    parts.head = row.substr(0, starts_.front());
    return parts;
}

std::span<const ValueView> RowReader::Read(std::string_view row) {
    textsUsed_ = longsUsed_ = 0;
    const Parts parts = PartsOf(row);
    const std::size_t headSize = file_.Offsets().jet4 ? 2 : 1;
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
        const StoredColumn& column = table_.columns[i];
        const bool bit =
            column.number < parts.stored &&
            (static_cast<unsigned char>(parts.mask[column.number / 8]) >> (column.number % 8) & 1);
        if (column.column.type == ColumnType::Boolean) {
            values_[i] = bit;
        } else if (!bit) {
            values_[i] = std::monostate{};
        } else if (column.IsFixed()) {
            values_[i] =
                ValueOf(column, Part(parts.head, headSize + column.offset, column.FixedBytes()));
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
    double real = 0;
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
        case ColumnType::Date:
            std::memcpy(&real, Part(bytes, 0, 8).data(), sizeof real);
            // What is no date of the calendar reads as null, so that nobody computes with it.
            if (column.column.type == ColumnType::Date &&
                !(real >= FirstDate && real < BehindLastDate))
                return std::monostate{};
            return real;
        case ColumnType::Text:
            return TextOf(bytes);
        case ColumnType::Memo:
            return MemoOf(bytes);
        case ColumnType::Ole:
            return LongValue(bytes);
        case ColumnType::Guid:
            return Kept(GuidText(Part(bytes, 0, 16)));
        case ColumnType::Numeric:
            return Kept(NumericText(Part(bytes, 0, 17), column.column.scale));
        default:
            return bytes;
    }
}

/// A text put behind those of the row; the room was made for the longest row.
std::string_view RowReader::TextOf(std::string_view bytes) {
    char* const start = texts_.data() + textsUsed_;
    char* const end = file_.Offsets().jet4 ? PutJet4Text(bytes, start) : PutJet3Text(bytes, start);
    const auto size = static_cast<std::size_t>(end - start);
    textsUsed_ += size;
    return {start, size};
}

std::string_view RowReader::Kept(std::string_view text) {
    std::string& kept = LongScratch();
    kept = text;
    return kept;
}

std::string_view RowReader::MemoOf(std::string_view field) {
    const std::string_view bytes = LongValue(field);
    std::string& text = LongScratch();
    text.resize(TextRoom(bytes.size()));
    char* const end =
        file_.Offsets().jet4 ? PutJet4Text(bytes, text.data()) : PutJet3Text(bytes, text.data());
    return {text.data(), static_cast<std::size_t>(end - text.data())};
}

/// A row on a long value page.
std::string_view RowReader::LongRow(std::uint32_t pointer) {
    const std::string_view page = file_.Page(pointer >> 8, 1);
    const PageFile::RowBytes row = file_.Row(page, pointer & 0xff);
    if (page.substr(4, 4) != "LVAL" || row.flags != 0)
        Damaged("a long value is not on a page for long values");
    if (row.bytes.size() > longBytesLeft_) Damaged("long values share their pages");
    longBytesLeft_ -= row.bytes.size();
    if (longRows_) longRows_->push_back(pointer);
    return row.bytes;
}

std::string_view RowReader::LongValue(std::string_view field) {
    const std::uint32_t first = Dword(Part(field, 0, LongFieldSize), 0);
    const std::size_t length = first & 0x3fffffff;
    std::uint32_t pointer = Dword(field, 4);
    switch (first >> 30) {
        case 2:
            return Part(field, LongFieldSize, length);
        case 1:
            return Part(LongRow(pointer), 0, length);
        case 0:
            break;
        default:
            Damaged("a long value is of an unknown kind");
    }
    if (length > LargestLongValue) Damaged("a long value claims too many bytes");
    std::string& value = LongScratch();
    while (value.size() < length) {
        if (pointer == 0) Damaged("the chain of a long value is broken");
        const std::string_view row = LongRow(pointer);
        if (row.size() <= ChainHead) Damaged("the chain of a long value is broken");
        value += row.substr(ChainHead, length - value.size());
        pointer = Dword(row, 0);
    }
    return value;
}

}  // namespace tendo::jet
