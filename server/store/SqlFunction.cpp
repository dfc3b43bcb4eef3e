#include "server/store/SqlFunction.h"

#include "server/store/StoreError.h"

#include <sqlite3.h>

#include <new>

namespace server {
namespace {

SqlValue valueOf(sqlite3_value* value) {
    const bool isText = sqlite3_value_type(value) == SQLITE_TEXT;
    const auto* const bytes = static_cast<const std::uint8_t*>(sqlite3_value_blob(value));
    return {.bytes = {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))}, .isText = isText};
}

void callPredicate(sqlite3_context* context, int, sqlite3_value** values) noexcept {
    const auto predicate = reinterpret_cast<SqlPredicate>(sqlite3_user_data(context));
    try {
        sqlite3_result_int(context, predicate(valueOf(values[0]), valueOf(values[1])) ? 1 : 0);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

void addPredicate(sqlite3* connection, const char* name, SqlPredicate predicate) {
    const int code =
        sqlite3_create_function_v2(connection, name, 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                   reinterpret_cast<void*>(predicate), &callPredicate, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw StoreError::fromCode(code, sqlite3_errmsg(connection));
    }
}

} // namespace server
