#pragma once

#include "server/RecordTable.h"
#include "server/RegionTable.h"

#include <SQLiteCpp/Database.h>

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace server {

// One connection to the database with everything that is stored about regions and printers. Used by one thread at a
// time. Throws StoreError.
class Estate {
public:
    explicit Estate(SQLite::Database database);
    Estate(const Estate&) = delete;
    Estate& operator=(const Estate&) = delete;

    [[nodiscard]] RegionTable& regions() { return regions_; }
    [[nodiscard]] RecordTable& records() { return records_; }

    // Any other table by its type, which is made of the connection when it is first asked for.
    template <class Table>
    [[nodiscard]] Table& table() {
        auto& held = tables_[std::type_index(typeid(Table))];
        if (!held)
            held = std::make_shared<Table>(database_.getHandle());
        return *static_cast<Table*>(held.get());
    }

    // Runs the action as one transaction: all of it is on the disk when this returns, and nothing of it happened when
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

    // While it lives, all that is read belongs to one moment.
    class Moment {
    public:
        explicit Moment(Estate& estate) : estate_(estate) { estate_.beginRead_.execute(); }
        ~Moment() { estate_.rollback(); }
        Moment(const Moment&) = delete;
        Moment& operator=(const Moment&) = delete;

    private:
        Estate& estate_;
    };

private:
    void rollback() noexcept;

    SQLite::Database database_;
    RegionTable regions_;
    RecordTable records_;
    std::unordered_map<std::type_index, std::shared_ptr<void>> tables_;
    Query begin_;
    Query beginRead_;
    Query commit_;
    Query rollback_;
};

} // namespace server
