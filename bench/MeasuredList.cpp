#include "bench/MeasuredList.h"

#include "client/Exchange.h"
#include "client/ServerCalls.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"
#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"

#include <chrono>
#include <stdexcept>

namespace bench {
namespace {

using namespace protocol; // requests and records
using Clock = std::chrono::steady_clock;
using Owners = ManyRows::Owners;

double secondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

std::unique_ptr<wire::Message> next(client::Exchange& exchange, std::unique_ptr<wire::Message> used = nullptr) {
    auto message = exchange.receive(std::move(used));
    if (!message) {
        throw std::runtime_error("A list broke off");
    }
    return message;
}

// What an operation of the console does, in separate steps.
template <Record R, Record Request>
ListRun list(client::CQVXAdminClass& client, const Request& request) {
    ListRun run;
    std::vector<R> records;
    const auto begin = Clock::now();
    client::Exchange exchange(client, commandOf<Request>());
    if (!exchange.connect()) {
        throw std::runtime_error("No connection");
    }
    exchange.send(client::dataMessageOf(request));
    auto message = next(exchange);
    const auto count = client::Exchange::readCount(*message);
    run.inOneMessage = message->remaining() > 0;
    records.reserve(count);
    for (std::uint16_t index = 0; index < count; ++index) {
        message = run.inOneMessage ? std::move(message) : next(exchange, std::move(message));
        read(*message, records.emplace_back());
        run.secondsToFirst = index == 0 ? secondsSince(begin) : run.secondsToFirst;
    }
    run.seconds = secondsSince(begin);
    run.records = records.size();
    run.receiveCalls = double(exchange.transport().counts().receiveCalls);
    return run;
}

// Builds the request from the owners.
template <Record R, class Make>
MeasuredList measured(std::string name, Make make) {
    return {std::move(name),
            [make](client::CQVXAdminClass& client, const Owners& owners) { return list<R>(client, make(owners)); }};
}

ListPrinterRecordsRequest records(std::uint16_t mode, std::int32_t region, const std::string& printer = {}) {
    return {.printerId = printer, .regionId = region, .mode = mode};
}

void addEstate(std::vector<MeasuredList>& lists) {
    namespace mode = printerListMode;
    lists.push_back(measured<PrinterRecord>("Printers of a region",
                                            [](const Owners& o) { return records(mode::printersInRegion, o.region); }));
    lists.push_back(
        measured<PrinterRecord>("Queues of a region", [](const Owners& o) { return records(mode::queues, o.region); }));
    lists.push_back(measured<PrinterRecord>("Queues of a printer",
                                            [](const Owners& o) { return records(mode::queues, 0, o.printer); }));
    lists.push_back(measured<PrinterRecord>(
        "Follow-print queues", [](const Owners& o) { return records(mode::followQueuesInRegion, o.region); }));
    lists.push_back(measured<PrinterRecord>(
        "Local printers", [](const Owners& o) { return records(mode::localPrintersInRegion, o.localRegion); }));
    lists.push_back(measured<RegionRecord>("Regions", [](const Owners&) { return ListRegionsRequest{}; }));
}

void addDrivers(std::vector<MeasuredList>& lists) {
    const auto models = [](std::uint8_t kind) {
        return [kind](const Owners& o) {
            const bool ofModel = kind == driverModelList::alternates;
            return ListDriverModelsRequest{.listKind = kind, .parentId = ofModel ? o.model : o.brand};
        };
    };
    const auto drivers = [](std::uint8_t kind) {
        return [kind](const Owners& o) {
            return ListDriversRequest{.listKind = kind, .parentId = kind == driverList::ofBrand ? o.brand : o.model};
        };
    };
    lists.push_back(measured<DriverBrandRecord>("Brands", [](const Owners&) { return ListDriverBrandsRequest{}; }));
    lists.push_back(measured<DriverModelRecord>("Models of a brand", models(driverModelList::ofBrand)));
    lists.push_back(measured<DriverModelRecord>("Models for dialogs", models(driverModelList::forDialogs)));
    lists.push_back(measured<DriverModelRecord>("Alternates of a model", models(driverModelList::alternates)));
    lists.push_back(measured<DriverModelRecord>("Models for alternates", models(driverModelList::forAlternates)));
    lists.push_back(measured<DriverRecord>("Drivers of a brand", drivers(driverList::ofBrand)));
    lists.push_back(measured<DriverRecord>("Drivers of a model", drivers(driverList::ofModel)));
    lists.push_back(measured<ShortDriverRecord>("Drivers in short", drivers(driverList::shortOfModel)));
    lists.push_back(measured<DriverDeploymentRecord>("Deployments of a model", [](const Owners& o) {
        return ListDriverDeploymentsRequest{.modelId = o.model, .driverId = {}};
    }));
    lists.push_back(measured<DriverDeploymentRecord>("Deployments of a driver", [](const Owners& o) {
        return ListDriverDeploymentsRequest{.modelId = o.model, .driverId = o.driver};
    }));
    lists.push_back(measured<QueueConfigEntry>("Configurations of a queue", [](const Owners& o) {
        return ListQueueConfigurationsRequest{.queueId = o.queue, .driverMapId = {}};
    }));
    lists.push_back(measured<QueueConfigChoice>("Configurations to choose", [](const Owners& o) {
        return ListConfigurationChoicesRequest{.driverMapId = o.deployment};
    }));
    lists.push_back(measured<ConfigurationRecord>(
        "Configurations of a model", [](const Owners& o) { return ListConfigurationsRequest{.modelId = o.model}; }));
    lists.push_back(measured<ConfigQueueRecord>("Queues of a configuration", [](const Owners& o) {
        return ListConfigurationQueuesRequest{.configId = o.configuration};
    }));
}

void addAlarms(std::vector<MeasuredList>& lists) {
    lists.push_back(measured<EmailRecipientRecord>("E-mail recipients",
                                                   [](const Owners&) { return ListEmailRecipientsRequest{}; }));
    lists.push_back(
        measured<AlarmProgramRecord>("Alarm programs", [](const Owners&) { return ListAlarmProgramsRequest{}; }));
    lists.push_back(measured<AlarmDestinationRecord>(
        "Destinations of an action", [](const Owners&) { return ListAlarmDestinationsRequest{.actionCode = 1}; }));
    lists.push_back(measured<ProgramActionRecord>(
        "Actions of a program", [](const Owners& o) { return ListProgramActionsRequest{.programId = o.program}; }));
}

void addInventory(std::vector<MeasuredList>& lists) {
    const auto found = [](std::uint16_t kind) {
        return [kind](const Owners& o) { return ListInventoryPrintersRequest{.listKind = kind, .id = o.report}; };
    };
    const auto models = [](std::uint16_t kind) {
        return [kind](const Owners& o) { return ListInventoryModelsRequest{.listKind = kind, .id = o.report}; };
    };
    lists.push_back(measured<InventoryReportRecord>("Inventory reports",
                                                    [](const Owners&) { return ListInventoryReportsRequest{}; }));
    lists.push_back(measured<InventoryPrinterRecord>("Found printers by address", found(foundListKind::byIp)));
    lists.push_back(measured<InventoryPrinterRecord>("Found printers by model", found(foundListKind::byModel)));
    lists.push_back(measured<InventoryPrinterRecord>("Found printers by name", found(foundListKind::byName)));
    lists.push_back(measured<InventoryPrinterRecord>("Found local printers", found(foundListKind::localByWorkstation)));
    lists.push_back(measured<InventoryPrinterRecord>("Found local by model", found(foundListKind::localByModel)));
    lists.push_back(measured<InventoryModelRecord>("Found models", models(modelListKind::all)));
    lists.push_back(measured<SchemaRecord>("Migration plans", [](const Owners&) { return ListSchemasRequest{}; }));
    lists.push_back(
        measured<FoundQueueRecord>("Queues by pattern", [](const Owners&) { return SearchQueuesRequest{}; }));
    lists.push_back(measured<IpRangeRecord>("IP ranges", [](const Owners&) { return ListIpRangesRequest{}; }));
}

void addRules(std::vector<MeasuredList>& lists) {
    lists.push_back(measured<RuleGroupRecord>("Rule groups", [](const Owners&) { return ListRuleGroupsRequest{}; }));
    lists.push_back(measured<AffectedRecord>("Users and groups", [](const Owners&) { return ListAffectedRequest{}; }));
    lists.push_back(measured<RuleEntryRecord>("Rule entries", [](const Owners& o) {
        return ListRuleEntriesRequest{.ownerId = o.ruleGroup, .ownerNumber = 0};
    }));
    lists.push_back(
        measured<UserMessageRecord>("User messages", [](const Owners&) { return ListUserMessagesRequest{}; }));
    lists.push_back(measured<PricePlanRecord>("Price plans", [](const Owners&) { return ListPricePlansRequest{}; }));
    lists.push_back(measured<PriceEntryRecord>(
        "Prices of a plan", [](const Owners& o) { return ListPriceEntriesRequest{.planId = o.pricePlan}; }));
    lists.push_back(measured<PageLimitName>("Page limits", [](const Owners&) { return ListPageLimitsRequest{}; }));
    lists.push_back(measured<ShortIdRecord>("Short ids", [](const Owners&) { return ListShortIdsRequest{}; }));
}

} // namespace

std::vector<MeasuredList> measuredLists() {
    std::vector<MeasuredList> lists;
    addEstate(lists);
    addDrivers(lists);
    addAlarms(lists);
    addInventory(lists);
    addRules(lists);
    return lists;
}

} // namespace bench
