#include "console/CBaseNodeItem.h"
#include "tests/support/RecordingConsole.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace console {
namespace {

using platform::Key;
using testing::ElementsAre;
using testing::IsEmpty;
using MenuItem = support::RecordingConsole::MenuItem;

// A lamp, whose menu depends on whether it is lit.
class LampNode final : public CBaseNodeItem<LampNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Lamp"};
    explicit LampNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

    bool lit = false;
    bool dimmed = false;
    bool broken = false;

protected:
    std::span<const NodeCommand<LampNode>> commands() const override {
        static constexpr std::array table{
            NodeCommand<LampNode>{.entry = separator},
            NodeCommand<LampNode>{.entry{u"Light", u"To light it", 1},
                                  .run = &LampNode::turn,
                                  .offered = &LampNode::isDark,
                                  .enabled = &LampNode::works,
                                  .keys{Key::f5, Key::up, Key::down}},
            NodeCommand<LampNode>{
                .entry{u"Put out", u"To put it out", 2}, .run = &LampNode::turn, .offered = &LampNode::isLit},
            NodeCommand<LampNode>{.entry = separator},
            NodeCommand<LampNode>{
                .entry{u"Dim", u"To dim it", 3}, .offered = &LampNode::isLit, .checked = &LampNode::isDimmed},
            NodeCommand<LampNode>{.entry = separator},
            NodeCommand<LampNode>{.entry{nullptr, nullptr, 4}, .run = &LampNode::repair}};
        return table;
    }

private:
    bool isLit() const { return lit; }
    bool isDark() const { return !lit; }
    bool isDimmed() const { return dimmed; }
    bool works() const { return !broken; }
    Result turn(CommandOrigin /*origin*/) {
        lit = !lit;
        return Result::ok;
    }
    Result repair(CommandOrigin origin) {
        broken = false;
        return origin == CommandOrigin::scope ? Result::ok : Result::unexpected;
    }
};

class CommandTable : public testing::Test {
protected:
    std::vector<MenuItem> menu() {
        host.menu.clear();
        lamp->AddMenuItems(host, insertionAllowedTop, DataObjectType::scope);
        return host.menu;
    }

    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<LampNode> lamp = std::make_shared<LampNode>(platform);
};

TEST_F(CommandTable, offersWhatHoldsAtTheMoment) {
    EXPECT_THAT(menu(), ElementsAre(MenuItem{u"Light", u"To light it", 1, 0}));

    lamp->lit = true;

    EXPECT_THAT(menu(), ElementsAre(MenuItem{u"Put out", u"To put it out", 2, 0}, MenuItem{u"", u"", 0, menuSeparator},
                                    MenuItem{u"Dim", u"To dim it", 3, 0}));
}

TEST_F(CommandTable, marksAnEntryWhoseConditionHolds) {
    lamp->lit = true;
    lamp->dimmed = true;

    EXPECT_EQ(menu().back(), (MenuItem{u"Dim", u"To dim it", 3, menuChecked}));
}

TEST_F(CommandTable, disablesAnEntryWhoseConditionDoesNotHold) {
    lamp->broken = true;

    EXPECT_THAT(menu(), ElementsAre(MenuItem{u"Light", u"To light it", 1, menuDisabled}));
}

TEST_F(CommandTable, runsTheHandlerAndPressesItsKeys) {
    EXPECT_EQ(lamp->Command(1, DataObjectType::scope), Result::ok);

    EXPECT_TRUE(lamp->lit);
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(Key::f5, Key::up, Key::down)));
}

TEST_F(CommandTable, runsACommandThatNoMenuOffers) {
    lamp->broken = true;

    EXPECT_EQ(lamp->Command(4, DataObjectType::result), Result::unexpected);

    EXPECT_FALSE(lamp->broken);
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
}

TEST_F(CommandTable, doesNothingForANumberThatIsNotInIt) {
    EXPECT_EQ(lamp->Command(0, DataObjectType::scope), Result::notDone);
    EXPECT_EQ(lamp->Command(3, DataObjectType::scope), Result::notDone) << "without a handler";
    EXPECT_EQ(lamp->Command(77, DataObjectType::scope), Result::notDone);
    EXPECT_FALSE(lamp->lit);
}

} // namespace
} // namespace console
