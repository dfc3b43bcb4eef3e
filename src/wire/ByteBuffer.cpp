#include "wire/ByteBuffer.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace wire {

namespace {

constexpr std::uint64_t maximumCapacity = 0x7FFFFFFF;

} // namespace

void ByteBuffer::swap(ByteBuffer& other) noexcept {
    bytes_.swap(other.bytes_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
}

void ByteBuffer::grow(std::uint64_t capacity) {
    if (capacity > maximumCapacity) {
        throw std::length_error("vector<T> too long");
    }
    auto larger = std::make_unique_for_overwrite<std::uint8_t[]>(capacity);
    if (size_ != 0) {
        std::memcpy(larger.get(), bytes_.get(), size_);
    }
    bytes_ = std::move(larger);
    capacity_ = static_cast<std::uint32_t>(capacity);
}

std::uint64_t ByteBuffer::doubled() const {
    constexpr std::uint64_t smallest = 32;
    return std::min(std::max(std::uint64_t{capacity_} * 2, smallest), maximumCapacity);
}

} // namespace wire
