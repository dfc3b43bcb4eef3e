#include "server/inventory/InventorySample.h"

#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"
#include "server/estate/SampleNames.h"
#include "server/inventory/InventoryScan.h"
#include "server/inventory/IpRangeTable.h"
#include "server/inventory/MigrationPlanTable.h"
#include "server/inventory/OldEstateTable.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace server {

namespace {

using protocol::IpRangeRecord;
using protocol::SchemaRecord;

constexpr int mostOldPrinters = 30000; // a list holds at most 32,767
constexpr int printersOnServer = 60;
constexpr int mostPlans = 3000;

constexpr std::array<std::u16string_view, 5> unknownModels = {u"Orlin Jetline 9", u"Orlin Post 4 PS", u"Brevik Ink 320",
                                                              u"Brevik Ink 320 Fax", u"Text only"};
constexpr std::array<std::u16string_view, 4> administrators = {u"m.brandt", u"a.lindqvist", u"j.moreau", u"admin"};

// This system's printers, from which half of the old ones take their address: they are the same devices.
class OwnDevices {
public:
    explicit OwnDevices(sqlite3* connection)
        : query_(connection, "SELECT ip, modelName, location, name FROM record WHERE recordType = 0 ORDER BY number") {}

    [[nodiscard]] Rows all() { return query_.run(); }

private:
    Query query_;
};

// The queues that plans lead to.
class SomeQueues {
public:
    explicit SomeQueues(sqlite3* connection)
        : query_(connection, "SELECT queue.id, queue.name, printer.ip, printer.modelName FROM record AS queue JOIN "
                             "record AS printer ON printer.id = queue.printerId ORDER BY queue.number LIMIT ?") {}

    [[nodiscard]] Rows first(int count) { return query_.run(count); }

private:
    Query query_;
};

std::u16string widened(const std::string& text) {
    return wire::toWide(text);
}

// Adds the sample records, each part from the given random numbers.
class Filler {
public:
    Filler(StoreConnection& connection, SampleRandom& random, int printers)
        : connection_(connection),
          random_(random),
          oldEstate_(connection.table<OldEstateTable>()),
          wanted_(std::min(printers <= 100 ? 36 : printers * 3 / 10, mostOldPrinters)),
          plans_(std::clamp(printers / 30, 8, mostPlans)) {}

    void fill() {
        addWorkstations();
        addPrinters();
        addRanges();
        addPlans();
        addReports();
    }

private:
    // Most were seen in the last half-year, some not for a long time.
    std::string someDay() {
        const bool isLongAgo = random_.below(10) == 0;
        const auto year = isLongAgo ? 2022 + random_.below(2) : 2025;
        const auto month = 1 + random_.below(isLongAgo ? 12 : 6);
        const auto day = 1 + random_.below(28);
        const auto hour = 6 + random_.below(14);
        const auto minute = random_.below(60);
        return fmt::format("{}-{:02}-{:02} {:02}:{:02}:00", year, month, day, hour, minute);
    }

    void addWorkstations() {
        const int count = std::max(wanted_ / 2, 24);
        for (int number = 0; number < count; ++number) {
            const auto& place = sample::places[static_cast<std::size_t>(number) % sample::places.size()];
            const auto name = u"PC-" + std::u16string(place.code) + widened(fmt::format("-{:05}", number + 1));
            const auto ip = fmt::format("10.200.{}.{}", number / 250 % 250, 1 + number % 250);
            workstations_.push_back(oldEstate_.addWorkstation(name, ip, someDay()));
        }
    }

    void addPrinters() {
        auto own = connection_.table<OwnDevices>().all();
        for (int number = 0; number < wanted_; ++number) {
            if (number % printersOnServer == 0) {
                addServer(number / printersOnServer);
            }
            OldPrinter printer;
            printer.lastSeen = someDay();
            switch (number % 6) {
            case 0:
            case 1:
            case 2: // the same device as one of this system's printers
                if (own.next()) {
                    sameDevice(own, printer);
                    skip(own, 2);
                    break;
                }
                [[fallthrough]];
            case 3:
                otherDevice(number, printer);
                break;
            case 4:
                localDevice(number, printer);
                continue;
            default:
                printerOfOne(number, printer);
                continue;
            }
            printer.server = server_;
            printer.shared = true;
            addWithClients(printer, random_.below(9));
        }
    }

    static void skip(Rows& rows, int count) {
        while (count-- > 0 && rows.next()) {
        }
    }

    void addServer(int number) {
        const auto& place = sample::places[static_cast<std::size_t>(number) % sample::places.size()];
        const auto name = u"PRN-" + std::u16string(place.code) + widened(fmt::format("-{:03}", number + 1));
        server_ = oldEstate_.addServer(name, fmt::format("10.201.{}.{}", number / 250, 1 + number % 250), someDay());
    }

    void sameDevice(const Rows& own, OldPrinter& printer) {
        printer.ip = own.text(0);
        printer.port = "IP_" + printer.ip;
        printer.model = random_.below(5) == 0 ? std::u16string(random_.anyOf(unknownModels)) : own.wide(1);
        printer.location = own.wide(2);
        printer.windowsName = u"OLD-" + own.wide(3);
    }

    void otherDevice(int number, OldPrinter& printer) {
        printer.ip = fmt::format("10.180.{}.{}", number / 250 % 250, 1 + number % 250);
        printer.port = random_.below(3) == 0 ? "9100" : "IP_" + printer.ip;
        printer.model = random_.below(2) == 0 ? random_.anyOf(unknownModels) : random_.anyOf(sample::models).name;
        printer.location = random_.anyOf(sample::rooms);
        printer.comment = random_.below(3) == 0 ? u"Lease ended" : u"";
        printer.windowsName = widened(fmt::format("LEGACY-{:05}", number + 1));
    }

    void localDevice(int number, OldPrinter& printer) {
        printer.workstation = random_.anyOf(workstations_);
        printer.port = random_.below(4) == 0 ? "LPT1:" : "USB001";
        printer.model = random_.below(2) == 0 ? random_.anyOf(unknownModels) : random_.anyOf(sample::models).name;
        printer.location = random_.below(2) == 0 ? u"" : u"On the desk";
        printer.windowsName = printer.model;
        printer.local = true;
        printer.shared = number % 5 == 4;
        addWithClients(printer, printer.shared ? random_.below(4) : 0);
    }

    // A network printer that only one workstation has set up.
    void printerOfOne(int number, OldPrinter& printer) {
        otherDevice(number, printer);
        printer.workstation = random_.anyOf(workstations_);
        addWithClients(printer, 0);
    }

    void addWithClients(const OldPrinter& printer, std::uint32_t others) {
        const auto number = oldEstate_.addPrinter(printer);
        if (printer.workstation != 0) {
            oldEstate_.addUse(number, printer.workstation);
        }
        for (std::uint32_t client = 0; client < others; ++client) {
            oldEstate_.addUse(number, random_.anyOf(workstations_));
        }
    }

    void addRange(const std::u16string& name, const std::u16string& first, const std::u16string& last,
                  std::int32_t rangeType, const std::u16string& comment, bool active = true) {
        IpRangeRecord range;
        range.rangeId = random_.newId();
        range.active = active;
        range.name = name;
        range.comment = comment;
        range.startIp = first;
        range.endIp = last;
        range.creator = random_.anyOf(administrators);
        range.rangeType = rangeType;
        connection_.table<IpRangeTable>().insert(range);
    }

    void addRanges() {
        namespace type = protocol::rangeType;
        addRange(u"All offices", u"10.1.0.0", u"10.3.255.255", type::migrate, u"In waves, see the plans");
        addRange(u"Test bench", u"10.1.0.8", u"10.1.0.12", type::ignore, u"Belongs to the laboratory");
        addRange(u"Legacy printers", u"10.180.0.0", u"10.180.255.255", type::forceMigrate, u"Before the lease ends");
        addRange(u"Workstations", u"10.200.0.0", u"10.200.255.255", type::migrateLocal, u"USB printers stay");
        addRange(u"Field service", u"10.200.0.16", u"10.200.0.31", type::forceMigrateLocal, u"");
        addRange(u"Warehouse", u"10.4.0.0", u"10.4.0.255", type::ignore, u"Not before autumn", false);
        addRange(u"IPv6 pilot", u"fd00:10::", u"fd00:10::ffff", type::migrate, u"", false);
    }

    // Plans for addresses of printers, and some that name a model or a printer only.
    void addPlans() {
        constexpr std::array actions = {protocol::schemaAction::reinstall, protocol::schemaAction::ignore,
                                        protocol::schemaAction::reinstall, protocol::schemaAction::remove};
        int number = 0;
        for (auto queues = connection_.table<SomeQueues>().first(plans_ - 2); queues.next(); ++number) {
            SchemaRecord plan = newPlan(u"Move " + queues.wide(1), actions[static_cast<std::size_t>(number) % 4]);
            plan.oldIp = queues.text(2);
            if (number % 3 == 0) {
                plan.oldModelName = queues.wide(3);
            }
            if (plan.action == protocol::schemaAction::reinstall) {
                plan.newQueueId = queues.text(0);
                plan.newPrinterName = queues.wide(1);
            }
            connection_.table<MigrationPlanTable>().insert(plan);
        }
        auto scrapped = newPlan(u"Scrap the inkjets", protocol::schemaAction::remove);
        scrapped.oldModelName = u"Brevik Ink 320";
        connection_.table<MigrationPlanTable>().insert(scrapped);
        auto kept = newPlan(u"Keep the label printers", protocol::schemaAction::ignore);
        kept.oldModelName = u"Quillmark Label 4";
        kept.oldPort = "USB001";
        connection_.table<MigrationPlanTable>().insert(kept);
    }

    SchemaRecord newPlan(const std::u16string& name, std::int32_t action) {
        SchemaRecord plan;
        plan.creator = random_.anyOf(administrators);
        plan.schemaId = random_.newId();
        plan.schemaName = name;
        plan.action = action;
        return plan;
    }

    void addReport(const std::u16string& date, const std::u16string& name, const std::u16string& comment,
                   std::uint16_t reportType, const std::string& scope, const ReportPeriod& period) {
        const protocol::InventoryReportRecord report{.reportId = random_.newId(),
                                                     .reportDate = date,
                                                     .reportUser = std::u16string(random_.anyOf(administrators)),
                                                     .reportName = name,
                                                     .comment = comment,
                                                     .ipScope = widened(scope),
                                                     .reportType = reportType};
        InventoryScan(connection_, [this] { return random_.newId(); }).run(report, *IpScope::parse(scope), period);
    }

    void addReports() {
        namespace type = protocol::reportType;
        const auto always = *ReportPeriod::parse({}, {});
        addReport(u"2025-03-31 18:00:12.500", u"First quarter", u"Shared printers still in use", type::onlyShared, "",
                  *ReportPeriod::parse(u"2025-01-01", u"2025-03-31"));
        addReport(u"2025-05-12 09:14:40.031", u"Guest network", u"", type::all, "192.168.0.0/16", always);
        addReport(u"2025-06-02 11:30:05.977", u"USB printers", u"For the field service", type::onlyLocal, "10.200.0.*",
                  always);
        addReport(u"2025-06-16 07:45:00.250", u"Already known", u"Printers that we have too", type::onlyMapped,
                  "10.1.0.0-10.1.3.255", always);
        addReport(u"2025-06-30 22:00:01.004", u"Complete inventory", u"Nightly run", type::all, "", always);
    }

    StoreConnection& connection_;
    SampleRandom& random_;
    OldEstateTable& oldEstate_;
    int wanted_;
    int plans_;
    std::vector<std::int64_t> workstations_;
    std::int64_t server_ = 0;
};

} // namespace

void addInventorySample(StoreConnection& connection, SampleRandom& random, int printers) {
    Filler(connection, random, printers).fill();
}

} // namespace server
