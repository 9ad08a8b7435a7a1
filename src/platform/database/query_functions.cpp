#include <sqlite3.h>

#include <string>
#include <string_view>

#include "platform/database/database.h"
#include "platform/database/like_pattern.h"
#include "platform/database/statement.h"
#include "platform/jet/general_order.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

std::string_view TextOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    const int size = sqlite3_value_bytes(value);
    return text ? std::string_view(text, static_cast<std::size_t>(size)) : std::string_view();
}

int Compare(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return jet::CompareGeneral(
        {static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

void Key(sqlite3_context* context, int, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    const std::string key = jet::GeneralSortKey(TextOf(values[0]));
    sqlite3_result_blob(context, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
}

/// The plain text by which a number meets a pattern; Yes is -1, as the query language counts it.
std::string PlainText(sqlite3_value* value, jet::ColumnType type) {
    switch (type) {
        case jet::ColumnType::Boolean:
            return sqlite3_value_int(value) ? "-1" : "0";
        case jet::ColumnType::Single:
        case jet::ColumnType::Double:
        case jet::ColumnType::Date:
            return TextOfValue(sqlite3_value_double(value), type);
        default:
            return TextOfValue(static_cast<std::int64_t>(sqlite3_value_int64(value)), type);
    }
}

bool IsTextType(jet::ColumnType type) {
    return type == jet::ColumnType::Text || type == jet::ColumnType::Memo ||
           type == jet::ColumnType::Guid || type == jet::ColumnType::Numeric;
}

/// jet_like(value, pattern, type of the value's column); null meets no pattern.
void Like(sqlite3_context* context, int, sqlite3_value** values) {
    const auto* pattern = static_cast<const LikePattern*>(sqlite3_value_pointer(values[1], "like"));
    if (!pattern || sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    const auto type = static_cast<jet::ColumnType>(sqlite3_value_int(values[2]));
    const bool fits = IsTextType(type) ? pattern->Matches(TextOf(values[0]))
                                       : pattern->Matches(PlainText(values[0], type));
    sqlite3_result_int(context, fits);
}

}  // namespace

sqlite3* OpenMemoryDatabase() {
    sqlite3* database = nullptr;
    constexpr int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    constexpr int Pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const bool opened =
        sqlite3_open_v2(":memory:", &database, Flags, nullptr) == SQLITE_OK &&
        sqlite3_exec(database,
                     "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA temp_store=MEMORY",
                     nullptr, nullptr, nullptr) == SQLITE_OK &&
        sqlite3_create_collation(database, "GENERAL", SQLITE_UTF8, nullptr, Compare) == SQLITE_OK &&
        sqlite3_create_function(database, "jet_key", 1, Pure, nullptr, Key, nullptr, nullptr) ==
            SQLITE_OK &&
        sqlite3_create_function(database, "jet_like", 3, Pure, nullptr, Like, nullptr, nullptr) ==
            SQLITE_OK;
    if (opened) return database;
    sqlite3_close(database);
    ThrowError(error_number::OutOfMemory);
}

}  // namespace tendo
