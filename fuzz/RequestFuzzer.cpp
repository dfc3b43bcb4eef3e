#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryEstate.h"
#include "server/Commands.h"
#include "server/commands/Handler.h"
#include "server/log/Log.h"
#include "wire/Frame.h"

#include <cstring>

// A request, carried out by its handler on the sample estate. Input: an opcode, and the fields. Checks that a console
// can receive the answer.

namespace {

constexpr std::size_t pieceSize = 65536;

// Checks the frames of an answer: each contains one Data message.
void expectFrames(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        fuzz::expect(bytes.size() >= wire::frameHeaderSize);
        const auto header = wire::decodeFrameHeader(bytes.first<wire::frameHeaderSize>());
        bytes = bytes.subspan(wire::frameHeaderSize);
        fuzz::expect(header.count == 1 && header.size <= bytes.size() && header.size <= server::largestReceivableFrame);
        const auto data = bytes.first(header.size);
        fuzz::expect(wire::frameChecksum(data) == header.checksum);
        wire::Message message;
        message.loadMessage(data.data(), header.size);
        fuzz::expect(message.kind() == wire::MessageKind::Data && message.size() == header.size);
        bytes = bytes.subspan(header.size);
    }
}

void carryOut(std::uint8_t opcode, server::Fields fields, server::StoreConnection& connection) {
    const auto* const handler = server::commands().find(opcode, fields);
    if (handler == nullptr) {
        return;
    }
    server::ReplyBuffer reply;
    if (handler->prepare != nullptr) {
        const auto change = handler->prepare(fields);
        static_cast<void>(change.make(connection, reply));
        fuzz::expect(change.isAnswered == (reply.size() > 0));
        expectFrames(reply.bytes());
        return;
    }
    const auto answer = handler->answer(fields, connection);
    for (bool more = true; more;) {
        reply.clear();
        more = answer->append(reply, pieceSize);
        expectFrames(reply.bytes());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool quiet = (server::log::silence(), true);
    fuzz::expect(quiet);
    fuzz::Input input(data, size);
    const std::uint8_t opcode = input.byte();
    auto& place = fuzz::memoryEstate();

    try {
        carryOut(opcode, input.rest(), place.connection());
    } catch (const server::BadRequest&) {
        // The connection would be closed.
    }
    place.restore();
    return 0;
}
