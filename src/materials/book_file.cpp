#include "materials/book_file.h"

#include <array>
#include <vector>

#include "platform/files/paths.h"
#include "platform/jet/jet_reader.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr std::array<const char*, 2> ownTables = {"Materials", "Categories"};

bool IsOwnTable(std::string_view name) {
    for (const char* own : ownTables)
        if (EqualsNoCase(name, own)) return true;
    return false;
}

/// A running sum over bytes that tells one content from another (FNV-1a, 64 bits).
class Digest {
  public:
    void Add(std::string_view bytes) {
        for (const char byte : bytes)
            value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001b3ULL;
    }
    template <class Number>
    void AddNumber(Number number) {
        Add({reinterpret_cast<const char*>(&number), sizeof number});
    }
    void Add(const jet::ValueView& value) {
        AddNumber(value.index());
        if (const auto* text = std::get_if<std::string_view>(&value)) {
            AddNumber(text->size());
            Add(*text);
        } else if (const auto* real = std::get_if<double>(&value)) {
            AddNumber(*real);
        } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
            AddNumber(*whole);
        } else if (const auto* flag = std::get_if<bool>(&value)) {
            AddNumber(*flag);
        }
    }
    std::uint64_t Value() const { return value_; }

  private:
    std::uint64_t value_ = 0xcbf29ce484222325ULL;
};

/// Nothing when the file can't be read.
std::optional<std::uint64_t> DigestOfBook(const std::string& path) {
    try {
        const jet::Reader reader = jet::Reader::OpenFile(path);
        Digest digest;
        for (const char* table : ownTables)
            reader.ReadRows(table, [&digest](std::span<const jet::ValueView> row) {
                for (const jet::ValueView& value : row)
                    digest.Add(value);
                return true;
            });
        return digest.Value();
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::vector<jet::Row> AllRows(Database& database, const std::string& table) {
    std::vector<jet::Row> rows;
    Recordset source = database.OpenRecordset("[" + table + "]");
    const int columns = static_cast<int>(source.Fields().size());
    for (; !source.EOF_(); source.MoveNext()) {
        jet::Row& row = rows.emplace_back();
        for (int column = 0; column < columns; ++column)
            row.push_back(source.Get(column));
    }
    return rows;
}

}  // namespace

BookFile::BookFile(const std::string& path) : database_(Database::OpenDatabase(path)) {
    Remember();
}

void BookFile::Remember() {
    stamp_ = StampOf(Name());
    digest_ = DigestOfBook(Name());
}

bool BookFile::ChangedElsewhere() const {
    const auto now = StampOf(Name());
    if (!now || now == stamp_ || now == harmless_) return false;
    if (DigestOfBook(Name()) != digest_) return true;
    harmless_ = now;
    return false;
}

/// Lists, labor and footnotes may live in the same file.
void BookFile::TakeOtherTables() {
    Database onDisk = Database::OpenDatabase(Name());
    for (const std::string& table : database_.TableNames())
        if (!IsOwnTable(table)) database_.DeleteTable(table);
    for (const std::string& table : onDisk.TableNames()) {
        if (IsOwnTable(table)) continue;
        database_.AppendTable(onDisk.Table(table));
        database_.AppendRows(table, AllRows(onDisk, table));
    }
}

void BookFile::Write() {
    if (!Changed()) return;
    if (FileExists(Name()) && StampOf(Name()) != stamp_) TakeOtherTables();
    database_.Save();
    Remember();
}

}  // namespace tendo
