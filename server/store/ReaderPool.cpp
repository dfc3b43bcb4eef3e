#include "server/store/ReaderPool.h"

namespace server {

namespace {

constexpr std::size_t mostIdle = 4;

} // namespace

ReaderPool::Lease::Lease(ReaderPool& pool) : pool_(pool) {
    if (pool_.idle_.empty()) {
        connection_ = pool_.store_.openConnection();
    } else {
        connection_ = std::move(pool_.idle_.back());
        pool_.idle_.pop_back();
    }
}

ReaderPool::Lease::~Lease() {
    if (pool_.idle_.size() < mostIdle) {
        pool_.idle_.push_back(std::move(connection_));
    }
}

} // namespace server
