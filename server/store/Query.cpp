#include "server/store/Query.h"

#include "server/store/StoreError.h"

#include <sqlite3.h>

#include <cstring>
#include <utility>

namespace server {

namespace {

[[noreturn]] void fail(sqlite3* connection) {
    throw StoreError::fromCode(sqlite3_errcode(connection), sqlite3_errmsg(connection));
}

} // namespace

Rows::~Rows() {
    end();
}

Rows::Rows(Rows&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}

Rows& Rows::operator=(Rows&& other) noexcept {
    std::swap(statement_, other.statement_);
    return *this;
}

void Rows::end() noexcept {
    if (statement_ == nullptr) {
        return;
    }
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
    statement_ = nullptr;
}

bool Rows::next() {
    if (statement_ == nullptr) {
        return false;
    }
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        const auto error = StoreError::fromCode(code, sqlite3_errmsg(sqlite3_db_handle(statement_)));
        end();
        throw error;
    }
    end();
    return false;
}

std::int64_t Rows::number(int column) const {
    return sqlite3_column_int64(statement_, column);
}

double Rows::real(int column) const {
    return sqlite3_column_double(statement_, column);
}

std::string_view Rows::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return text == nullptr ? std::string_view()
                           : std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)));
}

std::span<const std::uint8_t> Rows::bytes(int column) const {
    const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_column_blob(statement_, column));
    return {bytes, static_cast<std::size_t>(bytes == nullptr ? 0 : sqlite3_column_bytes(statement_, column))};
}

std::u16string Rows::wide(int column) const {
    const auto source = bytes(column);
    std::u16string text(source.size() / 2, u'\0');
    if (!text.empty()) {
        std::memcpy(text.data(), source.data(), text.size() * 2);
    }
    return text;
}

bool Rows::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

sqlite3_stmt* Query::statement() {
    if (statement_ == nullptr && sqlite3_prepare_v3(connection_, sql_.c_str(), static_cast<int>(sql_.size()),
                                                    SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) != SQLITE_OK) {
        fail(connection_);
    }
    return statement_;
}

bool Query::hasChanged() const {
    return sqlite3_changes(connection_) > 0;
}

std::int64_t Query::insertedNumber() const {
    return sqlite3_last_insert_rowid(connection_);
}

Query::~Query() {
    sqlite3_finalize(statement_);
}

void Query::bind(int index, std::int64_t value) {
    if (sqlite3_bind_int64(statement(), index, value) != SQLITE_OK) {
        fail(connection_);
    }
}

void Query::bind(int index, double value) {
    if (sqlite3_bind_double(statement(), index, value) != SQLITE_OK) {
        fail(connection_);
    }
}

void Query::bind(int index, const wire::Uuid& value) {
    const auto characters = wire::uuidCharacters(value);
    bind(index, std::string_view(characters.data(), characters.size()));
}

void Query::bind(int index, std::string_view text) {
    const char* from = text.empty() ? "" : text.data(); // a null pointer would mean NULL
    if (sqlite3_bind_text(statement(), index, from, static_cast<int>(text.size()), SQLITE_TRANSIENT) != SQLITE_OK) {
        fail(connection_);
    }
}

void Query::bind(int index, std::u16string_view text) {
    bind(index, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size() * 2));
}

void Query::bind(int index, std::span<const std::uint8_t> bytes) {
    const int code = bytes.empty() ? sqlite3_bind_zeroblob(statement(), index, 0)
                                   : sqlite3_bind_blob(statement(), index, bytes.data(), static_cast<int>(bytes.size()),
                                                       SQLITE_TRANSIENT);
    if (code != SQLITE_OK) {
        fail(connection_);
    }
}

void Query::bind(int index, std::nullptr_t) {
    if (sqlite3_bind_null(statement(), index) != SQLITE_OK) {
        fail(connection_);
    }
}

} // namespace server
