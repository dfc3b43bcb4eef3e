#include "server/estate/SampleRandom.h"

#include "wire/WireUuid.h"

namespace server {

std::string SampleRandom::newId() {
    wire::Uuid id;
    for (auto& byte : id) {
        byte = static_cast<std::uint8_t>(below(256));
    }
    id.data[6] = static_cast<std::uint8_t>((id.data[6] & 0x0F) | 0x40); // version 4
    id.data[8] = static_cast<std::uint8_t>((id.data[8] & 0x3F) | 0x80);
    return wire::toText(id);
}

} // namespace server
