#include "tests/adversity/Operations.h"

#include "protocol/estate/Printer.h"
#include "wire/Text.h"

#include <exception>

namespace adversity {

namespace {

using client::CQVXAdminClass;

std::string regionsOf(CQVXAdminClass& client) {
    const bool listed = client.listRegions(protocol::RegionKind::printersAndQueues, 1);
    std::string text = listed ? "" : "false";
    for (const auto& region : client.regions()) {
        text += std::to_string(region.id) + " " + wire::toUtf8(region.name) + "\n";
    }
    return text;
}

std::string printersOf(CQVXAdminClass& client) {
    std::int16_t count = 0;
    const bool listed = client.getFollowQueuesInRegion(1, count);
    std::string text = (listed ? "" : "false ") + std::to_string(count) + "\n";
    for (const auto& printer : client.printerRecords()) {
        text += printer.id + " " + wire::toUtf8(printer.name) + "\n";
    }
    return text;
}

std::string addPrinter(CQVXAdminClass& client, const wire::WideString& name) {
    protocol::PrinterRecord printer;
    printer.name = name;
    printer.regionId = 1;
    const auto reply = client.createRecord({}, printer);
    return reply.id.empty() ? "refused: " + wire::toUtf8(reply.status.text) : "made";
}

std::string octetOrder(CQVXAdminClass& client) {
    const auto order = client.getStatusOctetOrder("none");
    return order ? std::to_string(*order) : "none";
}

std::vector<protocol::FieldValue> valuesOf(const SampleRequest& request) {
    if (request.fields.empty()) {
        return {};
    }
    const auto bytes = support::dataMessage(request.fields);
    wire::Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    std::vector<protocol::FieldValue> values;
    for (auto& field : protocol::readFields(message, *request.layout)) {
        values.push_back(std::move(field.value));
    }
    return values;
}

std::string textOf(const client::RawReply& reply) {
    wire::Message again;
    again.beginMessage(0);
    for (const auto& record : reply.records) {
        protocol::writeField(again, {record});
    }
    const auto bytes = again.bytes();
    return (reply.complete ? "" : "broken off ") + support::toHex({bytes.begin(), bytes.end()});
}

} // namespace

std::vector<Operation> shortReads() {
    return {{"regions", regionsOf}, {"follow-print queues", printersOf}, {"octet order", octetOrder}};
}

Operation addingPrinter(const wire::WideString& name) {
    return {"add a printer", [name](CQVXAdminClass& client) { return addPrinter(client, name); }};
}

std::vector<Operation> everyRead() {
    std::vector<Operation> operations;
    for (const auto& request : sampleRequests()) {
        const bool reads = request.command->reply == protocol::ReplyShape::list;
        if (reads) {
            operations.push_back(
                {request.name(), [opcode = request.command->opcode, fields = valuesOf(request)](
                                     CQVXAdminClass& client) { return textOf(client.rawCall(opcode, fields)); }});
        }
    }
    return operations;
}

std::string outcomeOf(const Operation& operation, const std::shared_ptr<client::CQVXAdminClassProperties>& settings) {
    CQVXAdminClass client(settings);
    try {
        return operation.run(client);
    } catch (const std::exception& error) {
        return std::string("exception: ") + error.what();
    } catch (const char* text) {
        return std::string("plain: ") + text;
    }
}

} // namespace adversity
