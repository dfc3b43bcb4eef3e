#include "server/configurations/ConfigurationSample.h"

#include "server/SampleEstate.h"
#include "tests/server/configurations/ConfiguredEstate.h"
#include "tests/server/support/TestEstate.h"

#include <functional>
#include <set>

namespace server {
namespace {

// Two models with their own drivers, one of them deployed twice, and the given number of queues of each.
std::string sampleWith(int queues, const std::function<void(test::ConfiguredEstate&)>& look) {
    test::TestEstate place;
    test::ConfiguredEstate estate(place.connection());
    place.connection().change([&] {
        for (const std::string model : {"m1", "m2"}) {
            estate.addModel(model);
            estate.deploy(model + "-de", model, u"de");
            const auto printer = estate.addPrinter(std::u16string(model.begin(), model.end()), model);
            for (int number = 0; number < queues; ++number) {
                const auto name = model + "-" + std::to_string(number);
                estate.addQueue(std::u16string(name.begin(), name.end()), printer);
            }
        }
        estate.deploy("m1-en", "m1", u"en");
        SampleRandom random(7);
        addConfigurationSample(place.connection(), random, 40);
        return true;
    });
    if (look) {
        look(estate);
    }
    std::string all;
    for (const auto* const model : {"m1", "m2"}) {
        for (const auto& record : estate.list(model)) {
            all += record.configId + wire::toUtf8(record.date + record.comment) + std::to_string(record.useCount);
        }
    }
    return all;
}

TEST(ConfigurationSample, everyModelHasConfigurationsThatNoneOneAndManyQueuesUse) {
    sampleWith(20, [](auto& estate) {
        for (const auto* const model : {"m1", "m2"}) {
            std::multiset<int> counts;
            for (const auto& record : estate.list(model)) {
                counts.insert(record.useCount);
            }
            EXPECT_GE(counts.count(0), 1U) << model;
            EXPECT_GE(counts.count(1), 1U) << model;
            EXPECT_GE(*counts.rbegin(), 2) << model;
        }
    });
}

TEST(ConfigurationSample, theSmallEstateHasThemForSeveralModelsInEveryUse) {
    test::TestEstate place;
    place.connection().change([&] {
        SampleEstate(place.connection()).fillSmall();
        return true;
    });
    auto& sql = place.connection().table<test::Statements>();
    const std::string uses =
        "SELECT count(*) FROM (SELECT count(DISTINCT used.queueNumber) AS queues FROM configuration "
        "LEFT JOIN queueConfiguration AS used ON configurationNumber = number "
        "GROUP BY number) WHERE queues ";

    EXPECT_GT(sql.number(uses + "= 0"), 0);
    EXPECT_GT(sql.number(uses + "= 1"), 0);
    EXPECT_GT(sql.number(uses + ">= 2"), 0);
    EXPECT_GT(sql.number("SELECT count(DISTINCT modelId) FROM configuration"), 3);
    EXPECT_GT(sql.number("SELECT count(DISTINCT uploadedBy) FROM configuration"), 3);
    for (const auto* const type : {"1", "3", "6"}) {
        EXPECT_GT(sql.number("SELECT count(*) FROM queueConfiguration JOIN record ON number = queueNumber "
                             "WHERE recordType = " +
                             std::string(type)),
                  0)
            << type;
    }
}

TEST(ConfigurationSample, severalPeopleHaveUploadedThem) {
    sampleWith(20, [](auto& estate) {
        std::set<std::u16string> people;
        for (const auto* const model : {"m1", "m2"}) {
            for (const auto& record : estate.list(model)) {
                people.insert(record.uploadedBy);
            }
        }
        EXPECT_GE(people.size(), 3U);
    });
}

TEST(ConfigurationSample, isTheSameEachTime) {
    EXPECT_EQ(sampleWith(20, nullptr), sampleWith(20, nullptr));
}

TEST(ConfigurationSample, growsWithTheQueues) {
    sampleWith(200, [](auto& estate) { EXPECT_GT(estate.list("m1").size(), 6U); });
}

TEST(ConfigurationSample, anEstateWithoutQueuesHasSomeAndOneWithoutDriversHasNone) {
    EXPECT_NE(sampleWith(0, nullptr), "");
    test::TestEstate place;
    SampleRandom random;
    addConfigurationSample(place.connection(), random, 40);
    EXPECT_EQ(place.connection().table<test::Statements>().number("SELECT count(*) FROM configuration"), 0);
}

} // namespace
} // namespace server
