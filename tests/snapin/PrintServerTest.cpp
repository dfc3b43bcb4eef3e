#include "snapin/PrintServer.h"

#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Strings = std::vector<std::string>;

struct Branch {
    const char16_t* name;
    std::int32_t image;
    std::int32_t children;
    const char* className;
};

TEST(PrintServerNode, insertsItsBranchesInTheirOrder) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto server = std::make_shared<snapin::PrintServer>(platform);
    const auto row = console.addScopeRow(server);

    expand(console, *server, row);

    EXPECT_EQ(console.childNames(row),
              (std::vector<wire::WideString>{u"Printers", u"Queues", u"Follow Print", u"Local Printers", u"Drivers",
                                             u"Alarms", u"Rules", u"Migration"}));
    EXPECT_TRUE(platform.commands().empty());
}

TEST(PrintServerNode, insertsNoBranchTwice) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto server = std::make_shared<snapin::PrintServer>(platform);
    const auto row = console.addScopeRow(server);

    expand(console, *server, row);
    expand(console, *server, row);

    EXPECT_EQ(console.children(row).size(), 8U);
}

TEST(PrintServerNode, doesNothingWhenItIsCollapsed) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto server = std::make_shared<snapin::PrintServer>(platform);

    expand(console, *server, console.addScopeRow(server), 0);

    EXPECT_TRUE(console.calls.empty());
}

TEST(PrintServerNode, givesItsBranchesTheirImages) {
    constexpr std::array branches{Branch{u"Printers", 7, 1, "class PrintersRootNode"},
                                  Branch{u"Queues", 8, 2, "class QueuesRootNode"},
                                  Branch{u"Follow Print", 9, 2, "class FollowPrintersRootNode"},
                                  Branch{u"Local Printers", 10, 2, "class LocalPrintersRootNode"},
                                  Branch{u"Drivers", 11, 2, "class DriversRootNode"},
                                  Branch{u"Alarms", 16, 2, "class AlarmRootNode"},
                                  Branch{u"Rules", 20, 2, "class RulesRootNode"},
                                  Branch{u"Migration", 21, 2, "class MigrationRootNode"}};
    support::TestPlatform platform;
    const auto server = std::make_shared<snapin::PrintServer>(platform);

    for (std::size_t i = 0; i < branches.size(); ++i) {
        auto& node = *server->branches()[i];
        EXPECT_EQ(node.displayName(), branches[i].name);
        EXPECT_EQ(node.scopeFields().nImage, branches[i].image) << i;
        EXPECT_EQ(node.scopeFields().nOpenImage, branches[i].image) << i;
        EXPECT_EQ(node.scopeFields().cChildren, branches[i].children) << i;
        EXPECT_EQ(node.className(), branches[i].className);
    }
}

TEST(PrintServerNode, letsTheConsoleListItsBranches) {
    support::TestPlatform platform;
    const auto server = std::make_shared<snapin::PrintServer>(platform);
    const char16_t* viewType = nullptr;
    std::int32_t options = -1;

    server->GetResultViewType(viewType, options);

    EXPECT_EQ(options, 0);
}

TEST(PrintServerNode, hasNoMenuAndShowsNothingItself) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto server = std::make_shared<snapin::PrintServer>(platform);

    show(console, *server);

    EXPECT_TRUE(menuOf(console, *server).empty());
    EXPECT_TRUE(console.calls.empty());
}

} // namespace
