#pragma once

#include <sqlite3.h>

#include "platform/jet/jet_types.h"

namespace tendo::bench {

/// Binds a value to a place of a statement. `texts` tells what becomes of a text: SQLITE_STATIC
/// when the value outlives the step, SQLITE_TRANSIENT when it doesn't.
void Bind(sqlite3_stmt* insert, int at, const jet::Value& value, sqlite3_destructor_type texts);

}  // namespace tendo::bench
