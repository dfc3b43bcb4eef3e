#include "server/configurations/ConfigurationSample.h"

#include "server/configurations/ConfigurationTable.h"
#include "server/configurations/QueueConfigurationTable.h"
#include "server/estate/SampleNames.h"
#include "wire/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>

namespace server {

namespace {

struct Package {
    std::u16string_view comment;
    std::u16string_view settings;
};

constexpr std::array<Package, 12> packages = {{
    {u"Both sides, black and white", u"duplex=long edge; colour=no"},
    {u"Letterhead from tray 2", u"tray=2; first page only=yes"},
    {u"Payslips, held for a PIN", u"hold=pin; keep=8 hours; duplex=no"},
    {u"A3 drafts", u"paper=A3; quality=draft; toner saving=yes"},
    {u"Brochures, stapled twice", u"finisher=staple; staples=2; booklet=yes"},
    {u"Plans, rolled, half size", u"paper=A1; scale=50"},
    {u"Labels 70 × 36 mm", u"paper=label; tray=bypass; quality=best"},
    {u"Minutes for the council", u"duplex=long edge; punch=2; copies=9"},
    {u"Photos on glossy paper", u"media=glossy; colour=yes; quality=best"},
    {u"Envelopes C5", u"paper=C5; tray=bypass; rotate=180"},
    {u"Exams, numbered", u"duplex=no; stamp=number; staple=1"},
    {u"Großformat, grau", u"paper=A2; colour=grey"},
}};

constexpr std::size_t usedOnce = 1;          // the second configuration of a model has one user, the first one none
constexpr std::size_t mostMaps = 3;          // the most driver maps with which a queue uses a configuration
constexpr std::size_t queuesForOneMore = 50; // configurations of a model
constexpr std::size_t mostMore = 30;

// What the estate has already.
struct Surroundings {
    explicit Surroundings(sqlite3* connection)
        : deployments(connection, "SELECT modelId, id FROM driverDeployment ORDER BY modelId, osNumber, localeKey"),
          queues(connection, "SELECT modelId, queueId FROM queueModel ORDER BY queueNumber") {}

    Query deployments;
    Query queues;
};

using ByModel = std::map<std::string, std::vector<std::string>>;

ByModel readByModel(Query& query) {
    ByModel found;
    auto rows = query.run();
    while (rows.next()) {
        found[std::string(rows.text(0))].emplace_back(rows.text(1));
    }
    return found;
}

protocol::ConfigurationRecord makeConfiguration(SampleRandom& random, std::size_t number) {
    const auto& package = packages[number % packages.size()];
    const auto round = number / packages.size(); // from the second round on they are for a room
    const auto room =
        round == 0 ? std::u16string() : u", " + std::u16string(sample::rooms[(round - 1) % sample::rooms.size()]);
    const auto date = fmt::format("{}-{:02}-{:02} {:02}:{:02}:{:02}", 2021 + random.below(4), 1 + random.below(12),
                                  1 + random.below(28), 7 + random.below(11), random.below(60), random.below(60));
    return {.configId = random.newId(),
            .uploadedBy = std::u16string(random.anyOf(sample::people)),
            .date = wire::toWide(date),
            .comment = std::u16string(package.comment) + room,
            .configText = std::u16string(package.settings),
            .useCount = 0};
}

// The first queue has one configuration for itself; three out of five of the others use one.
void applyToQueues(QueueConfigurationTable& table, SampleRandom& random, const std::vector<std::string>& queues,
                   const std::vector<std::string>& maps, const std::vector<std::string>& configurations) {
    for (const auto& queue : queues) {
        const bool isFirst = &queue == &queues.front();
        if (!isFirst && random.below(5) >= 3) {
            continue;
        }
        const auto many = static_cast<std::uint32_t>(configurations.size() - usedOnce - 1);
        const auto& used = configurations[isFirst ? usedOnce : usedOnce + 1 + random.below(many)];
        const auto from = random.below(static_cast<std::uint32_t>(maps.size()));
        const auto count = 1 + random.below(static_cast<std::uint32_t>(std::min(maps.size(), mostMaps)));
        for (std::uint32_t map = 0; map < count; ++map) {
            table.put(queue, maps[(from + map) % maps.size()], used);
        }
    }
}

} // namespace

void addConfigurationSample(StoreConnection& connection, SampleRandom& random, int) {
    auto& surroundings = connection.table<Surroundings>();
    auto& configurations = connection.table<ConfigurationTable>();
    auto queues = readByModel(surroundings.queues);
    for (const auto& [model, maps] : readByModel(surroundings.deployments)) {
        const auto more = std::min(queues[model].size() / queuesForOneMore, mostMore);
        std::vector<std::string> made(usedOnce + 2 + random.below(4) + more);
        const auto from = random.below(static_cast<std::uint32_t>(packages.size()));
        for (std::size_t number = 0; number < made.size(); ++number) {
            const auto record =
                makeConfiguration(random, made.size() > packages.size() ? number : (from + number) % packages.size());
            configurations.insert({.record = record, .modelId = model});
            made[number] = record.configId;
        }
        applyToQueues(connection.table<QueueConfigurationTable>(), random, queues[model], maps, made);
    }
}

} // namespace server
