#pragma once

#include "protocol/configurations/QueueConfiguration.h"
#include "protocol/estate/Printer.h"
#include "tests/support/Bytes.h"
#include "tests/support/DriverEstate.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

// An estate with a queue "q1", a follow-print queue "f1", two brands with their models, and two drivers that the queues
// have configurations for.
class QueueDialogs : public ::testing::Test {
protected:
    using Names = std::vector<wire::WideString>;
    using Strings = std::vector<std::string>;

    QueueDialogs() {
        catalogue_.addSamples();
        auto lobby = support::printer("q1", 5, u"Lobby");
        lobby.recordType = protocol::recordType::queue;
        lobby.location = u"Ground floor";
        lobby.comment = u"Moves in May";
        lobby.modelId = "o2";
        lobby.timeToLive = 90;
        lobby.snmpStatus = '4';
        lobby.printingStatus = '3';
        lobby.localConfigHandling = true;
        estate_.queues = {lobby};
        auto anywhere = support::printer("f1", 5, u"Anywhere");
        anywhere.recordType = protocol::recordType::followQueue;
        estate_.followQueues = {anywhere};
        estate_.lists[17] = [this](const support::Bytes&) { return bytesOf(configurations_); };
        estate_.lists[18] = [this](const support::Bytes&) { return bytesOf(choices_); };
        estate_.lists[61] = [](const support::Bytes&) { return std::vector<support::Bytes>(); };
    }

    template <class Record>
    static std::vector<support::Bytes> bytesOf(const std::vector<Record>& records) {
        std::vector<support::Bytes> all;
        std::ranges::transform(records, std::back_inserter(all), [](const Record& record) {
            const auto message = protocol::makeDataMessage(record);
            return support::Bytes(message->bytes().begin() + 5, message->bytes().end());
        });
        return all;
    }
    template <class Request>
    static Request requestOf(const std::string& request) {
        const auto message = support::dataMessage(support::hex(request.substr(request.find(':') + 1)));
        wire::Message loaded;
        loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
        return protocol::read<Request>(loaded);
    }
    // The only record that was created, and the printer that it was created under.
    protocol::CreateRecordRequest created() {
        const auto changes = estate_.changes(1);
        EXPECT_EQ(changes.size(), 1U);
        EXPECT_TRUE(changes.front().starts_with("9: "));
        return requestOf<protocol::CreateRecordRequest>(changes.front());
    }
    // The record in each of a number of equal updates.
    protocol::PrinterRecord updated(std::size_t times) {
        const auto changes = estate_.changes(times);
        EXPECT_EQ(changes.size(), times);
        EXPECT_EQ(std::ranges::count(changes, changes.front()), static_cast<std::ptrdiff_t>(times));
        EXPECT_TRUE(changes.front().starts_with("10: "));
        return requestOf<protocol::UpdateRecordRequest>(changes.front()).record;
    }
    static Names rowsOf(const forms::DropList& list) {
        Names names;
        for (const auto& item : list.items()) {
            names.push_back(item.text);
        }
        return names;
    }
    // The list that belongs to the opcode breaks off.
    void breakList(std::uint16_t opcode) {
        estate_.brokenLists = {{opcode, support::frame({support::dataMessage(support::hex("01 00"))})}};
    }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::DriverEstate catalogue_{estate_};
    std::vector<protocol::QueueConfigEntry> configurations_{{.configId = "c1",
                                                             .driverName = u"PCL 6",
                                                             .locale = u"de-DE",
                                                             .driverMapId = "m1",
                                                             .packageName = u"Duplex",
                                                             .comment = {}},
                                                            {.configId = {},
                                                             .driverName = u"PostScript",
                                                             .locale = u"en-GB",
                                                             .driverMapId = "m2",
                                                             .packageName = {},
                                                             .comment = {}}};
    std::vector<protocol::QueueConfigChoice> choices_{{.id = "c2", .name = u"Simplex"},
                                                      {.id = "c1", .name = u"Duplex"}};
};
