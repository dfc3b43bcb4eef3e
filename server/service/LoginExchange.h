#pragma once

#include "server/net/PeerStream.h"
#include "server/service/Services.h"

namespace server {

// The two commands of a login, which continue with raw blocks after their frame:
//
//     block = length:u32 (acknowledgement:u8 from the receiver) byte* (result:u8 from the receiver: 1 success, 2
//     failure)
class LoginExchange {
public:
    LoginExchange(PeerStream& peer, const asio::ip::address& address, Services& services)
        : peer_(peer), address_(address), services_(services) {}

    // Sends the public key. Throws Dropped.
    [[nodiscard]] asio::awaitable<void> sendKey();

    // Receives the sealed credentials and answers with a LoginStatus. Throws Dropped.
    [[nodiscard]] asio::awaitable<void> logIn(std::span<const std::uint8_t> fields);

private:
    [[nodiscard]] asio::awaitable<void> sendBlock(const Bytes& block);
    [[nodiscard]] asio::awaitable<Bytes> receiveBlock();
    [[nodiscard]] asio::awaitable<bool> verify(const SealedCredentials& sealed);

    PeerStream& peer_;
    const asio::ip::address& address_;
    Services& services_;
};

} // namespace server
