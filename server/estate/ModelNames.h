#pragma once

#include "server/store/Query.h"

#include <optional>
#include <string>

namespace server {

// The names of the models in the driver catalogue, which printers and queues take over.
class ModelNames {
public:
    explicit ModelNames(sqlite3* connection) : find_(connection, "SELECT name FROM driverModel WHERE id = ?") {}

    [[nodiscard]] std::optional<std::u16string> find(const std::string& modelId) {
        auto rows = find_.run(modelId);
        return rows.next() ? std::optional(rows.wide(0)) : std::nullopt;
    }

private:
    Query find_;
};

} // namespace server
