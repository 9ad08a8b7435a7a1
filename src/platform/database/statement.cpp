#include "platform/database/statement.h"

#include <type_traits>
#include <utility>

#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr int EngineFailed = 3000;

bool IsBytes(jet::ColumnType type) {
    return type == jet::ColumnType::Binary || type == jet::ColumnType::Ole;
}

template <class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

}  // namespace

Statement::Statement(sqlite3* database, const std::string& sql) {
    const int result = sqlite3_prepare_v3(database, sql.c_str(), static_cast<int>(sql.size()) + 1,
                                          SQLITE_PREPARE_PERSISTENT, &handle_, nullptr);
    if (result != SQLITE_OK)
        throw RuntimeError(EngineFailed, std::string("The query could not be prepared: ") +
                                             sqlite3_errmsg(database) + ".");
}

Statement::Statement(Statement&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

Statement::~Statement() {
    sqlite3_finalize(handle_);
}

void Statement::BindKey(int at, std::int64_t key) {
    sqlite3_bind_int64(handle_, at, key);
}

void Statement::BindParameters(const std::vector<query::Parameter>& parameters) {
    int at = query::MaxSources;
    const int last = sqlite3_bind_parameter_count(handle_);
    for (const query::Parameter& parameter : parameters) {
        if (++at > last) return;  // the rest belongs to other parts of the query
        std::visit(Overloaded{[&](std::int64_t value) { sqlite3_bind_int64(handle_, at, value); },
                              [&](double value) { sqlite3_bind_double(handle_, at, value); },
                              [&](const std::string& value) {
                                  sqlite3_bind_text(handle_, at, value.data(),
                                                    static_cast<int>(value.size()), SQLITE_STATIC);
                              },
                              [&](const LikePattern& value) {
                                  sqlite3_bind_pointer(handle_, at,
                                                       const_cast<LikePattern*>(&value), "like",
                                                       nullptr);
                              }},
                   parameter);
    }
}

void Statement::BindValue(int at, const jet::ValueView& value, jet::ColumnType type) {
    switch (value.index()) {
        case 0:
            if (type == jet::ColumnType::Boolean)
                sqlite3_bind_int(handle_, at, 0);
            else
                sqlite3_bind_null(handle_, at);
            return;
        case 1:
            sqlite3_bind_int(handle_, at, std::get<bool>(value));
            return;
        case 2:
            sqlite3_bind_int64(handle_, at, std::get<std::int64_t>(value));
            return;
        case 3:
            sqlite3_bind_double(handle_, at, std::get<double>(value));
            return;
        default:
            break;
    }
    const std::string_view text = std::get<std::string_view>(value);
    const char* data = text.data() ? text.data() : "";
    const int size = static_cast<int>(text.size());
    if (IsBytes(type))
        sqlite3_bind_blob(handle_, at, data, size, SQLITE_STATIC);
    else
        sqlite3_bind_text(handle_, at, data, size, SQLITE_STATIC);
}

bool Statement::Step() {
    const int result = sqlite3_step(handle_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) Throw();
    return result == SQLITE_ROW;
}

void Statement::Run() {
    const int result = sqlite3_step(handle_);
    if (result != SQLITE_ROW && result != SQLITE_DONE) Throw();
    sqlite3_reset(handle_);
}

void Statement::Throw() const {
    sqlite3* database = sqlite3_db_handle(handle_);
    const int code = sqlite3_errcode(database);
    const std::string text = sqlite3_errmsg(database);
    sqlite3_reset(handle_);
    if (code == SQLITE_CONSTRAINT) ThrowError(error_number::DuplicateKey);
    if (code == SQLITE_NOMEM || code == SQLITE_FULL) ThrowError(error_number::OutOfMemory);
    throw RuntimeError(EngineFailed, "The query engine failed: " + text + ".");
}

jet::ValueView Statement::View(int column, jet::ColumnType type) const {
    const int stored = sqlite3_column_type(handle_, column);
    if (stored == SQLITE_NULL) {
        if (type == jet::ColumnType::Boolean) return false;
        return std::monostate{};
    }
    switch (type) {
        case jet::ColumnType::Boolean:
            return sqlite3_column_int(handle_, column) != 0;
        case jet::ColumnType::Byte:
        case jet::ColumnType::Integer:
        case jet::ColumnType::Long:
        case jet::ColumnType::Currency:
            return sqlite3_column_int64(handle_, column);
        case jet::ColumnType::Single:
        case jet::ColumnType::Double:
        case jet::ColumnType::Date:
            return sqlite3_column_double(handle_, column);
        default:
            break;
    }
    const void* data =
        IsBytes(type) ? sqlite3_column_blob(handle_, column) : sqlite3_column_text(handle_, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
    return data ? std::string_view(static_cast<const char*>(data), size) : std::string_view("");
}

jet::ValueView ViewOf(const jet::Value& value) {
    return std::visit([](const auto& held) -> jet::ValueView { return held; }, value);
}

jet::Value ValueOfView(const jet::ValueView& view) {
    return std::visit(
        [](const auto& held) -> jet::Value {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string_view>)
                return std::string(held);
            else
                return held;
        },
        view);
}

}  // namespace tendo
