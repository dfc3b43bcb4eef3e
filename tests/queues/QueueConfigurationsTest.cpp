#include "queues/QueueConfigurations.h"

#include "forms/Form.h"
#include "tests/queues/QueueDialogs.h"

namespace {

using queues::QueueConfigurations;

class ConfigurationsOwner final : public forms::Form {
public:
    explicit ConfigurationsOwner(platform::Platform& platform)
        : Form(platform, u"Owner"), configurations(*this, QueueConfigurations::Details::none) {}

    QueueConfigurations configurations;
};

class ConfigurationsOfAQueue : public QueueDialogs {
protected:
    // The texts of the columns that are seen.
    std::vector<Names> rows() const {
        std::vector<Names> all;
        for (const auto& row : configurations_of_.list.rows()) {
            all.push_back({row.cells.begin() + 2, row.cells.end()});
        }
        return all;
    }

    ConfigurationsOwner owner_{platform_};
    QueueConfigurations& configurations_of_ = owner_.configurations;
};

TEST_F(ConfigurationsOfAQueue, areListedWithTheirIdsInColumnsThatNobodySees) {
    configurations_of_.open("q1");

    EXPECT_EQ(estate_.requests(1), Strings{"17: 02 00 71 31 00 00"});
    Names titles;
    for (const auto& column : configurations_of_.list.columns()) {
        titles.push_back(column.title);
    }
    EXPECT_EQ(titles, (Names{u"ConfigId", u"DriverMapId", u"Driver", u"Locale", u"Configuration Package"}));
    EXPECT_EQ(configurations_of_.list.columns()[0].width, 0);
    EXPECT_EQ(configurations_of_.list.columns()[1].width, 0);
    EXPECT_EQ(configurations_of_.list.rows()[0].cells[0], u"c1");
    EXPECT_EQ(configurations_of_.list.rows()[0].cells[1], u"m1");
    EXPECT_EQ(rows(), (std::vector<Names>{{u"PCL 6", u"de-DE", u"Duplex"}, {u"PostScript", u"en-GB", u""}}));
}

TEST_F(ConfigurationsOfAQueue, areAnEmptyListForAQueueWithoutAny) {
    configurations_.clear();

    configurations_of_.open("q1");

    EXPECT_TRUE(configurations_of_.list.rows().empty());
}

TEST_F(ConfigurationsOfAQueue, areNotAppliedUntilARowIsChosen) {
    configurations_of_.open("q1");

    EXPECT_FALSE(configurations_of_.apply.userPressed());

    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(ConfigurationsOfAQueue, offerTheChoicesOfTheSelectedDriverBelowNone) {
    configurations_of_.open("q1");

    configurations_of_.list.userSelected(0);

    EXPECT_EQ(estate_.requests(2).back(), "18: 02 00 6D 31");
    EXPECT_EQ(rowsOf(configurations_of_.package), (Names{u"None", u"Duplex", u"Simplex"}));
    EXPECT_EQ(configurations_of_.package.selectedText(), u"Duplex");
}

TEST_F(ConfigurationsOfAQueue, offerNoneForADriverWithoutAPackage) {
    configurations_of_.open("q1");

    configurations_of_.list.userSelected(1);

    EXPECT_EQ(configurations_of_.package.selectedText(), u"None");
}

TEST_F(ConfigurationsOfAQueue, areAppliedAtOnceAndReadAgain) {
    configurations_of_.open("q1");
    configurations_of_.list.userSelected(0);
    configurations_of_.package.userSelected(2);
    configurations_[0].configId = "c2";
    configurations_[0].packageName = u"Simplex";

    configurations_of_.apply.userPressed();

    EXPECT_EQ(estate_.changes(1), Strings{"19: 02 00 71 31 02 00 6D 31 02 00 63 32"});
    EXPECT_EQ(rows().front(), (Names{u"PCL 6", u"de-DE", u"Simplex"}));
    EXPECT_EQ(configurations_of_.list.selection(), 0U);
    EXPECT_EQ(configurations_of_.package.selectedText(), u"Simplex");
}

TEST_F(ConfigurationsOfAQueue, areTakenAwayByApplyingNone) {
    configurations_of_.open("q1");
    configurations_of_.list.userSelected(0);
    configurations_of_.package.userSelected(0);

    configurations_of_.apply.userPressed();

    EXPECT_EQ(estate_.changes(1), Strings{"19: 02 00 71 31 02 00 6D 31 00 00"});
}

TEST_F(ConfigurationsOfAQueue, showWhatTheServerHasAfterAChangeThatItDidNotCarryOut) {
    configurations_of_.open("q1");
    configurations_of_.list.userSelected(0);
    configurations_of_.package.userSelected(2);

    configurations_of_.apply.userPressed();

    EXPECT_EQ(rows().front(), (Names{u"PCL 6", u"de-DE", u"Duplex"}));
    EXPECT_EQ(configurations_of_.package.selectedText(), u"Duplex");
}

TEST_F(ConfigurationsOfAQueue, forgetTheChoicesWhenTheirDriverHasGone) {
    configurations_of_.open("q1");
    configurations_of_.list.userSelected(1);
    configurations_.pop_back();

    configurations_of_.apply.userPressed();

    EXPECT_EQ(configurations_of_.list.selection(), std::nullopt);
    EXPECT_TRUE(configurations_of_.package.items().empty());
    EXPECT_FALSE(configurations_of_.apply.enabled());
}

TEST_F(ConfigurationsOfAQueue, areNotAppliedWhileTheChoicesCannotBeRead) {
    configurations_of_.open("q1");
    breakList(18);

    configurations_of_.list.userSelected(0);

    EXPECT_FALSE(configurations_of_.apply.enabled());
    EXPECT_FALSE(configurations_of_.package.enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(ConfigurationsOfAQueue, areNotAppliedWhenTheServerCannotBeAskedForTheChoices) {
    configurations_of_.open("q1");
    estate_.goOffline();

    configurations_of_.list.userSelected(0);

    EXPECT_FALSE(configurations_of_.apply.enabled());
}

} // namespace
