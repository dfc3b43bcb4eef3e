#pragma once

#include "server/store/Query.h"

#include <SQLiteCpp/Database.h>

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace server {

// One connection to the database, with the tables requested so far and their prepared statements. Used by one thread at
// a time. Throws StoreError.
class StoreConnection {
public:
    explicit StoreConnection(SQLite::Database database);
    StoreConnection(const StoreConnection&) = delete;
    StoreConnection& operator=(const StoreConnection&) = delete;

    // A table by its type, constructed from the connection when it is first requested.
    template <class Table>
    [[nodiscard]] Table& table() {
        auto& held = tables_[std::type_index(typeid(Table))];
        if (!held) {
            held = std::make_shared<Table>(database_.getHandle());
        }
        return *static_cast<Table*>(held.get());
    }

    // Runs the action as one transaction: all of it is on disk when this returns, and nothing of it has happened when
    // this throws. No other change comes in between.
    template <class Action>
    auto change(Action&& action) {
        begin_.execute();
        try {
            auto result = action();
            commit_.execute();
            return result;
        } catch (...) {
            rollback();
            throw;
        }
    }

    // While it lives, all reads see the same snapshot.
    class Moment {
    public:
        explicit Moment(StoreConnection& connection) : connection_(connection) { connection_.beginRead_.execute(); }
        ~Moment() { connection_.rollback(); }
        Moment(const Moment&) = delete;
        Moment& operator=(const Moment&) = delete;

    private:
        StoreConnection& connection_;
    };

private:
    void rollback() noexcept;

    SQLite::Database database_;
    std::unordered_map<std::type_index, std::shared_ptr<void>> tables_;
    Query begin_;
    Query beginRead_;
    Query commit_;
    Query rollback_;
};

} // namespace server
