#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace server {

// How long the server waits for a peer, and how much it accepts from one.
struct Limits {
    std::chrono::milliseconds headerTime{15000}; // for a frame's header, and for each small step of a block
    std::chrono::milliseconds bodyTime{30000};
    std::chrono::milliseconds sendTime{60000};   // for each piece that is sent
    std::chrono::milliseconds arrivalGrace{250}; // how long others wait for a remote peer's command, see ArrivalOrder
    std::chrono::milliseconds localGrace{5};     // the same for a peer on this machine
    std::chrono::milliseconds stopTime{5000};    // for work in progress when the server is stopped
    std::chrono::milliseconds idleTime{1000};    // after which a connection without a command may be closed for others
    std::size_t connections = 512;
    std::size_t arrivingFromOneAddress = 64; // connections whose command has not arrived yet
    std::uint32_t blockSize = 4096;          // of a sealed credential
};

} // namespace server
