#include "server/commands/ReplyBuffer.h"

namespace server {

void ReplyBuffer::beginFrame() {
    frameStart_ = bytes_.size();
    bytes_.extend(wire::frameHeaderSize + wire::Message::headerSize);
}

void ReplyBuffer::endFrame() {
    std::uint8_t* const data = bytes_.data() + frameStart_ + wire::frameHeaderSize;
    const std::uint32_t size = bytes_.size() - frameStart_ - wire::frameHeaderSize;
    data[0] = static_cast<std::uint8_t>(wire::MessageKind::Data);
    std::memcpy(data + 1, &size, sizeof size);
    const auto header =
        wire::encodeFrameHeader({.count = 1, .size = size, .checksum = wire::frameChecksum({data, size})});
    std::memcpy(bytes_.data() + frameStart_, header.data(), header.size());
}

void ReplyBuffer::putCountFrame(std::uint16_t count) {
    beginFrame();
    put(count);
    endFrame();
}

} // namespace server
