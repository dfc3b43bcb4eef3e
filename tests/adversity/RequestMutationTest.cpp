#include "tests/adversity/AttackedServer.h"
#include "tests/adversity/EstateIds.h"
#include "tests/adversity/Mutations.h"
#include "tests/adversity/SampleMessages.h"

#include <gtest/gtest.h>

#include <exception>
#include <map>
#include <optional>
#include <set>

namespace adversity {
namespace {

Bytes joined(const std::vector<Bytes>& messages) {
    Bytes data;
    for (const auto& message : messages) {
        data = std::move(data) + message;
    }
    return data;
}

// What the server does with the data of a frame; anything that it must not do fails the test.
Taking attack(AttackedServer& server, const SampleRequest& request, std::size_t count, const Bytes& data,
              const std::string& what) {
    try {
        return server.take(static_cast<std::uint8_t>(count), data);
    } catch (const std::exception& error) {
        ADD_FAILURE() << request.name() << ": " << what << ": " << error.what() << "\n" << support::toHex(data);
    } catch (const char* text) {
        ADD_FAILURE() << request.name() << ": " << what << ": " << text << "\n" << support::toHex(data);
    }
    return Taking::dropped;
}

// Makes sure that the tests below do not only damage requests that a server would refuse anyway.
TEST(RequestMutation, everyCommandHasASampleThatIsCarriedOut) {
    std::optional<AttackedServer> server(std::in_place);
    std::map<std::string, std::string> failed;
    // Those of a login are not requests to the estate, and the others need fields that match each other.
    std::set<std::string> done{"22 Login",        "78 GetPublicKey",          "3 MoveRegion",
                               "45 DeleteRegion", "41 CreateInventoryReport", "83 AddShortId"};
    std::string last;
    for (const auto& request : sampleRequests(idsOf(server->connection()))) {
        if (request.name() != std::exchange(last, request.name())) {
            server.emplace();
        }
        const auto messages = request.messages();
        const auto taking = attack(*server, request, messages.size(), joined(messages), "as it is");
        if (taking == Taking::answered) {
            done.insert(request.name());
        } else {
            failed[request.name()] += taking == Taking::refused ? server->refusal() + "\n" : "dropped\n";
        }
        EXPECT_EQ(server->unsound(), "") << request.name();
    }
    for (const auto& [name, reasons] : failed) {
        EXPECT_TRUE(done.contains(name)) << name << ": " << reasons;
    }
}

TEST(RequestMutation, damageInsideOfASoundFrameIsDroppedOrRefusedOrDoneWhole) {
    AttackedServer server;
    for (const auto& request : sampleRequests(idsOf(server.connection()))) {
        const auto messages = request.messages();
        forEachMutation(joined(messages), [&](const Bytes& mutated, const std::string& what) {
            attack(server, request, messages.size(), mutated, what);
        });
    }
    EXPECT_EQ(server.unsound(), "");
}

// The length of the data message stays right, so that only the reader of its fields sees the damage.
TEST(RequestMutation, damageToTheFieldsAloneIsDroppedOrRefusedOrDoneWhole) {
    AttackedServer server;
    for (const auto& request : sampleRequests(idsOf(server.connection()))) {
        const auto command = support::commandMessage(request.command->opcode, request.command->version);
        const auto expectSound = [&](const Bytes& mutated, const std::string& what) {
            attack(server, request, 2, support::dataMessage(mutated) + command, what);
        };
        forEachTruncation(request.fields, expectSound);
        forEachMissingBeginning(request.fields, expectSound);
        expectSound(request.fields + Bytes(300, 0xFF), "300 bytes more");
    }
    EXPECT_EQ(server.unsound(), "");
}

TEST(RequestMutation, everyCountOfMessagesIsDroppedOrRefusedOrDoneWhole) {
    AttackedServer server;
    for (const auto& request : sampleRequests(idsOf(server.connection()))) {
        for (std::size_t count = 0; count < 256; ++count) {
            attack(server, request, count, joined(request.messages()), "a count of " + std::to_string(count));
        }
    }
    EXPECT_EQ(server.unsound(), "");
}

// The fields of one command with the opcode of another.
TEST(RequestMutation, fieldsOfOtherCommandsAreDroppedOrRefusedOrDoneWhole) {
    AttackedServer server;
    const auto requests = sampleRequests(idsOf(server.connection()));
    for (const auto& request : requests) {
        for (const auto& command : protocol::catalogue()) {
            const auto data =
                support::dataMessage(request.fields) + support::commandMessage(command.opcode, command.version);
            attack(server, request, 2, data, "as " + std::string(command.name));
        }
    }
    EXPECT_EQ(server.unsound(), "");
}

} // namespace
} // namespace adversity
