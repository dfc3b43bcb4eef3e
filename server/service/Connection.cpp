#include "server/service/Connection.h"

#include "protocol/Catalogue.h"
#include "protocol/estate/Login.h"
#include "server/commands/Handler.h"
#include "server/commands/Refusal.h"
#include "server/log/Log.h"
#include "server/service/LoginExchange.h"
#include "server/store/StoreError.h"
#include "wire/Frame.h"
#include "wire/Text.h"

namespace server {

namespace {

constexpr std::size_t pieceSize = 65536;

std::string nameOf(std::uint16_t opcode) {
    return "command " + std::to_string(opcode);
}

void checkVersion(const RequestFrame& request) {
    const auto* command = protocol::findCommand(request.opcode);
    if (command == nullptr) {
        throw BadRequest(nameOf(request.opcode) + " does not exist");
    }
    if (command->version != request.version) {
        throw BadRequest(nameOf(request.opcode) + " was sent in version " + std::to_string(request.version));
    }
}

} // namespace

Connection::Connection(asio::ip::tcp::socket socket, asio::ip::address address, Services& services)
    : services_(services),
      address_(std::move(address)),
      peer_(std::move(socket)),
      place_(services.order, address_, peer_),
      since_(PeerStream::Clock::now()) {}

asio::awaitable<void> Connection::serve() {
    try {
        co_await takeAndAnswer();
    } catch (const StoreError& error) {
        log::error("a command was not answered", error.what());
    } catch (const std::exception& error) {
        services_.log.write(address_, error.what());
    }
    place_.finish();
    peer_.close();
}

asio::awaitable<void> Connection::takeAndAnswer() {
    const auto head = co_await peer_.take(wire::frameHeaderSize, services_.limits.headerTime);
    const auto header = wire::decodeFrameHeader(head.first<wire::frameHeaderSize>());
    if (header.size > wire::QVX_MAX_MESSAGE_SIZE) {
        throw BadRequest("a frame of " + std::to_string(header.size) + " bytes");
    }
    const auto data = co_await peer_.take(header.size, services_.limits.bodyTime);
    if (wire::frameChecksum(data) != header.checksum) {
        throw BadRequest("a frame with a wrong checksum");
    }
    frame_.assign(data.begin(), data.end());
    const auto request = parseRequestFrame(header.count, frame_);
    checkVersion(request);
    co_await carryOut(request);
}

asio::awaitable<void> Connection::carryOut(RequestFrame request) {
    if (request.opcode == protocol::GetPublicKeyRequest::opcode || request.opcode == protocol::LoginRequest::opcode) {
        place_.finish();
        LoginExchange exchange(peer_, address_, services_);
        if (request.opcode == protocol::LoginRequest::opcode) {
            co_await exchange.logIn(request.fields);
        } else {
            co_await exchange.sendKey();
        }
        co_return;
    }
    if (!services_.ledger.mayCommand(address_, PeerStream::Clock::now())) {
        throw BadRequest(nameOf(request.opcode) + " without a login");
    }
    const auto* handler = services_.commands.find(request.opcode, request.fields);
    if (handler == nullptr) {
        throw BadRequest("this server does not answer " + nameOf(request.opcode));
    }
    if (handler->prepare != nullptr) {
        co_await change(request.opcode, handler->prepare(request.fields));
    } else {
        co_await answer(*handler, request);
    }
}

asio::awaitable<void> Connection::change(std::uint16_t opcode, Change wanted) {
    co_await place_.beginChanging(wanted.isAnswered);
    ReplyBuffer reply;
    const auto status =
        co_await runOn(services_.writer, [&] { return wanted.make(*services_.writerConnection, reply); });
    place_.finish();
    if (!isDone(status)) {
        services_.log.write(address_, nameOf(opcode) + " was refused: " + wire::toUtf8(status.text));
    }
    if (reply.size() > 0) {
        co_await peer_.send(reply.bytes(), services_.limits.sendTime);
    }
}

asio::awaitable<void> Connection::answer(const Handler& handler, const RequestFrame& request) {
    co_await place_.beginReading();
    const ReaderPool::Lease lease(services_.readers);
    const auto answer = handler.answer(request.fields, lease.connection());
    ReplyBuffer piece;
    for (bool more = true; more;) {
        piece.clear();
        more = answer->append(piece, pieceSize);
        co_await peer_.send(piece.bytes(), services_.limits.sendTime);
    }
}

} // namespace server
