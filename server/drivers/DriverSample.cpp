#include "server/drivers/DriverSample.h"

#include "server/drivers/DeploymentTable.h"
#include "server/drivers/DriverModelTable.h"
#include "server/drivers/DriverTable.h"
#include "server/estate/SampleNames.h"
#include "wire/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <vector>

namespace server {

namespace {

constexpr int printersPerModel = 200; // of the additional, numbered models of a large estate

constexpr std::array<std::u16string_view, 3> languages = {u"PCL 6", u"PostScript", u"XPS"};
constexpr std::array<std::u16string_view, 6> locales = {u"de-DE", u"en-US", u"fr-FR", u"pl-PL", u"sv-SE", u"ja-JP"};
constexpr std::array<std::u16string_view, 6> driverComments = {
    u"", u"Tested with the whole office suite", u"For the workstations of the drawing office",
    u"", u"Do not use with envelopes",          u"Replaces the version of last year"};
constexpr std::array<std::u16string_view, 4> seriesNames = {u"Works", u"Folio", u"Fjord", u"Line"};

// Makes the catalogue, one model after the other.
class DriverSample {
public:
    DriverSample(StoreConnection& connection, SampleRandom& random)
        : models_(connection.table<DriverModelTable>()),
          drivers_(connection.table<DriverTable>()),
          deployments_(connection.table<DeploymentTable>()),
          random_(random) {
        for (auto listing = deployments_.listSystems(); listing.rows.next();) {
            systems_.emplace_back(listing.rows.text(0));
        }
    }

    void add(int printers) {
        for (const auto& maker : sample::makers) {
            models_.insertBrand(std::string(maker.id), std::u16string(maker.name));
        }
        for (const auto& model : sample::models) {
            addModel(model.name, std::string(model.id), true);
        }
        for (const auto& model : sample::furtherModels) {
            addModel(model.name, std::string(model.id), random_.below(3) != 0);
        }
        addAlternates();
        for (int number = 0; number < printers / printersPerModel; ++number) {
            addNumbered(number);
        }
    }

private:
    void addModel(std::u16string_view name, const std::string& id, bool visible) {
        const auto maker =
            std::ranges::find_if(sample::makers, [&](const auto& one) { return name.starts_with(one.name); });
        models_.insert({.record = {.modelId = id, .name = std::u16string(name), .visible = visible},
                        .brandId = std::string(maker->id)});
        if (const auto order = random_.below(5); order < 3) {
            models_.setOctetOrder(id, order);
        }
        addDrivers(name, id);
    }

    // Up to three drivers, the last of which may be unused. Some models have none.
    void addDrivers(std::u16string_view name, const std::string& modelId) {
        const auto count = made_++ % 6 == 5 ? 0 : 1 + random_.below(3);
        std::vector<StoredDriver> made;
        for (std::uint32_t number = 0; number < count; ++number) {
            made.push_back(addDriver(name, modelId, languages[number]));
        }
        if (random_.below(4) == 0) {
            addBuiltIn(modelId);
        }
        if (count == 3) {
            made.pop_back();
        }
        if (!made.empty()) {
            deploy(made, modelId);
        }
    }

    StoredDriver addDriver(std::u16string_view name, const std::string& modelId, std::u16string_view language) {
        const auto date = uploadDate();
        const std::array number = {1 + random_.below(7), random_.below(10), random_.below(90)};
        const auto version = fmt::format(" {}.{}.{} ({})", number[0], number[1], number[2], date);
        StoredDriver driver{
            .record = {.driverId = random_.newId(),
                       .version = std::u16string(name) + u" " + std::u16string(language) + wire::toWide(version),
                       .comment = std::u16string(random_.anyOf(driverComments)),
                       .uploadDate = date,
                       .uploadedBy = std::u16string(random_.anyOf(sample::people))},
            .modelId = modelId};
        drivers_.insert(driver);
        return driver;
    }

    void addBuiltIn(const std::string& modelId) {
        const auto date = uploadDate();
        drivers_.insert({.record = {.driverId = random_.newId(),
                                    .version = u"Built-in driver (" + wire::toWide(date) + u")",
                                    .comment = u"Comes with the operating system",
                                    .uploadDate = date,
                                    .uploadedBy = u"Server"},
                         .modelId = modelId,
                         .builtIn = true});
    }

    // Deploys for some operating systems, in one locale or two; most are installed, and a few are not in use.
    void deploy(const std::vector<StoredDriver>& drivers, const std::string& modelId) {
        for (const auto& system : systems_) {
            if (random_.below(3) != 0) {
                continue;
            }
            const auto first = random_.below(locales.size());
            const auto count = 1 + random_.below(2);
            for (std::uint32_t number = 0; number < count; ++number) {
                const auto& driver = random_.anyOf(drivers);
                deployments_.insert({.id = random_.newId(),
                                     .driverId = driver.record.driverId,
                                     .place = {.modelId = modelId,
                                               .osId = system,
                                               .locale = std::u16string(locales[(first + number) % locales.size()])},
                                     .comment = driver.record.comment,
                                     .state = {.use = random_.below(8) != 0,
                                               .install = random_.below(4) != 0,
                                               .installMethod = static_cast<std::uint8_t>(random_.below(3))}});
            }
        }
    }

    void addAlternates() {
        const auto idOf = [](std::size_t index) { return std::string(sample::models[index].id); };
        for (const auto& [model, other] : {std::pair{0, 1}, {0, 3}, {1, 0}, {4, 3}, {7, 6}, {9, 8}}) {
            models_.addAlternate(idOf(static_cast<std::size_t>(model)), idOf(static_cast<std::size_t>(other)));
        }
        models_.addAlternate(idOf(0), std::string(sample::furtherModels[1].id));
    }

    void addNumbered(int number) {
        constexpr auto withModels = sample::makers.size() - 1;
        const auto& maker = sample::makers[static_cast<std::size_t>(number) % withModels];
        const auto name = std::u16string(maker.name) + u" " + std::u16string(random_.anyOf(seriesNames)) +
                          wire::toWide(fmt::format(" {:05}", number));
        addModel(name, random_.newId(), random_.below(10) != 0);
    }

    std::string uploadDate() {
        const std::array number = {2019 + random_.below(6), 1 + random_.below(12), 1 + random_.below(28),
                                   7 + random_.below(12),   random_.below(60),     random_.below(60),
                                   random_.below(1000)};
        return fmt::format("{}-{:02}-{:02} {:02}:{:02}:{:02}.{:03}", number[0], number[1], number[2], number[3],
                           number[4], number[5], number[6]);
    }

    DriverModelTable& models_;
    DriverTable& drivers_;
    DeploymentTable& deployments_;
    SampleRandom& random_;
    std::vector<std::string> systems_;
    std::uint32_t made_ = 0;
};

} // namespace

void addDriverSample(StoreConnection& connection, SampleRandom& random, int printers) {
    DriverSample(connection, random).add(printers);
}

} // namespace server
