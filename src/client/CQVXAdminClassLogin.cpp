#include "client/CQVXAdminClass.h"

#include "client/Credentials.h"
#include "client/Exchange.h"
#include "protocol/estate/Login.h"
#include "wire/CTrans.h"

namespace client {
namespace {

constexpr std::uint32_t keyTimeout = 30; // seconds

// The low byte of each unit first, which is how encryptCredential packs it.
std::string bytesOf(const wire::WideString& units) {
    std::string bytes;
    bytes.reserve(units.size() * 2);
    for (const char16_t unit : units) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

std::unique_ptr<wire::Message> loginMessage(std::size_t cipherUnits) {
    const protocol::LoginRequest request;
    auto message = std::make_unique<wire::Message>();
    message->beginMessage(static_cast<std::uint32_t>(cipherUnits * 2 + 20));
    protocol::write(*message, request);
    message->setKind(wire::MessageKind::Data);
    message->rewind();
    return message;
}

} // namespace

bool CQVXAdminClass::fetchPublicKey(std::string& key, const std::string& serverHost, std::uint16_t serverPort) {
    constexpr bool failure = true;
    try {
        Exchange exchange(*this, protocol::commandOf<protocol::GetPublicKeyRequest>());
        auto connection = std::make_unique<trans::CTrans>();
        connection->setHost(serverHost);
        connection->setPort(serverPort);
        connection->setWaitObserver(settings().hooks.wait);
        auto& blocks = *connection;
        if (!exchange.connect(std::move(connection), keyTimeout)) {
            return failure;
        }
        exchange.send(nullptr);
        const auto message = exchange.receive();
        if (!message) {
            return failure;
        }
        return exchange.run([&] {
            static_cast<void>(protocol::read<protocol::GetPublicKeyReply>(*message));
            if (blocks.receiveBlock(key, longestKey)) {
                return !failure;
            }
            exchange.fail("The server's key did not arrive whole");
            return failure;
        });
    } catch (...) {
        return failure;
    }
}

protocol::LoginStatus CQVXAdminClass::login(wire::WideString user, wire::WideString password, wire::WideString domain) {
    try {
        std::string key;
        if (fetchPublicKey(key, settings().host, settings().port)) {
            return protocol::loginStatus::noAnswer;
        }
        Exchange exchange(*this, protocol::commandOf<protocol::LoginRequest>(), wire::toUtf8(user));
        if (!exchange.connect()) {
            return protocol::loginStatus::noAnswer;
        }
        settings().userName = user;
        settings().domainName = domain;
        exchange.run([&] {
            initCrypto();
            user = encryptCredential(key, user);
            domain = encryptCredential(key, domain);
            password = encryptCredential(key, password);
        });
        exchange.send(loginMessage(user.size() + domain.size() + password.size()));
        exchange.run([&] {
            auto& blocks = static_cast<trans::CTrans&>(exchange.transport());
            for (const auto* cipher : {&user, &domain, &password}) {
                blocks.sendBlock(bytesOf(*cipher));
            }
        });
        const auto message = exchange.receive();
        if (!message) {
            return protocol::loginStatus::noAnswer;
        }
        return exchange.run([&] { return protocol::read<protocol::LoginReply>(*message).status; });
    } catch (...) {
        return protocol::loginStatus::noAnswer;
    }
}

} // namespace client
