#include "server/Schema.h"
#include "server/estate/RegionTable.h"
#include "tests/server/support/ManyPrinters.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/Sealing.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::hex;
using support::toHex;
using namespace test; // the words of requests

Bytes createRegion(const std::u16string& name, std::uint32_t parent = 0) {
    return request(1, u8(0) + u32(parent) + str16(name));
}
Bytes listRegions(std::uint32_t parent = 0) {
    return request(0, u8(0) + u32(parent) + u16(0));
}

std::vector<std::u16string> regionNames(std::uint16_t port) {
    const auto message = messagesOf(ask(port, listRegions())).at(0);
    FieldCursor cursor(message);
    std::vector<std::u16string> names(cursor.number(2));
    for (auto& name : names) {
        name = cursor.text16();
        (void)cursor.number(4);
        (void)cursor.number(4);
    }
    return names;
}

// The fields of a record with only a name, a region and a type.
Bytes recordFields(const std::u16string& name, std::uint32_t region, std::uint16_t type, const std::string& id = {}) {
    return str8("") + str8("") + str8(id) + str16(name) + str16(u"") + str16(u"") + str16(u"") + str8("") + str8("") +
           str16(u"") + u32(515) + u32(region) + u16(0) + hex("30 30 30") + u16(type) + u8(0) + str16(u"") + u16(0) +
           hex("00 00 00 00") + str16(u"") + str8("") + str16(u"") + u8(0) + str8("") + hex("00 00") + str8("");
}

struct Created {
    std::u16string caption;
    std::u16string text;
    std::uint32_t style;
    std::string id;
};

Created create(std::uint16_t port, const Bytes& fields, const std::string& printer = {}) {
    const auto message = messagesOf(ask(port, request(9, str8(printer) + fields))).at(0);
    FieldCursor cursor(message);
    Created created{cursor.text16(), cursor.text16(), cursor.number(4), cursor.text8()};
    EXPECT_TRUE(cursor.atEnd());
    return created;
}

Bytes listPrinters(std::uint32_t region) {
    return request(6, str8("") + u32(region) + u16(0));
}

std::size_t printersIn(std::uint16_t port, std::uint32_t region) {
    const auto messages = messagesOf(ask(port, listPrinters(region)));
    return messages.size() - 1;
}

TEST(Server, aChangeWithoutAnswerEndsWithAClosedConnection) {
    RunningServer server;
    server.start();
    EXPECT_EQ(toHex(ask(server.port(), createRegion(u"North"))), "");
    EXPECT_EQ(toHex(ask(server.port(), listRegions())), "01 1B 00 00 00 33 02 00 00 01 1B 00 00 00 01 00 "
                                                        "0A 00 4E 00 6F 00 72 00 74 00 68 00 01 00 00 00 00 00 00 00");
}

TEST(Server, regionsAreRenamedMovedAndDeleted) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    tell(server.port(), createRegion(u"South"));
    tell(server.port(), request(2, u8(0) + u32(1) + str16(u"East")));
    EXPECT_EQ(regionNames(server.port()), (std::vector<std::u16string>{u"East", u"South"}));
    tell(server.port(), request(3, u8(0) + u32(2) + u32(1)));
    EXPECT_EQ(toHex(ask(server.port(), listRegions(1))), "01 1B 00 00 00 3D 02 00 00 01 1B 00 00 00 01 00 "
                                                         "0A 00 53 00 6F 00 75 00 74 00 68 00 02 00 00 00 01 00 00 00");
    tell(server.port(), request(45, u32(1) + u8(0)));
    EXPECT_EQ(regionNames(server.port()).size(), 2U);
    tell(server.port(), request(45, u32(2) + u8(0)));
    tell(server.port(), request(45, u32(1) + u8(0)));
    EXPECT_EQ(regionNames(server.port()).size(), 0U);
}

TEST(Server, aNewRecordIsAnsweredWithAnEmptyStatusAndItsId) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    const auto answer = ask(server.port(), request(9, str8("") + recordFields(u"P", 1, 0)));
    const auto message = messagesOf(answer).at(0);
    ASSERT_EQ(message.size(), 5U + 8 + 2 + 36);
    EXPECT_EQ(toHex({message.begin(), message.begin() + 15}), "01 33 00 00 00 00 00 00 00 00 00 00 00 24 00");
    EXPECT_EQ(printersIn(server.port(), 1), 1U);
}

TEST(Server, aRefusedRecordIsAnsweredWithABoxAndNoId) {
    RunningServer server;
    server.start();
    const auto created = create(server.port(), recordFields(u"P", 7, 0));
    EXPECT_EQ(created.caption, u"Not saved");
    EXPECT_EQ(created.text, u"The region of this printer does not exist.");
    EXPECT_EQ(created.style, 0x30U);
    EXPECT_EQ(created.id, "");
}

TEST(Server, anUpdateComesInVersionTwoAndIsAnswered) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    const auto id = create(server.port(), recordFields(u"P", 1, 0)).id;
    EXPECT_EQ(toHex(ask(server.port(), request(10, recordFields(u"Q", 1, 0, id), 2))),
              "01 0D 00 00 00 0E 00 00 00 01 0D 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(toHex(ask(server.port(), request(10, recordFields(u"Q", 1, 0, id), 1))), "");
}

TEST(Server, aPrinterIsMovedWithItsQueuesAndDeletedWithThem) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    tell(server.port(), createRegion(u"South"));
    const auto printer = create(server.port(), recordFields(u"P", 1, 0)).id;
    const auto queue = create(server.port(), recordFields(u"Q", 0, 1), printer).id;
    tell(server.port(), request(21, str8(printer) + u32(2)));
    EXPECT_EQ(printersIn(server.port(), 1), 0U);
    EXPECT_EQ(printersIn(server.port(), 2), 1U);
    const auto queuesOfSouth = request(6, str8("") + u32(2) + u16(1));
    EXPECT_EQ(messagesOf(ask(server.port(), queuesOfSouth)).size(), 2U);
    tell(server.port(), request(36, u8(1) + str8(printer)));
    EXPECT_EQ(messagesOf(ask(server.port(), queuesOfSouth)).size(), 1U);
    EXPECT_EQ(messagesOf(ask(server.port(), request(6, str8(queue) + u32(0) + u16(4)))).size(), 1U);
}

TEST(Server, theStatusOctetOrderIsSetAndRead) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    const auto printer = create(server.port(), recordFields(u"P", 1, 0)).id;
    tell(server.port(), request(74, u32(2) + str8(printer)));
    EXPECT_EQ(toHex(ask(server.port(), request(76, str8(printer)))),
              "01 09 00 00 00 0C 00 00 00 01 09 00 00 00 02 00 00 00");
}

TEST(Server, bytesAfterTheLastFieldDoNotDisturb) {
    RunningServer server;
    server.start();
    tell(server.port(), request(1, u8(0) + u32(0) + str16(u"North") + hex("AA BB CC DD")));
    EXPECT_EQ(regionNames(server.port()).size(), 1U);
}

TEST(Server, aCommandIsCarriedOutAlthoughItsConsoleHasClosedItsSide) {
    RunningServer server;
    server.start();
    TestClient client(server.port());
    client.send(createRegion(u"North")).closeSending();
    EXPECT_TRUE(client.isClosedSilently());
    EXPECT_EQ(regionNames(server.port()).size(), 1U);
    TestClient reader(server.port());
    reader.send(listRegions()).closeSending();
    EXPECT_EQ(messagesOf(reader.receiveAll()).size(), 1U);
}

TEST(Server, aCommandMayComeByteByByte) {
    RunningServer server;
    server.start();
    TestClient client(server.port());
    for (const auto byte : createRegion(u"North")) {
        client.send({byte});
    }
    EXPECT_TRUE(client.isClosedSilently());
    EXPECT_EQ(regionNames(server.port()).size(), 1U);
}

TEST(Server, changesOfOneConsoleAreSeenByAnother) {
    RunningServer server;
    server.start();
    TestClient early(server.port());
    tell(server.port(), createRegion(u"North"));
    EXPECT_EQ(regionNames(server.port()).size(), 1U);
    early.send(listRegions());
    EXPECT_EQ(FieldCursor(messagesOf(early.receiveAll()).at(0)).number(2), 1U);
}

TEST(Server, aListShowsEveryChangeThatWasSentBeforeIt) {
    RunningServer server;
    server.start();
    for (std::size_t round = 1; round <= 100; ++round) {
        tell(server.port(), createRegion(u"Region " + std::u16string(round, u'x')));
        ASSERT_EQ(regionNames(server.port()).size(), round);
    }
}

TEST(Server, manyChangesAtOnceAreAllDoneInTheirOrder) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"0"));
    for (int round = 1; round <= 200; ++round) {
        const auto digits = std::to_string(round);
        tell(server.port(), request(2, u8(0) + u32(1) + str16(std::u16string(digits.begin(), digits.end()))));
    }
    EXPECT_EQ(regionNames(server.port()), std::vector<std::u16string>{u"200"});
}

TEST(Server, manyConsolesOfOneAddressEachSeeTheirChangesInTheirOrder) {
    RunningServer server;
    server.start();
    constexpr std::uint32_t consoles = 6;
    for (std::uint32_t console = 0; console < consoles; ++console) {
        tell(server.port(), createRegion(std::u16string(1, static_cast<char16_t>(u'A' + console))));
    }
    for (std::uint32_t console = 0; console < consoles; ++console) {
        tell(server.port(), createRegion(u"inner", console + 1));
    }
    ASSERT_EQ(regionNames(server.port()).size(), std::size_t{2} * consoles);
    const auto administer = [&](std::uint32_t outer) {
        for (char16_t round = 0; round < 80; ++round) {
            const std::u16string name = {u'x', static_cast<char16_t>(u'a' + round)};
            for (const auto& next : {std::u16string(u"first"), std::u16string(u"second"), name}) {
                tell(server.port(), request(2, u8(0) + u32(outer + consoles) + str16(next)));
            }
            const auto message = messagesOf(ask(server.port(), listRegions(outer))).at(0);
            FieldCursor cursor(message);
            EXPECT_EQ(cursor.number(2), 1U);
            EXPECT_EQ(cursor.text16(), name);
        }
    };
    std::vector<std::jthread> threads;
    for (std::uint32_t console = 0; console < consoles; ++console) {
        threads.emplace_back(administer, console + 1);
    }
}

TEST(Server, aChangeOverAConnectionThatWasMadeLongBeforeIsNotOvertaken) {
    RunningServer server;
    server.start();
    for (std::size_t round = 1; round <= 50; ++round) {
        TestClient early(server.port());
        EXPECT_EQ(regionNames(server.port()).size(), round - 1);
        early.send(createRegion(std::u16string(round, u'x')));
        early.close();
        ASSERT_EQ(regionNames(server.port()).size(), round);
    }
}

TEST(Server, peersThatSayNothingDoNotHoldUpOthers) {
    RunningServer server;
    server.start();
    std::vector<TestClient> silent;
    for (int count = 0; count < 40; ++count) {
        silent.emplace_back(server.port());
    }
    silent.front().send({2, 0});
    tell(server.port(), createRegion(u"North"));
    EXPECT_EQ(regionNames(server.port()).size(), 1U);
}

TEST(Server, twoConsolesThatTakeTheSameNameGetOneRecordAndOneRefusal) {
    RunningServer server;
    server.start();
    tell(server.port(), createRegion(u"North"));
    std::vector<TestClient> clients;
    for (int count = 0; count < 8; ++count) {
        clients.emplace_back(server.port());
    }
    for (auto& client : clients) {
        client.send(request(9, str8("") + recordFields(u"P", 1, 0)));
    }
    int made = 0;
    for (auto& client : clients) {
        const auto message = client.receiveFrame();
        FieldCursor cursor(message);
        made += cursor.text16().empty() ? 1 : 0;
    }
    EXPECT_EQ(made, 1);
    EXPECT_EQ(printersIn(server.port(), 1), 1U);
}

TEST(Server, aSlowReaderOfALongListDoesNotHoldUpOthersAndGetsItsMoment) {
    RunningServer server;
    const auto connection = server.store().openConnection();
    const auto region = connection->table<RegionTable>().insert(0, 0, u"North");
    addManyPrinters(*connection, region, 2000, std::u16string(10000, u'c'));
    server.start();
    TestClient slow(server.port());
    slow.send(listPrinters(1));
    EXPECT_EQ(toHex(slow.receiveFrame()), "01 07 00 00 00 D0 07");
    tell(server.port(), request(36, u8(1) + str8("1999")));
    EXPECT_EQ(printersIn(server.port(), 1), 1999U);
    for (int count = 0; count < 2000; ++count) {
        (void)slow.receiveFrame();
    }
    EXPECT_TRUE(slow.isClosedSilently());
}

TEST(Server, whatWasSentBeforeTheEndIsStillCarriedOut) {
    RunningServer server;
    const auto& store = server.store();
    server.start();
    for (int round = 0; round < 50; ++round) {
        tell(server.port(), createRegion(u"Region " + std::u16string(static_cast<std::size_t>(round), u'x')));
    }
    server.stop();
    const auto connection = store.openConnection();
    auto rows = connection->table<RegionTable>().list(0, 0);
    int count = 0;
    while (rows.next()) {
        ++count;
    }
    EXPECT_EQ(count, 50);
}

TEST(Server, anAddressInUseOrUnknownIsTold) {
    RunningServer first;
    const TestFolder folder;
    const Store store(folder / "other.db", schema());
    Accounts accounts(store);
    const auto messageOf = [&](const std::string& listen, std::uint16_t port) -> std::string {
        try {
            const Server second(store, accounts, commands(),
                                {.listen = listen, .port = port, .loginRequired = {}, .limits = {}});
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    };
    EXPECT_EQ(messageOf("127.0.0.1", first.port()),
              "cannot listen on 127.0.0.1 port " + std::to_string(first.port()) + ": Address already in use");
    EXPECT_EQ(messageOf("elsewhere", 0), "\"elsewhere\" is not an address to listen on");
    EXPECT_NE(messageOf("192.0.2.1", 0).find("cannot listen on 192.0.2.1"), std::string::npos);
}

} // namespace
} // namespace server
