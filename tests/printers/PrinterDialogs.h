#pragma once

#include "protocol/alarms/AlarmProgram.h"
#include "protocol/estate/Printer.h"
#include "tests/support/Bytes.h"
#include "tests/support/DriverEstate.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

// Dialogs of printers over an estate with two brands, two programs of each kind and the printer "p1", which is given
// all that a dialog can show.
class PrinterDialogs : public ::testing::Test {
protected:
    using Strings = std::vector<std::string>;
    using Names = std::vector<wire::WideString>;

    PrinterDialogs() {
        drivers_.addSamples();
        estate_.regions = {support::region(1, 0, u"North"), support::region(2, 1, u"Harbour")};
        estate_.printers = {samplePrinter()};
        programs_[0] = {program("alarm1", u"Call the desk"), program("alarm2", u"Write a mail")};
        programs_[2] = {program("count1", u"By SNMP"), program("count2", u"By hand")};
        estate_.lists[27] = [this](const support::Bytes& fields) {
            std::vector<support::Bytes> records;
            std::ranges::transform(programs_[fields.at(0)], std::back_inserter(records), bytesOf<Program>);
            return records;
        };
        estate_.lists[61] = [](const support::Bytes&) { return std::vector<support::Bytes>(); };
        estate_.replies[76] = [this](const support::Bytes&) { return octetOrder_; };
        estate_.replies[9] = [](const support::Bytes&) { return support::hex("00 00 00 00 00 00 00 00 02 00 70 39"); };
    }

    static protocol::PrinterRecord samplePrinter() {
        auto record = support::printer("p1", 2, u"Copier");
        record.ip = "10.0.0.7";
        record.fpBoxIp = "10.0.0.8";
        record.location = u"Quay 3";
        record.comment = u"Ask Ms Ahrn";
        record.modelName = u"Oki C2";
        record.modelId = "o2";
        record.auxId = "aux";
        record.lprQueueName = u"lpr";
        record.port = 9100;
        record.snmpStatus = '4';
        record.printingStatus = '3';
        record.snmpActive = true;
        record.snmpIndex = 7;
        record.snmpCommunity = u"private";
        record.alarmProgramId = "alarm2";
        record.mailMessage = u"Paper, please";
        record.invisible = 1;
        record.counterProgramId = "count1";
        record.accounting = 3;
        record.doNotAutoCreateQueue = 1;
        record.auxKey = "key";
        return record;
    }

    // The fields of every request with the opcode, decoded, once the given number of requests has arrived.
    template <class Request>
    std::vector<Request> sent(std::size_t requests) {
        std::vector<Request> all;
        for (const auto& request : estate_.requests(requests)) {
            if (std::stoul(request) == Request::opcode) {
                const auto message = support::dataMessage(support::hex(request.substr(request.find(':') + 1)));
                wire::Message loaded;
                loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
                all.push_back(protocol::read<Request>(loaded));
            }
        }
        return all;
    }
    // The records that updates have sent.
    std::vector<protocol::PrinterRecord> updates() {
        std::vector<protocol::PrinterRecord> records;
        std::ranges::transform(sent<protocol::UpdateRecordRequest>(platform_.commands().size()),
                               std::back_inserter(records), &protocol::UpdateRecordRequest::record);
        return records;
    }

    static Names rowsOf(const forms::DropList& list) {
        Names rows;
        std::ranges::transform(list.items(), std::back_inserter(rows), &forms::DropListItem::text);
        return rows;
    }
    static void choose(forms::DropList& list, std::u16string_view text) {
        const auto row = std::ranges::find(list.items(), text, &forms::DropListItem::text) - list.items().begin();
        ASSERT_TRUE(list.userSelected(static_cast<std::size_t>(row))) << wire::toUtf8(text);
    }

    using Program = protocol::AlarmProgramRecord;
    static Program program(std::string id, wire::WideString name) {
        Program record;
        record.id = std::move(id);
        record.name = std::move(name);
        return record;
    }
    template <class Record>
    static support::Bytes bytesOf(const Record& record) {
        const auto message = protocol::makeDataMessage(record);
        return {message->bytes().begin() + 5, message->bytes().end()};
    }

    // An answer that contains less than it announces.
    static support::Bytes brokenList() { return support::frame({support::dataMessage(support::hex("02 00"))}); }

    std::map<std::uint8_t, std::vector<Program>> programs_; // by their kind
    support::Bytes octetOrder_ = support::hex("02 00 00 00");
    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::DriverEstate drivers_{estate_};
};
