#include "platform/jet/index_check.h"

#include <algorithm>

#include "platform/jet/index_key.h"
#include "platform/jet/index_tree.h"
#include "platform/jet/row_reader.h"
#include "platform/jet/row_scan.h"
#include "platform/text/code_page.h"
#include "platform/text/runtime_error.h"

namespace tendo::jet {
namespace {

constexpr std::size_t PlaceSize = 4;
constexpr std::uint32_t GeneralOrder = 0x409;  // the first version of the order
constexpr std::size_t CutKey = 508;            // the engine cuts longer keys in a way of its own
constexpr std::uint8_t Unique = 1, IgnoresNulls = 2;

/// What one row's entry must be.
struct Wanted {
    std::uint32_t row = 0;
    std::string key;
    bool keyKnown = true;
    bool holdsNull = false;
    bool allNull = true;
    bool found = false;
};

/// A text whose key doesn't depend on the engine's version and the tables of its system.
bool KeyIsKnown(const PageFile& file, const StoredColumn& column, bool descending,
                const ValueView& value) {
    const ColumnType type = column.column.type;
    const auto* text = std::get_if<std::string_view>(&value);
    if (!text) return true;
    if (type == ColumnType::Numeric) return !descending && !text->starts_with('-');
    if (type == ColumnType::Guid) return true;
    if (type != ColumnType::Text && type != ColumnType::Memo)
        return type == ColumnType::Binary && !text->empty();
    if (!file.Offsets().jet4 || column.order != GeneralOrder) return false;
    const bool sharpS = text->find("\xC3\x9F") != std::string_view::npos;
    return !sharpS && FromWindows1252(ToWindows1252(*text)) == *text;
}

/// One pass over the entries of an index.
class EntryCheck {
  public:
    EntryCheck(const PageFile& file, const StoredTable& table, const RealIndex& index)
        : file_(file), table_(table), index_(index) {}

    void FindColumns() {
        for (const auto& [number, descending] : index_.columns) {
            const auto column =
                std::find_if(table_.columns.begin(), table_.columns.end(),
                             [n = number](const StoredColumn& c) { return c.number == n; });
            if (column == table_.columns.end()) Damaged("its column is not in the table");
            places_.push_back(static_cast<std::size_t>(column - table_.columns.begin()));
        }
        if (places_.empty()) Damaged("it has no column");
    }

    void ReadRows() {
        RowReader reader(file_, table_);
        ForEachRow(file_, table_, [&](std::string_view bytes, const RowPlace& place) {
            wanted_.push_back(WantedOf(reader.Read(bytes), place.row));
            return true;
        });
    }

    void Entry(std::string_view entry) {
        if (any_ && entry <= last_) outOfOrder_ = true;
        const std::string_view key = entry.substr(0, entry.size() - PlaceSize);
        Wanted* wanted = Find(entry.substr(key.size()));
        const bool same =
            any_ && key == std::string_view(last_).substr(0, last_.size() - PlaceSize);
        if ((index_.flags & Unique) && same && wanted && !wanted->holdsNull) twice_ = true;
        any_ = true;
        last_ = entry;
        if (!wanted) {
            ++withoutRow_;
        } else if (wanted->found) {
            ++repeated_;
        } else {
            wanted->found = true;
            if (wanted->keyKnown && wanted->key != key && !IsCut(key, wanted->key)) ++wrongKey_;
        }
    }

    std::vector<std::string> Faults(bool rowsRead) const {
        std::vector<std::string> faults;
        const auto tell = [&](std::size_t count, const char* what) {
            if (count > 0) faults.push_back(std::to_string(count) + what);
        };
        if (outOfOrder_) faults.push_back("its entries are out of order");
        if (!rowsRead) return faults;
        if (twice_) faults.push_back("it is unique and holds a key twice");
        tell(repeated_, " rows have two entries");
        tell(withoutRow_, " entries lead to no row");
        tell(wrongKey_, " rows stand under a wrong key");
        const auto missing = std::count_if(wanted_.begin(), wanted_.end(), [&](const Wanted& w) {
            return !w.found && !(w.allNull && (index_.flags & IgnoresNulls));
        });
        tell(static_cast<std::size_t>(missing), " rows have no entry");
        return faults;
    }

  private:
    Wanted WantedOf(std::span<const ValueView> values, std::uint32_t row) const {
        Wanted wanted;
        wanted.row = row;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const ValueView& value = values[places_[i]];
            const StoredColumn& column = table_.columns[places_[i]];
            const bool descending = index_.columns[i].second;
            const bool isNull = std::holds_alternative<std::monostate>(value);
            wanted.holdsNull = wanted.holdsNull || isNull;
            wanted.allNull = wanted.allNull && isNull;
            wanted.keyKnown = wanted.keyKnown && KeyIsKnown(file_, column, descending, value);
            if (wanted.keyKnown) AppendIndexKey(value, column.column, descending, wanted.key);
        }
        if (!wanted.keyKnown) wanted.key.clear();
        return wanted;
    }

    Wanted* Find(std::string_view place) {
        std::uint32_t row = 0;
        for (const char c : place)
            row = row << 8 | static_cast<unsigned char>(c);
        const auto at =
            std::lower_bound(wanted_.begin(), wanted_.end(), row,
                             [](const Wanted& w, std::uint32_t r) { return w.row < r; });
        return at != wanted_.end() && at->row == row ? &*at : nullptr;
    }

    static bool IsCut(std::string_view key, std::string_view whole) {
        return key.empty() ||
               (whole.size() > CutKey && key.substr(0, CutKey) == whole.substr(0, CutKey));
    }

    const PageFile& file_;
    const StoredTable& table_;
    const RealIndex& index_;
    std::vector<std::size_t> places_;  // of the key columns in the table
    std::vector<Wanted> wanted_;       // by row
    std::string last_;
    bool any_ = false, outOfOrder_ = false, twice_ = false;
    std::size_t withoutRow_ = 0, repeated_ = 0, wrongKey_ = 0;
};

}  // namespace

std::vector<std::string> CheckIndex(const PageFile& file, const StoredTable& table,
                                    const RealIndex& index, const std::vector<std::uint32_t>& pages,
                                    bool rowsWhole) {
    EntryCheck check(file, table, index);
    check.FindColumns();
    if (rowsWhole) check.ReadRows();
    IndexTree tree(file, table.page);
    tree.Walk(index.root, [&](std::string_view entry) { check.Entry(entry); });
    std::vector<std::string> faults = tree.Faults();
    if (tree.Pages() != pages) faults.push_back("its map names other pages than its tree has");
    for (std::string& fault : check.Faults(rowsWhole))
        faults.push_back(std::move(fault));
    return faults;
}

}  // namespace tendo::jet
