#include "tests/hosts/ctl/VantrelctlFixture.h"
#include "tests/support/Environment.h"
#include "tests/support/MadeLocales.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace hosttest {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr auto node = "Rules/Page Limiters";

class PageLimitsByCtl : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }

    void runNew(Arguments steps) const { run("New Page Limit Rule...", std::move(steps)); }
    void runEdit(const std::string& name, Arguments steps) const {
        steps.insert(steps.begin(), {"--row", name});
        run("Edit page limit", std::move(steps));
    }
    void run(const std::string& entry, Arguments steps) const {
        steps.insert(steps.begin(), {"run", node, entry});
        carryOut(steps);
    }

    // The first cells of the list.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all;
        const auto list = json({"show", node});
        for (const auto& row : list.at("rows")) {
            all.push_back(row.at(0));
        }
        return all;
    }

    // As the server has it.
    [[nodiscard]] Json limit(const std::string& name) const {
        const auto list = json({"call", "73"});
        for (const auto& each : list.at("records")) {
            if (each.at("name") == name) {
                return json({"call", "65", "str8:" + each.at("id").get<std::string>()}).at("reply");
            }
        }
        ADD_FAILURE() << "no limit " << name;
        return {};
    }
};

TEST_F(PageLimitsByCtl, aLimitIsMadeShownEditedAndRemoved) {
    runNew({"--set", "Name=Posters", "--set", "Comment=Large paper", "--set", "Format=A0", "--set", "Color=Color",
            "--set", "Max pages=20", "--set", "Max cost=12.5", "--set", "Action=Require PIN-Code", "--set", "Prio=7",
            "--press", "OK"});

    EXPECT_THAT(json({"show", node}).at("columns"), ElementsAre("Name", "Comment"));
    EXPECT_THAT(json({"show", node}).at("rows"), Contains(Json({"Posters", "Large paper"})));
    const auto made = limit("Posters");
    EXPECT_EQ(made.at("format"), 262);
    EXPECT_EQ(made.at("color"), 2);
    EXPECT_EQ(made.at("duplex"), 0);
    EXPECT_EQ(made.at("maxPages"), 20);
    EXPECT_EQ(made.at("maxCost"), 12.5);
    EXPECT_EQ(made.at("action"), 6);
    EXPECT_EQ(made.at("enforce"), 1);
    EXPECT_EQ(made.at("priority"), 7);

    runEdit("Posters", {"--set", "Name=Banners", "--set", "Max pages=30", "--press", "OK"});

    EXPECT_THAT(names(), Contains("Banners"));
    EXPECT_THAT(names(), Not(Contains("Posters")));
    auto expected = made;
    expected.at("name") = "Banners";
    expected.at("maxPages") = 30;
    EXPECT_EQ(limit("Banners"), expected);

    run("Remove page limit", {"--row", "Banners", "--answer", "ok"});
    restartServer();

    EXPECT_THAT(names(), Not(Contains("Banners")));
}

TEST_F(PageLimitsByCtl, aLimitStaysWhenTheQuestionIsCancelled) {
    runNew({"--set", "Name=Posters", "--press", "OK"});

    run("Remove page limit", {"--row", "Posters", "--answer", "cancel"});

    EXPECT_THAT(names(), Contains("Posters"));
}

TEST_F(PageLimitsByCtl, aMoveGoesToAQueueThatIsSearchedFor) {
    const auto found = json({"call", "39", "str16:"}).at("records");
    ASSERT_FALSE(found.empty());
    const std::string queue = found.at(0).at("queueName");

    runNew({"--set", "Name=Posters", "--set", "Action=Move", "--press", "...", "--set", "Search terms=" + queue,
            "--press", "Search", "--set", "Queue=" + queue, "--press", "OK", "--press", "OK"});

    EXPECT_EQ(limit("Posters").at("destinationId"), found.at(0).at("queueId"));
}

TEST_F(PageLimitsByCtl, aMoveToNowhereIsRefusedAndLeavesNothing) {
    const auto outcome = ctl({"run", node, "New Page Limit Rule...", "--set", "Name=Posters", "--set", "Action=Move",
                              "--press", "OK", "--answer", "ok", "--press", "Cancel"});

    EXPECT_THAT(outcome.output + outcome.errors,
                HasSubstr("Destination field should not be blank, when Move action is selected!"));
    EXPECT_THAT(names(), Not(Contains("Posters")));
}

TEST_F(PageLimitsByCtl, aMessageIsMadeOnTheWay) {
    runNew({"--set", "Name=Posters", "--set", "Message=<New>", "--set", "Message name=Too large", "--set",
            "Text=Ask at the reception", "--press", "OK", "--press", "OK"});

    const auto messages = json({"call", "67", "u8:1", "str8:"}).at("records");
    const auto made = std::ranges::find_if(messages, [](const Json& each) { return each.at("name") == "Too large"; });
    ASSERT_NE(made, messages.end());
    EXPECT_EQ(limit("Posters").at("messageId"), made->at("id"));
}

TEST_F(PageLimitsByCtl, aCostIsReadInTheWayOfTheUserAndKeptWhereItIsLeftAlone) {
    const support::MadeLocales made{"de_DE.UTF-8"};
    const support::EnvironmentVariable german("LC_ALL", "de_DE.UTF-8");

    runNew({"--set", "Name=Posters", "--set", "Max cost=1234,5", "--press", "OK"});
    EXPECT_EQ(limit("Posters").at("maxCost"), 1234.5);

    runEdit("Posters", {"--set", "Comment=Large paper", "--press", "OK"});
    EXPECT_EQ(limit("Posters").at("maxCost"), 1234.5);

    runEdit("Posters", {"--set", "Max cost=2.25", "--press", "OK"});
    EXPECT_EQ(limit("Posters").at("maxCost"), 2.25);
}

} // namespace
} // namespace hosttest
