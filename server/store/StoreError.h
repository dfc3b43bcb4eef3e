#pragma once

#include <stdexcept>
#include <string>

namespace server {

// The database cannot do what was asked of it; the text is one line for the person who runs the server.
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    // The text for a result code of SQLite, with the connection's own message where that says more.
    [[nodiscard]] static StoreError fromCode(int code, const std::string& detail);
};

} // namespace server
