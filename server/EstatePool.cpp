#include "server/EstatePool.h"

namespace server {

namespace {

constexpr std::size_t mostIdle = 4;

} // namespace

EstatePool::Lease::Lease(EstatePool& pool) : pool_(pool) {
    if (pool_.idle_.empty()) {
        estate_ = pool_.store_.openEstate();
    } else {
        estate_ = std::move(pool_.idle_.back());
        pool_.idle_.pop_back();
    }
}

EstatePool::Lease::~Lease() {
    if (pool_.idle_.size() < mostIdle)
        pool_.idle_.push_back(std::move(estate_));
}

} // namespace server
