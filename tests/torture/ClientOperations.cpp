#include "tests/torture/ClientOperations.h"

#include "wire/Text.h"

#include <array>

namespace torture {

namespace {

using client::CQVXAdminClass;
using protocol::RegionKind;
using Result = std::optional<std::string>;

constexpr std::int32_t firstRegion = 1; // the first of the sample

Result listRegions(CQVXAdminClass& client) {
    if (!client.listRegions(RegionKind::printersAndQueues)) {
        return std::nullopt;
    }
    std::string lines;
    for (const auto& one : client.regions()) {
        lines += wire::toUtf8(one.name) + "\n";
    }
    return lines;
}

Result linesOf(const std::vector<protocol::PrinterRecord>& records) {
    std::string lines;
    for (const auto& record : records) {
        lines += record.id + " " + wire::toUtf8(record.name) + "\n";
    }
    return lines;
}

Result listLocalPrinters(CQVXAdminClass& client) {
    std::int16_t count = 0;
    if (!client.listRegions(RegionKind::localPrinters) || client.regions().empty()) {
        return std::nullopt;
    }
    const auto last = client.regions().back().id;
    return client.getLocalPrintersInRegion(last, count) ? linesOf(client.printerRecords()) : std::nullopt;
}

Result createQueue(CQVXAdminClass& client) {
    protocol::PrinterRecord record;
    record.recordType = protocol::recordType::followQueue;
    record.regionId = firstRegion;
    record.name = u"Made over and over again";
    const auto reply = client.createRecord({}, record);
    return wire::toUtf8(reply.status.caption) + "\n";
}

Result createRegion(CQVXAdminClass& client) {
    if (!client.createRegion(RegionKind::printersAndQueues, firstRegion, u"Made over and over again")) {
        return std::nullopt;
    }
    return "sent\n";
}

Result getOctetOrder(CQVXAdminClass& client) {
    const auto order = client.getStatusOctetOrder("no such printer");
    return order ? Result(std::to_string(*order) + "\n") : std::nullopt;
}

Result logIn(CQVXAdminClass& client) {
    const auto status = client.login(u"admin", u"secret", u"");
    return status == protocol::loginStatus::noAnswer ? std::nullopt
                                                     : Result(std::to_string(static_cast<int>(status)) + "\n");
}

Result callRaw(CQVXAdminClass& client) {
    const std::array fields = {protocol::FieldValue{std::uint8_t{0}}, protocol::FieldValue{std::uint32_t{0}},
                               protocol::FieldValue{std::uint16_t{0}}};
    const auto reply = client.rawCall(0, fields);
    return "came\n";
}

} // namespace

const std::vector<ClientOperation>& clientOperations() {
    static const std::vector<ClientOperation> operations = {
        {"ListRegions", &listRegions},
        {"ListLocalPrinters", &listLocalPrinters, true},
        {"CreateQueue", &createQueue},
        {"CreateRegion", &createRegion},
        {"GetOctetOrder", &getOctetOrder},
        {"LogIn", &logIn},
        {"CallRaw", &callRaw},
    };
    return operations;
}

} // namespace torture
