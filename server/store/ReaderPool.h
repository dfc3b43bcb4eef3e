#pragma once

#include "server/store/Store.h"

#include <memory>
#include <vector>

namespace server {

// Database connections for readers, opened on demand and kept for reuse. Used by one thread.
class ReaderPool {
public:
    explicit ReaderPool(const Store& store) : store_(store) {}

    // A connection for exclusive use, given back on destruction. Throws StoreError.
    class Lease {
    public:
        explicit Lease(ReaderPool& pool);
        ~Lease();
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;
        [[nodiscard]] StoreConnection& connection() const { return *connection_; }

    private:
        ReaderPool& pool_;
        std::unique_ptr<StoreConnection> connection_;
    };

private:
    const Store& store_;
    std::vector<std::unique_ptr<StoreConnection>> idle_;
};

} // namespace server
