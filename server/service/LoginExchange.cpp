#include "server/service/LoginExchange.h"

#include "protocol/estate/Login.h"
#include "server/commands/ReplyBuffer.h"
#include "server/commands/RequestReader.h"
#include "server/log/Log.h"

namespace server {

namespace {

constexpr std::uint8_t blockSucceeded = 1;

template <class... Values>
Bytes bytesOf(const Values&... values) {
    Bytes bytes;
    const auto add = [&](const auto& value) {
        const auto* from = reinterpret_cast<const std::uint8_t*>(&value);
        bytes.insert(bytes.end(), from, from + sizeof value);
    };
    (add(values), ...);
    return bytes;
}

} // namespace

asio::awaitable<void> LoginExchange::sendKey() {
    const Bytes key = co_await runOn(services_.logins, [&] { return services_.accounts.publicKey(); });
    ReplyBuffer reply;
    reply.putFrame(protocol::GetPublicKeyReply{.text = "RSA", .number = static_cast<std::uint32_t>(key.size())});
    co_await peer_.send(reply.bytes(), services_.limits.sendTime);
    co_await sendBlock(key);
}

asio::awaitable<void> LoginExchange::logIn(std::span<const std::uint8_t> fields) {
    const auto request = RequestReader(fields).read<protocol::LoginRequest>();
    const bool versionFits = request == protocol::LoginRequest{};
    SealedCredentials sealed;
    for (auto& credential : sealed) {
        credential = co_await receiveBlock();
    }

    std::uint16_t status = protocol::loginStatus::wrongVersion;
    if (versionFits) {
        const bool known = co_await verify(sealed);
        status = known ? protocol::loginStatus::loggedIn : protocol::loginStatus::wrongCredentials;
    } else {
        services_.log.write(address_, "a login from a console that does not match this server");
    }
    ReplyBuffer reply;
    reply.putFrame(protocol::LoginReply{.status = status});
    co_await peer_.send(reply.bytes(), services_.limits.sendTime);
}

asio::awaitable<bool> LoginExchange::verify(const SealedCredentials& sealed) {
    using Clock = LoginLedger::Clock;
    const auto wait = services_.ledger.beginTry(address_, Clock::now());
    if (!wait) {
        services_.log.write(address_, "too many logins at once, one was rejected");
        co_return false;
    }
    if (*wait > Clock::duration::zero()) {
        asio::steady_timer timer(co_await asio::this_coro::executor, *wait);
        co_await timer.async_wait(asio::use_awaitable);
    }
    bool known = false;
    std::exception_ptr failure;
    try {
        known = co_await runOn(services_.logins, [&] { return services_.accounts.verify(sealed); });
    } catch (...) {
        failure = std::current_exception();
    }
    services_.ledger.endTry(address_, Clock::now(), known);
    if (failure) {
        std::rethrow_exception(failure);
    }
    if (known) {
        log::info(address_.to_string(), "logged in");
    } else {
        services_.log.write(address_, "a login with a wrong name or password");
    }
    co_return known;
}

asio::awaitable<void> LoginExchange::sendBlock(const Bytes& block) {
    const auto& limits = services_.limits;
    const Bytes length = bytesOf(static_cast<std::uint32_t>(block.size()));
    co_await peer_.send(length, limits.sendTime);
    (void)co_await peer_.take(1, limits.headerTime); // any value
    co_await peer_.send(block, limits.sendTime);
    (void)co_await peer_.take(1, limits.headerTime);
}

asio::awaitable<Bytes> LoginExchange::receiveBlock() {
    const auto& limits = services_.limits;
    const auto head = co_await peer_.take(sizeof(std::uint32_t), limits.headerTime);
    std::uint32_t length = 0;
    std::memcpy(&length, head.data(), sizeof length);
    if (length > limits.blockSize) {
        throw Dropped("a sealed credential of " + std::to_string(length) + " bytes");
    }
    const Bytes acknowledgement = bytesOf(static_cast<std::uint8_t>(length & 0xFF));
    co_await peer_.send(acknowledgement, limits.sendTime);
    const auto bytes = co_await peer_.take(length, limits.bodyTime);
    Bytes block(bytes.begin(), bytes.end());
    const Bytes result = bytesOf(blockSucceeded);
    co_await peer_.send(result, limits.sendTime);
    co_return block;
}

} // namespace server
