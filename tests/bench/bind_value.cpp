#include "bind_value.h"

namespace tendo::bench {

void Bind(sqlite3_stmt* insert, int at, const jet::Value& value, sqlite3_destructor_type texts) {
    if (const auto* text = std::get_if<std::string>(&value))
        sqlite3_bind_text(insert, at, text->data(), static_cast<int>(text->size()), texts);
    else if (const auto* number = std::get_if<double>(&value))
        sqlite3_bind_double(insert, at, *number);
    else if (const auto* whole = std::get_if<std::int64_t>(&value))
        sqlite3_bind_int64(insert, at, *whole);
    else if (const auto* flag = std::get_if<bool>(&value))
        sqlite3_bind_int(insert, at, *flag);
    else
        sqlite3_bind_null(insert, at);
}

}  // namespace tendo::bench
