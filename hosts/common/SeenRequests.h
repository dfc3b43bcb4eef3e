#pragma once

#include "protocol/Catalogue.h"
#include "wire/Message.h"

#include <cstdint>
#include <list>
#include <span>
#include <vector>

namespace common {

// The lists that a console has asked for, the latest first: one of them contained whatever it changes now.
class SeenRequests {
public:
    void add(const protocol::Command& command, std::span<const std::uint8_t> data);

    // The requests of a type, the latest first.
    template <class Request>
    [[nodiscard]] std::vector<Request> of() const {
        std::vector<Request> requests;
        for (const Seen& seen : seen_) {
            if (seen.opcode == Request::opcode) {
                wire::Message message;
                message.loadMessage(seen.data.data(), static_cast<std::uint32_t>(seen.data.size()));
                requests.push_back(protocol::read<Request>(message));
            }
        }
        return requests;
    }

private:
    struct Seen {
        std::uint16_t opcode = 0;
        std::vector<std::uint8_t> data;

        bool operator==(const Seen&) const = default;
    };

    std::list<Seen> seen_;
};

} // namespace common
