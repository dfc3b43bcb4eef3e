#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::hex;
using support::toHex;
using namespace test; // the words of requests

const std::string uuidText = "0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480";

Bytes group(const std::string& id, const std::u16string& name) {
    return str8(id) + str16(name) + str16(u"") + str16(u"") + str16(u"");
}

Bytes entry(const std::string& id, std::uint8_t type = 4, const std::string& target = {}) {
    return u8(type) + str8(id) + str16(u"") + str16(u"Entry") + str16(u"") + str16(u"") + str8(target) + str8("") +
           str8("");
}

Bytes pageLimit(const std::string& id, std::uint8_t action) {
    return str8(id) + u16(1) + str16(u"Limit") + str16(u"") + str16(u"") + u16(9) + hex("00 00") + u16(500) +
           u8(action) + hex("00 00 C0 3F  00") + str8("") + hex("01 00") + str16(u"") + str8("") + str16(u"x");
}

Bytes userMessage(const std::string& id, const std::u16string& name) {
    return str8(id) + str16(name) + str16(u"C") + str16(u"T") + u32(0) + u32(1) + u8(0);
}

Bytes pricePlan(const std::string& id, std::uint8_t payMethod) {
    return str8(id) + u8(payMethod) + str16(u"Plan") + str16(u"") +
           hex("00 00 80 3F 00 00 80 3F 00 00 80 3F 00 00 80 3F 00 00 00 00") + u32(2500);
}

Bytes price(const std::string& id) {
    return str8(id) + str8("A4") + u8(0) + u16(9) + hex("00 00 00 3F") + Bytes(16);
}

Bytes shortId(const std::string& id, const std::u16string& name) {
    return str8(id) + str16(name) + str16(u"") + hex("00  01 A0 05 00 00  00  01 D7 AF 00 00");
}

class RuleServer : public testing::Test {
protected:
    RuleServer() { server.start(); }

    // A change has no answer.
    void change(std::uint16_t opcode, const Bytes& fields) {
        EXPECT_EQ(toHex(ask(server.port(), request(opcode, fields))), "");
    }

    // The fields of each record of a list.
    std::vector<Bytes> list(std::uint16_t opcode, const std::optional<Bytes>& fields) {
        auto messages = messagesOf(ask(server.port(), request(opcode, fields)));
        EXPECT_FALSE(messages.empty()) << opcode;
        if (messages.empty()) {
            return {};
        }
        EXPECT_EQ(FieldCursor(messages.front()).number(2), messages.size() - 1);
        messages.erase(messages.begin());
        for (auto& message : messages) {
            message.erase(message.begin(), message.begin() + 5);
        }
        return messages;
    }

    RunningServer server;
};

using Records = std::vector<Bytes>;

TEST_F(RuleServer, aGroupIsAddedChangedListedAndDeleted) {
    change(58, u8(1) + group("g1", u""));
    change(58, u8(2) + group("g1", u"Group"));
    EXPECT_EQ(list(57, str8("")), Records{group("g1", u"Group")});
    EXPECT_EQ(list(57, str8("g1")), Records{group("g1", u"Group")});
    change(58, u8(3) + str8("g1"));
    EXPECT_EQ(list(57, str8("")), Records{});
}

TEST_F(RuleServer, aRefusedGroupChangesNothing) {
    change(58, u8(1) + group("g1", u"Group"));
    change(58, u8(1) + group("g1", u"Other"));
    change(58, u8(1) + group("", u"Other"));
    change(58, u8(2) + group("g2", u"Other"));
    change(58, u8(3) + str8("g2"));
    EXPECT_EQ(list(57, str8("")), Records{group("g1", u"Group")});
}

TEST_F(RuleServer, anAffectedUserComesBackInAnotherOrderThanItWasSent) {
    change(60, hex("01 00") + str8("a1") + u8(2) + str16(u"N"));
    EXPECT_EQ(list(59, str8("")), Records{str8("a1") + hex("02 00") + str16(u"N")});
    change(60, hex("02 01") + str8("a1") + u8(1) + str16(u"M"));
    change(60, hex("01 01") + str8("a1") + u8(1) + str16(u"Taken"));
    change(60, hex("01 01") + str8("a2") + u8(9) + str16(u"Neither user nor group"));
    EXPECT_EQ(list(59, str8("")), Records{str8("a1") + hex("01 01") + str16(u"M")});
    change(60, u8(3) + str8("a1"));
    EXPECT_EQ(list(59, str8("")), Records{});
}

TEST_F(RuleServer, anEntryIsPlacedChangedAndRemovedAndItsTypeIsTold) {
    change(58, u8(1) + group("g1", u""));
    change(64, u8(5) + u32(0) + str8("") + str8("g1") + entry("e1"));
    const auto listed = [](std::uint8_t type, const std::u16string& text) {
        return u8(type) + str8("e1") + str16(text) + str16(u"Entry") + str16(u"") + str16(u"") + str8("") + str8("") +
               str8("");
    };
    EXPECT_EQ(list(61, str8("g1") + u32(0)), Records{listed(4, u"Handover")});
    change(64, u8(88) + entry("e1", 7));
    EXPECT_EQ(list(61, str8("g1") + u32(0)), Records{listed(7, u"Client billing")});
    change(64, u8(88) + entry("e1", 8));
    change(64, u8(88) + entry("e2"));
    EXPECT_EQ(list(61, str8("g1") + u32(0)), Records{listed(7, u"Client billing")});
    change(62, u8(3) + str8("e1") + u16(7));
    EXPECT_EQ(list(61, str8("g1") + u32(0)), Records{});
}

TEST_F(RuleServer, entriesOfARegionAndOfRegionZeroAreListsOfTheirOwn) {
    change(1, u8(0) + u32(0) + str16(u"North"));
    change(64, u8(5) + u32(1) + str8("") + str8("") + entry("e1"));
    change(64, u8(5) + u32(0) + str8("") + str8("") + entry("e2"));
    change(64, u8(5) + u32(7) + str8("") + str8("") + entry("e3")); // there is no such region
    EXPECT_EQ(list(61, str8("") + u32(1)).size(), 1U);
    EXPECT_EQ(list(61, str8("") + u32(0)).size(), 1U);
    EXPECT_EQ(list(61, str8("") + u32(7)).size(), 0U);
    change(45, u32(1) + u8(0));
    EXPECT_EQ(list(61, str8("") + u32(1)).size(), 0U);
    EXPECT_EQ(list(61, str8("") + u32(0)).size(), 1U);
}

TEST_F(RuleServer, aPageLimitIsAddedChangedToldAndDeleted) {
    change(64, u8(1) + pageLimit("l1", 5));
    EXPECT_EQ(list(73, {}), Records{str8("l1") + str16(u"Limit")});
    change(64, u8(2) + pageLimit("l1", 6));
    change(64, u8(2) + pageLimit("l1", 7)); // no such action
    change(64, u8(1) + pageLimit("l1", 0));
    const auto told = messagesOf(ask(server.port(), request(65, str8("l1"))));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(toHex(told.at(0)), toHex(support::dataMessage(pageLimit("l1", 6))));
    change(66, str8("l1"));
    EXPECT_EQ(list(73, {}), Records{});
}

TEST_F(RuleServer, aPageLimitThatIsNotThereIsAnsweredWithAClosedConnection) {
    EXPECT_EQ(toHex(ask(server.port(), request(65, str8("l1")))), "");
}

TEST_F(RuleServer, aUserMessageIsAddedChangedListedAndDeletedUnlessItIsBuiltIn) {
    const auto builtIn = list(67, u8(1) + str8(""));
    EXPECT_EQ(builtIn.size(), 5U);
    change(68, u8(1) + userMessage(uuidText, u"A"));
    change(68, u8(2) + userMessage(uuidText, u"A first"));
    EXPECT_EQ(list(67, u8(1) + str8("")).at(0), userMessage(uuidText, u"A first"));
    change(68, u8(3) + str8(uuidText));
    change(68, u8(3) + str8("b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a01"));
    change(68, u8(1) + userMessage("no uuid", u"B"));
    EXPECT_EQ(list(67, u8(1) + str8("")), builtIn);
}

TEST_F(RuleServer, aPricePlanTravelsWithAllOfItsPrices) {
    change(70, u8(1) + pricePlan("p1", 3) + u16(2) + price("r1") + price("r2"));
    EXPECT_EQ(list(69, str8("")), Records{pricePlan("p1", 3)});
    EXPECT_EQ(list(71, str8("p1")), (Records{price("r1"), price("r2")}));
    change(70, u8(2) + pricePlan("p1", 1) + u16(1) + price("r3"));
    change(70, u8(2) + pricePlan("p1", 4) + u16(0)); // no such pay method
    EXPECT_EQ(list(69, str8("p1")), Records{pricePlan("p1", 1)});
    EXPECT_EQ(list(71, str8("p1")), Records{price("r3")});
    change(70, u8(3) + str8("p1"));
    EXPECT_EQ(list(69, str8("")), Records{});
    EXPECT_EQ(list(71, str8("p1")), Records{});
}

TEST_F(RuleServer, aPriceThatIsNoNumberIsABadRequest) {
    auto plan = pricePlan("p1", 0);
    const auto notANumber = hex("00 00 C0 7F");
    std::copy(notANumber.begin(), notANumber.end(), plan.end() - 8);
    change(70, u8(1) + plan + u16(0));
    EXPECT_EQ(list(69, str8("")), Records{});
}

TEST_F(RuleServer, aShortIdIsAddedChangedListedAndDeleted) {
    change(83, shortId(uuidText, u"One"));
    EXPECT_EQ(list(81, {}), Records{shortId(uuidText, u"One")});
    change(84, shortId(uuidText, u"Two"));
    change(83, shortId(uuidText, u"Taken"));
    change(83, shortId("", u"Without an id"));
    EXPECT_EQ(list(81, {}), Records{shortId(uuidText, u"Two")});
    change(82, str8(uuidText));
    EXPECT_EQ(list(81, {}), Records{});
}

TEST_F(RuleServer, aFormThatDoesNotExistIsABadRequestAndDoesNothing) {
    for (const auto& [opcode, action] : std::initializer_list<std::pair<std::uint16_t, std::uint8_t>>{
             {58, 0}, {58, 4}, {60, 5}, {62, 1}, {64, 3}, {64, 87}, {68, 88}, {70, 255}}) {
        change(opcode, u8(action) + group("g1", u"N"));
    }
    for (const auto opcode : std::initializer_list<std::uint16_t>{58, 60, 62, 64, 68, 70}) {
        change(opcode, {});
    }
    EXPECT_EQ(list(57, str8("")), Records{});
}

TEST_F(RuleServer, everyTruncationOfAWriteDoesNothing) {
    const auto whole = u8(1) + pricePlan("p1", 0) + u16(1) + price("r1");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        change(70, Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    }
    EXPECT_EQ(list(69, str8("")), Records{});
}

TEST_F(RuleServer, textTravelsAsTheUnitsThatCame) {
    const std::u16string name{0xFEFF, 0xD83D, 0xDE00, 0xDC00};
    change(58, u8(1) + group("g1", name));
    EXPECT_EQ(list(57, str8("")), Records{group("g1", name)});
}

} // namespace
} // namespace server
