#include "platform/office/xls_reader.h"

#include <bit>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/office/biff_record.h"
#include "platform/office/cell_format.h"
#include "platform/office/compound_file.h"
#include "platform/office/office_error.h"

namespace tendo {

namespace {

constexpr std::string_view Protected =
    "it is protected with a password; save it without one and try again";
constexpr std::string_view TooOld =
    "it was saved by a program of 1995 or before; save it as an Excel 97-2003 workbook and try "
    "again";
constexpr std::string_view NoSheet = "it has no sheet with cells";
constexpr unsigned Version8 = 0x0600;

/// The number of the short form: 30 bits of a whole number or of a double, perhaps in hundredths.
double NumberOfRk(std::uint32_t rk) {
    const double value = (rk & 2) != 0
                             ? static_cast<double>(static_cast<std::int32_t>(rk) >> 2)
                             : std::bit_cast<double>(std::uint64_t{rk & ~std::uint32_t{3}} << 32);
    return (rk & 1) != 0 ? value / 100 : value;
}

/// Reads the globals, then the records of one sheet.
class XlsReader {
  public:
    XlsReader(std::string_view stream, std::string_view name)
        : stream_(stream, name), name_(name) {}

    Workbook Read() {
        ReadGlobals();
        if (!sheetAt_) ThrowNotReadable(name_, NoSheet);
        ReadSheet(*sheetAt_);
        workbook_.kind = WorkbookKind::Xls;
        workbook_.cells.Sort();
        return std::move(workbook_);
    }

  private:
    struct Place {
        std::size_t row;
        std::size_t column;
        unsigned format;
    };

    void ExpectBof() {
        if (stream_.AtEnd()) ThrowDamage(name_, "the end", "it ends early");
        BiffRecord record = stream_.Next();
        if (record.type != biff::Bof) record.Fail("a sheet should begin here");
        if (record.U16() != Version8) ThrowNotReadable(name_, TooOld);
    }

    void ReadGlobals() {
        ExpectBof();
        while (!stream_.AtEnd()) {
            BiffRecord record = stream_.Next();
            if (record.type == biff::Eof) return;
            TakeGlobal(record);
        }
    }

    void TakeGlobal(BiffRecord& record) {
        switch (record.type) {
            case biff::FilePass:
                ThrowNotReadable(name_, Protected);
            case biff::DateMode:
                from1904_ = record.U16() != 0;
                break;
            case biff::BoundSheet:
                TakeSheet(record);
                break;
            case biff::Format: {
                const unsigned id = record.U16();
                dateFormats_[id] = IsDateFormat(record.Text(record.U16()));
                break;
            }
            case biff::Xf:
                record.Skip(2);
                formatOfCell_.push_back(record.U16());
                break;
            case biff::Sst:
                TakeSharedTexts(record);
                break;
            default:
                break;
        }
    }

    /// Keeps the first sheet of cells that isn't hidden, else the first hidden one.
    void TakeSheet(BiffRecord& record) {
        const std::size_t at = record.U32();
        const bool hidden = (record.U8() & 3) != 0;
        const bool cells = record.U8() == 0;
        if (!cells || (sheetAt_ && (hidden || !sheetHidden_))) return;
        sheetAt_ = at;
        sheetHidden_ = hidden;
        workbook_.sheetName = record.Text(record.U8());
    }

    void TakeSharedTexts(BiffRecord& record) {
        record.Skip(4);
        const std::size_t count = record.U32();
        for (std::size_t i = 0; i < count && record.Left() > 0; ++i)
            sharedTexts_.push_back(workbook_.cells.AddText(record.Text(record.U16())));
    }

    void ReadSheet(std::size_t at) {
        stream_.Seek(at);
        ExpectBof();
        int depth = 1;  // charts within the sheet have a beginning and an end of their own
        while (depth > 0) {
            if (stream_.AtEnd()) ThrowDamage(name_, "the end", "its sheet ends early");
            BiffRecord record = stream_.Next();
            if (record.type == biff::Bof) ++depth;
            if (record.type == biff::Eof) --depth;
            if (depth == 1) TakeCell(record);
        }
    }

    void TakeCell(BiffRecord& record) {
        switch (record.type) {
            case biff::LabelSst:
                TakeShared(record);
                break;
            case biff::Label:
            case biff::RString: {
                const Place place = TakePlace(record);
                PutText(place, record.Text(record.U16()));
                break;
            }
            case biff::Number: {
                const Place place = TakePlace(record);
                PutNumber(place, record.Double());
                break;
            }
            case biff::Rk: {
                const Place place = TakePlace(record);
                PutNumber(place, NumberOfRk(record.U32()));
                break;
            }
            case biff::MulRk:
                TakeNumbers(record);
                break;
            case biff::BoolErr: {
                const Place place = TakePlace(record);
                const unsigned value = record.U8();
                PutBooleanOrError(place, value, record.U8() != 0);
                break;
            }
            case biff::Formula:
                TakeFormula(record);
                break;
            case biff::String:
                if (textResult_) PutText(*textResult_, record.Text(record.U16()));
                textResult_.reset();
                break;
            default:
                break;
        }
    }

    static Place TakePlace(BiffRecord& record) {
        Place place{};
        place.row = record.U16();
        place.column = record.U16();
        place.format = record.U16();
        return place;
    }

    void TakeShared(BiffRecord& record) {
        const Place place = TakePlace(record);
        const std::size_t index = record.U32();
        if (index >= sharedTexts_.size()) record.Fail("its text is missing");
        const TextPlace text = sharedTexts_[index];
        workbook_.cells.Put(place.row, place.column,
                            text.length == 0 ? CellKind::Empty : CellKind::Text, 0, text);
    }

    void TakeNumbers(BiffRecord& record) {
        Place place{};
        place.row = record.U16();
        place.column = record.U16();
        // Pairs of format and number, and the last column at the end.
        while (record.Left() >= 8) {
            place.format = record.U16();
            PutNumber(place, NumberOfRk(record.U32()));
            ++place.column;
        }
    }

    void TakeFormula(BiffRecord& record) {
        const Place place = TakePlace(record);
        const std::uint32_t low = record.U32();
        const std::uint32_t high = record.U32();
        if ((high >> 16) != 0xFFFF) {
            PutNumber(place, std::bit_cast<double>(low | (std::uint64_t{high} << 32)));
            return;
        }
        const unsigned kind = low & 0xFF;
        if (kind == 0) textResult_ = place;  // in a record behind this one
        if (kind == 1 || kind == 2) PutBooleanOrError(place, (low >> 16) & 0xFF, kind == 2);
    }

    void PutText(const Place& place, std::string_view text) {
        workbook_.cells.PutText(place.row, place.column, text);
    }

    void PutBooleanOrError(const Place& place, unsigned value, bool error) {
        CellGrid& cells = workbook_.cells;
        if (error)
            cells.Put(place.row, place.column, CellKind::Error, 0, ErrorText(value));
        else
            cells.Put(place.row, place.column, CellKind::Boolean, value != 0 ? 1 : 0);
    }

    TextPlace ErrorText(unsigned value) {
        const auto [found, isNew] = errorTexts_.try_emplace(value);
        if (isNew) found->second = workbook_.cells.AddText(ErrorName(value));
        return found->second;
    }

    void PutNumber(const Place& place, double number) {
        if (!std::isfinite(number)) {
            workbook_.cells.Put(place.row, place.column, CellKind::Error, 0, ErrorText(0x24));
            return;
        }
        const bool date = IsDate(place.format);
        workbook_.cells.Put(place.row, place.column, date ? CellKind::Date : CellKind::Number,
                            date ? DateSerial(number, from1904_) : number);
    }

    bool IsDate(unsigned cellFormat) const {
        if (cellFormat >= formatOfCell_.size()) return false;
        const unsigned format = formatOfCell_[cellFormat];
        const auto own = dateFormats_.find(format);
        return own == dateFormats_.end() ? IsBuiltInDateFormat(format) : own->second;
    }

    BiffStream stream_;
    std::string_view name_;
    Workbook workbook_;
    bool from1904_ = false;
    std::optional<std::size_t> sheetAt_;
    bool sheetHidden_ = false;
    std::vector<unsigned> formatOfCell_;
    std::unordered_map<unsigned, bool> dateFormats_;
    std::vector<TextPlace> sharedTexts_;
    std::unordered_map<unsigned, TextPlace> errorTexts_;
    std::optional<Place> textResult_;
};

}  // namespace

Workbook ReadXlsStream(std::string_view stream, std::string_view name) {
    return XlsReader(stream, name).Read();
}

Workbook ReadXls(std::string_view bytes, std::string_view name) {
    const CompoundFile file(bytes, name);
    if (file.Stream("EncryptedPackage")) ThrowNotReadable(name, Protected);
    if (const auto stream = file.Stream("Workbook")) return ReadXlsStream(*stream, name);
    if (file.Stream("Book")) ThrowNotReadable(name, TooOld);
    ThrowNotReadable(name, "it is no workbook");
}

}  // namespace tendo
