#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace wire {

// A growable array of bytes that never fills memory it is about to overwrite.
class ByteBuffer {
public:
    ByteBuffer() = default;
    ByteBuffer(ByteBuffer&& other) noexcept { swap(other); }
    ByteBuffer& operator=(ByteBuffer&& other) noexcept {
        swap(other);
        return *this;
    }
    ByteBuffer(const ByteBuffer&) = delete;
    ByteBuffer& operator=(const ByteBuffer&) = delete;
    ~ByteBuffer() = default;

    [[nodiscard]] std::uint8_t* data() { return bytes_.get(); }
    [[nodiscard]] const std::uint8_t* data() const { return bytes_.get(); }
    [[nodiscard]] std::uint32_t size() const { return size_; }
    [[nodiscard]] std::uint32_t capacity() const { return capacity_; }

    // Keeps the memory.
    void clear() { size_ = 0; }

    // Makes room for a total of so many bytes; throws std::length_error "vector<T> too long" beyond two gibibytes.
    void reserve(std::uint64_t capacity) {
        if (capacity > capacity_) {
            grow(capacity);
        }
    }

    // Makes room for so many more bytes and returns where they go.
    std::uint8_t* extend(std::size_t count) {
        const std::uint64_t wanted = std::uint64_t{size_} + count;
        if (wanted > capacity_) {
            grow(std::max(wanted, doubled()));
        }
        std::uint8_t* const end = bytes_.get() + size_;
        size_ = static_cast<std::uint32_t>(wanted);
        return end;
    }

    // Cuts the buffer to the given size; a smaller one stays as it is.
    void cut(std::uint32_t size) { size_ = std::min(size, size_); }

    void append(const void* bytes, std::size_t count) {
        if (count != 0) {
            std::memcpy(extend(count), bytes, count);
        }
    }

    template <typename T>
    void appendValue(T value) {
        std::memcpy(extend(sizeof value), &value, sizeof value);
    }

private:
    void swap(ByteBuffer& other) noexcept;
    void grow(std::uint64_t capacity);
    [[nodiscard]] std::uint64_t doubled() const;

    std::unique_ptr<std::uint8_t[]> bytes_;
    std::uint32_t size_ = 0;
    std::uint32_t capacity_ = 0;
};

} // namespace wire
