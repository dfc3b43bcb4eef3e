#pragma once

#include "server/Store.h"

#include <memory>
#include <vector>

namespace server {

// Database connections for readers, made when they are needed and kept for the next ones. Used by one thread.
class EstatePool {
public:
    explicit EstatePool(const Store& store) : store_(store) {}

    // One that nobody else uses, given back when it goes. Throws StoreError.
    class Lease {
    public:
        explicit Lease(EstatePool& pool);
        ~Lease();
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;
        [[nodiscard]] Estate& estate() const { return *estate_; }

    private:
        EstatePool& pool_;
        std::unique_ptr<Estate> estate_;
    };

private:
    const Store& store_;
    std::vector<std::unique_ptr<Estate>> idle_;
};

} // namespace server
