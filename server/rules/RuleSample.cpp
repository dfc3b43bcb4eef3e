#include "server/rules/RuleSample.h"

#include "protocol/estate/Printer.h"
#include "protocol/rules/RuleEntry.h"
#include "server/estate/SampleNames.h"
#include "server/rules/NamedTable.h"
#include "server/rules/PriceEntryTable.h"
#include "server/rules/RuleEntryTable.h"
#include "server/rules/RuleSampleWords.h"
#include "wire/Text.h"

#include <fmt/format.h>

#include <algorithm>

namespace server {

namespace {

using namespace protocol; // the records
namespace entryType = ruleEntryType;
using std::u16string;

// The printers, queues and regions that entries are placed on.
struct SamplePlaces {
    explicit SamplePlaces(sqlite3* connection)
        : records(connection, "SELECT id, recordType FROM record ORDER BY number"),
          regions(connection, "SELECT id FROM region ORDER BY id") {}

    Query records;
    Query regions;
};

// What an entry can refer to: the ids of everything added so far.
struct Made {
    std::vector<std::string> groups;
    std::vector<std::string> limits;
    std::vector<std::string> plans;
    std::vector<std::string> shortIds;
    std::vector<AffectedRecord> affected;
    std::vector<wire::Uuid> messages;
};

class RuleSample {
public:
    RuleSample(StoreConnection& connection, SampleRandom& random, int printers)
        : connection_(connection), random_(random), printers_(static_cast<std::size_t>(printers)) {}

    void fill() {
        addAffected();
        addMessages();
        addPageLimits();
        addPricePlans();
        addShortIds();
        addGroups();
        placeOnRecords();
        placeOnRegions();
    }

private:
    [[nodiscard]] wire::Uuid newUuid() { return wire::parseUuid(random_.newId()); }

    // One of each word, and in a larger estate more of them for the offices.
    template <class Words, class Make>
    void forEachOf(const Words& words, std::size_t printersForOneMore, Make&& make) {
        const auto count = words.size() + printers_ / printersForOneMore;
        for (std::size_t index = 0; index < count; ++index) {
            const auto& one = words[index % words.size()];
            const auto round = index / words.size();
            const auto& place = sample::places[index % sample::places.size()];
            make(one, round == 0 ? u16string(one.name)
                                 : u16string(one.name) + u" " + u16string(place.city) + u" " +
                                       wire::toWide(std::to_string(round)));
        }
    }

    void addAffected() {
        const auto add = [&](std::uint8_t type, const u16string& name) {
            made_.affected.push_back({.id = random_.newId(),
                                      .type = type,
                                      .equals = static_cast<std::uint8_t>(random_.below(6) == 0 ? 0 : 1),
                                      .name = name});
            connection_.table<AffectedTable>().insert(made_.affected.back());
        };
        for (const auto& group : ruleSample::departments) {
            add(2, u16string(group));
        }
        const auto people = std::min<std::size_t>(12 + printers_ / 5, 30000);
        for (std::size_t index = 0; index < people; ++index) {
            const auto& first = ruleSample::firstNames[index % ruleSample::firstNames.size()];
            const auto& last =
                ruleSample::lastNames[index / ruleSample::firstNames.size() % ruleSample::lastNames.size()];
            const auto round = index / (ruleSample::firstNames.size() * ruleSample::lastNames.size());
            add(1, u16string(first) + u"." + u16string(last) +
                       (round == 0 ? u16string() : wire::toWide(std::to_string(round + 1))));
        }
    }

    void addMessages() {
        forEachOf(ruleSample::messages, 2000, [&](const auto& word, const u16string& name) {
            made_.messages.push_back(newUuid());
            connection_.table<UserMessageTable>().insert({.id = made_.messages.back(),
                                                          .name = name,
                                                          .subtitle = {},
                                                          .caption = u16string(word.caption),
                                                          .text = u16string(word.text),
                                                          .icon = word.icon,
                                                          .type = word.type,
                                                          .builtIn = false});
        });
    }

    void addPageLimits() {
        const auto queue = someQueue();
        forEachOf(ruleSample::limits, 500, [&](const auto& word, const u16string& name) {
            PageLimitRecord limit;
            limit.id = random_.newId();
            limit.priority = static_cast<std::uint16_t>(1 + made_.limits.size() % 9);
            limit.name = name;
            limit.comment = word.comment;
            limit.document = word.document;
            limit.format = word.format;
            limit.color = word.color;
            limit.duplex = word.duplex;
            limit.maxPages = word.maxPages;
            limit.action = word.action;
            limit.maxCost = word.maxCost;
            if (word.action != 0 && word.action != 1) {
                limit.messageId = random_.anyOf(made_.messages);
            }
            if (word.action == 3) {
                limit.destinationId = queue;
            }
            limit.enforce = static_cast<std::uint8_t>(random_.below(4) == 0 ? 0 : 1);
            connection_.table<PageLimitTable>().insert(limit);
            made_.limits.push_back(limit.id);
        });
    }

    void addPricePlans() {
        forEachOf(ruleSample::plans, 1000, [&](const auto& word, const u16string& name) {
            const PricePlanRecord plan{.id = random_.newId(),
                                       .payMethod = word.payMethod,
                                       .name = name,
                                       .comment = u16string(word.comment),
                                       .defaultPrice = word.price,
                                       .colorMultiplier = word.color,
                                       .duplexMultiplier = word.duplex,
                                       .copyMultiplier = 1,
                                       .scanMultiplier = word.scan,
                                       .vat = word.vat};
            connection_.table<PricePlanTable>().insert(plan);
            made_.plans.push_back(plan.id);

            std::vector<PriceEntryRecord> entries;
            for (const auto& row : std::span(ruleSample::prices).first(word.rows)) {
                entries.push_back({.id = random_.newId(),
                                   .paperName = std::string(row.paper),
                                   .kind = row.kind,
                                   .paperCode = row.code,
                                   .basePrice = row.base * word.level,
                                   .bwSimplex = row.bwSimplex * word.level,
                                   .bwDuplex = row.bwDuplex * word.level,
                                   .colorSimplex = row.colorSimplex * word.level,
                                   .colorDuplex = row.colorDuplex * word.level});
            }
            connection_.table<PriceEntryTable>().replace(plan.id, entries);
        });
    }

    void addShortIds() {
        forEachOf(ruleSample::shortIds, 400, [&](const auto& word, const u16string& name) {
            ShortIdRecord shortId{.id = newUuid(),
                                  .name = name,
                                  .comment = u16string(word.comment),
                                  .messageId = {},
                                  .validMinutes = {},
                                  .reservedMinutes = {},
                                  .reservedUntil = {}};
            if (random_.below(3) == 0) {
                shortId.messageId = random_.anyOf(made_.messages);
            }
            if (word.valid != 0) {
                shortId.validMinutes = word.valid;
            }
            if (word.reserved != 0) {
                shortId.reservedMinutes = word.reserved;
            }
            if (word.untilHour >= 0) {
                shortId.reservedUntil = std::int64_t{3600} * word.untilHour;
            }
            connection_.table<ShortIdTable>().insert(shortId);
            made_.shortIds.push_back(wire::toText(shortId.id));
        });
    }

    // Each group has entries of some types, and the first group of all types.
    void addGroups() {
        forEachOf(ruleSample::groups, 1000, [&](const auto& word, const u16string& name) {
            const RuleGroupRecord group{
                .id = random_.newId(), .name = name, .comment = u16string(word.comment), .extra1 = {}, .extra2 = {}};
            connection_.table<RuleGroupTable>().insert(group);
            for (const auto& [type, label] : entryType::labels) {
                if (type != entryType::ruleGroup && (made_.groups.empty() || random_.below(3) == 0)) {
                    place(type, {.groupId = group.id, .recordId = {}, .regionId = {}});
                }
            }
            made_.groups.push_back(group.id);
        });
    }

    void placeOnRecords() {
        std::vector<std::string> chosen;
        {
            auto rows = connection_.table<SamplePlaces>().records.run();
            for (std::size_t number = 0; rows.next(); ++number) {
                if (number % 5 == 0) {
                    chosen.emplace_back(rows.text(0));
                }
            }
        }
        for (std::size_t index = 0; index < chosen.size(); ++index) {
            for (std::size_t count = 0; count <= index % 3; ++count) {
                place(anyType(), {.groupId = {}, .recordId = chosen[index], .regionId = {}});
            }
        }
    }

    // All regions have a group, and the region 0 has the entries for everybody.
    void placeOnRegions() {
        std::vector<std::int32_t> regions;
        {
            auto rows = connection_.table<SamplePlaces>().regions.run();
            while (rows.next()) {
                regions.push_back(static_cast<std::int32_t>(rows.number(0)));
            }
        }
        for (const auto region : regions) {
            place(entryType::ruleGroup, {.groupId = {}, .recordId = {}, .regionId = region});
            if (random_.below(2) == 0) {
                place(anyType(), {.groupId = {}, .recordId = {}, .regionId = region});
            }
        }
        place(entryType::pricePlan, {});
        place(entryType::parsePrintJob, {});
    }

    [[nodiscard]] std::uint8_t anyType() { return random_.anyOf(entryType::labels).type; }

    void place(std::uint8_t type, const RuleEntryOwner& owner) {
        RuleEntryRecord entry;
        entry.type = type;
        entry.id = random_.newId();
        entry.name = u16string(ruleSample::entryNames[random_.below(ruleSample::entryNames.size())]);
        if (random_.below(2) == 0) {
            entry.comment = u16string(ruleSample::entryComments[random_.below(ruleSample::entryComments.size())]);
        }
        if (type == entryType::ruleGroup) {
            entry.targetId = random_.anyOf(made_.groups);
        } else if (type == entryType::pageLimit) {
            entry.targetId = random_.anyOf(made_.limits);
        } else if (type == entryType::pricePlan) {
            entry.targetId = random_.anyOf(made_.plans);
        } else if (type == entryType::shortId) {
            entry.targetId = random_.anyOf(made_.shortIds);
        }
        if (type != entryType::ruleGroup && random_.below(3) != 0) {
            const auto& affected = random_.anyOf(made_.affected);
            entry.affectedId = affected.id;
            entry.affectedName = affected.name;
        }
        connection_.table<RuleEntryTable>().insert(entry, owner);
    }

    // A queue that jobs can be moved to; empty in an estate without queues.
    [[nodiscard]] std::string someQueue() {
        auto rows = connection_.table<SamplePlaces>().records.run();
        while (rows.next()) {
            if (rows.number(1) != recordType::printer) {
                return std::string(rows.text(0));
            }
        }
        return {};
    }

    StoreConnection& connection_;
    SampleRandom& random_;
    std::size_t printers_;
    Made made_;
};

} // namespace

void addRuleSample(StoreConnection& connection, SampleRandom& random, int printers) {
    RuleSample(connection, random, printers).fill();
}

} // namespace server
