#include "tests/support/FakeEstate.h"

#include "client/CQVXAdminClassProperties.h"
#include "protocol/estate/Printer.h"
#include "tests/support/Bytes.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace support {
namespace {

constexpr std::size_t mostCommands = 200;
constexpr std::chrono::seconds limit{20};
constexpr std::uint16_t listRegions = 0;
constexpr std::uint16_t listRecords = 6;
constexpr std::uint16_t createRecord = 9;
constexpr std::uint16_t updateRecord = 10;

struct Request {
    std::uint16_t opcode = 0;
    Bytes message; // the whole Data message; empty without one
};

std::uint32_t number(const Bytes& bytes, std::size_t offset, std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
        value |= static_cast<std::uint32_t>(bytes.at(offset + i)) << (8 * i);
    }
    return value;
}

Request parse(const Bytes& frameBytes) {
    Request request;
    std::size_t offset = 9;
    while (offset < frameBytes.size()) {
        const std::size_t length = number(frameBytes, offset + 1, 4);
        if (frameBytes[offset] == 0) {
            request.opcode = static_cast<std::uint16_t>(number(frameBytes, offset + 7, 2));
        } else {
            const auto begin = frameBytes.begin() + static_cast<std::ptrdiff_t>(offset);
            request.message.assign(begin, begin + static_cast<std::ptrdiff_t>(length));
        }
        offset += length;
    }
    return request;
}

template <class Record>
Bytes fieldsOf(const Record& record) {
    const auto message = protocol::makeDataMessage(record);
    return {message->bytes().begin() + 5, message->bytes().end()};
}

template <class Record>
Bytes listInOneMessage(const std::vector<Record>& records) {
    Bytes fields{static_cast<std::uint8_t>(records.size() & 0xFF), static_cast<std::uint8_t>(records.size() >> 8)};
    for (const auto& record : records) {
        fields = std::move(fields) + fieldsOf(record);
    }
    return frame({dataMessage(fields)});
}

} // namespace

FakeEstate::FakeEstate(client::ClientHooks hooks)
    : server_(std::vector<ScriptedServer::Script>(
          mostCommands, [this](ScriptedServer::Connection& connection) { answer(connection); })) {
    client::theProperties = std::make_shared<client::CQVXAdminClassProperties>();
    client::theProperties->host = "127.0.0.1";
    client::theProperties->port = server_.port();
    client::theProperties->hooks = hooks;
}

FakeEstate::~FakeEstate() {
    client::theProperties.reset();
}

void FakeEstate::goOffline() {
    client::theProperties->port = ScriptedServer::unusedPort();
}

std::vector<std::string> FakeEstate::requests(std::size_t count) {
    std::unique_lock lock(mutex_);
    noted_.wait_for(lock, limit, [&] { return requests_.size() >= count; });
    return requests_;
}

bool FakeEstate::onlyLists(const std::string& request) const {
    const auto opcode = static_cast<std::uint16_t>(std::stoul(request));
    return opcode == listRegions || opcode == listRecords || lists.contains(opcode) || replies.contains(opcode);
}

std::vector<std::string> FakeEstate::changes(std::size_t count) {
    std::vector<std::string> found;
    std::unique_lock lock(mutex_);
    noted_.wait_for(lock, limit, [&] {
        found = requests_;
        std::erase_if(found, [this](const std::string& request) { return onlyLists(request); });
        return found.size() >= count;
    });
    return found;
}

void FakeEstate::answer(ScriptedServer::Connection& connection) {
    const Request request = parse(connection.expectFrame());
    const Bytes fields = request.message.empty() ? Bytes() : Bytes(request.message.begin() + 5, request.message.end());
    {
        const std::lock_guard lock(mutex_);
        requests_.push_back(std::to_string(request.opcode) + ": " + toHex(fields));
    }
    noted_.notify_all();
    if (const auto broken = brokenLists.find(request.opcode); broken != brokenLists.end()) {
        connection.send(broken->second);
    } else if (request.opcode == listRegions) {
        const bool local = fields.front() == static_cast<std::uint8_t>(protocol::RegionKind::localPrinters);
        connection.send(listInOneMessage(local ? localRegions : regions));
    } else if (request.opcode == listRecords) {
        connection.send(countedList(listPrinterRecords(request.message)));
    } else if (request.opcode == createRecord && !replies.contains(createRecord)) {
        connection.send(frame({dataMessage(fieldsOf(createReply))}));
    } else if (request.opcode == updateRecord) {
        connection.send(frame({dataMessage(fieldsOf(updateReply))}));
    } else if (const auto list = lists.find(request.opcode); list != lists.end()) {
        connection.send(countedList(list->second(fields)));
    } else if (const auto reply = replies.find(request.opcode); reply != replies.end()) {
        if (const Bytes record = reply->second(fields); !record.empty()) {
            connection.send(frame({dataMessage(record)}));
        }
    }
}

std::vector<Bytes> FakeEstate::listPrinterRecords(const Bytes& message) const {
    namespace mode = protocol::printerListMode;
    wire::Message loaded;
    loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
    const auto request = protocol::read<protocol::ListPrinterRecordsRequest>(loaded);
    std::vector<Bytes> records;
    const auto addAll = [&records](const auto& from, const auto& wanted) {
        for (const auto& record : from) {
            if (wanted(record)) {
                records.push_back(fieldsOf(record));
            }
        }
    };
    const auto inRegion = [&](const protocol::PrinterRecord& record) { return record.regionId == request.regionId; };
    const auto any = [](const protocol::PrinterRecord&) { return true; };
    if (request.mode == mode::printersInRegion) {
        addAll(printers, inRegion);
    } else if (request.mode == mode::followQueuesInRegion) {
        addAll(followQueues, inRegion);
    } else if (request.mode == mode::printerById) {
        addAll(printers, [&](const protocol::PrinterRecord& record) { return record.id == request.printerId; });
    } else if (request.mode == mode::localPrintersInRegion) {
        addAll(localPrinters, inRegion);
    } else if (request.mode == mode::queueById) {
        const auto wanted = [&](const protocol::PrinterRecord& record) { return record.id == request.printerId; };
        addAll(queues, wanted);
        addAll(followQueues, wanted);
    } else if (request.mode == mode::queues && request.printerId.empty()) {
        addAll(queues, inRegion);
    } else if (request.mode == mode::queues && queuesOfPrinter.contains(request.printerId)) {
        addAll(queuesOfPrinter.at(request.printerId), any);
    }
    return records;
}

protocol::RegionRecord region(std::int32_t id, std::int32_t parentId, wire::WideString name) {
    return {.name = std::move(name), .id = id, .parentId = parentId};
}

protocol::PrinterRecord printer(std::string id, std::int32_t regionId, wire::WideString name) {
    protocol::PrinterRecord record;
    record.id = std::move(id);
    record.regionId = regionId;
    record.name = std::move(name);
    return record;
}

} // namespace support
