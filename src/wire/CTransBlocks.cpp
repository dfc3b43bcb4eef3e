#include "wire/CTrans.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace trans {

namespace {

constexpr std::uint8_t blockArrived = 1;
constexpr std::uint8_t blockFailed = 2;
constexpr std::int32_t defaultTimeout = -1;

} // namespace

bool CTrans::sendBlock(std::string_view data) {
    blockProgress_ = 0;
    blockLength_ = static_cast<std::uint32_t>(data.size());
    if (blockLength_ == 0) {
        return false;
    }
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(data.data());
    std::array<std::uint8_t, sizeof blockLength_> length{};
    std::memcpy(length.data(), &blockLength_, length.size());
    sendBytes(length.data(), length.size());
    std::uint8_t acknowledgement = 0;
    iGetData(&acknowledgement, 1, defaultTimeout, nullptr);

    while (blockProgress_ < blockLength_) {
        const std::uint32_t piece = std::min<std::uint32_t>(blockLength_ - blockProgress_, chunkSize_);
        const std::intptr_t sent = sendBytes(bytes + blockProgress_, piece);
        if (sent <= 0) {
            break;
        }
        blockProgress_ += static_cast<std::uint32_t>(sent);
    }
    std::uint8_t result = 0;
    iGetData(&result, 1, defaultTimeout, nullptr);
    return result == blockArrived;
}

bool CTrans::receiveBlock(std::string& data, std::uint32_t longest) {
    data.clear();
    bool arrived = false;
    try {
        arrived = receivePieces(data, longest);
    } catch (const std::bad_alloc&) {
        data.clear();
        return false;
    }
    if (!arrived) {
        data.clear();
    }
    const std::uint8_t result = arrived ? blockArrived : blockFailed;
    sendBytes(&result, sizeof result);
    return arrived;
}

// The memory grows as data arrives: the announced length comes from the peer and can't be trusted.
bool CTrans::receivePieces(std::string& data, std::uint32_t longest) {
    std::array<std::uint8_t, sizeof blockLength_> length{};
    if (readExact(length.data(), length.size()) != static_cast<int>(length.size())) {
        return false;
    }
    std::memcpy(&blockLength_, length.data(), length.size());
    if (blockLength_ > longest) {
        return false;
    }
    sendBytes(length.data(), 1); // any byte acknowledges; it is the low byte of the length

    blockProgress_ = 0;
    while (blockProgress_ < blockLength_) {
        const std::uint32_t piece = std::min<std::uint32_t>(blockLength_ - blockProgress_, chunkSize_);
        data.resize(blockProgress_ + piece);
        const int received =
            iGetData(reinterpret_cast<std::uint8_t*>(data.data()) + blockProgress_, piece, defaultTimeout, nullptr);
        if (received < 1 || static_cast<std::uint32_t>(received) != piece) {
            return false;
        }
        blockProgress_ += piece;
    }
    return true;
}

} // namespace trans
