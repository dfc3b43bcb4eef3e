#pragma once

#include "client/ClientHooks.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"
#include "tests/support/ScriptedServer.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace support {

// A server on a real loopback socket that lists what the test puts into it and records the requests. It changes nothing
// by itself. While it lives, the console's settings point to it.
class FakeEstate {
public:
    explicit FakeEstate(client::ClientHooks hooks = {});
    ~FakeEstate();
    FakeEstate(const FakeEstate&) = delete;
    FakeEstate& operator=(const FakeEstate&) = delete;

    // Set these only between commands. Lists are sent in this order.
    std::vector<protocol::RegionRecord> regions;
    std::vector<protocol::PrinterRecord> printers;
    std::vector<protocol::PrinterRecord> queues; // listed by their regions
    std::vector<protocol::PrinterRecord> followQueues;
    std::vector<protocol::RegionRecord> localRegions;
    std::vector<protocol::PrinterRecord> localPrinters;
    std::map<std::string, std::vector<protocol::PrinterRecord>> queuesOfPrinter;
    protocol::StatusReply updateReply;
    protocol::CreateRecordReply createReply;
    // The bytes of frames sent instead of a list of regions or of printer records, by opcode.
    std::map<std::uint16_t, Bytes> brokenLists;
    // The content of the lists of other commands, by opcode: the bytes of each record, from the fields of the request.
    std::map<std::uint16_t, std::function<std::vector<Bytes>(const Bytes& fields)>> lists;
    // The same for commands that are answered with one record; no bytes for no answer.
    std::map<std::uint16_t, std::function<Bytes(const Bytes& fields)>> replies;

    // From now on connections fail.
    void goOffline();

    // All commands so far, once the given number has arrived, as "45: 05 00 00 00 00" with the bytes of the fields in
    // hex.
    std::vector<std::string> requests(std::size_t count);
    // The same without those that only list.
    std::vector<std::string> changes(std::size_t count);

private:
    void answer(ScriptedServer::Connection& connection);
    bool onlyLists(const std::string& request) const;
    std::vector<Bytes> listPrinterRecords(const Bytes& message) const;

    std::mutex mutex_;
    std::condition_variable noted_;
    std::vector<std::string> requests_;
    ScriptedServer server_;
};

// Records with the fields that most tests need.
protocol::RegionRecord region(std::int32_t id, std::int32_t parentId, wire::WideString name);
protocol::PrinterRecord printer(std::string id, std::int32_t regionId, wire::WideString name);

} // namespace support
