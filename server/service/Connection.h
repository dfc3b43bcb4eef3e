#pragma once

#include "server/commands/Handler.h"
#include "server/net/PeerStream.h"
#include "server/net/RequestFrame.h"
#include "server/service/Services.h"

#include <memory>

namespace server {

// One connection of a console, which carries one command. Used on the network thread.
class Connection {
public:
    Connection(asio::ip::tcp::socket socket, asio::ip::address address, Services& services);

    // Receives the command, carries it out and answers. Throws nothing that a peer could cause: such errors are logged,
    // and the connection ends.
    [[nodiscard]] asio::awaitable<void> serve();

    [[nodiscard]] PeerStream& peer() { return peer_; }
    [[nodiscard]] bool isArriving() const { return place_.isArriving(); }
    [[nodiscard]] PeerStream::Clock::time_point since() const { return since_; }
    [[nodiscard]] const asio::ip::address& address() const { return address_; }

private:
    [[nodiscard]] asio::awaitable<void> takeAndAnswer();
    [[nodiscard]] asio::awaitable<void> carryOut(RequestFrame request);
    [[nodiscard]] asio::awaitable<void> change(std::uint16_t opcode, Change wanted);
    [[nodiscard]] asio::awaitable<void> answer(const Handler& handler, const RequestFrame& request);

    Services& services_;
    asio::ip::address address_;
    PeerStream peer_;
    ArrivalOrder::Place place_;
    PeerStream::Clock::time_point since_;
    Bytes frame_;
};

} // namespace server
