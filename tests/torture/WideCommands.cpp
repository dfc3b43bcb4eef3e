#include "tests/torture/WideCommands.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/torture/Requests.h"
#include "tests/torture/WideDomainCommands.h"

namespace torture {

namespace {

using protocol::PrinterRecord;

// The printer with the most queues.
PrinterRecord busiestPrinter(std::uint16_t port) {
    PrinterRecord busiest;
    std::size_t most = 0;
    const auto regions = regionsAt(port).value();
    for (const auto& region : regions) {
        const auto printers = recordsIn(port, region.id, protocol::printerListMode::printersInRegion).value();
        for (const auto& printer : printers) {
            const auto queues = listOf<PrinterRecord>(
                port, protocol::ListPrinterRecordsRequest{.printerId = printer.id,
                                                          .regionId = printer.regionId,
                                                          .mode = protocol::printerListMode::queues});
            if (queues.value().size() > most) {
                most = queues->size();
                busiest = printer;
            }
        }
    }
    if (most < 2) {
        throw std::runtime_error("no printer of the sample has several queues");
    }
    return busiest;
}

std::int32_t newRegion(std::uint16_t port) {
    (void)server::test::ask(port, requestOf(protocol::CreateRegionRequest{.kind = 0, .parentId = 0, .name = u"New"}));
    const auto regions = regionsAt(port).value();
    for (const auto& region : regions) {
        if (region.name == u"New") {
            return region.id;
        }
    }
    throw std::runtime_error("the new region is not there");
}

Bytes deletePrinterWithQueues(std::uint16_t port) {
    return requestOf(
        protocol::DeleteRecordRequest{.type = protocol::RecordDeletion::printer, .id = busiestPrinter(port).id});
}

Bytes movePrinterWithQueues(std::uint16_t port) {
    return requestOf(protocol::MovePrinterRequest{.printerId = busiestPrinter(port).id, .regionId = newRegion(port)});
}

Bytes updatePrinterIntoAnotherRegion(std::uint16_t port) {
    auto printer = busiestPrinter(port);
    printer.regionId = newRegion(port);
    printer.comment = std::u16string(6000, u'c'); // more than fits into one page of the database
    return requestOf(protocol::UpdateRecordRequest{.record = printer});
}

Bytes moveRegion(std::uint16_t port) {
    const auto regions = regionsAt(port).value();
    const auto below = std::ranges::find_if(regions, [](const auto& region) { return region.parentId != 0; });
    return requestOf(protocol::MoveRegionRequest{.kind = 0, .regionId = below->id, .parentId = newRegion(port)});
}

} // namespace

const std::vector<WideCommand>& wideCommands() {
    static const std::vector<WideCommand> commands = {
        {"DeletePrinterWithQueues", &deletePrinterWithQueues},
        {"MovePrinterWithQueues", &movePrinterWithQueues},
        {"UpdatePrinterIntoAnotherRegion", &updatePrinterIntoAnotherRegion},
        {"MoveRegion", &moveRegion},
        {"ReplaceDeployment", &replaceDeployment},
        {"DeleteUsedConfiguration", &deleteUsedConfiguration},
        {"RewritePricePlan", &rewritePricePlan},
        {"DeleteRuleGroup", &deleteRuleGroup},
        {"DeleteAlarmProgram", &deleteAlarmProgram},
        {"CreateInventoryReport", &createInventoryReport},
    };
    return commands;
}

} // namespace torture
