#include "server/drivers/DriverSample.h"

#include "server/drivers/DriverModelTable.h"
#include "server/estate/SampleNames.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

#include <set>

namespace server {
namespace {

class DriverSampleTest : public testing::Test {
protected:
    static void fill(test::TestEstate& estate, int printers) {
        SampleRandom random(1);
        estate.connection().change([&] {
            addDriverSample(estate.connection(), random, printers);
            return true;
        });
    }
    void fill(int printers) { fill(place, printers); }

    // The different texts of the first column.
    static std::set<std::string> texts(const test::TestEstate& estate, const std::string& sql) {
        auto database = estate.store().openDatabase();
        std::set<std::string> found;
        Query query(database.getHandle(), sql);
        for (auto rows = query.run(); rows.next();) {
            found.emplace(rows.text(0));
        }
        return found;
    }
    // The different numbers of the first column.
    [[nodiscard]] std::set<std::int64_t> values(const std::string& sql) const {
        std::set<std::int64_t> found;
        for (const auto& text : texts(place, sql)) {
            found.insert(std::stoll(text));
        }
        return found;
    }

    test::TestEstate place;
};

TEST_F(DriverSampleTest, eachModelOfAPrinterStandsInTheCatalogueByItsName) {
    fill(40);
    for (const auto& model : sample::models) {
        const auto found = place.connection().table<DriverModelTable>().find(std::string(model.id));
        ASSERT_TRUE(found.has_value());
        EXPECT_EQ(found->record.name, model.name);
        EXPECT_TRUE(found->record.visible);
    }
}

TEST_F(DriverSampleTest, hasSomethingOfEverythingThatCanBeSeen) {
    fill(40);
    EXPECT_EQ(values("SELECT visible FROM driverModel"), (std::set<std::int64_t>{0, 1}));
    EXPECT_EQ(values("SELECT octetOrder FROM driverModel"), (std::set<std::int64_t>{0, 1, 2}));
    EXPECT_EQ(values("SELECT builtIn FROM driver"), (std::set<std::int64_t>{0, 1}));
    EXPECT_EQ(values("SELECT use FROM driverDeployment"), (std::set<std::int64_t>{0, 1}));
    EXPECT_EQ(values("SELECT install FROM driverDeployment"), (std::set<std::int64_t>{0, 1}));
    EXPECT_EQ(values("SELECT installMethod FROM driverDeployment"), (std::set<std::int64_t>{0, 1, 2}));
    EXPECT_EQ(values("SELECT osNumber FROM driverDeployment").size(), 13U);
    EXPECT_GE(*values("SELECT count(DISTINCT locale) FROM driverDeployment").begin(), 6);
    EXPECT_GE(*values("SELECT count(*) FROM alternateModel").begin(), 5);
}

TEST_F(DriverSampleTest, hasModelsAndBrandsAndDriversThatNothingStandsBelow) {
    fill(40);
    EXPECT_GT(*values("SELECT count(*) FROM driverModel WHERE id NOT IN (SELECT modelId FROM driver)").begin(), 1);
    EXPECT_EQ(*values("SELECT count(*) FROM driverBrand WHERE id NOT IN (SELECT brandId FROM driverModel)").begin(), 1);
    EXPECT_GT(*values("SELECT count(*) FROM driver WHERE id NOT IN (SELECT driverId FROM driverDeployment)").begin(),
              1);
}

TEST_F(DriverSampleTest, growsWithThePrinters) {
    fill(20000);
    EXPECT_EQ(*values("SELECT count(*) FROM driverModel").begin(), 119);
    EXPECT_GT(*values("SELECT count(*) FROM driverDeployment").begin(), 300);
}

TEST_F(DriverSampleTest, isTheSameEachTime) {
    const auto all = "SELECT id || driverId || modelId || osNumber || hex(locale) || use || install || installMethod "
                     "FROM driverDeployment UNION ALL SELECT id || hex(version) || uploadDate FROM driver";
    test::TestEstate other;
    fill(place, 2000);
    fill(other, 2000);
    EXPECT_EQ(texts(place, all), texts(other, all));
}

} // namespace
} // namespace server
