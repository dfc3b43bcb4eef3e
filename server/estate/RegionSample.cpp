#include "server/estate/RegionSample.h"

#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "server/estate/SampleNames.h"
#include "wire/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

namespace server {

namespace {

namespace type = protocol::recordType;

constexpr std::uint8_t queueTree = 0;
constexpr std::uint8_t localTree = 1;
constexpr int printersInHub = 10000;
constexpr int printersInOffice = 200;

std::u16string numbered(std::u16string_view before, int number, int digits) {
    return std::u16string(before) + wire::toWide(fmt::format("{:0{}}", number, digits));
}

std::uint8_t digit(std::uint32_t value) {
    return static_cast<std::uint8_t>('0' + value);
}

} // namespace

void RegionSample::fillSmall() {
    const auto berlin = addRegion(queueTree, 0, u"Berlin");
    const auto headquarters = addRegion(queueTree, berlin, u"Headquarters");
    const Office ground{addRegion(queueTree, headquarters, u"Ground floor"), u"BER-HQ0"};
    const Office first{addRegion(queueTree, headquarters, u"1st floor"), u"BER-HQ1"};
    const Office second{addRegion(queueTree, headquarters, u"2nd floor"), u"BER-HQ2"};
    const Office warehouse{addRegion(queueTree, berlin, u"Warehouse"), u"BER-WH"};
    const Office munich{addRegion(queueTree, 0, u"München"), u"MUC"};
    const Office showroom{addRegion(queueTree, munich.region, u"Showroom"), u"MUC-SR"};
    addRegion(queueTree, munich.region, u"Training centre");
    const Office lodz{addRegion(queueTree, 0, u"Łódź"), u"LCJ"};
    addPrinters(ground, 6, 2);
    addPrinters(first, 9, 2);
    addPrinters(second, 8, 2);
    addPrinters(warehouse, 5, 1);
    addPrinters(munich, 6, 2);
    addPrinters(showroom, 2, 1);
    addPrinters(lodz, 4, 2);
    for (const auto& office : {ground, first, munich}) {
        addFollowQueue(office, 1);
    }

    const auto home = addRegion(localTree, 0, u"Home offices");
    addLocalPrinters({addRegion(localTree, home, u"North"), u"HOME-N"}, 4);
    addLocalPrinters({addRegion(localTree, home, u"South"), u"HOME-S"}, 3);
    addLocalPrinters({addRegion(localTree, 0, u"Field service"), u"FIELD"}, 2);
}

void RegionSample::fill(int printers) {
    const int inHub = std::min(printers / 2, printersInHub);
    addPrinters({addRegion(queueTree, 0, u"Central Print Hub"), u"HUB"}, inHub, 1);

    std::map<std::u16string_view, std::int32_t> countries;
    std::map<std::u16string_view, std::int32_t> cities;
    const auto onceIn = [&](auto& known, std::u16string_view name, std::int32_t parent) {
        const auto [place, isNew] = known.try_emplace(name, 0);
        if (isNew) {
            place->second = addRegion(queueTree, parent, name);
        }
        return place->second;
    };
    const auto fieldService = addRegion(localTree, 0, u"Field service");
    int left = printers - inHub;
    for (std::size_t number = 0; left > 0; ++number) {
        const auto& place = sample::places[number % sample::places.size()];
        const auto round = static_cast<int>(number / sample::places.size()) + 1;
        const auto country = onceIn(countries, place.country, 0);
        const auto city = onceIn(cities, place.city, country);
        const Office office{addRegion(queueTree, city, numbered(u"Office ", round, 3)),
                            numbered(std::u16string(place.code) + u"-", round, 3)};
        const int here = std::min(left, printersInOffice);
        addPrinters(office, here, 1);
        addFollowQueue(office, 1);
        if (round == 1) {
            addLocalPrinters({addRegion(localTree, fieldService, place.city), std::u16string(place.code) + u"-L"}, 5);
        }
        left -= here;
    }
}

std::int32_t RegionSample::addRegion(std::uint8_t kind, std::int32_t parentId, std::u16string_view name) {
    return connection_.table<RegionTable>().insert(kind, parentId, std::u16string(name));
}

void RegionSample::addPrinters(const Office& office, int count, int mostQueues) {
    for (int number = 1; number <= count; ++number) {
        auto printer = makeRecord(office, type::printer, numbered(office.code + u"-", number, count > 999 ? 5 : 3));
        const auto queues = 1 + random_.below(static_cast<std::uint32_t>(mostQueues));
        for (std::uint32_t queue = 0; queue < queues; ++queue) {
            printer.jobs = static_cast<std::uint16_t>(printer.jobs + (random_.below(3) == 0 ? random_.below(12) : 0));
        }
        connection_.table<RecordTable>().insert({.record = printer, .printerId = {}});
        for (std::uint32_t queue = 0; queue < queues; ++queue) {
            auto record = makeRecord(office, type::queue, printer.name + (queue == 0 ? u"-mono" : u"-color"));
            record.ip.clear();
            record.modelName = printer.modelName;
            record.modelId = printer.modelId;
            record.jobs = queue == 0 ? printer.jobs : 0;
            connection_.table<RecordTable>().insert({.record = record, .printerId = printer.id});
        }
    }
}

void RegionSample::addFollowQueue(const Office& office, int number) {
    auto record = makeRecord(office, type::followQueue, numbered(office.code + u"-follow-me-", number, 1));
    record.ip.clear();
    record.fpBoxIp = fmt::format("10.250.{}.{}", office.region % 250, number);
    record.jobs = static_cast<std::uint16_t>(random_.below(20));
    connection_.table<RecordTable>().insert({.record = record, .printerId = {}});
}

void RegionSample::addLocalPrinters(const Office& office, int count) {
    for (int number = 1; number <= count; ++number) {
        auto record = makeRecord(office, type::localPrinter, numbered(office.code + u"-", number, 2));
        record.ip.clear();
        connection_.table<RecordTable>().insert({.record = record, .printerId = {}});
    }
}

protocol::PrinterRecord RegionSample::makeRecord(const Office& office, std::uint16_t recordType, std::u16string name) {
    const auto& model = random_.anyOf(sample::models);
    const std::uint32_t number = made_++;
    protocol::PrinterRecord record;
    record.ip = fmt::format("10.{}.{}.{}", 1 + number / 62500 % 250, number / 250 % 250, 1 + number % 250);
    record.id = random_.newId();
    record.name = std::move(name);
    record.location = random_.anyOf(sample::rooms);
    record.comment = random_.anyOf(sample::comments);
    record.modelName = model.name;
    record.modelId = model.id;
    record.lprQueueName = recordType == type::printer ? u"lp" : u"";
    record.regionId = office.region;
    // Most printers are fine, and every state occurs.
    record.snmpStatus = digit(number % 4 == 1 ? number / 4 % 10 : 0);
    record.printingStatus = digit(number % 5 == 2 ? number / 5 % 5 : 0);
    record.queueState = digit(recordType != type::printer && number % 6 == 3 ? number / 6 % 3 : 0);
    record.recordType = recordType;
    record.timeToLive = recordType == type::printer ? std::uint16_t{0} : std::uint16_t{24};
    record.snmpActive = recordType == type::printer;
    record.snmpIndex = 1;
    record.snmpCommunity = u"public";
    record.accounting = random_.below(4) == 0 ? 3 : 0;
    return record;
}

} // namespace server
