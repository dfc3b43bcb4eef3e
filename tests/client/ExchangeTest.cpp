#include "client/Exchange.h"

#include "client/ConnectFailed.h"
#include "client/ServerCalls.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/client/ClientTest.h"

namespace client {
namespace {

using protocol::field;
using protocol::wireOrder;

// A list in the middle form, on a member connection.
struct ListEmailRecipients {
    static constexpr std::uint16_t opcode = 23;
    static constexpr auto fields = wireOrder();
};

// A list in the strict form with a guarded send, on a member connection.
struct ListPageLimits {
    static constexpr std::uint16_t opcode = 73;
    static constexpr auto fields = wireOrder();
};

// A list in the plain form, on a member connection.
struct ListDriverBrands {
    static constexpr std::uint16_t opcode = 4;
    static constexpr auto fields = wireOrder();
};

// A list in the strict form, on an open connection.
struct ListPricePlans {
    static constexpr std::uint16_t opcode = 69;
    static constexpr auto fields = wireOrder();
};

struct OneByte {
    std::uint8_t value = 0;

    static constexpr auto fields = wireOrder(field("value", &OneByte::value));

    bool operator==(const OneByte&) const = default;
};

struct OneId {
    wire::Uuid id{};

    static constexpr auto fields = wireOrder(field("id", &OneId::id));
};

class Commands : public ClientTest {
protected:
    // A list of two records, of which the second one's frame has a wrong checksum.
    static Bytes listWithABrokenFrame() {
        return frame({dataMessage(hex("02 00"))}) + frame({dataMessage(hex("41"))}) +
               frame({dataMessage(hex("42"))}, 12345U);
    }

    CQVXAdminClass2 client{settings};
    std::vector<OneByte> records{{9}};
};

TEST_F(Commands, listPageLimitsWithoutAServerThrowsNothingAndIsEmpty) {
    EXPECT_FALSE(listRecords(client, ListPageLimits{}, records));

    EXPECT_TRUE(records.empty());
}

TEST_F(Commands, aListWithCountZeroIsOneFrameAndNoRecordFrames) {
    answer({frame({dataMessage(hex("00 00"))})});

    EXPECT_TRUE(listRecords(client, ListPricePlans{}, records));

    EXPECT_TRUE(records.empty());
    EXPECT_EQ(observer.ended.at(0).bytesReceived, 16U);
}

TEST_F(Commands, aBrokenRecordFrameIsFailedToGetMessagesInTheStrictReader) {
    answer({listWithABrokenFrame()});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListPageLimits{}, records)); }),
              "failed to get messages");
}

TEST_F(Commands, aBrokenRecordFrameIsFailedToGetMessageInTheMiddleReader) {
    answer({listWithABrokenFrame()});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListEmailRecipients{}, records)); }),
              "failed to get message");
}

TEST_F(Commands, aBrokenRecordFrameEndsThePlainReaderWithTheRecordsReadSoFar) {
    answer({listWithABrokenFrame()});

    EXPECT_TRUE(listRecords(client, ListDriverBrands{}, records));

    EXPECT_EQ(records, std::vector<OneByte>{{0x41}});
}

TEST_F(Commands, aFrameWithoutAMessageIsFailedToGetMessageInTheStrictReader) {
    answer({frame({})});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListPageLimits{}, records)); }),
              "failed to get message");
}

TEST_F(Commands, aRequestWithoutFieldsIsAFrameWithCountOneAndSizeNine) {
    answer({frame({dataMessage(hex("00 00"))})});

    EXPECT_TRUE(listRecords(client, ListDriverBrands{}, records));

    EXPECT_EQ(received(), hex("01  09 00 00 00  0E 00 00 00  00 09 00 00 00 01 00 04 00"));
}

TEST_F(Commands, aRequestWithFieldsHasCountTwoAndBeginsWithTheDataMessage) {
    answer({Bytes{}});

    EXPECT_TRUE(sendCommand(client, protocol::MovePrinterRequest{.printerId = "p", .regionId = 1}));

    EXPECT_EQ(received(), hex("02  15 00 00 00  9E 00 00 00"
                              "01 0C 00 00 00 01 00 70 01 00 00 00"
                              "00 09 00 00 00 01 00 15 00"));
}

TEST_F(Commands, twoInARowOnOneObjectUseTwoConnections) {
    answer({Bytes{}, frame({dataMessage(hex("00 00"))})});

    EXPECT_TRUE(sendCommand(client, protocol::MovePrinterRequest{.printerId = "p", .regionId = 1}));
    EXPECT_TRUE(listRecords(client, ListDriverBrands{}, records));

    EXPECT_EQ(received(0).at(0), 2);
    EXPECT_EQ(received(1), frame({commandMessage(4, 1)}));
}

TEST_F(Commands, aTrailingFieldInARecordIsLeftUnread) {
    answer({countedList({hex("41 FF FF"), hex("42")})});

    EXPECT_TRUE(listRecords(client, ListPricePlans{}, records));

    EXPECT_EQ(records, (std::vector<OneByte>{{0x41}, {0x42}}));
}

TEST_F(Commands, aCountOf32768IsTakenAsNoRecords) {
    answer({frame({dataMessage(hex("00 80"))})});

    EXPECT_TRUE(listRecords(client, ListPricePlans{}, records));

    EXPECT_TRUE(records.empty());
}

TEST_F(Commands, anOpenCommandWithoutAServerThrowsAndSendsNothing) {
    EXPECT_THROW(static_cast<void>(listRecords(client, ListPricePlans{}, records)), ConnectFailed);
    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListPricePlans{}, records)); }),
              "Failed to connect to server");
}

TEST_F(Commands, aGuardedSendWithoutASocketThrowsFailedToSendMessages) {
    answer({Bytes{}});
    Exchange exchange(client, *protocol::findCommand(73));
    ASSERT_TRUE(exchange.connect());
    exchange.transport().disconnect(0);

    EXPECT_EQ(thrownBy([&] { exchange.send(nullptr); }), "failed to send messages");
}

TEST_F(Commands, anUnguardedSendWithoutASocketIsNotNoticed) {
    answer({Bytes{}});
    Exchange exchange(client, *protocol::findCommand(21));
    ASSERT_TRUE(exchange.connect());
    exchange.transport().disconnect(0);

    EXPECT_NO_THROW(exchange.send(nullptr));
}

TEST_F(Commands, aFrameWhoseMessagesDoNotAddUpThrowsReadingOutOfScope) {
    answer({frame({hex("01 FF 00 00 00 00 00")})});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListDriverBrands{}, records)); }),
              "plain: Reading out of scope");
}

TEST_F(Commands, aCountMessageThatIsTooShortThrowsReadingOutsideScope) {
    answer({frame({dataMessage(hex("01"))})});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListDriverBrands{}, records)); }),
              "plain: Reading outside scope");
}

TEST_F(Commands, aUuidThatIsNoneThrowsInvalidUuidString) {
    answer({countedList({hex("00 00")})});
    std::vector<OneId> ids;

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListDriverBrands{}, ids)); }),
              "invalid uuid string");
    EXPECT_TRUE(ids.empty());
}

TEST_F(Commands, aRecordThatCannotBeReadIsNotKept) {
    answer({countedList({hex("41"), Bytes{}})});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListPageLimits{}, records)); }),
              "plain: Reading outside scope");
    EXPECT_EQ(records, std::vector<OneByte>{{0x41}});
}

TEST_F(Commands, aFrameThatIsTooLargeEndsTheList) {
    answer({frame({dataMessage(hex("01 00"))}) + hex("01  01 F4 01 00  00 00 00 00")});

    EXPECT_TRUE(listRecords(client, ListDriverBrands{}, records));

    EXPECT_TRUE(records.empty());
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::failed);
}

TEST_F(Commands, everyCommandReportsItsStartAndItsEndOnce) {
    answer({countedList({hex("41"), hex("42")})});

    EXPECT_TRUE(listRecords(client, ListDriverBrands{}, records, "brands"));

    ASSERT_EQ(observer.started.size(), 1U);
    EXPECT_EQ(observer.started[0].outcome, CommandOutcome::running);
    ASSERT_EQ(observer.ended.size(), 1U);
    const CommandReport& report = observer.ended[0];
    EXPECT_EQ(report.opcode, 4);
    EXPECT_EQ(report.name, "ListDriverBrands");
    EXPECT_EQ(report.target, "127.0.0.1:" + std::to_string(settings->port));
    EXPECT_EQ(report.summary, "brands");
    EXPECT_EQ(report.bytesSent, 18U);
    EXPECT_EQ(report.bytesReceived, 16U + 15U + 15U);
    EXPECT_EQ(report.records, 2U);
    EXPECT_TRUE(report.connected);
    EXPECT_EQ(report.outcome, CommandOutcome::done);
    EXPECT_EQ(report.text, "");
}

TEST_F(Commands, aCommandThatThrowsReportsItsTextOnce) {
    answer({frame({dataMessage(hex("01"))})});

    EXPECT_ANY_THROW(static_cast<void>(listRecords(client, ListPricePlans{}, records)));

    ASSERT_EQ(observer.ended.size(), 1U);
    EXPECT_EQ(observer.ended[0].outcome, CommandOutcome::failed);
    EXPECT_EQ(observer.ended[0].text, "Reading outside scope");
}

TEST_F(Commands, aCommandThatIsGivenUpReportsThatItWasCancelled) {
    GivingUp givingUp;
    settings->hooks.wait = &givingUp;
    serve({[](Connection& connection) { connection.stall(); }});

    EXPECT_EQ(thrownBy([&] { static_cast<void>(listRecords(client, ListDriverBrands{}, records)); }), "Cancelled");

    ASSERT_EQ(observer.ended.size(), 1U);
    EXPECT_EQ(observer.ended[0].outcome, CommandOutcome::cancelled);
}

TEST_F(Commands, anObserverThatThrowsDoesNotDisturb) {
    class Throwing final : public CommandObserver {
    public:
        void commandStarted(const CommandReport&) override { throw "started"; }
        void commandEnded(const CommandReport&) override { throw "ended"; }
    };
    Throwing throwing;
    settings->hooks.commands = &throwing;
    answer({Bytes{}});

    EXPECT_NO_THROW(sendCommand(client, protocol::MovePrinterRequest{}));
}

TEST_F(Commands, theConnectionIsClosedAlsoWhereTheRowLeavesItOpen) {
    answer({frame({dataMessage(hex("00 00"))})});

    EXPECT_TRUE(listRecords(client, ListPageLimits{}, records));

    EXPECT_EQ(server->finish(), ""); // the script waits for the end of its connection
    EXPECT_EQ(client.transport, nullptr);
}

TEST_F(Commands, withoutAParentTheOwnSettingsCount) {
    answer({Bytes{}});
    CQVXAdminClass2 alone(nullptr);
    alone.host = settings->host;
    alone.port = settings->port;

    EXPECT_TRUE(sendCommand(alone, protocol::MovePrinterRequest{}));
    EXPECT_EQ(&alone.settings(), static_cast<CQVXAdminClassProperties*>(&alone));
}

TEST_F(Commands, withAParentItsSettingsCount) {
    EXPECT_EQ(&client.settings(), settings.get());
    EXPECT_EQ(client.settings().connectTimeout, 10U);
}

TEST_F(Commands, anObjectWithoutSettingsGivenUsesTheOnesOfTheProgram) {
    theProperties = settings;
    CQVXAdminClass ofTheProgram;
    theProperties.reset();

    EXPECT_EQ(&ofTheProgram.settings(), settings.get());
}

} // namespace
} // namespace client
