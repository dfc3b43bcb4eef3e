#include "printers/PrintersRootNode.h"
#include "shell/Shell.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FakeEstate.h"

#include <gtest/gtest.h>

namespace {

using Strings = std::vector<std::string>;

constexpr const char* listRegions = "0: 00 00 00 00 00 00 00";
constexpr const char* listPrinters = "6: 00 00 01 00 00 00 00 00";

// The printers in a shell, over a server that counts its connections: one for each request.
class RegionRefresh : public testing::Test {
protected:
    RegionRefresh() {
        estate_.regions = {support::region(1, 0, u"North"), support::region(2, 0, u"South"),
                           support::region(3, 1, u"Harbour")};
        estate_.printers = {support::printer("p1", 1, u"Copier")};
        shell_.start();
    }

    console::ScopeId item(std::u16string_view name) const {
        for (const auto id : shell_.tree().children(shell_.tree().root())) {
            if (shell_.tree().text(id) == name) {
                return id;
            }
        }
        return 0;
    }
    // The commands that the server receives during the work.
    Strings asked(std::size_t most, const std::function<void()>& work) {
        const auto before = estate_.requests(0).size();
        work();
        auto requests = estate_.requests(before + most);
        return {requests.begin() + static_cast<std::ptrdiff_t>(before), requests.end()};
    }

    shell::Observers observers_;
    shell::TaskQueue tasks_;
    shelltest::QuietUserInterface ui_{tasks_};
    support::MemorySettingsStore settings_;
    platform::Platform platform_{.ui = ui_, .settings = settings_};
    support::FakeEstate estate_;
    shelltest::TestSnapIn snapIn_{std::make_shared<printers::PrintersRootNode>(platform_)};
    shell::Shell shell_{snapIn_, tasks_, observers_};
};

TEST_F(RegionRefresh, asksOnceForEachListThatTheRegionReads) {
    shell_.select(item(u"North"));

    const auto requests = asked(4, [&] { shell_.refresh(); });

    EXPECT_EQ(requests, (Strings{listPrinters, listRegions, listPrinters, listRegions}));
}

TEST_F(RegionRefresh, showsWhatHasComeAndWhatHasGone) {
    shell_.select(item(u"North"));
    estate_.printers = {support::printer("p2", 1, u"Plotter")};

    shell_.refresh();

    ASSERT_EQ(shell_.pane().rowCount(), 2U);
    EXPECT_EQ(shell_.pane().cell(1, 0), u"Plotter");
    EXPECT_EQ(shell_.header().columns().front().title, u"Printer Name");
}

TEST_F(RegionRefresh, showsTheColumnsOfWhatIsThereNow) {
    shell_.select(item(u"South"));
    EXPECT_TRUE(shell_.header().columns().empty());
    estate_.printers.push_back(support::printer("p2", 2, u"Plotter"));

    shell_.refresh();

    EXPECT_EQ(shell_.header().columns().size(), 6U);
    EXPECT_EQ(shell_.pane().rowCount(), 1U);
}

// The region reads its lists whenever the console shows or hides it; this must stay.
TEST_F(RegionRefresh, ofAnotherSelectionAlsoReadsTheRegionThatIsLeft) {
    shell_.select(item(u"North"));

    const auto requests = asked(2, [&] { shell_.select(shell_.tree().root()); });

    EXPECT_EQ(requests, (Strings{listPrinters, listRegions}));
}

TEST_F(RegionRefresh, followsTabsAfterARegionWasMadeFromARow) {
    shell_.select(item(u"North"));
    estate_.regions.push_back(support::region(9, 1, u"Airport"));

    ui_.press(std::array{platform::Key::tab, platform::Key::tab});
    shell_.drain();

    EXPECT_EQ(shell_.pane().rowCount(), 3U);
}

} // namespace
