#include "forms/Form.h"
#include "tests/console/ShelfNode.h"
#include "tests/support/RecordingConsole.h"
#include "tests/support/TestPlatform.h"
#include "wire/Cancelled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using MenuItem = support::RecordingConsole::MenuItem;

class NodeCommands : public testing::Test {
protected:
    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<ShelfNode> shelf = std::make_shared<ShelfNode>(platform);
};

TEST_F(NodeCommands, menuEntriesComeInOrderWithTheirStatusTexts) {
    EXPECT_EQ(shelf->AddMenuItems(host, insertionAllowedTop, DataObjectType::scope), Result::ok);
    EXPECT_THAT(host.menu, ElementsAre(MenuItem{u"Add Box", u"To add a box", 12, 0}, MenuItem{u"", u"", 0, 0x800},
                                       MenuItem{u"Empty", u"To empty the shelf", 13, 0}));
}

TEST_F(NodeCommands, entriesAreAddedOnlyWhereTheTopOfTheMenuIsOpen) {
    EXPECT_EQ(shelf->AddMenuItems(host, ~insertionAllowedTop, DataObjectType::scope), Result::notDone);
    EXPECT_THAT(host.menu, IsEmpty());
    EXPECT_EQ(shelf->AddMenuItems(host, 0xF, DataObjectType::result), Result::ok);
    EXPECT_EQ(host.menu.size(), 3U);
}

TEST_F(NodeCommands, aNodeWithoutEntriesAddsNothing) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    EXPECT_EQ(box->AddMenuItems(host, insertionAllowedTop, DataObjectType::scope), Result::notDone);
    EXPECT_THAT(host.menu, IsEmpty());
}

TEST_F(NodeCommands, theHandlersResultIsAnsweredAndF5Pressed) {
    shelf->command = [](std::int32_t id, CommandOrigin) { return id == 12 ? Result::ok : Result::notDone; };
    EXPECT_EQ(shelf->Command(12, DataObjectType::scope), Result::ok);
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::f5)));
}

TEST_F(NodeCommands, aNumberThatTheClassDoesNotHandleHasNoEffectButMayStillPressF5) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    EXPECT_EQ(shelf->Command(999, DataObjectType::scope), Result::notDone);
    EXPECT_EQ(box->Command(999, DataObjectType::scope), Result::notDone);
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::f5)));
    EXPECT_THAT(host.calls, IsEmpty());
    EXPECT_FALSE(shelf->lastExpand.has_value());
}

TEST_F(NodeCommands, theKeysAfterItAreOneSequence) {
    shelf->keys = {platform::Key::tab, platform::Key::f5};
    shelf->Command(12, DataObjectType::scope);
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::tab, platform::Key::f5)));
}

TEST_F(NodeCommands, withoutKeysAfterItNothingIsPressed) {
    shelf->keys = {};
    shelf->Command(12, DataObjectType::scope);
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
}

TEST_F(NodeCommands, theHandlerKnowsWhetherItWasReachedFromTheTree) {
    std::vector<CommandOrigin> origins;
    shelf->command = [&](std::int32_t, CommandOrigin origin) {
        origins.push_back(origin);
        return Result::ok;
    };
    shelf->Command(12, DataObjectType::scope);
    shelf->Command(12, DataObjectType::result);
    shelf->Command(12, DataObjectType::uninitialized);
    EXPECT_THAT(origins, ElementsAre(CommandOrigin::scope, CommandOrigin::result, CommandOrigin::result));
}

TEST_F(NodeCommands, whatAHandlerThrowsIsReportedShowsNoBoxAndSkipsF5) {
    const std::vector<std::function<void()>> throwing{[] { throw "Reading outside scope"; },
                                                      [] { throw std::runtime_error("no connection"); },
                                                      [] { throw wire::Cancelled(); }, [] { throw 5; }};
    for (const auto& raise : throwing) {
        shelf->command = [&](std::int32_t, CommandOrigin) {
            raise();
            return Result::ok;
        };
        EXPECT_EQ(shelf->Command(13, DataObjectType::scope), Result::notDone);
    }
    EXPECT_THAT(platform.failures(),
                ElementsAre("class ShelfNode: command 13: Reading outside scope",
                            "class ShelfNode: command 13: no connection", "class ShelfNode: command 13: Cancelled",
                            "class ShelfNode: command 13: Unknown exception"));
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
    EXPECT_THAT(platform.ui.boxes(), IsEmpty());
}

TEST_F(NodeCommands, everyNotificationIsGuardedAsCommandsAre) {
    shelf->pasting = []() -> Result { throw std::runtime_error("no connection"); };
    shelf->reading = [] { throw "Reading out of scope"; };
    Notification notification{.event = Event::paste, .source = shelf.get(), .componentData = &host};
    EXPECT_EQ(shelf->Notify(notification), Result::failed);
    EXPECT_THAT(shelf->shows, IsEmpty()) << "nothing was pasted";
    notification.event = Event::refresh;
    EXPECT_EQ(shelf->Notify(notification), Result::failed);
    EXPECT_THAT(platform.failures(), ElementsAre("class ShelfNode: notification 32783: no connection",
                                                 "class ShelfNode: notification 32786: Reading out of scope"));
}

TEST_F(NodeCommands, anObserverThatThrowsDoesNotSpoilTheGuard) {
    struct Thrower final : client::CommandObserver {
        void commandStarted(const client::CommandReport&) override {}
        void commandEnded(const client::CommandReport&) override {}
        void handlerStopped(std::string_view, std::string_view) override { throw std::runtime_error("observer"); }
    } thrower;
    platform.platform().hooks.commands = &thrower;
    shelf->command = [](std::int32_t, CommandOrigin) -> Result { throw "Reading outside scope"; };
    EXPECT_EQ(shelf->Command(13, DataObjectType::scope), Result::notDone);
}

TEST_F(NodeCommands, aHandlerMayTakeAwayTheLastReferenceToItsOwnNode) {
    const std::weak_ptr<ShelfNode> watched = shelf;
    shelf->command = [this](std::int32_t, CommandOrigin) {
        shelf.reset();
        return Result::ok;
    };
    ShelfNode* const node = shelf.get();
    EXPECT_EQ(node->Command(13, DataObjectType::scope), Result::ok);
    EXPECT_TRUE(watched.expired());
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::f5)));
}

TEST_F(NodeCommands, aDestructiveCommandAsksWithAWarning) {
    platform.ui.expectBox(platform::Answer::ok, u"Empty the shelf?");
    platform.ui.expectBox(platform::Answer::cancel);
    EXPECT_TRUE(shelf->confirm(u"Empty the shelf?"));
    EXPECT_FALSE(shelf->confirm(u"Really?"));
    EXPECT_EQ(platform.ui.boxes()[0].caption, u"Warning");
    EXPECT_EQ(platform.ui.boxes()[0].style, platform::boxStyle::okCancel);
    EXPECT_EQ(platform.ui.boxes()[0].owner, 0);
}

TEST_F(NodeCommands, aFormIsOwnedByTheActiveWindow) {
    class Empty final : public forms::Form {
    public:
        explicit Empty(platform::Platform& where) : forms::Form(where, u"Empty") {}
    } form(platform);
    platform.ui.expectForm([](forms::Form& shown) { shown.okButton().userPressed(); });
    EXPECT_EQ(shelf->runModal(form), forms::idOk);
    EXPECT_THAT(platform.ui.formOwners, ElementsAre(77));
}

TEST_F(NodeCommands, theTabKeyIsASequenceOfItsOwn) {
    shelf->PressTabKey();
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::tab)));
}

} // namespace
} // namespace console
