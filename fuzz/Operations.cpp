#include "fuzz/Operations.h"

#include "fuzz/Expect.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace fuzz {

namespace {

using client::CQVXAdminClass;
using protocol::RegionKind;

// Takes records from a cursor until it has none left.
template <auto next>
void takeAll(CQVXAdminClass& client) {
    const auto take = [&]<class Class, class Record>(bool (Class::*member)(Record&)) {
        Record record;
        while ((client.*member)(record)) {
        }
    };
    take(next);
}

// A list of the client, read and then iterated.
template <auto list, auto next>
void cursor(CQVXAdminClass& client) {
    const auto read = [&]<class Class, class... Arguments>(bool (Class::*member)(Arguments...)) {
        return (client.*member)(std::remove_cvref_t<Arguments>{}...);
    };
    static_cast<void>(read(list));
    takeAll<next>(client);
}

// A list read into a vector of the caller.
template <class Record, auto list>
void whole(CQVXAdminClass& client) {
    std::vector<Record> records;
    if constexpr (requires { std::invoke(list, client, records); }) {
        static_cast<void>(std::invoke(list, client, records));
    } else if constexpr (requires { std::invoke(list, client, records, ""); }) {
        static_cast<void>(std::invoke(list, client, records, ""));
    } else if constexpr (requires { std::invoke(list, client, "id", records); }) {
        static_cast<void>(std::invoke(list, client, "id", records));
    } else {
        static_cast<void>(std::invoke(list, client, "id", 0, records));
    }
}

// A command whose answer is one record.
template <auto ask>
void single(CQVXAdminClass& client) {
    static_cast<void>(std::invoke(ask, client, "id"));
}

void listRegions(CQVXAdminClass& client) {
    client.listRegions(RegionKind::printersAndQueues);
    std::int32_t id = 0;
    std::int32_t parent = 0;
    wire::WideString name;
    while (client.nextRegion(id, parent, name)) {
    }
}

void listPrinters(CQVXAdminClass& client) {
    std::int16_t count = 0;
    client.getPrintersInRegion(1, count);
    expect(std::cmp_greater_equal(std::max<std::int16_t>(count, 0), client.printerRecords().size()));
    takeAll<&CQVXAdminClass::nextPrinterRecord>(client);
}

void createRecord(CQVXAdminClass& client) {
    static_cast<void>(client.showRefusal(client.createRecord("p", {}).status));
}

void updateRecord(CQVXAdminClass& client) {
    static_cast<void>(client.showRefusal(client.updateRecord({})));
}

void fetchPublicKey(CQVXAdminClass& client) {
    std::string key;
    static_cast<void>(client.fetchPublicKey(key, "127.0.0.1", 1));
}

void login(CQVXAdminClass& client) {
    static_cast<void>(client.login(u"user", u"password", u"domain"));
}

void writeAlarmProgram(CQVXAdminClass& client) {
    std::string id;
    client.writeAlarmProgram(id, u"name", u"", u"");
}

void listAlarmDestinations(CQVXAdminClass& client) {
    protocol::AlarmDestinationRecord record;
    while (client.listAlarmDestinations(1, record)) {
    }
}

void listDriverModels(CQVXAdminClass& client) {
    std::vector<protocol::DriverModelRecord> models;
    static_cast<void>(client.listDriverModels(0, "id", models));
}

void countDeploymentConfigs(CQVXAdminClass& client) {
    protocol::CountDeploymentConfigsReply counts;
    static_cast<void>(client.countDeploymentConfigs("id", "id", u"", counts));
}

void listPageLimits(CQVXAdminClass& client) {
    std::vector<std::string> ids;
    std::vector<wire::WideString> names;
    static_cast<void>(client.listPageLimits(ids, names));
    expect(ids.size() == names.size());
}

using C = CQVXAdminClass;

constexpr Operation all[] = {
    {0, listRegions},
    {6, listPrinters},
    {9, createRecord},
    {10, updateRecord},
    {76, single<&C::getStatusOctetOrder>},
    {78, fetchPublicKey},
    {22, login},
    {23, cursor<&C::listEmailRecipients, &C::nextEmailRecipient>},
    {27, cursor<&C::listAlarmPrograms, &C::nextAlarmProgram>},
    {28, writeAlarmProgram},
    {29, takeAll<&C::listAlarmEvents>},
    {30, takeAll<&C::listAlarmActions>},
    {31, listAlarmDestinations},
    {32, cursor<&C::listProgramActions, &C::nextProgramAction>},
    {4, cursor<&C::listDriverBrands, &C::nextDriverBrand>},
    {5, listDriverModels},
    {11, cursor<&C::listOperatingSystems, &C::nextOperatingSystem>},
    {12, cursor<&C::listDrivers, &C::nextDriver>},
    {14, cursor<&C::listDriverDeployments, &C::nextDriverDeployment>},
    {80, countDeploymentConfigs},
    {77, single<&C::getModelOctetOrder>},
    {17, cursor<&C::getConfigurations, &C::nextConfiguration>},
    {18, cursor<&C::getConfigChoices, &C::nextConfigChoice>},
    {50, cursor<&C::listConfigurations, &C::nextConfigurationRecord>},
    {53, cursor<&C::listConfigurationQueues, &C::nextConfigurationQueue>},
    {57, whole<protocol::RuleGroupRecord, &C::listRuleGroups>},
    {59, whole<protocol::AffectedRecord, &C::listAffected>},
    {61, whole<protocol::RuleEntryRecord, &C::listRuleEntries>},
    {73, listPageLimits},
    {65, single<&C::getPageLimit>},
    {69, whole<protocol::PricePlanRecord, &C::listPricePlans>},
    {71, whole<protocol::PriceEntryRecord, &C::listPriceEntries>},
    {81, whole<protocol::ShortIdRecord, &C::listShortIds>},
    {67, whole<protocol::UserMessageRecord, &C::listUserMessages>},
    {37, cursor<&C::listSchemas, &C::nextSchema>},
    {37, single<&C::getSchema>},
    {39, cursor<&C::searchQueues, &C::nextFoundQueue>},
    {40, cursor<&C::listInventoryReports, &C::nextInventoryReport>},
    {43, cursor<&C::listInventoryModels, &C::nextInventoryModel>},
    {44, cursor<&C::listInventoryPrinters, &C::nextInventoryPrinter>},
    {55, cursor<&C::listIpRanges, &C::nextIpRange>},
};

} // namespace

std::span<const Operation> operations() {
    return all;
}

} // namespace fuzz
