#include "tests/hosts/ctl/VantrelctlFixture.h"
#include "tests/support/Environment.h"
#include "tests/support/MadeLocales.h"

#include <algorithm>

namespace hosttest {
namespace {

using support::EnvironmentVariable;

// Price plans on a new server, from the command line.
class VantrelctlPrices : public VantrelctlFixture {
protected:
    VantrelctlPrices() { startServerWithSample(); }

    void createStandard(const std::string& basePrice) const {
        carryOut({"run", "Rules/Price Plans", "New Price Plan...", "--set", "Name=Standard", "--set", "VAT (%)=7.5",
                  "--set", "Paper=A4", "--set", "Base Price=" + basePrice, "--press", "Add", "--press", "OK"});
    }

    [[nodiscard]] Json standardPlan() const {
        const auto reply = json({"call", "69", "str8:"});
        for (const auto& plan : reply.at("records")) {
            if (plan.at("name") == "Standard") {
                return plan;
            }
        }
        ADD_FAILURE() << "no such plan";
        return {};
    }

    [[nodiscard]] Json pricesOfStandard() const {
        return json({"call", "71", "str8:" + standardPlan().at("id").get<std::string>()}).at("records");
    }

    // Edits the plan: its row is found by the text of its price.
    [[nodiscard]] Outcome updateRowThatShows(const std::string& price) const {
        return ctl({"run", "Rules/Price Plans", "Edit price plan", "--row", "Standard", "--select", "Prices=" + price,
                    "--press", "Update", "--press", "OK"});
    }
};

TEST_F(VantrelctlPrices, aPlanIsMadeListedAndStored) {
    createStandard("0.20");

    const Json rows = json({"show", "Rules/Price Plans"}).at("rows");
    EXPECT_NE(std::ranges::find(rows, Json{"Standard", "", "Log"}), rows.end()) << rows;
    EXPECT_EQ(standardPlan().at("vat"), 750);
    ASSERT_EQ(pricesOfStandard().size(), 1U);
    EXPECT_EQ(pricesOfStandard()[0].at("paperName"), "A4");
    EXPECT_EQ(pricesOfStandard()[0].at("kind"), 0);
    EXPECT_FLOAT_EQ(pricesOfStandard()[0].at("basePrice").get<float>(), 0.2F);
}

TEST_F(VantrelctlPrices, arePrintedAndReadInTheWayOfTheUser) {
    const support::MadeLocales made{"de_DE.UTF-8", "en_US.UTF-8"};
    {
        const EnvironmentVariable german("LC_ALL", "de_DE.UTF-8");
        createStandard("0,20");
        EXPECT_EQ(updateRowThatShows("0,2000").status, 0);
        EXPECT_EQ(updateRowThatShows("0.2000").status, 1);
    }
    const EnvironmentVariable english("LC_ALL", "en_US.UTF-8");

    EXPECT_EQ(updateRowThatShows("0.2000").status, 0);

    EXPECT_FLOAT_EQ(pricesOfStandard()[0].at("basePrice").get<float>(), 0.2F);
    EXPECT_EQ(standardPlan().at("vat"), 750);
}

TEST_F(VantrelctlPrices, absolutePricesAreAddressedByTheirGroups) {
    Arguments command{"run",
                      "Rules/Price Plans",
                      "New Price Plan...",
                      "--set",
                      "Name=Standard",
                      "--set",
                      "Paper=A4",
                      "--set",
                      "Multiplier type=Absolute Price"};
    for (const std::string group : {"Print", "Copy"}) {
        for (const std::string label : {"B/W Simplex", "B/W Duplex", "Color Simplex", "Color Duplex"}) {
            command.insert(command.end(), {"--set", group + ": " + label + "=0.1"});
        }
    }
    command.insert(command.end(),
                   {"--set", "Scan: B/W=0.3", "--set", "Scan: Color=0.4", "--press", "Add", "--press", "OK"});

    carryOut(command);

    ASSERT_EQ(pricesOfStandard().size(), 3U);
    EXPECT_FLOAT_EQ(pricesOfStandard()[2].at("bwSimplex").get<float>(), 0.3F);
    EXPECT_FLOAT_EQ(pricesOfStandard()[2].at("colorSimplex").get<float>(), 0.4F);
}

TEST_F(VantrelctlPrices, aShortIdIsMadeWithAMessageOfItsOwn) {
    carryOut({"run",
              "Rules/Short Id",
              "New Short id Rule...",
              "--set",
              "Name=Lobby",
              "--set",
              "Message=<New>",
              "--set",
              "Message name=Welcome",
              "--set",
              "Text=Your prints are ready",
              "--press",
              "OK",
              "--set",
              "Valid for=yes",
              "--set",
              "Valid for=2",
              "--set",
              "Valid for=days",
              "--set",
              "Reserved until=12:30:15",
              "--press",
              "OK"});

    const auto records = json({"call", "81"}).at("records");
    const auto lobby = std::ranges::find_if(records, [](const auto& each) { return each.at("name") == "Lobby"; });
    ASSERT_NE(lobby, records.end()) << records;
    EXPECT_EQ(lobby->at("validMinutes"), 2880);
    EXPECT_TRUE(lobby->at("reservedMinutes").is_null());
    EXPECT_EQ(lobby->at("reservedUntil"), 45015);
    EXPECT_FALSE(lobby->at("messageId").is_null());
}

} // namespace
} // namespace hosttest
